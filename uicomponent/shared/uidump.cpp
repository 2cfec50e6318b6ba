#include "uidump.h"

namespace {

thread_local UIDump* s_collector = nullptr;

} // namespace

UIDump::UIDump(std::wstring& text) : m_text(text), m_outer(s_collector)
{
    s_collector = this;
}

UIDump::~UIDump()
{
    s_collector = m_outer;
}

bool UIDump::isCollecting()
{
    return s_collector != nullptr;
}

void UIDump::line(std::wstring_view text)
{
    if (s_collector != nullptr) {
        s_collector->m_text.append(std::size_t{2} * s_collector->m_level, L' ');
        s_collector->m_text.append(text).push_back(L'\n');
    }
}

UIDump::Level::Level()
{
    if (s_collector != nullptr) {
        ++s_collector->m_level;
    }
}

UIDump::Level::~Level()
{
    if (s_collector != nullptr && s_collector->m_level > 0) {
        --s_collector->m_level;
    }
}

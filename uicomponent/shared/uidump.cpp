#include "uidump.h"

#include "threadslot.h"

namespace {

struct CollectorTag;
using CollectorSlot = o7::ThreadSlot<CollectorTag>;

UIDump* collector() noexcept
{
    return static_cast<UIDump*>(CollectorSlot::get());
}

} // namespace

UIDump::UIDump(std::wstring& text) : m_text(text), m_outer(collector())
{
    CollectorSlot::set(this);
}

UIDump::~UIDump()
{
    CollectorSlot::set(m_outer);
}

bool UIDump::isCollecting()
{
    return collector() != nullptr;
}

void UIDump::line(std::wstring_view text)
{
    if (UIDump* const own = collector()) {
        own->m_text.append(std::size_t{2} * own->m_level, L' ');
        own->m_text.append(text).push_back(L'\n');
    }
}

UIDump::Level::Level()
{
    if (UIDump* const own = collector()) {
        ++own->m_level;
    }
}

UIDump::Level::~Level()
{
    if (UIDump* const own = collector(); own && own->m_level > 0) {
        --own->m_level;
    }
}

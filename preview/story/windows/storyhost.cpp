#include "storyhost.h"

#include <windows.h>

#include <utility>

#include "otherwindow.h"
#include "stepfailure.h"

namespace o7::story {
namespace {

constexpr int kLongestText = 1024;

} // namespace

StoryHost::StoryHost(std::filesystem::path package, Session session)
    : m_package(std::move(package)), m_session(std::move(session))
{
}

std::string StoryHost::documentField(const std::string&) const
{
    throw StepFailure("This entry has no document.");
}

void StoryHost::setDocumentField(const std::string&, const std::string&)
{
    throw StepFailure("This entry has no document.");
}

/// From the product's module of texts, as the window's own session belongs to its thread.
std::string StoryHost::productText(unsigned number) const
{
    const std::filesystem::path module = m_package / ("strings-" + m_session.language + ".dll");
    HMODULE strings = LoadLibraryExW(module.wstring().c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE);
    wchar_t text[kLongestText];
    const int length = LoadStringW(strings, number, text, kLongestText);
    FreeLibrary(strings);
    return utf8(std::wstring(text, static_cast<std::size_t>(length)));
}

} // namespace o7::story

#include "throworvik.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <csignal>
#endif

namespace o7 {

namespace {

const char* withoutFolder(const char* path) noexcept
{
    const char* name = path;
    for (const char* at = path; *at != '\0'; ++at) {
        if (*at == '/' || *at == '\\') {
            name = at + 1;
        }
    }
    return name;
}

void breakIntoDebugger() noexcept
{
#if defined(_WIN32)
    DebugBreak();
#else
    (void)std::raise(SIGTRAP);
#endif
}

} // namespace

ThrowSite::ThrowSite(const wchar_t* functionName, const char* filePath, int lineNumber)
    : function(functionName), file(withoutFolder(filePath)), line(lineNumber)
{
}

const wchar_t* brokenMessageText() noexcept
{
    return L"A message argument was supplied, but the resulting string is empty. The argument list "
           L"for this message causes a crash. Some code that executes to marshal the arguments to "
           L"pass to the format string method causes a crash (e.g., a NULL pointer indirection). "
           L"Look at the message arguments at the file and line number indicated above.";
}

namespace detail {

void offerTrace(const wchar_t* exceptionName, const CXString& message, const ThrowSite& site,
                const ExecutionContextStack& contextStack)
{
    const CXString text = CXString::Formatted(L"*Throwing* %s: %s", exceptionName, message.c_str());
    if (OrvikException::AllowForExceptionDebug(text, CXString(site.file), site.line, site.function,
                                               contextStack)) {
        breakIntoDebugger();
    }
}

} // namespace detail

} // namespace o7

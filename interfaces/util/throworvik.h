#pragma once
// The one way in which the driver raises its exceptions:
//
//     o7::throwOrvik(GetExceptionPagesFormat, L"ExceptionPagesFormat",
//                    {L"UIPagesParser::parsePages"}, L"page %d", page);

#include "cxstring.h"
#include "executioncontextstack.h"
#include "orvikexception.h"
#include "utilapi.h"

namespace o7 {

/// Where an exception is raised; file and line are those of the place where it is written down
/// (by the compilers' own default arguments: not every one in use has std::source_location).
struct ThrowSite
{
    O7UTIL_API ThrowSite(const wchar_t* functionName, const char* filePath = __builtin_FILE(),
                         int lineNumber = __builtin_LINE());

    const wchar_t* function; ///< "Class::function"
    const char* file;        ///< without its folder
    int line;
};

/// The message when formatting one failed.
O7UTIL_API const wchar_t* brokenMessageText() noexcept;

namespace detail {

/// Offers the trace to OrvikException::AllowForExceptionDebug and breaks into the debugger when
/// told to.
O7UTIL_API void offerTrace(const wchar_t* exceptionName, const CXString& message,
                           const ThrowSite& site, const ExecutionContextStack& contextStack);

template <class... Arguments> CXString throwMessage(const wchar_t* format, Arguments... arguments)
{
    if (format == nullptr || *format == L'\0') {
        return {};
    }
    CXString message;
    const bool formatted = message.Format(format, arguments...);
    return formatted && !message.IsEmpty() ? message : CXString(brokenMessageText());
}

} // namespace detail

/// Formats the message (CXString::Format; an empty format means an empty message), offers the trace
/// "*Throwing* <exceptionName>: <message>" together with the thread's execution contexts, creates
/// the exception with its factory and throws it by value.
template <class Factory, class... Arguments>
[[noreturn]] void throwOrvik(Factory factory, const wchar_t* exceptionName, ThrowSite site,
                             const wchar_t* format, Arguments... arguments)
{
    const CXString message = detail::throwMessage(format, arguments...);
    const ExecutionContextStack contextStack = ExecutionContextStack::current();
    detail::offerTrace(exceptionName, message, site, contextStack);
    throw factory(message, CXString(site.file), site.line, CXString(site.function), contextStack);
}

} // namespace o7

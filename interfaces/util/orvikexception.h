#pragma once
// OrvikException: base of the driver's exceptions.
//
// Thrown and caught by value, across modules too. Copies share their contents and cannot fail. The
// class and its family are written in the headers alone, so that each module has its own copy of
// what the language needs for catching and imports no data.

#include "cxstring.h"
#include "executioncontextstack.h"
#include "utilapi.h"

#include <exception>
#include <memory>
#include <string>
#include <utility>

/// What DisplayExceptionMessage shows.
struct ExceptionDisplay
{
    CXString title; ///< the reporting module
    CXString text;  ///< message, then where and what
};

class OrvikException : public std::exception
{
public:
    using DisplayHook = void (*)(const ExceptionDisplay& display);

    OrvikException(const CXString& name, const CXString& message, const CXString& file, int line,
                   const CXString& function, const ExecutionContextStack& contextStack)
        : m_fields(std::make_shared<const Fields>(
              Fields{name, message, file, line, function, contextStack,
                     (message.IsEmpty() ? name : message).ToUtf8()}))
    {
    }

    /// The message in UTF-8, or the exception's name when there is none.
    const char* what() const noexcept override { return m_fields->what.c_str(); }

    /// The name of the exception's class.
    const CXString& GetName() const noexcept { return m_fields->name; }
    const CXString& GetMessageText() const noexcept { return m_fields->message; }
    const CXString& GetFile() const noexcept { return m_fields->file; }
    int GetLine() const noexcept { return m_fields->line; }
    const CXString& GetFunction() const noexcept { return m_fields->function; }
    const ExecutionContextStack& GetContextStack() const noexcept { return m_fields->contextStack; }

    /// Writes the trace with its place and context stack to the diagnostic output (o7::trace).
    /// True when a debugger is attached and the environment variable O7_BREAK_ON_THROW is set; the
    /// caller then breaks into it. Never fails.
    O7UTIL_API static bool
    AllowForExceptionDebug(const CXString& traceText, const CXString& file, int line,
                           const CXString& function,
                           const ExecutionContextStack& contextStack) noexcept;

    /// Shows the exception in a message box owned by the thread's active window, or hands it to the
    /// display hook. `procedureName` is the function that caught it, `source` the module that
    /// reports; `source` is the title. While one is shown on a thread, further ones of that thread
    /// go to the diagnostic output alone, so that a failing paint cannot pile up boxes.
    /// Never fails: when there is no memory for the text, the box says that, and the hook gets
    /// empty texts.
    O7UTIL_API static void DisplayExceptionMessage(const std::exception& exception,
                                                   const wchar_t* procedureName,
                                                   const wchar_t* source) noexcept;
    /// The same for something thrown that is no std::exception.
    O7UTIL_API static void DisplayUnknownExceptionMessage(const wchar_t* procedureName,
                                                          const wchar_t* source) noexcept;
    /// Takes the place of the message box in this process until set back; null restores the box.
    /// Returns the former hook. What the hook throws is dropped.
    O7UTIL_API static DisplayHook SetDisplayHook(DisplayHook hook) noexcept;

private:
    struct Fields
    {
        CXString name;
        CXString message;
        CXString file;
        int line;
        CXString function;
        ExecutionContextStack contextStack;
        std::string what;
    };
    std::shared_ptr<const Fields> m_fields;
};

/// For failures that have no class of their own.
O7UTIL_API OrvikException GetOrvikException(const CXString& message, const CXString& file, int line,
                                            const CXString& function,
                                            const ExecutionContextStack& contextStack);

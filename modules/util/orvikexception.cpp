#include "orvikexception.h"

#include "messagebox.h"
#include "threadslot.h"
#include "trace.h"

#include <atomic>
#include <cstdlib>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace {

std::atomic<OrvikException::DisplayHook> g_displayHook{nullptr};

bool debuggerWantsBreak() noexcept
{
#if defined(_WIN32)
    return IsDebuggerPresent() != FALSE && std::getenv("O7_BREAK_ON_THROW") != nullptr;
#else
    return false;
#endif
}

// Marks that this thread is showing an exception.
struct Showing;

class ShowingScope
{
public:
    ShowingScope() noexcept : m_first(o7::ThreadSlot<Showing>::get() == nullptr)
    {
        if (m_first) {
            o7::ThreadSlot<Showing>::set(this);
        }
    }
    ~ShowingScope()
    {
        if (m_first) {
            o7::ThreadSlot<Showing>::set(nullptr);
        }
    }
    ShowingScope(const ShowingScope&) = delete;
    ShowingScope& operator=(const ShowingScope&) = delete;

    bool isFirst() const noexcept { return m_first; }

private:
    bool m_first;
};

CXString textOf(const wchar_t* text)
{
    return {text};
}

CXString describe(const std::exception& exception)
{
    const auto* const own = dynamic_cast<const OrvikException*>(&exception);
    if (own == nullptr) {
        return CXString(exception.what());
    }
    CXString text = own->GetMessageText();
    if (!text.IsEmpty()) {
        text += L"\n\n";
    }
    text += CXString::Formatted(L"%s, raised by %s (%s, line %d)", own->GetName().c_str(),
                                own->GetFunction().c_str(), own->GetFile().c_str(), own->GetLine());
    return text;
}

constexpr wchar_t kNoMemory[] = L"There is not enough memory left.";

ExceptionDisplay displayOf(const CXString& what, const wchar_t* procedureName,
                           const wchar_t* source)
{
    ExceptionDisplay display;
    display.title = textOf(source).IsEmpty() ? CXString(L"o7utilQK") : textOf(source);
    display.text = what;
    if (!textOf(procedureName).IsEmpty()) {
        display.text += CXString::Formatted(L"\nCaught in %s", procedureName);
    }
    o7::trace(display.title + L": " + display.text);
    return display;
}

/// @param display  empty when there was no memory for it: what is shown then needs none.
void show(const ExceptionDisplay& display, const wchar_t* source) noexcept
{
    const ShowingScope scope;
    if (!scope.isFirst()) {
        return;
    }
    try {
        if (const OrvikException::DisplayHook hook = g_displayHook.load(); hook != nullptr) {
            hook(display);
        } else if (display.text.IsEmpty()) {
            o7::showErrorBox(source != nullptr ? source : L"", kNoMemory);
        } else {
            o7::showErrorBox(display.title.c_str(), display.text.c_str());
        }
    } catch (...) {
        o7::trace(CXString());
    }
}

template <class Describe>
void showWhat(Describe describeIt, const wchar_t* procedureName, const wchar_t* source) noexcept
{
    ExceptionDisplay display;
    try {
        display = displayOf(describeIt(), procedureName, source);
    } catch (...) {
        o7::trace(CXString());
    }
    show(display, source);
}

} // namespace

bool OrvikException::AllowForExceptionDebug(const CXString& traceText, const CXString& file,
                                            int line, const CXString& function,
                                            const ExecutionContextStack& contextStack) noexcept
{
    try {
        CXString text = traceText;
        text +=
            CXString::Formatted(L"\n  in %s (%s, line %d)", function.c_str(), file.c_str(), line);
        if (!contextStack.empty()) {
            CXString contexts = L"\n  during " + contextStack.toString();
            text += contexts;
        }
        o7::trace(text);
    } catch (...) {
        o7::trace(traceText);
    }
    return debuggerWantsBreak();
}

void OrvikException::DisplayExceptionMessage(const std::exception& exception,
                                             const wchar_t* procedureName,
                                             const wchar_t* source) noexcept
{
    showWhat([&] { return describe(exception); }, procedureName, source);
}

void OrvikException::DisplayUnknownExceptionMessage(const wchar_t* procedureName,
                                                    const wchar_t* source) noexcept
{
    showWhat([] { return CXString(L"An unknown error occurred."); }, procedureName, source);
}

OrvikException::DisplayHook OrvikException::SetDisplayHook(DisplayHook hook) noexcept
{
    return g_displayHook.exchange(hook);
}

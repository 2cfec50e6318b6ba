#include "isolationaware.h"

#include "threadslot.h"
#include "uiresourceids.h"

#include <commctrl.h>

#include <atomic>

namespace {

/// The context that the caller gave for what runs on this thread now; null for the module's own.
struct CallerContextTag;
using CallerContextSlot = o7::ThreadSlot<CallerContextTag>;

/// Exclusive use of a slim lock for a scope.
class LockScope
{
public:
    explicit LockScope(SRWLOCK& lock) noexcept : m_lock(lock)
    {
        ::AcquireSRWLockExclusive(&m_lock);
    }
    ~LockScope() { ::ReleaseSRWLockExclusive(&m_lock); }
    LockScope(const LockScope&) = delete;
    LockScope& operator=(const LockScope&) = delete;

private:
    SRWLOCK& m_lock;
};

/// What is made at first use. The atomics are what the calls read; the owners beside them are
/// touched under the lock only.
struct State
{
    SRWLOCK lock = SRWLOCK_INIT;
    o7::UniqueActivationContext contextOwner;
    o7::UniqueModule libraryOwner;
    std::atomic<HANDLE> context{INVALID_HANDLE_VALUE};
    std::atomic<HMODULE> library{nullptr};
    std::atomic<bool> cleanedUp{false};
    long sessions = 0; ///< under the lock, as is what their end cleans up
};

State s_state;

HANDLE makeContext() noexcept
{
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    description.hModule = IsolationAware::moduleInstance();
    description.lpResourceName = MAKEINTRESOURCEW(O7_MANIFEST);
    return ::CreateActCtxW(&description);
}

HANDLE ownContext() noexcept
{
    const HANDLE known = s_state.context.load(std::memory_order_acquire);
    if (known != INVALID_HANDLE_VALUE) {
        return known;
    }
    const LockScope lock(s_state.lock);
    if (!s_state.contextOwner) {
        s_state.contextOwner.reset(makeContext());
        s_state.context.store(s_state.contextOwner.get(), std::memory_order_release);
    }
    return s_state.contextOwner.get();
}

/// The library that the module's own context selects, whatever the caller's would. From the system
/// only: the host's folder and the working directory are not ours to trust.
HMODULE loadCommonControls(HANDLE context) noexcept
{
    ULONG_PTR cookie = 0;
    if (context == INVALID_HANDLE_VALUE || ::ActivateActCtx(context, &cookie) == FALSE) {
        return nullptr;
    }
    const HMODULE library =
        ::LoadLibraryExW(L"comctl32.dll", nullptr, LOAD_LIBRARY_SEARCH_SYSTEM32);
    ::DeactivateActCtx(0, cookie);
    return library;
}

HMODULE commonControls() noexcept
{
    const HMODULE known = s_state.library.load(std::memory_order_acquire);
    if (known != nullptr) {
        return known;
    }
    const HANDLE context = ownContext();
    const LockScope lock(s_state.lock);
    if (!s_state.libraryOwner) {
        s_state.libraryOwner.reset(loadCommonControls(context));
        s_state.library.store(s_state.libraryOwner.get(), std::memory_order_release);
    }
    return s_state.libraryOwner.get();
}

/// A function of the common-controls library, looked up at its first use and kept.
template <class Function> class LibraryFunction
{
public:
    explicit constexpr LibraryFunction(const char* name) noexcept : m_name(name) {}

    Function get() noexcept
    {
        Function address = m_address.load(std::memory_order_relaxed);
        const HMODULE library = address == nullptr ? commonControls() : nullptr;
        if (library != nullptr) {
            // By way of void*, which every compiler takes for a function without a warning.
            address = reinterpret_cast<Function>(
                reinterpret_cast<void*>(::GetProcAddress(library, m_name)));
            m_address.store(address, std::memory_order_relaxed);
        }
        return address;
    }

    void forget() noexcept { m_address.store(nullptr, std::memory_order_relaxed); }

private:
    const char* m_name;
    std::atomic<Function> m_address{nullptr};
};

LibraryFunction<decltype(&::PropertySheetW)> s_propertySheet("PropertySheetW");
LibraryFunction<decltype(&::CreatePropertySheetPageW)> s_createPage("CreatePropertySheetPageW");
LibraryFunction<decltype(&::DestroyPropertySheetPage)> s_destroyPage("DestroyPropertySheetPage");

/// The lock is held.
void releaseContext() noexcept
{
    s_state.context = INVALID_HANDLE_VALUE;
    s_state.contextOwner.reset();
    s_state.cleanedUp = true;
}

/// Runs a call inside the context; its error is kept when it answers with the failure value.
template <class Answer, class Function, class... Arguments>
Answer callInside(Answer failure, LibraryFunction<Function>& function,
                  Arguments... arguments) noexcept
{
    IsolationAware::ActivationScope scope;
    const Function address = scope.isActive() ? function.get() : nullptr;
    if (address == nullptr) {
        return failure;
    }
    const Answer answer = address(arguments...);
    if (answer == failure) {
        scope.keepLastError();
    }
    return answer;
}

} // namespace

HWND IsolationAware::createWindow(DWORD exStyle, const wchar_t* className, DWORD style,
                                  const Place& place, HWND parent, int id) noexcept
{
    ActivationScope scope;
    if (!scope.isActive()) {
        return nullptr;
    }
    // For a child window the menu argument is its id.
    const auto menu = reinterpret_cast<HMENU>(static_cast<INT_PTR>(id));
    const HWND window =
        ::CreateWindowExW(exStyle, className, L"", style, place.x, place.y, place.width,
                          place.height, parent, menu, moduleInstance(), nullptr);
    if (window == nullptr) {
        scope.keepLastError();
    }
    return window;
}

INT_PTR IsolationAware::propertySheet(const PROPSHEETHEADERW& header) noexcept
{
    return callInside(INT_PTR{-1}, s_propertySheet, &header);
}

HPROPSHEETPAGE IsolationAware::createPropertySheetPage(const PROPSHEETPAGEW& page) noexcept
{
    return callInside(HPROPSHEETPAGE{nullptr}, s_createPage, &page);
}

BOOL IsolationAware::destroyPropertySheetPage(HPROPSHEETPAGE page) noexcept
{
    return callInside(BOOL{FALSE}, s_destroyPage, page);
}

IsolationAware::ActivationScope::ActivationScope() noexcept
{
    if (s_state.cleanedUp.load(std::memory_order_relaxed)) {
        ::OutputDebugStringW(L"IsolationAware function called after IsolationAwareCleanup\n");
    }
    const HANDLE callers = CallerContextSlot::get();
    const HANDLE context = callers != nullptr ? callers : ownContext();
    m_isActive = context != INVALID_HANDLE_VALUE && ::ActivateActCtx(context, &m_cookie) != FALSE;
}

IsolationAware::ActivationScope::~ActivationScope()
{
    if (!m_isActive) {
        return;
    }
    const DWORD error = m_keepsError ? ::GetLastError() : ERROR_SUCCESS;
    ::DeactivateActCtx(0, m_cookie);
    if (m_keepsError) {
        ::SetLastError(error);
    }
}

IsolationAware::CallerContext::CallerContext(HANDLE activationContext) noexcept
    : m_outer(CallerContextSlot::get())
{
    CallerContextSlot::set(activationContext != INVALID_HANDLE_VALUE ? activationContext : nullptr);
}

IsolationAware::CallerContext::~CallerContext()
{
    CallerContextSlot::set(m_outer);
}

IsolationAware::Session::Session() noexcept
{
    const LockScope lock(s_state.lock);
    ++s_state.sessions;
    s_state.cleanedUp = false;
}

IsolationAware::Session::~Session()
{
    // Under one lock: whoever opens a session meanwhile comes before the last one's end and so
    // prevents the cleaning up, or after it.
    const LockScope lock(s_state.lock);
    // The library stays until the module goes: loading it for each sheet costs time, and on some
    // systems a bitmap each time.
    if (--s_state.sessions == 0) {
        releaseContext();
    }
}

void IsolationAware::cleanUp() noexcept
{
    const LockScope lock(s_state.lock);
    s_propertySheet.forget();
    s_createPage.forget();
    s_destroyPage.forget();
    s_state.library = nullptr;
    s_state.libraryOwner.reset();
    releaseContext();
}

HINSTANCE IsolationAware::moduleInstance() noexcept
{
    static const HINSTANCE instance = [] {
        HMODULE module = nullptr;
        ::GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS |
                                 GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
                             reinterpret_cast<LPCWSTR>(&s_state), &module);
        return module;
    }();
    return instance;
}

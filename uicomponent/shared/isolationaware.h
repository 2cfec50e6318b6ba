#pragma once

#include "uiapi.h"
#include "uihandles.h"

#include <windows.h>

#include <prsht.h>

/// Calls into the common-controls library inside the module's own activation context, the one that
/// its manifest (resource 2) describes and that selects version 6. The module is a guest: what the
/// host's own manifest selects must not decide how the pages look.
///
/// The context is made at the first call and kept, as is the address of each library function. All
/// operations may be called on any thread, never throw, and answer the failure value of the call
/// they stand for (null or -1) without making it when the context cannot be activated.
class O7UI_API IsolationAware
{
public:
    /// Where a new window stands, in pixels of its parent's client area.
    struct Place
    {
        int x;
        int y;
        int width;
        int height;
    };

    /// CreateWindowExW. The last error of a failed creation is the one of the creation itself.
    /// The instance is this module's; the text of the new window is empty.
    static HWND createWindow(DWORD exStyle, const wchar_t* className, DWORD style,
                             const Place& place, HWND parent, int id) noexcept;

    /// PropertySheetW: positive or 0 as the sheet answers, -1 on failure.
    static INT_PTR propertySheet(const PROPSHEETHEADERW& header) noexcept;

    /// CreatePropertySheetPageW: the new page, which belongs to the sheet it is given to, or null.
    static HPROPSHEETPAGE createPropertySheetPage(const PROPSHEETPAGEW& page) noexcept;

    /// DestroyPropertySheetPage, for a page that was never given to a sheet.
    static BOOL destroyPropertySheetPage(HPROPSHEETPAGE page) noexcept;

    /// Activates the context for its life: the innermost CallerContext of this thread, otherwise
    /// the module's own. Deactivation keeps the thread's last error when the call inside failed.
    class O7UI_API ActivationScope
    {
    public:
        ActivationScope() noexcept;
        ~ActivationScope();
        ActivationScope(const ActivationScope&) = delete;
        ActivationScope& operator=(const ActivationScope&) = delete;

        /// False when nothing could be activated: then the call must not be made.
        bool isActive() const noexcept { return m_isActive; }

        /// Says that the call inside failed, so that its error survives the deactivation.
        void keepLastError() noexcept { m_keepsError = true; }

    private:
        ULONG_PTR m_cookie = 0;
        bool m_isActive = false;
        bool m_keepsError = false;
    };

    /// While an object of this class lives, calls on this thread use the activation context that
    /// the caller gave (borrowed); with null or the invalid handle the module's own, whatever a
    /// caller further out has given.
    class O7UI_API CallerContext
    {
    public:
        explicit CallerContext(HANDLE activationContext) noexcept;
        ~CallerContext();
        CallerContext(const CallerContext&) = delete;
        CallerContext& operator=(const CallerContext&) = delete;

    private:
        HANDLE m_outer;
    };

    /// A time during which the module is in use, on any thread; every UIManager is one. The end of
    /// the last session releases the context; a new one makes calls legal again. What a session has
    /// created is gone before it ends.
    class O7UI_API Session
    {
    public:
        Session() noexcept;
        ~Session();
        Session(const Session&) = delete;
        Session& operator=(const Session&) = delete;
    };

    /// Releases the context and the library. A call after this still works, but says so in the
    /// debugger output, for whoever makes it outlived the module's use.
    static void cleanUp() noexcept;

    /// The handle of the module that contains this code.
    static HINSTANCE moduleInstance() noexcept;
};

#pragma once

#include "uiguard.h"

#include <windows.h>

namespace o7 {

/// Base (private) of the classes that stand before the window procedure of their own window: keeps
/// the object in the window's user data and the previous procedure in a field, and calls
///
///     LRESULT Owner::subclassWindowProcedure(HWND, UINT, WPARAM, LPARAM)
///
/// for every message; what that does not consume it passes on with callSavedProcedure. The Owner
/// names itself for error messages (kProcedureName, kSource), makes this base its friend, and calls
/// restoreProcedure in its destructor, before the window goes.
///
/// An Owner that is a UIControl hears of what screen readers ask on the way.
///
/// When the window is destroyed first (with its parent), the procedure is restored at WM_NCDESTROY
/// and Owner::forgetWindow() is called, so that nobody touches the dead handle.
template <class Owner> class SubclassedWindow
{
public:
    SubclassedWindow(const SubclassedWindow&) = delete;
    SubclassedWindow& operator=(const SubclassedWindow&) = delete;

protected:
    SubclassedWindow() = default;
    ~SubclassedWindow() { restoreProcedure(); }

    /// Takes over the window's messages; nothing for a null window.
    void subclassWindow(HWND window) noexcept
    {
        if (window == nullptr) {
            return;
        }
        m_subclassed = window;
        ::SetWindowLongPtrW(window, GWLP_USERDATA,
                            reinterpret_cast<LONG_PTR>(static_cast<Owner*>(this)));
        m_savedProcedure = reinterpret_cast<WNDPROC>(::SetWindowLongPtrW(
            window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&SubclassedWindow::procedure)));
    }

    /// Gives the window its procedure back; a second call does nothing. When somebody else stands
    /// before us by now (the tool-tip window subclasses its tools), taking ours out would cut them
    /// off: it then stays and hands every message to the window class's own procedure.
    void restoreProcedure() noexcept
    {
        if (m_savedProcedure == nullptr) {
            return;
        }
        ::SetWindowLongPtrW(m_subclassed, GWLP_USERDATA, 0);
        if (::GetWindowLongPtrW(m_subclassed, GWLP_WNDPROC) ==
            reinterpret_cast<LONG_PTR>(&SubclassedWindow::procedure)) {
            ::SetWindowLongPtrW(m_subclassed, GWLP_WNDPROC,
                                reinterpret_cast<LONG_PTR>(m_savedProcedure));
        }
        m_savedProcedure = nullptr;
    }

    LRESULT callSavedProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        return ::CallWindowProcW(m_savedProcedure, window, message, wParam, lParam);
    }

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam,
                                      LPARAM lParam) noexcept
    {
        auto* owner = reinterpret_cast<Owner*>(::GetWindowLongPtrW(window, GWLP_USERDATA));
        if (owner == nullptr) {
            const auto classProcedure =
                reinterpret_cast<WNDPROC>(::GetClassLongPtrW(window, GCLP_WNDPROC));
            return ::CallWindowProcW(classProcedure, window, message, wParam, lParam);
        }
        if constexpr (requires { owner->onAccessibilityMessage(message); }) {
            owner->onAccessibilityMessage(message);
        }
        if (message == WM_NCDESTROY) {
            const WNDPROC saved = owner->m_savedProcedure;
            owner->restoreProcedure();
            owner->forgetWindow();
            return ::CallWindowProcW(saved, window, message, wParam, lParam);
        }
        return guarded<LRESULT>(Owner::kProcedureName, Owner::kSource, [&] {
            return owner->subclassWindowProcedure(window, message, wParam, lParam);
        });
    }

    HWND m_subclassed = nullptr;
    WNDPROC m_savedProcedure = nullptr;
};

} // namespace o7

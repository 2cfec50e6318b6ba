#pragma once

#include <cstdint>

struct HWND__;

/// Which window procedure packed a message, and so which list of handlers is asked.
enum class UIMessageKind : std::uint32_t
{
    TabPage = 0, ///< a page of a property sheet
    OffTab = 1,  ///< the property-sheet window itself
    Dialog = 2,  ///< a popup dialog
};

/// One window message on its way through the handlers. The field types are those of WPARAM,
/// LPARAM and LRESULT, spelled without <windows.h> so that routing also builds on the host.
///
/// It is passed by constant reference; only the result may be written on the way. The name with
/// its leading underscore is the one that the driver's modules know the record by.
struct _UIWindowsMessage
{
    UIMessageKind kind = UIMessageKind::TabPage;
    HWND__* window = nullptr; ///< the window that the message is for (borrowed)
    std::uint32_t message = 0;
    std::uintptr_t wParam = 0;
    std::intptr_t lParam = 0;
    /// What the window procedure answers (or stores as DWLP_MSGRESULT) when a handler claims.
    mutable std::intptr_t result = 0;
};

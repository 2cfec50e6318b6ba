#pragma once

#include <windows.h>

class UIMessageManager;
struct _UIWindowsMessage;

/// What a page hands to its procedure as creation parameter.
struct UIPageRecord
{
    UIMessageManager* messageManager = nullptr;
    void* reserved = nullptr;
    UINT_PTR tabId = 0; ///< decides which tab a new page window belongs to
};

/// What a popup dialog hands to its procedure as creation parameter.
struct UIDialogRecord
{
    UIMessageManager* messageManager = nullptr;
};

/// The window procedures through which the system calls into the pages: the only places that pack
/// messages. Each shows whatever is thrown behind it and answers 0, or, for a page that was to be
/// applied, that it refuses; a window for which no message manager is known gets 0 without routing.
class UIDialogProcedure
{
public:
    /// Pages of a property sheet, under every entry.
    static INT_PTR CALLBACK cpsuiDialogProcedure(HWND window, UINT message, WPARAM wParam,
                                                 LPARAM lParam) noexcept;
    /// Popup dialogs.
    static INT_PTR CALLBACK dialogProcedure(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam) noexcept;
    /// The property-sheet window itself, while it is subclassed for off-tab areas, and the windows
    /// of these areas.
    static LRESULT CALLBACK offTabDialogProcedure(HWND window, UINT message, WPARAM wParam,
                                                  LPARAM lParam) noexcept;

    /// True for a message that speaks about a record and brings none: it comes from somebody who
    /// guesses, and nobody behind the procedures is asked.
    static bool lacksRecord(const _UIWindowsMessage& message) noexcept;

    /// Name of the window property that holds the message manager of a subclassed sheet.
    static constexpr wchar_t kManagerProperty[] = L"O7UIMessageManager";
    /// Name of the window property that holds a sheet's own procedure after we have gone, when ours
    /// could not be taken out of the chain.
    static constexpr wchar_t kKeptProcedureProperty[] = L"O7UIKeptProcedure";
};

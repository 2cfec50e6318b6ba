#pragma once

#include <windows.h>

#include <vector>

#include "uiwindowsmessage.h"

class UIMessageManager;

/// The property-sheet window while our areas stand in it: measured, enlarged under its pages, and
/// subclassed. Everything is undone in restore(), by the amounts by which it was changed, so what
/// the host or the person moved meanwhile stays moved. Pixels throughout.
///
/// Several managers may have areas on one sheet. The window then has our procedure once, and the
/// objects of this class form a chain, the latest first: each passes on to the one before it, the
/// first to the sheet's own procedure. Each may leave at any time.
class UISheetWindow
{
public:
    UISheetWindow() = default;
    ~UISheetWindow() { restore(); }
    UISheetWindow(const UISheetWindow&) = delete;
    UISheetWindow& operator=(const UISheetWindow&) = delete;

    /// Takes the window and measures it. @return false for a window without a tab control, which is
    /// then not taken.
    bool adopt(HWND sheet);
    /// Null until adopted, and again once the window is gone.
    HWND get() const { return m_sheet; }
    /// The tab control, in client coordinates of the sheet.
    const RECT& getTabControl() const { return m_tabControl; }
    /// The window behind which the areas stand in Tab order: the last one before the buttons.
    HWND getTabPredecessor() const;

    /// Makes room under the tab control: the sheet grows, what stands below moves down, and the
    /// sheet moves up where it would leave the work area of its screen. Its help button goes.
    /// @return false, and nothing changed, when the screen is too low for it.
    bool enlarge(long height);

    /// Puts OffTabDialogProcedure before the window's own and stores the manager as its property.
    /// @return false, and nothing changed, when the property could not be stored.
    bool subclass(UIMessageManager& manager);
    /// What those answer who stood here before: another manager, or the window's own procedure. At
    /// WM_NCDESTROY the window is let go first.
    LRESULT passOn(const _UIWindowsMessage& message);

    /// Gives the window back: sizes, positions, help button, property, procedure. When somebody
    /// else has come in front of our procedure, that stays in the chain and only passes on. A
    /// window that is gone needs nothing.
    void restore() noexcept;

private:
    void findLowerWindows();
    void moveLowerWindows(long distance) const noexcept;
    void resizeSheet(long growth, long shift) const noexcept;
    bool storeFirst(UISheetWindow& first) const noexcept;
    void takeProcedure();
    void leaveChain() noexcept;
    void giveProcedureBack() const noexcept;

    HWND m_sheet = nullptr;
    UIMessageManager* m_manager = nullptr; ///< null while the window is not subclassed
    UISheetWindow* m_before = nullptr;     ///< the next of the chain
    WNDPROC m_keptProcedure = nullptr;     ///< at the end of the chain
    RECT m_tabControl{};
    std::vector<HWND> m_lowerWindows; ///< what stands below the tab control: buttons
    long m_growth = 0;                ///< by which the sheet is higher and those are lower
    long m_shift = 0;                 ///< by which the sheet has moved up
    bool m_isGoing = false;           ///< the window is being destroyed
    bool m_tookHelpButton = false;
};

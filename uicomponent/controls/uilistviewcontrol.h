#pragma once

#include "listviewbase.h"
#include "mortal.h"
#include "rowtip.h"
#include "subclassedwindow.h"
#include "uicontrol.h"

class UIToolTips;

/// A list with columns ("SysListView32"); what it shows and does is ListViewBase's. Its WM_NOTIFY
/// and WM_CONTEXTMENU arrive at the parent: hand them to handleMessage, or the list stays blank.
///
/// When tips are on, a row that the mouse rests on, or that the keyboard moves to, shows its tip:
/// the whole of what its columns cut off, unless a derived class has something else to say.
class O7UI_API UIListViewControl : public UIControl,
                                   public ListViewBase,
                                   private o7::SubclassedWindow<UIListViewControl>
{
public:
    /// @param style     LVS_SINGLESEL, LVS_NOCOLUMNHEADER, LVS_NOSORTHEADER or 0
    /// @param toolTips  shows the rows' tips (borrowed; must outlive the control)
    UIListViewControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                      SIZE size, DWORD style, UIToolTips& toolTips);
    ~UIListViewControl() override;

    /// Forwards to ListViewBase::processWindowsMessage.
    bool handleMessage(const _UIWindowsMessage& message) override;
    void dump() const override;

    /// The tip of a row, by its place from the top; empty for none. By default the texts of the
    /// cells that are cut off, whole, one a line.
    virtual CXString createToolTipText(int row);

    /// Tips are off at first.
    void setEnableTooltips(bool enable);

    /// ListViewBase::setColumns with the widths given in dialog units.
    void setColumnsInDialogUnits(std::vector<o7::ListColumn> columns);

    /// Whether Enter activates the row with the focus instead of pressing the dialog's default
    /// button. Off at first.
    void setTakesEnter(bool takes) noexcept { m_takesEnter = takes; }

private:
    friend o7::SubclassedWindow<UIListViewControl>;
    static constexpr const wchar_t* kProcedureName = L"UIListViewControl::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"uilistviewcontrol";

    void forgetWindow() noexcept;
    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT keyDown(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void showGround() const;
    bool wantsMessage(const MSG* message) const;
    void mouseMoved(POINT place);
    void mouseRested(POINT place);
    void hideTip() noexcept;
    void showTip(int row, int x);
    int rowAt(POINT place) const;
    int focusedIndex() const;
    RECT labelArea(int row, int column) const;

    o7::Mortal m_life;
    o7::RowTip m_tip;
    POINT m_mouse{-1, -1};
    int m_rowUnderMouse = -1;
    bool m_hasTips = false;
    bool m_takesEnter = false;
};

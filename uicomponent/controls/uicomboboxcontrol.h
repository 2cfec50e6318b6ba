#pragma once

#include "icombolistcontrol.h"
#include "subclassedwindow.h"
#include "uicontrol.h"

#include <memory>

namespace o7 {
class TextMeasure;
}

/// A closed list of choices ("COMBOBOX") that draws its own entries, so that those marked as
/// unavailable show grey. Its WM_DRAWITEM arrives at the parent: hand it to handleMessage or draw.
class O7UI_API UIComboBoxControl : public UIControl,
                                   public IComboListControl,
                                   private o7::SubclassedWindow<UIComboBoxControl>
{
public:
    /// @param size  of the closed list; how far it drops follows from its entries
    UIComboBoxControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                      SIZE size);
    ~UIComboBoxControl() override;

    /// Claims the WM_DRAWITEM of its own window.
    bool handleMessage(const _UIWindowsMessage& message) override;
    void dump() const override;

    int getSelection(bool allowNone) override;
    int getCount() override;
    CXString getItemText(int index) override;
    ItemRecord* getItemData(int index) override;
    int findItemById(int id) override;
    bool isItemAvailable(int index) override;
    void setSelection(int index) override;
    void setItemData(int index, ItemRecord* record) override;
    void removeAllItems() override;
    void setItemUnavailable(bool unavailable, int index) override;
    int addItem(const CXString& text) override;
    bool getClearOnDisable() override { return UIControl::getClearOnDisable(); }
    void setClearOnDisable(bool clear) override { UIControl::setClearOnDisable(clear); }
    HWND getHwnd() override { return UIControl::getHwnd(); }
    void dump() override;

    using UIControl::getHwnd;

    /// Draws one entry, or the closed field, in the system's colours: the chosen one highlighted,
    /// an unavailable one grey and never highlighted, everything grey in a disabled box.
    void draw(const DRAWITEMSTRUCT& item) const;

    /// While an object of this class lives, many entries can be added at the price of one set-up
    /// for measuring and one change of the dropped width.
    class O7UI_API Fill
    {
    public:
        explicit Fill(UIComboBoxControl& combo);
        ~Fill();
        Fill(const Fill&) = delete;
        Fill& operator=(const Fill&) = delete;

    private:
        UIComboBoxControl& m_combo;
    };

private:
    friend o7::SubclassedWindow<UIComboBoxControl>;
    static constexpr const wchar_t* kProcedureName = L"UIComboBoxControl::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"uicomboboxcontrol";

    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool moveOverUnavailable(WPARAM key);
    void select(int index);
    CXString textOf(int index) const;
    ItemRecord* recordOf(int index) const;
    bool isGrey(int index) const;
    HFONT itemFont() const;
    void applyDroppedWidth(int count);

    std::unique_ptr<o7::TextMeasure> m_measure; ///< while a Fill lives
    int m_widestItem = 0;                       ///< running maximum of the dropped width
    int m_droppedWidth = 0;                     ///< what the window was given last
    int m_margin = 0;                           ///< width of the reference character
    int m_minVisible = 0;
};

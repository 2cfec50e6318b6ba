#pragma once

#include "uientrylistcontrol.h"

#include <memory>

namespace o7 {
class DroppedList;
class TextMeasure;
} // namespace o7

/// A closed list of choices ("COMBOBOX"). The list drops as wide as its widest entry.
class O7UI_API UIComboBoxControl : public UIEntryListControl
{
public:
    /// @param size  of the closed list; how far it drops follows from its entries
    UIComboBoxControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                      SIZE size);
    ~UIComboBoxControl() override;

    int addItem(const CXString& text) override;
    void dump() const override;

    using UIEntryListControl::dump;

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

protected:
    HWND entryWindow() const override;
    bool isOpen() const override;
    int entriesPerPage() const override;
    void notifySelected() override;
    void tellGreyEntries(std::vector<LONG> entries) override;
    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                    LPARAM lParam) override;

private:
    friend o7::DroppedList;

    bool turnWheel(WPARAM wParam);
    void setItemHeight(int part, int height) const;
    HFONT itemFont() const;
    void applyDroppedWidth(int count);
    void tipWhatIsCut() const;

    std::unique_ptr<o7::DroppedList> m_droppedList; ///< from the first dropping on
    std::unique_ptr<o7::TextMeasure> m_measure;     ///< while entries are added, until painted
    int m_widestItem = 0;                           ///< running maximum of the dropped width
    int m_widestText = 0;                           ///< of all entries
    int m_droppedWidth = 0;                         ///< what the window was given last
    int m_margin = 0;                               ///< width of the reference character
    int m_minVisible = 0;
    int m_wheel = 0;          ///< what it has turned and that made no entry yet
    bool m_isFilling = false; ///< a Fill lives
    bool m_keepsSize = false; ///< while the window takes its font
};

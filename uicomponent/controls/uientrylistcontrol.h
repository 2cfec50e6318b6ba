#pragma once

#include "cxstring.h"
#include "icombolistcontrol.h"
#include "mortal.h"
#include "subclassedwindow.h"
#include "typeahead.h"
#include "uicontrol.h"

#include <functional>
#include <utility>
#include <vector>

class UIToolTips;

namespace o7 {

/// What a kind of window calls the operations on its entries.
struct EntryListMessages
{
    UINT getSelection;
    UINT setSelection;
    UINT getCount;
    UINT getText;
    UINT getTextLength;
    UINT getData;
    UINT setData;
    UINT add;
    UINT reset;
    UINT find;
};

} // namespace o7

/// What combo box and list box have in common: entries with a record each, which the control draws
/// itself so that those marked as unavailable show grey. Their WM_DRAWITEM arrives at the parent:
/// hand it to handleMessage or draw.
///
/// A grey entry cannot be reached by input: arrow keys, Page, Home, End, the wheel and typing the
/// beginning of a text pass over it, and the mouse neither highlights nor takes it. Under the
/// mouse, or when a key has passed over it in an open list, it tells its reason as a tip. From
/// code, and by the data model, a grey entry can be the selected one.
///
/// For lists of which one entry at a time is selected. Selecting from code is silent; input sends
/// the notifications that Windows sends.
class O7UI_API UIEntryListControl : public UIControl,
                                    public IComboListControl,
                                    protected o7::SubclassedWindow<UIEntryListControl>
{
public:
    ~UIEntryListControl() override;

    /// Claims the WM_DRAWITEM of its own window.
    bool handleMessage(const _UIWindowsMessage& message) override;

    int getSelection(bool allowNone) override;
    int getCount() override;
    CXString getItemText(int index) override;
    ItemRecord* getItemData(int index) override;
    int findItemById(int id) override;
    bool isItemAvailable(int index) override;
    /// Nothing is repainted when the entry is selected already.
    void setSelection(int index) override;
    void setItemData(int index, ItemRecord* record) override;
    void removeAllItems() override;
    void setItemUnavailable(bool unavailable, int index) override;
    int addItem(const CXString& text) override;
    bool getClearOnDisable() override { return UIControl::getClearOnDisable(); }
    void setClearOnDisable(bool clear) override { UIControl::setClearOnDisable(clear); }
    HWND getHwnd() override { return UIControl::getHwnd(); }
    void dump() override;

    using UIControl::dump;
    using UIControl::getHwnd;

    /// Draws one entry, or the closed field, in the system's colours.
    void draw(const DRAWITEMSTRUCT& item) const;

    /// Where the reasons of grey entries come from; asked only when one is to be shown. An empty
    /// text shows none. In the same tip, an entry that is wider than the list shows all of its
    /// text.
    /// @param toolTips  borrowed, may be null; must outlive the control
    void setUnavailableReasons(UIToolTips* toolTips, std::function<CXString(int index)> reasonOf);

protected:
    /// @param messages  borrowed for good
    UIEntryListControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                       SIZE size, const o7::EntryListMessages& messages);

    LRESULT send(UINT message, WPARAM wParam = 0, LPARAM lParam = 0) const;
    static WPARAM toIndex(int index) { return static_cast<WPARAM>(static_cast<INT_PTR>(index)); }

    /// Appends a text; negative when the window refuses it.
    LRESULT appendText(const CXString& text);
    CXString textOf(int index) const;
    /// For dump(): the grey entries by name; empty when there are none.
    CXString greyEntries() const;

    /// The window in which the entries stand, also while the list is closed.
    virtual HWND entryWindow() const = 0;
    /// True while the entries can be seen.
    virtual bool isOpen() const = 0;
    /// How many entries a page is, for Page Up and Page Down.
    virtual int entriesPerPage() const;
    /// Tells the parent that input has changed the selection, as the window itself would. The
    /// parent may answer by destroying the control.
    virtual void notifySelected() = 0;
    const o7::Mortal& life() const { return m_life; }

    /// What a message for the window with the entries means; true when it is dealt with.
    bool filterPointing(HWND list, UINT message, LPARAM lParam);
    /// What a key means; true when it is dealt with.
    bool filterKeys(UINT message, WPARAM wParam);
    void hideReason();
    /// Has to be told each message of the window with the entries.
    void onAccessibilityMessage(UINT message) noexcept;
    /// Tells screen readers which entries of that window are grey; by their numbers from 1 on.
    virtual void tellGreyEntries(std::vector<LONG> entries)
    {
        setUnavailableParts(std::move(entries));
    }
    /// The page's; may be null.
    UIToolTips* toolTips() const { return m_toolTips; }

    virtual LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                            LPARAM lParam);

private:
    friend o7::SubclassedWindow<UIEntryListControl>;
    static constexpr const wchar_t* kProcedureName = L"UIEntryListControl::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"uientrylistcontrol";

    ItemRecord* recordOf(int index) const;
    bool isGrey(int index) const;
    bool hasGreyEntries();
    bool moveByKey(WPARAM key);
    int keyTarget(WPARAM key, int current);
    int availableBetween(int from, int end, int step) const;
    bool findTyped(wchar_t character);
    int findAvailable(const CXString& beginning, int start) const;
    void select(int index);
    int entryAt(HWND list, LPARAM position) const;
    void pointAt(HWND list, LPARAM position, int index);
    bool isCut(int index) const;
    CXString tipFor(int index) const;
    void showReason(int index);

    bool isPassedOver(WPARAM key, int wanted);
    void tellReaders();

    o7::Mortal m_life;
    const o7::EntryListMessages& m_messages;
    o7::TypeAhead m_typeAhead;
    UIToolTips* m_toolTips = nullptr;
    std::function<CXString(int)> m_reasonOf;
    HWND m_reasonList = nullptr;
    int m_reasonIndex = -1;   ///< the entry whose reason is shown
    LPARAM m_pointed = -1;    ///< where the mouse was last
    bool m_hasReader = false; ///< a screen reader has asked
};

#pragma once
// ListViewBase: a list with columns ("SysListView32" in report view).
//
// The rows live here (listrows.h); the window keeps none and asks for what it draws. So filling it
// with a thousand rows is one message, a text is kept whole however long it is, and sorting moves
// nothing in the window. The price: the parent must hand its messages to processWindowsMessage,
// or the list stays blank.
//
// Rows are known by an id of the owner's choice, which stays with the row wherever it stands; a
// place (index) is only good until the next change. Selection and focus stay with their rows over
// every change. Changes made by the owner are silent; what the user does is told to the observer.
// Setting what is there already changes and repaints nothing. An id or place that is not there is
// ignored, reads give a neutral value. Without a window the rows are kept all the same.
//
// On the thread of the window only.

#include "listrows.h"
#include "mortal.h"
#include "utilapi.h"

#include <cstdint>
#include <optional>
#include <vector>

struct HDC__;
struct HWND__;
struct tagLVDISPINFOW;
struct tagNMITEMACTIVATE;
struct tagNMLVCUSTOMDRAW;
struct tagNMLVFINDITEMW;

/// What the user does in a list. Each function may change the list. It may destroy it as well, as
/// far as the list itself is concerned; a window of the system does not survive that everywhere.
class O7UTIL_API ListViewObserver
{
public:
    virtual ~ListViewObserver() = default;

    /// Other rows are selected than before; one act of the user may tell it more than once.
    virtual void listSelectionChanged() {}
    /// Double click, or Enter where the list takes it.
    virtual void listRowActivated(int /*id*/) {}
    virtual void listRowChecked(int /*id*/, bool /*isChecked*/) {}
    /// A key (VK_DELETE, VK_F2, VK_SPACE ...). True keeps the list from using it as well.
    virtual bool listKeyPressed(unsigned /*virtualKey*/) { return false; }
    /// A context menu is wanted at a point of the screen, in pixels; without a row on empty ground.
    virtual void listContextMenuWanted(std::optional<int> /*id*/, int /*x*/, int /*y*/) {}
    /// The user gave columns other widths or sorted the list: time to remember it.
    virtual void listLayoutChanged() {}

protected:
    ListViewObserver() = default;
    ListViewObserver(const ListViewObserver&) = default;
    ListViewObserver& operator=(const ListViewObserver&) = default;
};

class O7UTIL_API ListViewBase
{
public:
    ListViewBase(const ListViewBase&) = delete;
    ListViewBase& operator=(const ListViewBase&) = delete;
    virtual ~ListViewBase() = default;

    /// Who is told what the user does (borrowed; null: nobody).
    void setObserver(ListViewObserver* observer) noexcept { m_observer = observer; }

    /// Replaces the columns and lays them out anew; widths in pixels.
    void setColumns(const std::vector<o7::ListColumn>& columns);
    /// Present widths in pixels, to be remembered; empty without a window.
    std::vector<int> getColumnWidths() const;
    /// Gives the columns remembered widths, which then no longer follow the control's. False, and
    /// nothing changed, when there is not one positive width for each column.
    bool setColumnWidths(const std::vector<int>& widths);
    /// Lets the columns fill the control; call it when the control changed its size. Columns that
    /// the user or setColumnWidths gave a width keep it.
    void fitColumns();

    /// Replaces all rows; only the places that differ are painted.
    void setRows(std::vector<o7::ListRow> rows);
    /// False when the id is there already. A sorted list puts the row where it belongs, otherwise
    /// it stands at the place, or at the end for a negative one.
    bool insertRow(o7::ListRow row, int place = -1);
    /// Replaces the row of this id.
    void updateRow(o7::ListRow row);
    void removeRow(int id);
    void removeAllRows();
    /// Takes the row to another place; not in a sorted list.
    void moveRow(int id, int place);
    void setRowUnavailable(int id, bool isUnavailable);
    void setRowChecked(int id, bool isChecked);

    /// Columns and rows as they stand.
    const o7::ListRows& getRows() const noexcept { return m_rows; }

    /// Sorts, and shows the arrow in the column's title.
    void sortBy(o7::ListOrder order);

    /// Ids in the order shown.
    std::vector<int> getSelectedRows() const;
    /// The first selected row.
    std::optional<int> getSelectedRow() const;
    /// Selects exactly these rows, of which a list for one row takes the first, gives the first
    /// the focus and brings it into view. Unknown ids are left out.
    void selectRows(const std::vector<int>& ids);
    void selectRow(int id) { selectRows({id}); }
    /// The row that keys act on.
    std::optional<int> getFocusedRow() const;

    /// A check box before each row.
    void showCheckBoxes(bool show);
    /// What stands in the list while it has no row.
    void setEmptyText(const CXString& text);

    /// Takes a message of the parent: the WM_NOTIFY and WM_CONTEXTMENU of its own window. False
    /// when it is none of those or nothing was done; then result is untouched.
    bool processWindowsMessage(const std::uint32_t message, const std::uintptr_t wParam,
                               const std::intptr_t lParam, std::intptr_t& result);

    /// While an object of this class lives, rows may be changed one by one, but the window is told
    /// only at its end, once for all. It may outlive the window, not the list.
    class O7UTIL_API Update
    {
    public:
        explicit Update(ListViewBase& list);
        ~Update();
        Update(const Update&) = delete;
        Update& operator=(const Update&) = delete;

    private:
        ListViewBase& m_list;
    };

protected:
    ListViewBase() noexcept;

    static const wchar_t* listViewClass() noexcept;
    /// The style to create the window with; the caller may add LVS_SINGLESEL,
    /// LVS_NOCOLUMNHEADER or LVS_NOSORTHEADER.
    static std::uint32_t listViewStyle(std::uint32_t given) noexcept;
    /// Takes a new, empty window of that class and style (borrowed; null is harmless). Create it
    /// inside the activation context that selects version 6 of the common controls.
    void attachListView(HWND__* window);
    /// The window is gone, or about to go.
    void detachListView() noexcept { m_window = nullptr; }
    bool hasCheckBoxes() const noexcept { return m_hasCheckBoxes; }
    /// What a key does, as far as it is not the window's own doing: Space turns the check mark of
    /// the row with the focus, Ctrl+A selects all rows. Then the observer is told. True when the
    /// key is used up.
    bool pressKey(std::uint32_t virtualKey);

private:
    /// Selection and focus, by id.
    struct Marks
    {
        std::vector<int> selected;
        std::optional<int> focused;
    };

    std::intptr_t send(std::uint32_t message, std::uintptr_t wParam = 0,
                       std::intptr_t lParam = 0) const;
    HWND__* headerWindow() const;
    bool isForOneRow() const;
    void showChange();
    void showCount();
    void repaintRows();
    Marks readMarks(const std::vector<int>& places) const;
    void showMarks();
    void keepMarks();
    std::vector<int> markedPlaces() const;
    void markPlaces(const std::vector<int>& marked, const std::vector<int>& wanted);
    void setRowState(int index, std::uint32_t state, std::uint32_t mask);
    void applyWidths(const std::vector<int>& widths);
    void showSortArrow();

    bool notified(std::intptr_t notification, std::intptr_t& result);
    bool headerNotified(std::uint32_t code);
    void giveCell(tagLVDISPINFOW& wanted) const;
    std::intptr_t findRow(const tagNMLVFINDITEMW& wanted) const;
    std::intptr_t customDraw(tagNMLVCUSTOMDRAW& drawing) const;
    void drawEmptyText(HDC__* dc) const;
    void columnClicked(int column);
    void clicked(const tagNMITEMACTIVATE& click, bool isDouble);
    void activate(int index);
    void toggleChecks(int index);
    void statesChanged(std::uint32_t oldState, std::uint32_t newState);
    bool contextMenuWanted(std::intptr_t position);

    o7::Mortal m_life;
    HWND__* m_window = nullptr;
    ListViewObserver* m_observer = nullptr;
    o7::ListRows m_rows;
    CXString m_emptyText;
    int m_updates = 0;          ///< objects of class Update that live
    o7::ListChange m_pending{}; ///< what the window has not been told yet
    /// While an Update lives whose changes move rows or select others: what is selected at its end.
    std::optional<Marks> m_marks;
    std::vector<int> m_marked; ///< ... and the places that the window had selected before
    std::optional<int> m_reveal{};
    bool m_isSilent = false; ///< what changes in the window now is not the user's doing
    bool m_hasCheckBoxes = false;
    bool m_hasFixedWidths = false;
};

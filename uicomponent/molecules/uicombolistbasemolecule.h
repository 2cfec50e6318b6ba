#pragma once

#include <deque>
#include <functional>

#include "itemrecord.h"
#include "uikinds.h"
#include "uimoleculelabel.h"
#include "uioptionmolecule.h"

class UIControlData;
class UIEntryListControl;

/// Base of the molecules that show the options of an option feature as entries of a list, open or
/// closed, with its label: to the left of the list in a column with a label width, otherwise above
/// it. Disabled options stay in the list, grey with their reason, or leave it, as the description
/// says; hidden ones are left out. The present value always has its entry.
class UIComboListBaseMolecule : public UIOptionMolecule
{
public:
    using UIOptionMolecule::UIOptionMolecule;
    ~UIComboListBaseMolecule() override;

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void MoveControls(POINT delta) override;
    void InitializeFromDescription() override;
    void DumpControls() const override;
    void Show(bool shown) override;
    void FitTexts(const UITextRuler& ruler, long width) override;
    long GetWantedLabelWidth(const UITextRuler& ruler) const override;
    HWND InfoAnchor() const override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    /// The list whose entries stand for the options; null before the controls exist.
    virtual UIEntryListControl* List() const = 0;
    /// Reads the record of the list. @return the least height of the list in dialog units
    virtual long ReadListRecord(const UIControlData& control, bool raised) = 0;
    /// What a WM_COMMAND of the list says; true when it is dealt with.
    virtual bool HandleNotification(int notification) = 0;
    /// Runs the filling of the list; a subclass may make it cheaper.
    virtual void FillTogether(const std::function<void()>& fill) { fill(); }

    bool HasControls() const override { return List() != nullptr; }
    void ShowOptions() override;
    void ShowChoice(int option) override;
    void EnableControls(bool enabled) override;

    void SetDisabledOptions(UIDisabledOptions disabledOptions)
    {
        m_disabledOptions = disabledOptions;
    }
    /// Creates the label. @return the place of the list, which is `height` high and ends where the
    /// molecule does
    RECT CreateLabel(UIPageWindow& page, long height);
    /// What each list is told once it exists: reasons of grey entries, name for screen readers.
    void PrepareList();

    /// The user chose an entry. Nothing happens when it is the one that is shown.
    void ChooseEntry(int entry);
    /// Selects what was chosen last once more, after the user has left the list without a choice.
    void ShowLastEntry();

private:
    struct Entry
    {
        ItemRecord record;
        ValueId value;
        int option = -1; ///< index in GetOptions()
    };

    std::vector<int> WantedOptions() const;
    bool HasEntriesFor(const std::vector<int>& options) const;
    void FillList(const std::vector<int>& options);
    void MarkEntries(const std::vector<int>& options);
    CXString ReasonOf(int entry) const;
    void UpdateMinimumHeight();

    UIMoleculeLabel m_label;
    long m_listHeight = 0;       ///< with the room that a button beside the list wants
    std::deque<Entry> m_entries; ///< keep their address: the list's item data are their records
    int m_shownEntry = -1;
    UIDisabledOptions m_disabledOptions = UIDisabledOptions::Grey;
};

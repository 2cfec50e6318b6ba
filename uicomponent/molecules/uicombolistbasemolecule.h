#pragma once

#include <deque>
#include <functional>

#include "itemrecord.h"
#include "optioncapability.h"
#include "uifeaturemolecule.h"

class IComboListControl;

/// Base of the molecules that show the options of an option feature as entries of a list, in the
/// order of the capability. Disabled options stay in the list, grey, and cannot be taken; hidden
/// ones are left out. A choice is written in a transaction, and what is shown afterwards is what
/// was read back, not what was clicked.
class UIComboListBaseMolecule : public UIFeatureMolecule
{
public:
    using UIFeatureMolecule::UIFeatureMolecule;
    ~UIComboListBaseMolecule() override;

    CXString GetObserverClassNameHeirarchy() const override;

protected:
    void LoadValue() override;
    void ShowState(const InterpretedState& state, bool enabled) override;

    /// The list whose entries stand for the options; null before the controls exist.
    virtual IComboListControl* List() const = 0;
    virtual void EnableControls(bool enabled) = 0;
    /// Runs the filling of the list; a subclass may make it cheaper.
    virtual void FillTogether(const std::function<void()>& fill) { fill(); }

    /// The user chose an entry: writes it in a transaction and shows what was read back. Nothing
    /// happens when it is the one that is shown.
    void ChooseEntry(int index);
    /// Selects what was chosen last once more, after the user has left the list without a choice.
    void ShowChoice();
    /// The text of the option now shown; empty when cleared or without a value.
    CXString ShownText() const;
    /// Why the entry cannot be taken; empty when it can.
    CXString ReasonOf(int index) const;
    /// One line per option: text and, when it cannot be taken, why.
    void DumpOptions() const;

private:
    struct Entry
    {
        ItemRecord record;
        CXString text;
        CXString reason;
    };

    bool ReadOptions(std::deque<Entry>& entries) const;
    bool HasSameEntries(const std::deque<Entry>& entries) const;
    void FillList(std::deque<Entry> entries);
    void MarkUnavailable(const std::deque<Entry>& entries);
    void SelectValue(int value);
    int ReadValue() const;

    // Entries keep their address: the list's item data point to their records.
    std::deque<Entry> m_entries;
    int m_shownIndex = -1;
    bool m_cleared = false;
};

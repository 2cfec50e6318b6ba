#pragma once

#include <windows.h>

class CXString;
struct ItemRecord;

/// A list of choices of either kind, combo box or list box. Indexes count from 0.
class IComboListControl
{
public:
    virtual ~IComboListControl() = default;
    /// The selected index. When nothing is selected: -1 if that is allowed, otherwise 0.
    virtual int getSelection(bool allowNone) = 0;
    /// The number of entries; 0 on failure.
    virtual int getCount() = 0;
    /// The entry's text; empty when there is no such entry or its text has 259 characters or more.
    virtual CXString getItemText(int index) = 0;
    /// The entry's record, or null. It belongs to whoever set it.
    virtual ItemRecord* getItemData(int index) = 0;
    /// The first entry whose record carries the id, or -1. Entries without a record are skipped.
    virtual int findItemById(int id) = 0;
    /// True when the entry has a record and is not marked unavailable.
    virtual bool isItemAvailable(int index) = 0;
    /// -1 selects nothing.
    virtual void setSelection(int index) = 0;
    /// Gives the entry its record (borrowed; must outlive the entry).
    virtual void setItemData(int index, ItemRecord* record) = 0;
    virtual void removeAllItems() = 0;
    /// Marks the entry and repaints; nothing when it has no record or holds the mark already.
    virtual void setItemUnavailable(bool unavailable, int index) = 0;
    /// Appends an entry and returns its index, or 0 when the window refused it.
    virtual int addItem(const CXString& text) = 0;
    virtual bool getClearOnDisable() = 0;
    virtual void setClearOnDisable(bool clear) = 0;
    virtual HWND getHwnd() = 0;
    virtual void dump() = 0;

protected:
    IComboListControl() = default;
    IComboListControl(const IComboListControl&) = default;
    IComboListControl& operator=(const IComboListControl&) = default;
};

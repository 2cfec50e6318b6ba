#pragma once

#include <vector>

#include "cxstring.h"
#include "datamodelids.h"
#include "dialogid.h"
#include "uicontainerdata.h"
#include "uidatalist.h"
#include "uimode.h"
#include "uirecords.h"
#include "uitvtabdata.h"

/// The description of one whole user interface: its pages and its dialogs, as a tree of small
/// read-only objects over static records. Built once when the UI starts, unchanged until it
/// closes; owned by the UI manager. It creates no window and never touches the data model.
class UIData
{
public:
    /// Selects the root record by the value of feature 285 and the mode. A pair for which there is
    /// none gives an empty description: no pages, no dialogs, no caption.
    UIData(UIMode mode, DataModelIds::tagValueEnum family, Workflow workflow);

    /// Describes the interface of the given root record, which must outlive the description.
    UIData(const UIRootRecord& root, UIMode mode, Workflow workflow);

    UIData(const UIData&) = delete;
    UIData& operator=(const UIData&) = delete;
    virtual ~UIData();

    /// Called when diagnostics are written; a description made of constant tables has nothing to
    /// add to them.
    virtual void dump() const {}

    const UIDataList<UIContainerData>& getTabs() const { return m_tabs; }
    const UIDataList<UIContainerData>& getDialogs() const { return m_dialogs; }
    /// Areas that the sheet's window shows under its pages, whichever page is active.
    const UIDataList<UIContainerData>& getOffTabs() const { return m_offTabs; }

    /// The dialog of that number, or null when this interface has none.
    const UIContainerData* findDialog(DialogId id) const;
    /// The pages of the popup tab set of that number: all dialogs that have it.
    std::vector<const UIContainerData*> findTabSet(DialogId id) const;

    /// String number of the sheet's caption; 0 when the description is empty.
    std::uint32_t getCaption() const { return m_root != nullptr ? m_root->caption : 0; }

    /// The tree-view page, or null when this interface has none.
    const UITvTabData* getTvTabData() const { return m_tvTab.get(); }

    bool isEmpty() const { return m_root == nullptr; }
    UIMode getMode() const { return m_mode; }
    Workflow getWorkflow() const { return m_workflow; }

    /// A name for diagnostics; empty until somebody sets it.
    const CXString& getName() const { return m_name; }
    void setName(const CXString& name) { m_name = name; }

private:
    UIData(const UIRootRecord* root, UIMode mode, Workflow workflow);

    UIDataList<UIContainerData> m_tabs;
    UIDataList<UIContainerData> m_dialogs;
    const UIRootRecord* m_root;
    CXString m_name;
    std::unique_ptr<UITvTabData> m_tvTab;
    UIDataList<UIContainerData> m_offTabs;
    UIMode m_mode;
    Workflow m_workflow;
};

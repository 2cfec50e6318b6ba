#include "uidata.h"

#include "tables/rootrecords.h"

UIData::UIData(UIMode mode, DataModelIds::tagValueEnum family, Workflow workflow)
    : UIData(o7::findRootRecord(family, mode), mode, workflow)
{
}

UIData::UIData(const UIRootRecord& root, UIMode mode, Workflow workflow)
    : UIData(&root, mode, workflow)
{
}

UIData::UIData(const UIRootRecord* root, UIMode mode, Workflow workflow)
    : m_root(root), m_mode(mode), m_workflow(workflow)
{
    if (m_root == nullptr)
        return;
    const auto modeValue = static_cast<std::uint32_t>(mode);
    m_tabs = o7::wrapRecords<UIContainerData>(m_root->tabs, modeValue);
    m_dialogs = o7::wrapRecords<UIContainerData>(m_root->dialogs, modeValue);
    m_offTabs = o7::wrapRecords<UIContainerData>(m_root->offTabs, modeValue);
    if (m_root->tvTab != nullptr)
        m_tvTab = std::make_unique<UITvTabData>(*m_root->tvTab);
}

UIData::~UIData() = default;

const UIContainerData* UIData::findDialog(DialogId id) const
{
    for (const auto& dialog : m_dialogs) {
        if (dialog->getId() == static_cast<std::uint32_t>(id))
            return dialog.get();
    }
    return nullptr;
}

std::vector<const UIContainerData*> UIData::findTabSet(DialogId id) const
{
    std::vector<const UIContainerData*> pages;
    for (const auto& dialog : m_dialogs) {
        if (dialog->getId() == static_cast<std::uint32_t>(id))
            pages.push_back(dialog.get());
    }
    return pages;
}

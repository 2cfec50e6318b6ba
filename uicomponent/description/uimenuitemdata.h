#pragma once

#include "uimenuitembasedata.h"

/// An item that chooses one value, reports an action, opens a dialog or a sub-menu.
class UIMenuItemData : public UIMenuItemBaseData
{
public:
    explicit UIMenuItemData(const UIMenuItemRecord& record);
    ~UIMenuItemData() override;

    std::uint32_t getLabel() const override { return m_record->label; }
    DataModelIds::tagFeatureEnum getFeature() const override { return m_record->feature; }
    DataModelIds::tagValueEnum getValue() const override { return m_record->value; }
    DataModelIds::tagFeatureEnum getLoadedPaper() const override
    {
        return DataModelIds::kNoFeature;
    }
    std::uint32_t getAction() const override { return m_record->action; }
    DialogId getDialog() const override { return m_record->dialog; }
    std::uint32_t getImage() const override { return m_record->image; }
    std::uint32_t getIndent() const override { return m_record->indent; }
    bool isSelectable() const override { return true; }
    bool isCheckable() const override { return m_record->value != DataModelIds::kNoValue; }
    bool isDynamic() const override { return false; }
    const UIDataList<UIMenuSectionData>& getSubMenu() const override { return m_subMenu; }

private:
    const UIMenuItemRecord* m_record;
    UIDataList<UIMenuSectionData> m_subMenu;
};

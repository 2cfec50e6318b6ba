#pragma once

#include "uimenuitembasedata.h"

/// A placeholder: when the menu opens, every option of its feature stands in its place.
class UIDynamicMenuItemData : public UIMenuItemBaseData
{
public:
    explicit UIDynamicMenuItemData(const UIMenuItemRecord& record) : m_record(&record) {}

    std::uint32_t getLabel() const override { return 0; }
    DataModelIds::tagFeatureEnum getFeature() const override { return m_record->feature; }
    DataModelIds::tagValueEnum getValue() const override { return DataModelIds::kNoValue; }
    DataModelIds::tagFeatureEnum getLoadedPaper() const override
    {
        return DataModelIds::kNoFeature;
    }
    std::uint32_t getAction() const override { return 0; }
    DialogId getDialog() const override { return DialogId{}; }
    std::uint32_t getImage() const override { return 0; }
    std::uint32_t getIndent() const override { return m_record->indent; }
    bool isSelectable() const override { return true; }
    bool isCheckable() const override { return true; }
    bool isDynamic() const override { return true; }
    const UIDataList<UIMenuSectionData>& getSubMenu() const override { return noSubMenu(); }

private:
    const UIMenuItemRecord* m_record;
};

#pragma once

#include "uimenuitembasedata.h"

/// A heading, which cannot be chosen.
class UIMenuItemHeaderData : public UIMenuItemBaseData
{
public:
    explicit UIMenuItemHeaderData(const UIMenuItemRecord& record) : m_record(&record) {}

    std::uint32_t getLabel() const override { return m_record->label; }
    DataModelIds::tagFeatureEnum getFeature() const override { return DataModelIds::kNoFeature; }
    DataModelIds::tagValueEnum getValue() const override { return DataModelIds::kNoValue; }
    DataModelIds::tagFeatureEnum getLoadedPaper() const override
    {
        return DataModelIds::kNoFeature;
    }
    std::uint32_t getAction() const override { return 0; }
    DialogId getDialog() const override { return DialogId{}; }
    std::uint32_t getImage() const override { return m_record->image; }
    std::uint32_t getIndent() const override { return m_record->indent; }
    bool isSelectable() const override { return false; }
    bool isCheckable() const override { return false; }
    bool isDynamic() const override { return false; }
    const UIDataList<UIMenuSectionData>& getSubMenu() const override { return noSubMenu(); }

private:
    const UIMenuItemRecord* m_record;
};

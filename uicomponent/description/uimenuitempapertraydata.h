#pragma once

#include "uimenuitembasedata.h"

/// A tray to choose, shown with the paper that is loaded in it.
class UIMenuItemPaperTrayData : public UIMenuItemBaseData
{
public:
    explicit UIMenuItemPaperTrayData(const UIMenuItemRecord& record) : m_record(&record) {}

    std::uint32_t getLabel() const override { return m_record->label; }
    DataModelIds::tagFeatureEnum getFeature() const override { return m_record->feature; }
    DataModelIds::tagValueEnum getValue() const override { return m_record->value; }
    DataModelIds::tagFeatureEnum getLoadedPaper() const override { return m_record->loadedPaper; }
    std::uint32_t getAction() const override { return 0; }
    DialogId getDialog() const override { return DialogId{}; }
    std::uint32_t getImage() const override { return m_record->image; }
    std::uint32_t getIndent() const override { return m_record->indent; }
    bool isSelectable() const override { return true; }
    bool isCheckable() const override { return true; }
    bool isDynamic() const override { return false; }
    const UIDataList<UIMenuSectionData>& getSubMenu() const override { return noSubMenu(); }

private:
    const UIMenuItemRecord* m_record;
};

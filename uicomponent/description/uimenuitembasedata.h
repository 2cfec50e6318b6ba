#pragma once

#include <cstdint>
#include <memory>

#include "uidatalist.h"
#include "uimenurecords.h"

class UIMenuSectionData;

/// One item of a menu, as the code that fills and runs the menu sees it. Every operation answers
/// for the state that the description fixes; what the data model adds (texts, checks, grey items)
/// is asked of the data model when the menu opens.
class UIMenuItemBaseData
{
public:
    /// The description of the class that belongs to the record's kind; an ordinary item for a kind
    /// that no class claims.
    static std::unique_ptr<UIMenuItemBaseData> create(const UIMenuItemRecord& record);

    UIMenuItemBaseData() = default;
    UIMenuItemBaseData(const UIMenuItemBaseData&) = delete;
    UIMenuItemBaseData& operator=(const UIMenuItemBaseData&) = delete;
    virtual ~UIMenuItemBaseData();

    virtual std::uint32_t getLabel() const = 0; ///< String number; 0: the model's display string.
    virtual DataModelIds::tagFeatureEnum getFeature() const = 0;
    virtual DataModelIds::tagValueEnum getValue() const = 0;         ///< Value that choosing sets.
    virtual DataModelIds::tagFeatureEnum getLoadedPaper() const = 0; ///< Shown behind a tray.
    virtual std::uint32_t getAction() const = 0;                     ///< Button action; 0: none.
    virtual DialogId getDialog() const = 0;                          ///< 0: opens nothing.
    virtual std::uint32_t getImage() const = 0;                      ///< 0: none.
    virtual std::uint32_t getIndent() const = 0;                     ///< Levels.
    virtual bool isSelectable() const = 0;
    virtual bool isCheckable() const = 0; ///< Carries a mark while its value is the current one.
    virtual bool isDynamic() const = 0;   ///< Stands for all options of its feature.
    virtual const UIDataList<UIMenuSectionData>& getSubMenu() const = 0;

protected:
    static const UIDataList<UIMenuSectionData>& noSubMenu();
};

// Static records of menus.
#pragma once

#include <cstdint>

#include "datamodelids.h"
#include "dialogid.h"
#include "uikinds.h"
#include "uirecordlist.h"

struct UIMenuSectionRecord;

/// One item of a menu. Which fields count depends on the kind; the rest keeps its default.
struct UIMenuItemRecord
{
    UIMenuItemKind kind = UIMenuItemKind::Item;
    std::uint32_t label = 0; ///< String number; 0: the text comes from the data model.
    DataModelIds::tagFeatureEnum feature = DataModelIds::kNoFeature;
    DataModelIds::tagValueEnum value = DataModelIds::kNoValue;           ///< Chosen by the item.
    DataModelIds::tagFeatureEnum loadedPaper = DataModelIds::kNoFeature; ///< Kind PaperTray only.
    std::uint32_t action = 0; ///< Button action number that the item reports; 0: none.
    DialogId dialog{};        ///< Dialog that the item opens; 0: none.
    std::uint32_t image = 0;  ///< Bitmap resource number; 0: none.
    std::uint32_t indent = 0; ///< Levels of indentation.
    UIRecords<UIMenuSectionRecord> subMenu{};
};

/// A run of items; a separator line stands between two sections.
struct UIMenuSectionRecord
{
    std::uint32_t title = 0; ///< String number of a heading; 0: none.
    UIRecords<UIMenuItemRecord> items{};
};

// Static records of a page that the system shows as a tree of settings.
#pragma once

#include <cstdint>

#include "datamodelids.h"
#include "dialogid.h"
#include "uikinds.h"
#include "uirecordlist.h"

/// One item of the tree. Which fields count depends on the kind; the rest keeps its default.
struct UITvControlRecord
{
    UITvControlKind kind = UITvControlKind::Node;
    DataModelIds::tagFeatureEnum feature = DataModelIds::kNoFeature;
    std::uint32_t label = 0;  ///< String number.
    std::uint32_t icon = 0;   ///< Icon resource number; 0: the system's for this kind of item.
    std::uint32_t limit = 0;  ///< Kind Edit: most characters. Kind Spin: step (0 counts as 1).
    std::uint32_t action = 0; ///< Kind Button: button action number.
    DialogId dialog{};        ///< Kind Button: dialog to open; 0: none.
    UIRecords<UITvControlRecord> children{}; ///< Kind Node only.
};

struct UITvTabRecord
{
    std::uint32_t title = 0; ///< String number.
    UIRecords<UITvControlRecord> controls{};
};

#pragma once

#include "uirecords.h"

namespace o7 {

/// The root record of that device family in that mode, or null when there is none.
const UIRootRecord* findRootRecord(DataModelIds::tagValueEnum family, UIMode mode);

/// One family of products: its root records, one for each mode it has.
using FamilyRecords = UIRecords<UIRootRecord>;

// Made by the tables of this folder.
extern const FamilyRecords kFamily8430;
extern const FamilyRecords kFamily8431;
extern const FamilyRecords kFamily8432;
extern const FamilyRecords kFamily8433;
extern const FamilyRecords kFamily8434;

} // namespace o7

#include "rootrecords.h"

const UIRootRecord* o7::findRootRecord(DataModelIds::tagValueEnum family, UIMode mode)
{
    const FamilyRecords* const families[] = {&kFamily8430, &kFamily8431, &kFamily8432, &kFamily8433,
                                             &kFamily8434};
    for (const FamilyRecords* records : families) {
        for (const UIRootRecord& record : *records) {
            if (record.family == family && record.mode == mode)
                return &record;
        }
    }
    return nullptr;
}

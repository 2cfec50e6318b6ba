#include "uimenuitembasedata.h"

#include "uidynamicmenuitemdata.h"
#include "uimenuitemdata.h"
#include "uimenuitemheaderdata.h"
#include "uimenuitempapertraydata.h"
#include "uimenusectiondata.h"

UIMenuItemBaseData::~UIMenuItemBaseData() = default;

std::unique_ptr<UIMenuItemBaseData> UIMenuItemBaseData::create(const UIMenuItemRecord& record)
{
    switch (record.kind) {
    case UIMenuItemKind::Dynamic:
        return std::make_unique<UIDynamicMenuItemData>(record);
    case UIMenuItemKind::Header:
        return std::make_unique<UIMenuItemHeaderData>(record);
    case UIMenuItemKind::PaperTray:
        return std::make_unique<UIMenuItemPaperTrayData>(record);
    case UIMenuItemKind::Item:
        break;
    }
    return std::make_unique<UIMenuItemData>(record);
}

const UIDataList<UIMenuSectionData>& UIMenuItemBaseData::noSubMenu()
{
    static const UIDataList<UIMenuSectionData> kNone;
    return kNone;
}

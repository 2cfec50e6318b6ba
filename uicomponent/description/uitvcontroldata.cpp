#include "uitvcontroldata.h"

#include "uitvbuttoncontroldata.h"
#include "uitvcombocontroldata.h"
#include "uitveditcontroldata.h"
#include "uitvnodecontroldata.h"
#include "uitvspincontroldata.h"

UITvControlData::~UITvControlData() = default;

std::unique_ptr<UITvControlData> UITvControlData::create(const UITvControlRecord& record)
{
    switch (record.kind) {
    case UITvControlKind::Node:
        return std::make_unique<UITvNodeControlData>(record);
    case UITvControlKind::Combo:
        return std::make_unique<UITvComboControlData>(record);
    case UITvControlKind::Spin:
        return std::make_unique<UITvSpinControlData>(record);
    case UITvControlKind::Edit:
        return std::make_unique<UITvEditControlData>(record);
    case UITvControlKind::Button:
        return std::make_unique<UITvButtonControlData>(record);
    }
    return std::make_unique<UITvControlData>(record);
}

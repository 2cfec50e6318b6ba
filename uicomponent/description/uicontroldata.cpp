#include "uicontroldata.h"

#include "uibitmapbuttoncontroldata.h"
#include "uibuttoncontroldata.h"
#include "uicheckcontroldata.h"
#include "uicombocontroldata.h"
#include "uidimensionspincontroldata.h"
#include "uieditablelistcontroldata.h"
#include "uieditcontroldata.h"
#include "uigroupboxcontroldata.h"
#include "uihyperlinktextcontroldata.h"
#include "uiimagecontroldata.h"
#include "uijobnotesprefcontroldata.h"
#include "uilistcontroldata.h"
#include "uilistviewcontroldata.h"
#include "uimenucontroldata.h"
#include "uimrucontroldata.h"
#include "uinondatamodellistcontroldata.h"
#include "uiradiocontroldata.h"
#include "uiradioimagecontroldata.h"
#include "uiradiopushcontroldata.h"
#include "uislidercontroldata.h"
#include "uispincontroldata.h"
#include "uisummarycontroldata.h"
#include "uitextcontroldata.h"
#include "uitreeviewcontroldata.h"

namespace {

template <class Data> std::unique_ptr<UIControlData> make(const UIControlRecord& record)
{
    return std::make_unique<Data>(record);
}

struct Maker
{
    UIControlKind kind;
    std::unique_ptr<UIControlData> (*make)(const UIControlRecord& record);
};

// One row for each kind; the row's place is its number less one.
// clang-format off
constexpr Maker kMakers[] = {
    {UIControlKind::Text,             make<UITextControlData>},
    {UIControlKind::HyperlinkText,    make<UIHyperlinkTextControlData>},
    {UIControlKind::Edit,             make<UIEditControlData>},
    {UIControlKind::Combo,            make<UIComboControlData>},
    {UIControlKind::List,             make<UIListControlData>},
    {UIControlKind::Check,            make<UICheckControlData>},
    {UIControlKind::Radio,            make<UIRadioControlData>},
    {UIControlKind::RadioPush,        make<UIRadioPushControlData>},
    {UIControlKind::RadioImage,       make<UIRadioImageControlData>},
    {UIControlKind::Spin,             make<UISpinControlData>},
    {UIControlKind::DimensionSpin,    make<UIDimensionSpinControlData>},
    {UIControlKind::BitmapButton,     make<UIBitmapButtonControlData>},
    {UIControlKind::Slider,           make<UISliderControlData>},
    {UIControlKind::GroupBox,         make<UIGroupBoxControlData>},
    {UIControlKind::Button,           make<UIButtonControlData>},
    {UIControlKind::Image,            make<UIImageControlData>},
    {UIControlKind::Summary,          make<UISummaryControlData>},
    {UIControlKind::Menu,             make<UIMenuControlData>},
    {UIControlKind::ListView,         make<UIListViewControlData>},
    {UIControlKind::EditableList,     make<UIEditableListControlData>},
    {UIControlKind::JobNotesPref,     make<UIJobNotesPrefControlData>},
    {UIControlKind::NonDataModelList, make<UINonDataModelListControlData>},
    {UIControlKind::Plain,            make<UIControlData>},
    {UIControlKind::MRU,              make<UIMRUControlData>},
    {UIControlKind::TreeView,         make<UITreeViewControlData>},
};
// clang-format on

constexpr bool makersStandAtTheirKinds()
{
    std::uint32_t kind = 0;
    for (const Maker& maker : kMakers) {
        if (static_cast<std::uint32_t>(maker.kind) != ++kind)
            return false;
    }
    return kind == static_cast<std::uint32_t>(UIControlKind::TreeView);
}
static_assert(makersStandAtTheirKinds());

} // namespace

UIControlData::~UIControlData() = default;

std::unique_ptr<UIControlData> UIControlData::create(const UIControlRecord& record)
{
    const std::size_t index = static_cast<std::size_t>(record.kind) - 1;
    return index < std::size(kMakers) ? kMakers[index].make(record)
                                      : std::make_unique<UIControlData>(record);
}

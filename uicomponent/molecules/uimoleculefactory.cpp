#include "uimoleculefactory.h"

#include "cxstring.h"
#include "trace.h"
#include "uibuttonmolecule.h"
#include "uicheckboxmolecule.h"
#include "uicomboboxmolecule.h"
#include "uicontainermolecule.h"
#include "uidimensionspinmolecule.h"
#include "uieditmolecule.h"
#include "uigroupboxmolecule.h"
#include "uimoleculedata.h"
#include "uipickonemolecule.h"
#include "uipickoneradiomolecule.h"
#include "uiradiobuttonmolecule.h"
#include "uirangeofintegermolecule.h"
#include "uislidermolecule.h"
#include "uispinmolecule.h"
#include "uistatusmolecule.h"
#include "uitextmolecule.h"

namespace {

template <class Molecule>
std::unique_ptr<UIMolecule> make(const UIMoleculeData& data, const UIMoleculeSite& site)
{
    return std::make_unique<Molecule>(data, site);
}

// clang-format off
constexpr struct
{
    UIMoleculeKind kind;
    std::unique_ptr<UIMolecule> (*create)(const UIMoleculeData&, const UIMoleculeSite&);
} kClasses[] = {
    // kind                          class
    { UIMoleculeKind::CheckBox,       make<UICheckBoxMolecule> },
    { UIMoleculeKind::ComboBox,       make<UIComboBoxMolecule> },
    { UIMoleculeKind::GroupBox,       make<UIGroupBoxMolecule> },
    { UIMoleculeKind::Container,      make<UIContainerMolecule> },
    { UIMoleculeKind::PickOne,        make<UIPickOneMolecule> },
    { UIMoleculeKind::PickOneRadio,   make<UIPickOneRadioMolecule> },
    { UIMoleculeKind::RadioButtons,   make<UIRadioButtonMolecule> },
    { UIMoleculeKind::Spin,           make<UISpinMolecule> },
    { UIMoleculeKind::Slider,         make<UISliderMolecule> },
    { UIMoleculeKind::Edit,           make<UIEditMolecule> },
    { UIMoleculeKind::RangeOfInteger, make<UIRangeOfIntegerMolecule> },
    { UIMoleculeKind::Text,           make<UITextMolecule> },
    { UIMoleculeKind::DimensionSpin,  make<UIDimensionSpinMolecule> },
    { UIMoleculeKind::Status,         make<UIStatusMolecule> },
    { UIMoleculeKind::Button,         make<UIButtonMolecule> },
};
// clang-format on

} // namespace

std::unique_ptr<UIMolecule> UIMoleculeFactory::create(const UIMoleculeData& data,
                                                      const UIMoleculeSite& site)
{
    for (const auto& row : kClasses)
        if (row.kind == data.getKind())
            return row.create(data, site);
    o7::trace(CXString::Formatted(L"no molecule class for kind %u",
                                  static_cast<unsigned>(data.getKind())));
    return nullptr;
}

std::vector<std::unique_ptr<UIMolecule>>
UIMoleculeFactory::createAll(const UIDataList<UIMoleculeData>& descriptions,
                             const UIMoleculeSite& site)
{
    std::vector<std::unique_ptr<UIMolecule>> molecules;
    molecules.reserve(descriptions.size());
    for (const auto& data : descriptions)
        if (auto molecule = create(*data, site))
            molecules.push_back(std::move(molecule));
    return molecules;
}

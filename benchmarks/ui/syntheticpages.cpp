#include "syntheticpages.h"

#include <windows.h>

#include <prsht.h>

#include <filesystem>
#include <initializer_list>
#include <stdexcept>
#include <string_view>
#include <utility>

#include "sheetrig.h"
#include "uistringnumbers.h"

namespace o7::bench {

namespace {

// The made-up product: features of each kind, and one that greys some of them out.
constexpr int kMaster = 100;
constexpr int kFirstCheck = 200;
constexpr int kFirstList = 300;
constexpr int kFirstNumber = 400;
constexpr int kFirstText = 500;
constexpr int kFirstRadio = 600;
constexpr int kOfEachKind = 20;
constexpr int kListOptions = 6;
constexpr int kRadioOptions = 3;
constexpr int kFirstOption = 5110; // whose names the real product knows
constexpr int kFirstOfKinds[] = {kFirstCheck, kFirstList, kFirstNumber, kFirstText, kFirstRadio};
constexpr int kGreyedOfKind = SyntheticPages::kGreyed / std::size(kFirstOfKinds);

// Dialog units. The page is the same however much is on it, and all of it is seen.
constexpr std::int32_t kColumns = 5;
constexpr std::int32_t kColumnWidth = 100;
constexpr std::int32_t kColumnStep = 105;
constexpr std::int32_t kPageWidth = 540;
constexpr std::int32_t kPageHeight = 620;

constexpr UIListRecord kList{};
constexpr UISpinRecord kSpin{};
constexpr UISliderRecord kSlider{.tickFrequency = 100, .pageSize = 100};
constexpr UIEditRecord kEdit{.limit = 64};
constexpr UIRadioRecord kRadio{};

constexpr std::uint32_t kLabels[] = {O7STR_L_SIDES,      O7STR_L_PAPER_SIZE,  O7STR_L_STAPLE,
                                     O7STR_L_PUNCH,      O7STR_L_COLLATE,     O7STR_L_TONER_SAVING,
                                     O7STR_L_PAPER_TRAY, O7STR_L_PAGE_BORDERS};

std::uint32_t labelOf(int number)
{
    return kLabels[static_cast<std::size_t>(number) % std::size(kLabels)];
}

std::string joined(std::initializer_list<std::string_view> parts)
{
    std::string text;
    for (const std::string_view part : parts)
        text += part;
    return text;
}

std::string nameOf(int feature)
{
    return joined({"odrv-f", std::to_string(feature)});
}

std::string feature(int number, std::string_view rest)
{
    return joined({R"({"enum":)", std::to_string(number), R"(,"name":")", nameOf(number), R"(",)",
                   rest, "}"});
}

std::string optionFeature(int number, int options)
{
    std::string names;
    for (int option = 0; option < options; ++option)
        names +=
            joined({option == 0 ? "" : ",", R"({"enum":)", std::to_string(kFirstOption + option),
                    R"(,"name":"v)", std::to_string(option), R"("})"});
    return feature(number, joined({R"("kind":"option","default":"v1","options":[)", names, "]"}));
}

std::string featureOf(int number)
{
    switch (number / 100 * 100) {
    case kFirstList:
        return optionFeature(number, kListOptions);
    case kFirstRadio:
        return optionFeature(number, kRadioOptions);
    case kFirstNumber:
        return feature(number, R"("kind":"integer","range":{"min":1,"max":999},"default":1)");
    case kFirstText:
        return feature(number, R"("kind":"string","maxLength":64,"default":"Orvik")");
    default:
        return feature(number, R"("kind":"boolean","default":false)");
    }
}

/// While the master is on, the target is grey.
std::string constraint(int target)
{
    return joined({R"({"id":"c)", std::to_string(target), R"(","when":[{"feature":")",
                   nameOf(kMaster), R"(","is":[true]}],"effect":{"feature":")", nameOf(target),
                   R"(","kind":"disable"},"reason":60044})"});
}

std::string package()
{
    std::string text = R"({"formatVersion":1,"product":{"id":"bench","modelName":"Bench",
        "uniqueId":"BNCH","controllerFamily":8430,"languages":["en"]},"features":[)";
    text += featureOf(kMaster);
    for (const int first : kFirstOfKinds)
        for (int index = 0; index < kOfEachKind; ++index)
            text += joined({",", featureOf(first + index)});
    text += R"(],"constraints":[)";
    for (const int first : kFirstOfKinds)
        for (int index = 0; index < kGreyedOfKind; ++index)
            text += joined({text.ends_with('[') ? "" : ",", constraint(first + index)});
    return text += "]}";
}

std::unique_ptr<ProductSession> openPackage(const std::wstring& folder)
{
    std::vector<PackageError> errors;
    std::shared_ptr<const ProductPackage> package_ =
        ParseProductPackage(package(), std::filesystem::path(folder) / "package.json", errors);
    if (!package_)
        throw std::runtime_error(errors.front().ToString());
    return ProductSession::open(std::move(package_), CXString(L"en"));
}

} // namespace

SyntheticPages::SyntheticPages(const std::wstring& textFolder) : m_session(openPackage(textFolder))
{
}

SyntheticPages::SyntheticPages(const std::wstring& textFolder, int pages, int windows)
    : SyntheticPages(textFolder)
{
    std::vector<std::vector<UIMoleculeRecord>> columns(kColumns);
    for (int number = 0; number < windows / kBlock; ++number)
        for (UIMoleculeRecord& molecule : block(number))
            columns[static_cast<std::size_t>((number + number / kColumns) % kColumns)].push_back(
                molecule); // each column gets blocks of every kind
    describe(pages, columns);
}

std::unique_ptr<SyntheticPages> SyntheticPages::greying(const std::wstring& textFolder)
{
    std::unique_ptr<SyntheticPages> made(new SyntheticPages(textFolder));
    std::vector<std::vector<UIMoleculeRecord>> columns(kColumns);
    columns[0].push_back(made->check(kMaster));
    for (int index = 0; index < 2 * kGreyedOfKind; ++index) {
        for (const int first : kFirstOfKinds) {
            const auto column = static_cast<std::size_t>(1 + index % (kColumns - 1));
            columns[column].push_back(made->molecule(first + index));
        }
    }
    made->describe(1, columns);
    return made;
}

void SyntheticPages::run() const
{
    test::SheetRig rig(m_session->productData(), m_session->model(), m_session->strings(), *m_data);
    rig.run(PSH_NOAPPLYNOW);
}

template <class Record> UIRecords<Record> SyntheticPages::keep(std::vector<Record> records)
{
    auto& store = [this]() -> auto&
    {
        if constexpr (std::is_same_v<Record, UIControlRecord>)
            return m_controls;
        else if constexpr (std::is_same_v<Record, UIMoleculeRecord>)
            return m_molecules;
        else
            return m_columns;
    }
    ();
    const std::vector<Record>& kept = store.emplace_back(std::move(records));
    UIRecords<Record> view;
    view.first = kept.data();
    view.count = kept.size();
    return view;
}

UIMoleculeRecord SyntheticPages::check(int feature)
{
    const auto number = static_cast<DataModelIds::tagFeatureEnum>(feature);
    return {.kind = UIMoleculeKind::CheckBox,
            .controls = keep<UIControlRecord>(
                {{.kind = UIControlKind::Check, .feature = number, .label = labelOf(feature)}})};
}

UIMoleculeRecord SyntheticPages::box(UIMoleculeKind kind, UIControlKind control, int feature,
                                     UIExtraRecord extra)
{
    const auto number = static_cast<DataModelIds::tagFeatureEnum>(feature);
    return {.kind = kind,
            .controls = keep<UIControlRecord>(
                {{.kind = UIControlKind::Text, .feature = number, .label = labelOf(feature)},
                 {.kind = control, .feature = number, .extra = extra}})};
}

UIMoleculeRecord SyntheticPages::molecule(int feature)
{
    switch (feature / 100 * 100) {
    case kFirstList:
        return feature % 2 == 0
                   ? box(UIMoleculeKind::ComboBox, UIControlKind::Combo, feature)
                   : box(UIMoleculeKind::PickOne, UIControlKind::List, feature, &kList);
    case kFirstNumber:
        return feature % 2 == 0
                   ? box(UIMoleculeKind::Spin, UIControlKind::Spin, feature, &kSpin)
                   : box(UIMoleculeKind::Slider, UIControlKind::Slider, feature, &kSlider);
    case kFirstText:
        return box(UIMoleculeKind::Edit, UIControlKind::Edit, feature, &kEdit);
    case kFirstRadio:
        return box(UIMoleculeKind::PickOneRadio, UIControlKind::Radio, feature, &kRadio);
    default:
        return check(feature);
    }
}

UIMoleculeRecord SyntheticPages::text()
{
    return {.kind = UIMoleculeKind::Text,
            .controls = keep<UIControlRecord>(
                {{.kind = UIControlKind::Text, .label = O7STR_L_TONER_SAVING}})};
}

UIMoleculeRecord SyntheticPages::group(std::vector<UIMoleculeRecord> children)
{
    return {.kind = UIMoleculeKind::GroupBox,
            .children = keep(std::move(children)),
            .title = O7STR_TAB_PAPER};
}

/// The blocks take turns; each has kBlock windows.
std::vector<UIMoleculeRecord> SyntheticPages::block(int number)
{
    const int even = number % kOfEachKind / 2 * 2;
    switch (number % 5) {
    case 0:
        return {group({check(kFirstCheck + even), molecule(kFirstList + even),
                       check(kFirstCheck + even + 1)})};
    case 1: // with arrows, label and box; label and box
        return {molecule(kFirstNumber + even), molecule(kFirstText + even)};
    case 2:
        return {molecule(kFirstList + even), text(), check(kFirstCheck + even),
                check(kFirstCheck + even + 1)};
    case 3: // label, slider and its number; label and list
        return {molecule(kFirstNumber + even + 1), molecule(kFirstList + even + 1)};
    default: // a heading, the start of the group, three buttons
        return {molecule(kFirstRadio + even)};
    }
}

void SyntheticPages::describe(int pages, const std::vector<std::vector<UIMoleculeRecord>>& columns)
{
    std::vector<UIColumnRecord> records;
    for (std::size_t index = 0; index < columns.size(); ++index)
        if (!columns[index].empty())
            records.push_back({.x = 7 + kColumnStep * static_cast<std::int32_t>(index),
                               .width = kColumnWidth,
                               .molecules = keep(columns[index])});
    const UIRecords<UIColumnRecord> all = keep(std::move(records));
    for (int page = 1; page <= pages; ++page)
        m_pages.push_back({.id = static_cast<std::uint32_t>(page),
                           .title = O7STR_TAB_PAPER,
                           .width = kPageWidth,
                           .height = kPageHeight,
                           .columns = all});
    m_root.family = DataModelIds::kValueFamily8430;
    m_root.tabs.first = m_pages.data();
    m_root.tabs.count = m_pages.size();
    m_data = std::make_unique<UIData>(m_root, UIMode::PrintingPreferences, Workflow::Standard);
}

} // namespace o7::bench

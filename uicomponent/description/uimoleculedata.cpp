#include "uimoleculedata.h"

#include "uicontainerdata.h"

namespace {

constexpr std::uint32_t kModeValuesWithNestedPages[] = {
    static_cast<std::uint32_t>(UIMode::DeviceSettings),
    static_cast<std::uint32_t>(UIMode::CompactDialog),
    static_cast<std::uint32_t>(UIMode::PrintingDefaults),
    72,
};

bool wantsNestedContainer(const UIMoleculeRecord& record, std::uint32_t modeValue)
{
    if (record.kind != UIMoleculeKind::Container || record.nested == nullptr)
        return false;
    for (const std::uint32_t value : kModeValuesWithNestedPages) {
        if (value == modeValue)
            return true;
    }
    return false;
}

bool isText(UIControlKind kind)
{
    return kind == UIControlKind::Text || kind == UIControlKind::HyperlinkText;
}

} // namespace

UIMoleculeData::UIMoleculeData(const UIMoleculeRecord& record, std::uint32_t modeValue)
    : m_record(&record)
{
    if (wantsNestedContainer(record, modeValue))
        m_nested = std::make_unique<UIContainerData>(*record.nested, modeValue);
    m_children = o7::wrapRecords<UIMoleculeData>(record.children, modeValue);
    m_controls.reserve(record.controls.size());
    for (const UIControlRecord& control : record.controls)
        m_controls.push_back(UIControlData::create(control));
}

UIMoleculeData::~UIMoleculeData() = default;

DataModelIds::tagFeatureEnum UIMoleculeData::getFeature() const
{
    for (const UIControlRecord& control : m_record->controls) {
        if (!isText(control.kind) && control.feature != DataModelIds::kNoFeature)
            return control.feature;
    }
    return DataModelIds::kNoFeature;
}

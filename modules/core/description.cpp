#include "description.h"

#include <algorithm>

namespace o7 {
namespace {

/// The length in UTF-16 units, the same on every platform.
std::size_t Utf16Length(const CXString& text)
{
    return text.ToUtf16Le().size() / 2;
}

constexpr auto kNumber = [](const auto& one) { return static_cast<int>(one.number); };
constexpr auto kName = [](const auto& one) -> const CXString& { return one.name; };

/// What it was called in that version, if not as today; else an empty id.
template <typename Id, typename Part>
Id FormerOf(const FormerIds& former, unsigned version, Part part)
{
    for (const FormerId& id : former) {
        if (id.until >= version && part(id) != Id())
            return part(id);
    }
    return Id();
}

/// A former number may have been given to another since, so former ones count first.
template <typename Described, typename Id, typename Part>
std::size_t FindAt(const std::vector<Described>& all, unsigned version, const Id& id, Part part)
{
    const auto index = [&](const auto& isMeant) {
        const auto found = std::find_if(all.begin(), all.end(), isMeant);
        return found == all.end() ? ListDescription::kNotThere
                                  : static_cast<std::size_t>(found - all.begin());
    };
    const std::size_t renamed = index([&](const Described& one) {
        return !one.former.empty() && id != Id() && FormerOf<Id>(one.former, version, part) == id;
    });
    return renamed != ListDescription::kNotThere ? renamed : index([&](const Described& one) {
        return part(one) == id && FormerOf<Id>(one.former, version, part) == Id();
    });
}

} // namespace

bool FeatureDescription::IsPrivate() const
{
    constexpr std::wstring_view kPrefix = L"odrv-priv-ui-";
    return name.View().substr(0, kPrefix.size()) == kPrefix;
}

bool FeatureDescription::AcceptsOption(ValueId& value) const
{
    const bool byName = value.GetValueEnum() == DataModelIds::kValueByName;
    for (const OptionDescription& option : options) {
        if (byName ? option.name == value.GetValueName() : option.number == value.GetValueEnum()) {
            value = ValueId(option.number, Id(), option.name, CXString());
            return true;
        }
    }
    const bool userText = byName || value.GetValueEnum() == DataModelIds::kValueFirstUserText;
    if (!userDefinedValues || !userText || value.GetValueName().IsEmpty() ||
        Utf16Length(value.GetValueName()) > maxLength)
        return false;
    value = ValueId(DataModelIds::kValueFirstUserText, Id(), value.GetValueName(),
                    value.GetValueName());
    return true;
}

ValueId FeatureDescription::PresentOption(const ValueId& value, unsigned version) const
{
    if (value.GetValueEnum() == DataModelIds::kValueFirstUserText)
        return value;
    const bool byName = value.GetValueEnum() == DataModelIds::kValueByName;
    const std::size_t found =
        byName ? FindAt(options, version, value.GetValueName(), kName)
               : FindAt(options, version, static_cast<int>(value.GetValueEnum()), kNumber);
    if (found < options.size())
        return ValueId(options[found].number, Id(), options[found].name, CXString());
    // What is not an option's name today either may be a text of the user's own.
    const bool own = byName && std::none_of(options.begin(), options.end(), [&](const auto& one) {
                         return one.name == value.GetValueName();
                     });
    return own ? value : ValueId(DataModelIds::kNoValue);
}

bool FeatureDescription::AcceptsInteger(int value) const
{
    return ranges.empty() || std::any_of(ranges.begin(), ranges.end(), [&](RangeOfInteger range) {
               return range.Contains(value);
           });
}

const std::pair<Dimension, Dimension>* FeatureDescription::SizeOf(const FeatureValue* medium) const
{
    const auto* chosen = medium != nullptr ? std::get_if<ValueId>(medium) : nullptr;
    for (const OptionDescription& option : options) {
        if (chosen != nullptr && option.number == chosen->GetValueEnum())
            return option.size ? &*option.size : nullptr;
    }
    return nullptr;
}

bool FeatureDescription::Accepts(FeatureValue& value) const
{
    switch (kind) {
    case FeatureKind::Option: {
        auto* option = std::get_if<ValueId>(&value);
        return option != nullptr && AcceptsOption(*option);
    }
    case FeatureKind::Integer: {
        const auto* whole = std::get_if<int>(&value);
        return whole != nullptr && AcceptsInteger(*whole);
    }
    case FeatureKind::String: {
        const auto* text = std::get_if<CXString>(&value);
        return text != nullptr && Utf16Length(*text) <= maxLength;
    }
    case FeatureKind::Boolean:
        return std::holds_alternative<bool>(value);
    case FeatureKind::Range: {
        const auto* range = std::get_if<RangeOfInteger>(&value);
        return range != nullptr && range->GetLowerBound() <= range->GetUpperBound() &&
               AcceptsInteger(range->GetLowerBound()) && AcceptsInteger(range->GetUpperBound());
    }
    case FeatureKind::Dimension: {
        const auto* length = std::get_if<Dimension>(&value);
        return length != nullptr &&
               (!limits || (*length >= limits->first && *length <= limits->second));
    }
    case FeatureKind::Resolution: {
        const auto* resolution = std::get_if<Resolution>(&value);
        return resolution != nullptr && resolution->horizontal > 0 && resolution->vertical > 0 &&
               resolution->bitsPerDot > 0;
    }
    case FeatureKind::ListOfFeatures:
    case FeatureKind::ListOfValues:
    case FeatureKind::Unsupported:
        break;
    }
    return false;
}

void ListDescription::Add(FeatureDescription feature)
{
    m_index.try_emplace(feature.number, features.size());
    m_hasFormer = m_hasFormer || !feature.former.empty();
    features.push_back(std::move(feature));
}

std::size_t ListDescription::IndexOf(FeatureEnum number) const
{
    const auto found = m_index.find(number);
    return found == m_index.end() ? kNotThere : found->second;
}

std::size_t ListDescription::IndexAt(unsigned version, std::uint64_t number) const
{
    constexpr std::uint64_t kHighest = 0x7FFFFFFF;
    if (number > kHighest)
        return kNotThere;
    return m_hasFormer ? FindAt(features, version, static_cast<int>(number), kNumber)
                       : IndexOf(static_cast<FeatureEnum>(number));
}

std::size_t ListDescription::IndexAt(unsigned version, const CXString& name) const
{
    return FindAt(features, version, name, kName);
}

CXString ListDescription::NameAt(unsigned version, std::size_t index) const
{
    const FeatureDescription& feature = features[index];
    if (!m_hasFormer)
        return feature.name;
    const CXString former = FormerOf<CXString>(feature.former, version, kName);
    const CXString& name = former.IsEmpty() ? feature.name : former;
    return IndexAt(version, name) == index ? name : CXString();
}

const FeatureDescription* ListDescription::Find(FeatureEnum number) const
{
    const std::size_t index = IndexOf(number);
    return index == kNotThere ? nullptr : &features[index];
}

const FeatureDescription* ListDescription::Find(const CXString& name) const
{
    const auto found = std::find_if(features.begin(), features.end(),
                                    [&](const auto& feature) { return feature.name == name; });
    return found == features.end() ? nullptr : &*found;
}

} // namespace o7

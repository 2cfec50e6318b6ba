#include "blockvalue.h"

#include <algorithm>
#include <utility>

namespace o7 {
namespace {

std::size_t SignedSize(std::int64_t value)
{
    BlockWriter out;
    out.Signed(value);
    return out.Bytes().size();
}

/// False when the bytes are no value of this kind.
bool ReadValue(FeatureKind kind, BlockReader in, FeatureValue& value)
{
    int first = 0;
    int second = 0;
    std::int64_t count = 0;
    std::uint8_t byte = 0;
    switch (kind) {
    case FeatureKind::Option:
        if (!in.Int(first))
            return false;
        value = ValueId(static_cast<ValueEnum>(first), FeatureId(), in.Text(), CXString());
        return true;
    case FeatureKind::Integer:
        if (!in.Int(first) || !in.AtEnd())
            return false;
        value = first;
        return true;
    case FeatureKind::String:
        value = in.Text();
        return true;
    case FeatureKind::Boolean:
        if (!in.Byte(byte) || byte > 1 || !in.AtEnd())
            return false;
        value = byte == 1;
        return true;
    case FeatureKind::Range:
        if (!in.Int(first) || !in.Int(second) || !in.AtEnd())
            return false;
        value = RangeOfInteger(first, second);
        return true;
    case FeatureKind::Dimension:
        if (!in.Signed(count) || !in.Byte(byte) || !in.AtEnd() ||
            byte > static_cast<std::uint8_t>(Dimension::UnitsEnum::Point))
            return false;
        value = Dimension::FromCount(count, static_cast<Dimension::UnitsEnum>(byte));
        return true;
    case FeatureKind::Resolution:
    case FeatureKind::ListOfFeatures:
    case FeatureKind::ListOfValues:
    case FeatureKind::Unsupported:
        break;
    }
    return false;
}

} // namespace

void WriteValue(const FeatureValue& value, BlockWriter& out)
{
    if (const auto* option = std::get_if<ValueId>(&value)) {
        out.Signed(option->GetValueEnum());
        if (option->GetValueEnum() == DataModelIds::kValueFirstUserText)
            out.Text(option->GetValueName().ToUtf8());
    } else if (const auto* number = std::get_if<int>(&value)) {
        out.Signed(*number);
    } else if (const auto* text = std::get_if<CXString>(&value)) {
        out.Text(text->ToUtf8());
    } else if (const auto* flag = std::get_if<bool>(&value)) {
        out.Fixed(*flag ? 1 : 0, 1);
    } else if (const auto* range = std::get_if<RangeOfInteger>(&value)) {
        out.Signed(range->GetLowerBound());
        out.Signed(range->GetUpperBound());
    } else if (const auto* length = std::get_if<Dimension>(&value)) {
        out.Signed(length->GetCount());
        out.Fixed(static_cast<std::uint32_t>(length->GetUnits()), 1);
    }
}

std::size_t LongestValue(const FeatureDescription& description, const SettingsSnapshot& settings)
{
    constexpr std::size_t kLongestInt = 5;
    constexpr std::size_t kLongestCount = 10;
    BlockWriter out;
    if (!IsDefault(description, settings))
        WriteValue(settings.value, out);
    std::size_t present = out.Bytes().size();
    switch (description.kind) {
    case FeatureKind::Option:
        for (const OptionDescription& option : description.options)
            present = std::max(present, SignedSize(option.number));
        return present;
    case FeatureKind::Integer: {
        std::size_t longest = description.ranges.empty() ? kLongestInt : 0;
        for (const RangeOfInteger& range : description.ranges)
            longest = std::max(
                {longest, SignedSize(range.GetLowerBound()), SignedSize(range.GetUpperBound())});
        return longest;
    }
    case FeatureKind::Boolean:
        return 1;
    case FeatureKind::Range:
        return 2 * kLongestInt;
    case FeatureKind::Dimension:
        return kLongestCount + 1;
    case FeatureKind::String:
    case FeatureKind::Resolution:
    case FeatureKind::ListOfFeatures:
    case FeatureKind::ListOfValues:
    case FeatureKind::Unsupported:
        break;
    }
    return present;
}

void TakeValue(const FeatureDescription& description, FeatureKind kind, BlockReader in,
               unsigned version, SettingsSnapshot& settings)
{
    FeatureValue value;
    if (kind != description.kind || !ReadValue(kind, in, value))
        return;
    if (auto* option = std::get_if<ValueId>(&value))
        *option = description.PresentOption(*option, version);
    if (description.Accepts(value))
        settings.Choose(std::move(value));
}

} // namespace o7

#include "valuetext.h"

namespace o7 {
namespace {

std::string OptionText(const ValueId& value)
{
    if (!value.GetValueName().IsEmpty())
        return value.GetValueName().ToUtf8();
    return std::string("#").append(std::to_string(value.GetValueEnum()));
}

std::string LengthText(const Dimension& length)
{
    // In the order of Dimension::UnitsEnum.
    constexpr const char* kUnits[] = {" inch", " mm", " tenth-mm", " pt"};
    return length.GetStringValue(length.GetUnits(), 3, L'.', true).ToUtf8() +
           kUnits[static_cast<std::size_t>(length.GetUnits())];
}

} // namespace

std::string PlainText(const FeatureValue& value)
{
    if (const auto* option = std::get_if<ValueId>(&value))
        return OptionText(*option);
    if (const auto* number = std::get_if<int>(&value))
        return std::to_string(*number);
    if (const auto* text = std::get_if<CXString>(&value))
        return text->ToUtf8();
    if (const auto* flag = std::get_if<bool>(&value))
        return *flag ? "true" : "false";
    if (const auto* range = std::get_if<RangeOfInteger>(&value))
        return std::to_string(range->GetLowerBound()) + "-" +
               std::to_string(range->GetUpperBound());
    if (const auto* length = std::get_if<Dimension>(&value))
        return LengthText(*length);
    if (const auto* resolution = std::get_if<Resolution>(&value))
        return std::to_string(resolution->horizontal) + "x" + std::to_string(resolution->vertical);
    return "unspecified";
}

} // namespace o7

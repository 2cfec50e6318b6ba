#include "valuewords.h"

#include <algorithm>
#include <charconv>
#include <variant>

namespace o7::story {
namespace {

constexpr std::string_view kUnspecified = "unspecified";

struct UnitWord
{
    std::string_view word;
    Dimension::UnitsEnum unit;
};

constexpr UnitWord kUnits[] = {
    {" mm", Dimension::UnitsEnum::Millimetre},
    {" inch", Dimension::UnitsEnum::Inch},
    {" pt", Dimension::UnitsEnum::Point},
};

std::string textOf(std::monostate)
{
    return std::string(kUnspecified);
}

std::string textOf(const ValueId& value)
{
    if (value.GetValueEnum() == DataModelIds::kValueUnspecified) {
        return std::string(kUnspecified);
    }
    return value.GetValueName().IsEmpty()
               ? std::string("#").append(std::to_string(value.GetValueEnum()))
               : value.GetValueName().ToUtf8();
}

std::string textOf(int value)
{
    return std::to_string(value);
}

std::string textOf(const CXString& value)
{
    return value.ToUtf8();
}

std::string textOf(bool value)
{
    return value ? "true" : "false";
}

std::string textOf(const RangeOfInteger& value)
{
    return std::to_string(value.GetLowerBound()) + "-" + std::to_string(value.GetUpperBound());
}

std::string textOf(const Dimension& value)
{
    return value.GetStringValue(Dimension::UnitsEnum::Millimetre, 2, L'.', true).ToUtf8() + " mm";
}

std::string textOf(const Resolution& value)
{
    return std::to_string(value.horizontal) + "x" + std::to_string(value.vertical);
}

template <typename T> std::optional<T> wholeNumber(std::string_view text)
{
    T number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    return error == std::errc() && end == text.data() + text.size() ? std::optional(number)
                                                                    : std::nullopt;
}

std::optional<FeatureValue> rangeOf(std::string_view text)
{
    // A sign may stand before the first number.
    const std::size_t dash = text.find('-', 1);
    if (dash == std::string_view::npos) {
        return std::nullopt;
    }
    const auto low = wholeNumber<int>(text.substr(0, dash));
    const auto high = wholeNumber<int>(text.substr(dash + 1));
    return low && high ? std::optional<FeatureValue>(RangeOfInteger(*low, *high)) : std::nullopt;
}

std::optional<FeatureValue> lengthOf(std::string_view text)
{
    for (const UnitWord& unit : kUnits) {
        if (text.ends_with(unit.word)) {
            const auto number = wholeNumber<double>(text.substr(0, text.size() - unit.word.size()));
            return number ? std::optional<FeatureValue>(Dimension(*number, unit.unit))
                          : std::nullopt;
        }
    }
    return std::nullopt;
}

std::optional<FeatureValue> asValue(auto value)
{
    return value ? std::optional<FeatureValue>(*value) : std::nullopt;
}

} // namespace

std::string valueText(const IFeatureNode& feature)
{
    if (feature.GetKind() == FeatureKind::ListOfValues) {
        return std::to_string(feature.GetNumChildren());
    }
    FeatureValue value;
    feature.GetValue(value);
    return std::visit([](const auto& any) { return textOf(any); }, value);
}

std::optional<FeatureValue> valueOf(const IFeatureNode& feature, std::string_view text)
{
    if (text == kUnspecified) {
        return FeatureValue();
    }
    switch (feature.GetKind()) {
    case FeatureKind::Option:
        return ValueId(feature.GetId().GetFeatureId(), CXString::FromUtf8(text));
    case FeatureKind::Integer:
    case FeatureKind::ListOfValues:
        return asValue(wholeNumber<int>(text));
    case FeatureKind::String:
        return CXString::FromUtf8(text);
    case FeatureKind::Boolean:
        return text == "true" || text == "false" ? std::optional<FeatureValue>(text == "true")
                                                 : std::nullopt;
    case FeatureKind::Range:
        return rangeOf(text);
    case FeatureKind::Dimension:
        return lengthOf(text);
    default:
        return std::nullopt;
    }
}

std::string_view valueForm(FeatureKind kind)
{
    switch (kind) {
    case FeatureKind::Option:
        return "the name of an option";
    case FeatureKind::Integer:
        return "a number";
    case FeatureKind::ListOfValues:
        return "a number of items";
    case FeatureKind::String:
        return "a text";
    case FeatureKind::Boolean:
        return "true or false";
    case FeatureKind::Range:
        return "two numbers such as 2-5";
    case FeatureKind::Dimension:
        return "a length such as \"210 mm\", \"8.5 inch\" or \"72 pt\"";
    default:
        return "nothing that could be set";
    }
}

} // namespace o7::story

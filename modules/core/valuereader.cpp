#include "valuereader.h"

#include "jsonfields.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace o7 {
namespace {

constexpr std::array<Named<Comparison>, 6> kComparisons = {{
    {"equal", DataModelIds::kEqual},
    {"notEqual", DataModelIds::kNotEqual},
    {"less", DataModelIds::kLess},
    {"lessOrEqual", DataModelIds::kLessOrEqual},
    {"greater", DataModelIds::kGreater},
    {"greaterOrEqual", DataModelIds::kGreaterOrEqual},
}};

bool HasOrder(const FeatureDescription& feature)
{
    return feature.kind == FeatureKind::Integer || feature.kind == FeatureKind::Dimension;
}

/// Whether a length lies within the bounds that an object has under these keys.
bool LiesWithin(const LocatedJson& range, const Dimension& length, std::string_view lowest,
                std::string_view highest)
{
    const auto bound = [&](std::string_view key) {
        const double limit = std::clamp(range.Find(key)->Number(), -kLongestLength, kLongestLength);
        return Dimension(limit, Dimension::UnitsEnum::Millimetre);
    };
    return (range.Find(lowest) == nullptr || length >= bound(lowest)) &&
           (range.Find(highest) == nullptr || length <= bound(highest));
}

} // namespace

void ValueReader::Fail(const LocatedJson& at, std::string message)
{
    m_faults.push_back({at.line, std::move(message)});
}

FeatureValue ValueReader::ReadCompared(const LocatedJson& json, const FeatureDescription& feature)
{
    FeatureValue value;
    if (feature.kind == FeatureKind::Option && FitsInt(json))
        value = ValueId(static_cast<ValueEnum>(Int(json)));
    else if (feature.kind == FeatureKind::Option && json.As<std::string>() != nullptr)
        value = ValueId(feature.Id(), Wide(json));
    else if (feature.kind == FeatureKind::Integer && FitsInt(json))
        value = Int(json);
    else if (feature.kind == FeatureKind::String && json.As<std::string>() != nullptr)
        value = Wide(json);
    else if (feature.kind == FeatureKind::Boolean && json.As<bool>() != nullptr)
        value = *json.As<bool>();
    else if (feature.kind == FeatureKind::Dimension && json.IsNumber() && feature.units &&
             std::abs(json.Number()) <= kLongestLength)
        value = Dimension(json.Number(), *feature.units);
    // A number outside the range may still be compared with; an unknown option cannot be meant.
    const bool known =
        feature.kind == FeatureKind::Option ? feature.Accepts(value) : value.index() != 0;
    if (!known) {
        Fail(json, NameOf(feature) + " has no value " + json.ToText());
        return {};
    }
    return value;
}

FeatureValue ValueReader::ReadInitial(const LocatedJson& json, const FeatureDescription& feature)
{
    if (json.As<std::nullptr_t>() != nullptr)
        return {};
    const auto* parts = json.As<LocatedJson::Array>();
    const bool whole = parts != nullptr && std::all_of(parts->begin(), parts->end(), FitsInt);
    FeatureValue read;
    if (feature.kind == FeatureKind::Range && whole && parts->size() == 2)
        read = RangeOfInteger(Int((*parts)[0]), Int((*parts)[1]));
    else if (feature.kind == FeatureKind::Resolution && whole && parts->size() == 3)
        read = Resolution{Int((*parts)[0]), Int((*parts)[1]), Int((*parts)[2])};
    else if (parts == nullptr) {
        read = ReadCompared(json, feature);
        if (read.index() == 0)
            return {}; // that fault is told already
    }
    const auto* option = std::get_if<ValueId>(&read);
    if (option != nullptr && option->GetValueEnum() == DataModelIds::kValueUnspecified)
        return {};
    if (!feature.Accepts(read)) {
        Fail(json, NameOf(feature) + ": the default " + json.ToText() +
                       " is not among the values that the feature accepts");
        return {};
    }
    return read;
}

ValueTest ValueReader::ReadTest(const LocatedJson& json, const FeatureDescription& feature,
                                std::string_view oneOf)
{
    const std::array<std::string_view, 7> keys = {oneOf,     "isNot",      "compare",    "between",
                                                  "outside", "sizeWithin", "sizeOutside"};
    std::string_view key;
    int questions = 0;
    for (const std::string_view candidate : keys) {
        if (json.Find(candidate) != nullptr) {
            key = candidate;
            ++questions;
        }
    }
    const auto* value = json.Find("value");
    if (questions > 1 || (value != nullptr) != (key == "compare")) {
        Fail(json, "expected only one of \"" + std::string(oneOf) +
                       "\", \"isNot\", \"between\", \"outside\", \"sizeWithin\", \"sizeOutside\", "
                       "or \"compare\" together with \"value\"");
        return {};
    }
    ValueTest test;
    if (questions == 0)
        return test;
    const LocatedJson& question = *json.Find(key);
    if (key == "sizeWithin" || key == "sizeOutside")
        return ReadSizes(question, feature, key == "sizeWithin");
    if (key == "between" || key == "outside") {
        test = ReadBounds(question, feature);
        test.comparison = key == "between" ? DataModelIds::kBetween : DataModelIds::kOutside;
    } else if (key == "compare") {
        ReadOrdered(question, *value, feature, test);
    } else {
        test.comparison = key == "isNot" ? DataModelIds::kNotEqual : DataModelIds::kEqual;
        for (const LocatedJson& entry : Entries(question))
            test.values.push_back(ReadCompared(entry, feature));
    }
    return test;
}

void ValueReader::ReadOrdered(const LocatedJson& json, const LocatedJson& value,
                              const FeatureDescription& feature, ValueTest& test)
{
    test.comparison = ByName(kComparisons, Text(json));
    const bool ordered =
        test.comparison != DataModelIds::kEqual && test.comparison != DataModelIds::kNotEqual;
    if (ordered && !HasOrder(feature))
        Fail(json, NameOf(feature) + " has no order to compare by");
    test.values.push_back(ReadCompared(value, feature));
}

ValueTest ValueReader::ReadBounds(const LocatedJson& json, const FeatureDescription& feature)
{
    ValueTest test;
    const auto& bounds = Entries(json);
    if (!HasOrder(feature))
        Fail(json, NameOf(feature) + " has no order to compare by");
    else if (bounds.front().Number() > bounds.back().Number())
        Fail(json, NameOf(feature) + ": the bounds begin above their end");
    for (const LocatedJson& bound : bounds)
        test.values.push_back(ReadCompared(bound, feature));
    return test;
}

ValueTest ValueReader::ReadSizes(const LocatedJson& json, const FeatureDescription& feature,
                                 bool within)
{
    ValueTest test;
    for (const OptionDescription& option : feature.options) {
        if (option.size &&
            within == (LiesWithin(json, option.size->first, "minWidth", "maxWidth") &&
                       LiesWithin(json, option.size->second, "minHeight", "maxHeight")))
            test.values.emplace_back(ValueId(option.number, feature.Id(), option.name, CXString()));
    }
    if (test.values.empty())
        Fail(json, NameOf(feature) + " has no option of such a size");
    return test;
}

} // namespace o7

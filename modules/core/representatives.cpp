#include "representatives.h"

#include <algorithm>
#include <climits>

namespace o7 {
namespace {

class Collector
{
public:
    explicit Collector(const FeatureDescription& feature) : m_feature(feature) {}

    void Add(FeatureValue value)
    {
        if (m_feature.Accepts(value))
            AddAsItIs(std::move(value));
    }
    void AddAsItIs(FeatureValue value)
    {
        if (std::find(m_values.begin(), m_values.end(), value) == m_values.end())
            m_values.push_back(std::move(value));
    }
    void AddAround(int value)
    {
        Add(value);
        if (value > INT_MIN)
            Add(value - 1);
        if (value < INT_MAX)
            Add(value + 1);
    }
    void AddAround(const Dimension& length)
    {
        // What a person would type next to it, in the order of Dimension::UnitsEnum.
        constexpr double kSteps[] = {0.01, 0.1, 1, 0.5};
        const auto units = m_feature.units.value_or(length.GetUnits());
        const Dimension step(kSteps[static_cast<std::size_t>(units)], units);
        Add(Dimension::FromCount(length.GetCount(), units));
        Add(Dimension::FromCount(length.GetCount() - step.GetCount(), units));
        Add(Dimension::FromCount(length.GetCount() + step.GetCount(), units));
    }

    std::vector<FeatureValue> Take() { return std::move(m_values); }

private:
    const FeatureDescription& m_feature;
    std::vector<FeatureValue> m_values;
};

void AddBounds(const FeatureDescription& feature, Collector& values)
{
    for (const RangeOfInteger& range : feature.ranges) {
        if (feature.kind == FeatureKind::Range) {
            values.Add(RangeOfInteger(range.GetLowerBound(), range.GetLowerBound()));
        } else {
            values.Add(range.GetLowerBound());
            values.Add(range.GetUpperBound());
        }
    }
    if (feature.limits) {
        values.Add(feature.limits->first);
        values.Add(feature.limits->second);
    }
}

/// Options need no comparing of each with each.
std::vector<FeatureValue> Options(const FeatureDescription& feature)
{
    std::vector<FeatureValue> values;
    values.reserve(feature.options.size() + 1);
    const auto* initial = std::get_if<ValueId>(&feature.defaultValue);
    const ValueId first = initial != nullptr ? *initial : ValueId(DataModelIds::kValueUnspecified);
    values.emplace_back(first);
    for (const OptionDescription& option : feature.options) {
        if (option.number != first.GetValueEnum())
            values.emplace_back(ValueId(option.number,
                                        initial != nullptr ? first.GetFeatureId() : feature.Id(),
                                        option.name, CXString()));
    }
    return values;
}

} // namespace

std::vector<FeatureValue> Representatives(const FeatureDescription& feature,
                                          const std::vector<const ValueTest*>& tests)
{
    if (feature.kind == FeatureKind::Option && !feature.userDefinedValues)
        return Options(feature);
    Collector values(feature);
    if (feature.kind == FeatureKind::Option) {
        for (FeatureValue& value : Options(feature))
            values.AddAsItIs(std::move(value));
    } else {
        values.AddAsItIs(feature.defaultValue);
    }
    for (const AdaptingDefault& row : feature.defaults) {
        if (row.value.index() != 0)
            values.AddAsItIs(row.value);
    }
    if (feature.kind == FeatureKind::Boolean) {
        values.Add(false);
        values.Add(true);
    }
    AddBounds(feature, values);
    for (const ValueTest* test : tests) {
        for (const FeatureValue& value : test->values) {
            if (const auto* number = std::get_if<int>(&value))
                values.AddAround(*number);
            else if (const auto* length = std::get_if<Dimension>(&value))
                values.AddAround(*length);
            else
                values.Add(value);
        }
    }
    if (feature.kind == FeatureKind::String) {
        values.Add(CXString());
        values.Add(CXString(L"1")); // any text
    }
    return values.Take();
}

} // namespace o7

#include "valuecode.h"

namespace o7 {
namespace {

/// Value 5001 where it is not among the options.
constexpr unsigned kCodeUnspecified = 62;
constexpr std::size_t kMostOptions = 62;

std::uint64_t Bit(unsigned code)
{
    return std::uint64_t{1} << code;
}

} // namespace

bool HasCodes(const FeatureDescription& feature)
{
    // What a user names is told apart by its text.
    return feature.kind == FeatureKind::Boolean ||
           (feature.kind == FeatureKind::Option && !feature.userDefinedValues &&
            feature.options.size() <= kMostOptions);
}

unsigned CodeOf(const FeatureDescription& feature, const FeatureValue& value)
{
    if (const auto* flag = std::get_if<bool>(&value))
        return *flag ? 1 : 0;
    const auto* option = std::get_if<ValueId>(&value);
    if (option == nullptr)
        return kCodeNothing;
    for (std::size_t i = 0; i < feature.options.size(); ++i) {
        if (feature.options[i].number == option->GetValueEnum())
            return static_cast<unsigned>(i);
    }
    return option->GetValueEnum() == DataModelIds::kValueUnspecified ? kCodeUnspecified
                                                                     : kCodeNothing;
}

std::uint64_t MaskOf(const FeatureDescription& feature, const ValueTest& test,
                     bool holdsWithoutValue)
{
    std::uint64_t mask = holdsWithoutValue || test.MatchesNothing() ? Bit(kCodeNothing) : 0;
    if (feature.kind == FeatureKind::Boolean) {
        for (const bool value : {false, true})
            mask |= test.Matches(value) ? Bit(value ? 1 : 0) : 0;
        return mask;
    }
    for (std::size_t i = 0; i < feature.options.size(); ++i) {
        if (test.Matches(ValueId(feature.options[i].number)))
            mask |= Bit(static_cast<unsigned>(i));
    }
    if (test.Matches(ValueId(DataModelIds::kValueUnspecified)))
        mask |= Bit(kCodeUnspecified);
    return mask;
}

} // namespace o7

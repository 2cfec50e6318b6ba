#include "lockedsettings.h"

#include <optional>

#include "idatamodel.h"

namespace o7 {
namespace {

/// "You may look at these settings but not change them."
constexpr ConstraintMkIIOptions kNoPermissionReason{60299};

/// The present value, for the kinds whose values can be compared.
std::optional<ValueFactory> presentValue(const IFeatureNode& feature)
{
    FeatureValue value;
    if (!feature.GetValue(value)) {
        return std::nullopt;
    }
    if (const auto* option = std::get_if<ValueId>(&value)) {
        return ValueFactory(*option);
    }
    if (const auto* number = std::get_if<int>(&value)) {
        return ValueFactory(*number);
    }
    if (const auto* text = std::get_if<CXString>(&value)) {
        return ValueFactory(*text);
    }
    if (const auto* flag = std::get_if<bool>(&value)) {
        return ValueFactory(*flag);
    }
    if (const auto* length = std::get_if<Dimension>(&value)) {
        return ValueFactory(*length);
    }
    return std::nullopt;
}

void lockMembers(const IFeatureNode& list, IConstraintsIntegrator& integrator)
{
    for (std::size_t i = 0; i < list.GetNumChildren(); ++i) {
        const auto feature = list.GetChild(i);
        lockMembers(*feature, integrator);
        if (const auto value = presentValue(*feature)) {
            // While it has its value it must have no other: it names itself as the cause.
            const ConstrainableFeature self(feature->GetId());
            integrator.AddConstraint(ConstraintMkII(
                Condition(self, DataModelIds::kInclude, ValSet{*value}),
                Condition(self, DataModelIds::kExclude, ValSet{*value}), kNoPermissionReason));
        }
    }
}

} // namespace

void lockSettings(IDataModel& model)
{
    lockMembers(*model.GetFullListOfFeatures().GetNode(), model.GetConstraintsIntegrator());
}

} // namespace o7

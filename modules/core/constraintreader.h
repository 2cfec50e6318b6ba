#pragma once

#include "description.h"
#include "locatedjson.h"
#include "valuereader.h"

#include <set>
#include <string>
#include <vector>

namespace o7 {

/// Reads constraints, and defaults that adapt, of a package.
class ConstraintReader
{
public:
    /// The lists around what is being read, innermost last: where conditions look features up.
    using Scope = std::vector<const ListDescription*>;

    /// Faults are added to the list, which is borrowed.
    explicit ConstraintReader(std::vector<JsonFault>& faults) : m_values(faults), m_faults(faults)
    {
    }

    /// The constraint; an invalid combination gives one for each feature that it limits.
    std::vector<ConstraintDescription> ReadConstraint(const LocatedJson& json, const Scope& scope);

    /// The rows of "defaults" of a feature, if it has any.
    void ReadDefaults(const LocatedJson& json, const Scope& scope, FeatureDescription& feature);

    ValueReader& Values() { return m_values; }

private:
    std::vector<ConditionDescription> ReadConditions(const LocatedJson& json, const Scope& scope);
    ConditionDescription ReadCondition(const LocatedJson& json, const Scope& scope);
    void ReadEffect(const LocatedJson& json, const Scope& scope, ConstraintDescription& constraint);
    void ReadForced(const LocatedJson& json, const Scope& scope, const FeatureDescription& target,
                    ConstraintDescription& constraint);
    void AddMedia(const LocatedJson& json, const FeatureDescription& medium,
                  ConstraintDescription& constraint);
    std::vector<ConstraintDescription> ReadNever(const LocatedJson& json, const Scope& scope,
                                                 const ConstraintDescription& common);
    std::set<FeatureEnum> ReadLimit(const LocatedJson& json, const Scope& scope);
    const FeatureDescription* FindFeature(const LocatedJson& reference, const Scope& scope);
    void Fail(const LocatedJson& at, std::string message);

    ValueReader m_values;
    std::vector<JsonFault>& m_faults;
    std::set<std::string> m_ids;
};

} // namespace o7

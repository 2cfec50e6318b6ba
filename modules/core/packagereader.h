// Turns a document that fits the schema into a product description, checking what a schema cannot:
// references to features and options, duplicates, defaults, and circles of constraints.
#pragma once

#include "description.h"
#include "locatedjson.h"

#include <set>
#include <string>
#include <vector>

namespace o7 {

class PackageReader
{
public:
    /// Faults are added to the list, which is borrowed.
    explicit PackageReader(std::vector<JsonFault>& faults) : m_faults(faults) {}

    /// The description; of use only when no fault was added.
    ProductDescription Read(const LocatedJson& document);

private:
    /// The lists around the one being read, innermost last: where conditions look features up.
    using Scope = std::vector<const ListDescription*>;

    void ReadProduct(const LocatedJson& json, ProductInfo& info);
    ListDescription ReadList(const LocatedJson& json, Scope& scope);
    FeatureDescription ReadFeature(const LocatedJson& json, Scope& scope);
    void ReadKind(const LocatedJson& json, FeatureDescription& feature, Scope& scope);
    void ReadOptions(const LocatedJson& json, FeatureDescription& feature);
    void ReadRanges(const LocatedJson& json, FeatureDescription& feature);
    void ReadFlags(const LocatedJson& json, FeatureDescription& feature);
    void ReadDefault(const LocatedJson& json, FeatureDescription& feature);
    void ReadItem(const LocatedJson& json, FeatureDescription& feature, Scope& scope);
    void CheckDistinct(const LocatedJson& entries, const FeatureDescription& feature,
                       std::set<int>& numbers, std::set<CXString>& names);

    ConstraintDescription ReadConstraint(const LocatedJson& json, const Scope& scope);
    ConditionDescription ReadCondition(const LocatedJson& json, const Scope& scope);
    void ReadEffect(const LocatedJson& json, const Scope& scope, ConstraintDescription& constraint);
    const FeatureDescription* FindFeature(const LocatedJson& reference, const Scope& scope);
    FeatureValue ReadComparedValue(const LocatedJson& json, const FeatureDescription& feature);

    void Fail(const LocatedJson& at, std::string message);

    std::vector<JsonFault>& m_faults;
    std::set<std::string> m_constraintIds;
};

/// The ids of constraints that clear each other's causes in a circle ("a -> b -> a"), or nothing.
/// Only clearing changes what other constraints read, so only it can go round.
std::string FindConstraintCircle(const ListDescription& list);

} // namespace o7

// Turns a document that fits the schema into a product description, checking what a schema cannot:
// references to features and options, duplicates, defaults, and circles of constraints.
#pragma once

#include "constraintreader.h"
#include "description.h"
#include "locatedjson.h"

#include <optional>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace o7 {

class PackageReader
{
public:
    /// Faults are added to the list, which is borrowed.
    explicit PackageReader(std::vector<JsonFault>& faults) : m_constraints(faults), m_faults(faults)
    {
    }

    /// The description; of use only when no fault was added.
    ProductDescription Read(const LocatedJson& document);

private:
    using Scope = ConstraintReader::Scope;

    void ReadProduct(const LocatedJson& json, ProductInfo& info);
    ListDescription ReadList(const LocatedJson& json, Scope& scope);
    void ReadFeatures(const LocatedJson& features, Scope& scope, ListDescription& list);
    FeatureDescription ReadFeature(const LocatedJson& json, Scope& scope);
    void ReadKind(const LocatedJson& json, FeatureDescription& feature, Scope& scope);
    void ReadOptions(const LocatedJson& json, FeatureDescription& feature);
    std::optional<std::pair<Dimension, Dimension>> ReadSize(const LocatedJson& option);
    void ReadRanges(const LocatedJson& json, FeatureDescription& feature);
    FormerIds ReadFormer(const LocatedJson& json);
    void ReadFlags(const LocatedJson& json, FeatureDescription& feature);
    void ReadDefault(const LocatedJson& json, FeatureDescription& feature);
    void ReadItem(const LocatedJson& json, FeatureDescription& feature, Scope& scope);
    void CheckDistinct(const LocatedJson& entries, const FeatureDescription& feature,
                       std::set<int>& numbers, std::set<CXString>& names);

    void Fail(const LocatedJson& at, std::string message);

    ConstraintReader m_constraints;
    std::vector<JsonFault>& m_faults;
    unsigned m_version = 1;      ///< Of the package.
    bool m_deviceAround = false; ///< What is read lies in a list of the device's.
    bool m_inItem = false;       ///< ... in the items of a list of values.
};

} // namespace o7

#pragma once

#include "description.h"
#include "locatedjson.h"

#include <string>
#include <string_view>
#include <vector>

namespace o7 {

/// Reads single values of features, and questions about values, from a package.
class ValueReader
{
public:
    /// Faults are added to the list, which is borrowed.
    explicit ValueReader(std::vector<JsonFault>& faults) : m_faults(faults) {}

    /// A value to compare with; monostate, and a fault, when the feature has no such value.
    FeatureValue ReadCompared(const LocatedJson& json, const FeatureDescription& feature);

    /// A value that the feature can start with; monostate for null and after a fault.
    FeatureValue ReadInitial(const LocatedJson& json, const FeatureDescription& feature);

    /// The one question that the object asks ("compare", "between", "sizeWithin" ..., `oneOf`:
    /// "is" or "options"); a test without values when it asks none or there is a fault.
    ValueTest ReadTest(const LocatedJson& json, const FeatureDescription& feature,
                       std::string_view oneOf);

private:
    ValueTest ReadBounds(const LocatedJson& json, const FeatureDescription& feature);
    ValueTest ReadSizes(const LocatedJson& json, const FeatureDescription& feature, bool within);
    void ReadOrdered(const LocatedJson& json, const LocatedJson& value,
                     const FeatureDescription& feature, ValueTest& test);
    void Fail(const LocatedJson& at, std::string message);

    std::vector<JsonFault>& m_faults;
};

} // namespace o7

// Checks a JSON document against a JSON Schema: the part of the language that our schemas use
// ($ref into $defs, type, enum, required, properties, additionalProperties false, items, minimum,
// maximum, minLength, minItems, maxItems). Other keywords are taken for documentation.
#pragma once

#include "locatedjson.h"

#include <vector>

namespace o7 {

class SchemaValidator
{
public:
    /// The schema is borrowed and must be sound: it is ours.
    explicit SchemaValidator(const LocatedJson& schema) : m_schema(schema) {}

    /// Every fault, with the line of the value and what was expected there; none when it fits.
    std::vector<JsonFault> Check(const LocatedJson& document) const;

private:
    void CheckValue(const LocatedJson& schema, const LocatedJson& value, const std::string& where,
                    std::vector<JsonFault>& faults) const;
    void CheckObject(const LocatedJson& schema, const LocatedJson& value, const std::string& where,
                     std::vector<JsonFault>& faults) const;
    void CheckArray(const LocatedJson& schema, const LocatedJson& value, const std::string& where,
                    std::vector<JsonFault>& faults) const;
    const LocatedJson& Resolve(const LocatedJson& schema) const;

    const LocatedJson& m_schema;
};

} // namespace o7

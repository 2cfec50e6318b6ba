#include "schemavalidator.h"

#include <algorithm>

namespace o7 {
namespace {

/// A package with everything wrong is not told a thousand times.
constexpr std::size_t kMostFaults = 50;

void AddFault(std::vector<JsonFault>& faults, const LocatedJson& value, const std::string& where,
              const std::string& message)
{
    if (faults.size() < kMostFaults)
        faults.push_back({value.line, where.empty() ? message : where + ": " + message});
}

std::string Below(const std::string& where, const std::string& key)
{
    std::string path = where;
    return path.append(where.empty() ? "" : ".").append(key);
}

bool SameScalar(const LocatedJson& a, const LocatedJson& b)
{
    if (a.IsNumber() && b.IsNumber())
        return a.Number() == b.Number();
    const auto* left = a.As<std::string>();
    const auto* right = b.As<std::string>();
    if (left != nullptr && right != nullptr)
        return *left == *right;
    const auto* leftFlag = a.As<bool>();
    const auto* rightFlag = b.As<bool>();
    return leftFlag != nullptr && rightFlag != nullptr && *leftFlag == *rightFlag;
}

bool HasType(const LocatedJson& value, const std::string& type)
{
    if (type == "number")
        return value.IsNumber();
    return type == value.TypeName();
}

/// `type` is one name or a list of names; the names found wanting, joined, or empty.
std::string WantedTypes(const LocatedJson& type, const LocatedJson& value)
{
    std::string wanted;
    const auto tryOne = [&](const std::string& name) {
        wanted += (wanted.empty() ? "" : " or ") + name;
        return HasType(value, name);
    };
    if (const auto* name = type.As<std::string>())
        return tryOne(*name) ? std::string() : wanted;
    for (const LocatedJson& name : *type.As<LocatedJson::Array>()) {
        if (tryOne(*name.As<std::string>()))
            return {};
    }
    return wanted;
}

void CheckEnum(const LocatedJson& allowed, const LocatedJson& value, const std::string& where,
               std::vector<JsonFault>& faults)
{
    std::string list;
    for (const LocatedJson& entry : *allowed.As<LocatedJson::Array>()) {
        if (SameScalar(entry, value))
            return;
        list += (list.empty() ? "" : ", ") + entry.ToText();
    }
    AddFault(faults, value, where, "found " + value.ToText() + ", expected one of " + list);
}

void CheckLimits(const LocatedJson& schema, const LocatedJson& value, const std::string& where,
                 std::vector<JsonFault>& faults)
{
    const auto* minimum = schema.Find("minimum");
    if (minimum != nullptr && value.IsNumber() && value.Number() < minimum->Number())
        AddFault(faults, value, where,
                 "found " + value.ToText() + ", expected at least " + minimum->ToText());
    const auto* maximum = schema.Find("maximum");
    if (maximum != nullptr && value.IsNumber() && value.Number() > maximum->Number())
        AddFault(faults, value, where,
                 "found " + value.ToText() + ", expected at most " + maximum->ToText());
    const auto* shortest = schema.Find("minLength");
    const auto* text = value.As<std::string>();
    if (shortest != nullptr && text != nullptr &&
        static_cast<double>(text->size()) < shortest->Number())
        AddFault(faults, value, where,
                 "found " + value.ToText() + ", expected a text of at least " + shortest->ToText() +
                     " characters");
}

} // namespace

std::vector<JsonFault> SchemaValidator::Check(const LocatedJson& document) const
{
    std::vector<JsonFault> faults;
    CheckValue(m_schema, document, "", faults);
    return faults;
}

const LocatedJson& SchemaValidator::Resolve(const LocatedJson& schema) const
{
    const auto* reference = schema.Find("$ref");
    if (reference == nullptr)
        return schema;
    constexpr std::string_view kPrefix = "#/$defs/";
    return Resolve(*m_schema.Find("$defs")->Find(
        std::string_view(*reference->As<std::string>()).substr(kPrefix.size())));
}

void SchemaValidator::CheckValue(const LocatedJson& schemaOrReference, const LocatedJson& value,
                                 const std::string& where, std::vector<JsonFault>& faults) const
{
    const LocatedJson& schema = Resolve(schemaOrReference);
    if (const auto* type = schema.Find("type")) {
        const std::string wanted = WantedTypes(*type, value);
        if (!wanted.empty()) {
            AddFault(faults, value, where, "found " + value.ToText() + ", expected " + wanted);
            return;
        }
    }
    if (const auto* allowed = schema.Find("enum"))
        CheckEnum(*allowed, value, where, faults);
    CheckLimits(schema, value, where, faults);
    CheckObject(schema, value, where, faults);
    CheckArray(schema, value, where, faults);
}

void SchemaValidator::CheckObject(const LocatedJson& schema, const LocatedJson& value,
                                  const std::string& where, std::vector<JsonFault>& faults) const
{
    const auto* members = value.As<LocatedJson::Object>();
    if (members == nullptr)
        return;
    if (const auto* required = schema.Find("required")) {
        for (const LocatedJson& key : *required->As<LocatedJson::Array>()) {
            if (value.Find(*key.As<std::string>()) == nullptr)
                AddFault(faults, value, where, key.ToText() + " is missing");
        }
    }
    const auto* properties = schema.Find("properties");
    const auto* further = schema.Find("additionalProperties");
    const bool closed =
        further != nullptr && further->As<bool>() != nullptr && !*further->As<bool>();
    for (const auto& [key, member] : *members) {
        const auto* property = properties != nullptr ? properties->Find(key) : nullptr;
        if (property != nullptr) {
            CheckValue(*property, member, Below(where, key), faults);
        } else if (closed) {
            std::string known;
            for (const auto& entry : *properties->As<LocatedJson::Object>())
                known.append(known.empty() ? "" : ", ").append(entry.first);
            std::string message = "unknown key \"";
            message.append(key).append("\", expected one of ").append(known);
            AddFault(faults, member, where, message);
        }
    }
}

void SchemaValidator::CheckArray(const LocatedJson& schema, const LocatedJson& value,
                                 const std::string& where, std::vector<JsonFault>& faults) const
{
    const auto* entries = value.As<LocatedJson::Array>();
    if (entries == nullptr)
        return;
    const auto* fewest = schema.Find("minItems");
    if (fewest != nullptr && static_cast<double>(entries->size()) < fewest->Number())
        AddFault(faults, value, where, "expected at least " + fewest->ToText() + " entries");
    const auto* most = schema.Find("maxItems");
    if (most != nullptr && static_cast<double>(entries->size()) > most->Number())
        AddFault(faults, value, where, "expected at most " + most->ToText() + " entries");
    const auto* each = schema.Find("items");
    for (std::size_t i = 0; each != nullptr && i < entries->size(); ++i)
        CheckValue(*each, (*entries)[i], where + "[" + std::to_string(i) + "]", faults);
}

} // namespace o7

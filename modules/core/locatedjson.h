// JSON in which every value knows its line, so that a fault can be shown where it stands.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace o7 {

class LocatedJson
{
public:
    using Array = std::vector<LocatedJson>;
    using Object = std::vector<std::pair<std::string, LocatedJson>>;
    using Data =
        std::variant<std::nullptr_t, bool, std::int64_t, double, std::string, Array, Object>;

    LocatedJson() = default;
    LocatedJson(Data value, unsigned lineNumber) : data(std::move(value)), line(lineNumber) {}

    /// "object", "array", "string", "integer", "number", "boolean" or "null".
    const char* TypeName() const;

    template <typename T> const T* As() const { return std::get_if<T>(&data); }

    bool IsNumber() const { return As<std::int64_t>() != nullptr || As<double>() != nullptr; }
    /// Either kind of number; 0 for anything else.
    double Number() const;

    /// The member of an object, or null.
    const LocatedJson* Find(std::string_view key) const;

    /// The value as it would stand in a message: numbers and texts themselves, else the type.
    std::string ToText() const;

    Data data = nullptr;
    unsigned line = 0;
};

struct JsonFault
{
    unsigned line = 0;
    std::string message;
};

/// Parses UTF-8 JSON (no comments). Besides broken syntax it refuses what a description never needs
/// and what could hurt: a key twice in one object, numbers beyond 64 bits, nesting deeper than 64.
std::variant<LocatedJson, JsonFault> ParseLocatedJson(std::string_view text);

} // namespace o7

// What the readers of a package share: values of a document that fits the schema, and names for
// messages.
#pragma once

#include "description.h"
#include "locatedjson.h"

#include <array>
#include <climits>
#include <string>
#include <string_view>

namespace o7 {

template <typename T> struct Named
{
    std::string_view name;
    T value;
};

template <typename T, std::size_t N>
T ByName(const std::array<Named<T>, N>& table, std::string_view name)
{
    for (const auto& row : table) {
        if (row.name == name)
            return row.value;
    }
    return table.front().value;
}

inline const std::string& Text(const LocatedJson& json)
{
    return *json.As<std::string>();
}

inline CXString Wide(const LocatedJson& json)
{
    return CXString::FromUtf8(Text(json));
}

inline const LocatedJson::Array& Entries(const LocatedJson& json)
{
    return *json.As<LocatedJson::Array>();
}

inline bool FitsInt(const LocatedJson& json)
{
    const auto* number = json.As<std::int64_t>();
    return number != nullptr && *number >= INT_MIN && *number <= INT_MAX;
}

inline int Int(const LocatedJson& json)
{
    return static_cast<int>(*json.As<std::int64_t>());
}

inline std::string NameOf(const FeatureDescription& feature)
{
    return "feature " + std::to_string(feature.number) + " (" + feature.name.ToUtf8() + ")";
}

/// Lengths beyond this many units are no paper any more, and stay far inside Dimension's range.
inline constexpr double kLongestLength = 1e6;

} // namespace o7

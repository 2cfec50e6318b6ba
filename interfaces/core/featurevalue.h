#pragma once

#include "dimension.h"
#include "rangeofinteger.h"
#include "valueid.h"

#include <variant>

namespace o7 {

/// What a feature is, and with it which alternative of FeatureValue it holds.
enum class FeatureKind
{
    Unsupported,    ///< Not in this product; every read answers false.
    Option,         ///< ValueId
    Integer,        ///< int
    String,         ///< CXString
    Boolean,        ///< bool
    Range,          ///< RangeOfInteger
    Dimension,      ///< Dimension
    Resolution,     ///< Resolution
    ListOfFeatures, ///< no value of its own
    ListOfValues,   ///< no value of its own
};

/// Dots per inch in both directions and bits per dot.
struct Resolution
{
    int horizontal = 0;
    int vertical = 0;
    int bitsPerDot = 0;

    friend bool operator==(const Resolution&, const Resolution&) = default;
};

/// One value of any kind; monostate is "no value".
using FeatureValue = std::variant<std::monostate, ValueId, int, CXString, bool, RangeOfInteger,
                                  Dimension, Resolution>;

} // namespace o7

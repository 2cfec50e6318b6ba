#pragma once
// IStringSource: numbered texts in one language, and how features and values are numbered in it.

#include "cxstring.h"

namespace o7 {

/// The name of feature N is text kFeatureStringBase + N, that of value V kValueStringBase + V.
inline constexpr unsigned kFeatureStringBase = 20000;
inline constexpr unsigned kValueStringBase = 40000;

} // namespace o7

class IStringSource
{
public:
    virtual ~IStringSource() = default;
    /// The text with this number; "#" and the number when there is none. Never empty.
    virtual CXString LoadStringW(unsigned id) const = 0;

protected:
    IStringSource() = default;
    IStringSource(const IStringSource&) = default;
    IStringSource& operator=(const IStringSource&) = default;
};

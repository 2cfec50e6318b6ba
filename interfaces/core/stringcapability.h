#pragma once

#include "capabilitiesnode.h"

#include <cstddef>

/// The texts that a string feature accepts.
class StringCapability : public CapabilitiesNode
{
public:
    StringCapability(const CapabilitiesNode& base, std::size_t maximumLength)
        : CapabilitiesNode(base), m_maximumLength(maximumLength)
    {
    }

    /// In UTF-16 units.
    std::size_t GetMaximumLength() const { return m_maximumLength; }

private:
    std::size_t m_maximumLength;
};

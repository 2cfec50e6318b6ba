#pragma once

#include "capabilitiesnode.h"

#include <cstddef>
#include <utility>

/// How much a list of values takes.
class ListOfValuesCapability : public CapabilitiesNode
{
public:
    ListOfValuesCapability() = default;
    ListOfValuesCapability(const CapabilitiesNode& base, std::size_t maximumItems,
                           InterpretedState newItemState)
        : CapabilitiesNode(base),
          m_maximumItems(maximumItems),
          m_newItemState(std::move(newItemState))
    {
    }

    std::size_t GetMaximumItems() const { return m_maximumItems; }

    /// Whether a further item can be created now: disabled, with the reason, when the list is full
    /// or when the settings leave no room for it in a document.
    const InterpretedState& GetNewItemState() const { return m_newItemState; }

private:
    std::size_t m_maximumItems = 0;
    InterpretedState m_newItemState;
};

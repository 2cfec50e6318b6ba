#pragma once

#include "dimension.h"
#include "interpretedstate.h"
#include "valueid.h"

#include <optional>

namespace o7 {

/// Width and height of a medium as the product's package states them.
struct MediaSize
{
    Dimension width;
    Dimension height;
};

} // namespace o7

/// One option of an option feature as the UI lists it.
class OptionWithState
{
public:
    OptionWithState() = default;
    OptionWithState(const ValueId& value, const InterpretedState& state,
                    const std::optional<o7::MediaSize>& size = {})
        : m_value(value), m_state(state), m_size(size)
    {
    }

    const ValueId& GetValueId() const { return m_value; }
    CXString GetOptionDisplayString() const { return m_value.GetDisplayString(); }
    const InterpretedState& GetInterpretedState() const { return m_state; }

    /// Of a medium with a size of its own; nothing for any other option.
    const std::optional<o7::MediaSize>& GetMediaSize() const { return m_size; }

private:
    ValueId m_value;
    InterpretedState m_state;
    std::optional<o7::MediaSize> m_size;
};

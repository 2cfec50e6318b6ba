#pragma once

#include "interpretedstate.h"
#include "valueid.h"

/// One option of an option feature as the UI lists it.
class OptionWithState
{
public:
    OptionWithState() = default;
    OptionWithState(const ValueId& value, const InterpretedState& state)
        : m_value(value), m_state(state)
    {
    }

    const ValueId& GetValueId() const { return m_value; }
    CXString GetOptionDisplayString() const { return m_value.GetDisplayString(); }
    const InterpretedState& GetInterpretedState() const { return m_state; }

private:
    ValueId m_value;
    InterpretedState m_state;
};

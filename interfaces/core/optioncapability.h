#pragma once

#include "capabilitiesnode.h"
#include "optionwithstate.h"

#include <cstddef>
#include <utility>
#include <vector>

/// The options of an option feature in the order in which they are to be listed.
class OptionCapability : public CapabilitiesNode
{
public:
    OptionCapability() = default;
    OptionCapability(const CapabilitiesNode& base, std::vector<OptionWithState> options,
                     bool userDefinedValues)
        : CapabilitiesNode(base),
          m_options(std::move(options)),
          m_userDefinedValues(userDefinedValues)
    {
    }

    std::size_t GetNumberOfValues() const { return m_options.size(); }

    /// Borrowed from this snapshot. Out of range gives an entry whose value is "no value".
    const OptionWithState& GetOptionWithState(std::size_t index) const
    {
        static const OptionWithState kNone;
        return index < m_options.size() ? m_options[index] : kNone;
    }

    bool ValueIsSupported(const ValueId& value) const
    {
        for (const OptionWithState& option : m_options) {
            if (option.GetValueId() == value)
                return true;
        }
        return false;
    }

    /// Whether values beyond the listed ones exist by name (user-defined papers).
    bool SupportsUserDefinedValues() const { return m_userDefinedValues; }

    /// The info messages of all options, each once, on lines of their own; empty when there is
    /// none.
    CXString GetCombinedOptionInfoButtonMsg() const
    {
        InterpretedState all;
        for (const OptionWithState& option : m_options) {
            if (option.GetInterpretedState().HasInfoBtnMsg())
                all.AddInfo(option.GetInterpretedState().GetInfoBtnMsg());
        }
        return all.GetInfoBtnMsg();
    }

    /// The same for the conflict messages.
    CXString GetCombinedOptionCbrButtonMsg() const
    {
        InterpretedState all;
        for (const OptionWithState& option : m_options) {
            if (option.GetInterpretedState().HasCbrBtnMsg())
                all.AddConflict(option.GetInterpretedState().GetCbrBtnMsg());
        }
        return all.GetCbrBtnMsg();
    }

private:
    std::vector<OptionWithState> m_options;
    bool m_userDefinedValues = false;
};

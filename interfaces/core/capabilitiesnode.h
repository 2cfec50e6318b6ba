#pragma once

#include "interpretedstate.h"

namespace o7 {

/// What every capability snapshot carries.
struct CapabilityFlags
{
    bool readOnly = false;  ///< Shown, never changed by the user.
    bool required = false;  ///< Cannot be left unspecified.
    bool stateOnly = false; ///< Reports a state of the device; not a setting of the job.
    bool device = false;    ///< An installed option: belongs to the printer, not to a job.
    bool secret = false;    ///< Never shown, and kept nowhere but in the document it is chosen for.
};

} // namespace o7

/// A snapshot of one feature's limits and constraint state, owned by whoever asked for it. It does
/// not follow later changes: take a new one after a notification.
class CapabilitiesNode
{
public:
    CapabilitiesNode() = default;
    CapabilitiesNode(const o7::CapabilityFlags& flags, const InterpretedState& state,
                     const InterpretedState& unspecifiedState)
        : m_flags(flags), m_state(state), m_unspecifiedState(unspecifiedState)
    {
    }
    virtual ~CapabilitiesNode() = default;

    bool IsReadOnly() const { return m_flags.readOnly; }
    bool IsRequired() const { return m_flags.required; }
    bool IsStateOnlyFeature() const { return m_flags.stateOnly; }
    bool IsDeviceFeature() const { return m_flags.device; }
    bool IsSecret() const { return m_flags.secret; }

    /// The state of the whole feature.
    const InterpretedState& GetInterpretedState() const { return m_state; }

    /// The state of the "unspecified" entry (value enum 5001): disabled where the feature is
    /// required or as a whole disabled.
    const InterpretedState& GetUnspecifiedInterpretedState() const { return m_unspecifiedState; }

protected:
    CapabilitiesNode(const CapabilitiesNode&) = default;
    CapabilitiesNode(CapabilitiesNode&&) = default;
    CapabilitiesNode& operator=(const CapabilitiesNode&) = default;
    CapabilitiesNode& operator=(CapabilitiesNode&&) = default;

private:
    o7::CapabilityFlags m_flags;
    InterpretedState m_state;
    InterpretedState m_unspecifiedState;
};

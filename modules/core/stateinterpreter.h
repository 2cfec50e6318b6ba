#pragma once

#include "featurenode.h"
#include "istringsource.h"
#include "lengthformat.h"
#include "optioncapability.h"

#include <memory>
#include <unordered_map>
#include <vector>

namespace o7 {

/// The active constraints on a feature in the order in which they are told.
std::vector<const Constraint*> ActiveInOrder(const FeatureNode& feature);

/// Puts the active constraints of a feature into words: states, messages and capability snapshots.
/// Texts come from the string source, each once.
class StateInterpreter
{
public:
    /// Borrowed for the life of the interpreter.
    explicit StateInterpreter(IStringSource& strings) : m_strings(strings) {}

    void SetLengthFormat(const LengthFormat& format) { m_lengths = format; }

    std::unique_ptr<CapabilitiesNode> Capabilities(const FeatureNode& feature);

    /// A value of an option feature with its name and display string filled in.
    ValueId Complete(const FeatureNode& feature, const ValueId& value);

    InterpretedState FeatureState(const FeatureNode& feature);
    InterpretedState OptionState(const FeatureNode& feature, const ValueId& option);

    /// The reason, with names filled in; for one value of the target, or for all it affects.
    CXString Reason(const Constraint& constraint, const ValueId* option = nullptr);

    /// From now on all settings are disabled with this reason.
    void Lock(unsigned reasonStringNumber) { m_lockReason = reasonStringNumber; }
    bool IsLocked(const FeatureNode& feature) const
    {
        return m_lockReason != 0 && feature.Description().IsKept() &&
               !feature.Description().IsPrivate();
    }
    CXString LockReason() { return Sentence(m_lockReason); }

    /// A text of the driver's own.
    CXString Sentence(unsigned number)
    {
        const CXString& text = Text(number);
        return text.IsBlank() ? CXString::Formatted(L"#%u", number) : text;
    }

    /// A value as it is shown: of an option feature with its display string.
    FeatureValue Shown(const FeatureNode& feature, const FeatureValue& value);
    /// The feature's present one; monostate: unspecified.
    FeatureValue ShownPresent(const FeatureNode& feature);

private:
    void AddValueEffect(const FeatureNode& feature, const Constraint& constraint,
                        InterpretedState& state);
    InterpretedState OptionState(const std::vector<const Constraint*>& active,
                                 const ValueId& option);
    InterpretedState UnspecifiedState(const FeatureNode& feature, const InterpretedState& state);
    std::unique_ptr<CapabilitiesNode> OptionCapabilities(const FeatureNode& feature,
                                                         const CapabilitiesNode& base);

    CXString FeatureName(const FeatureNode& feature);
    CXString ValueText(const FeatureNode& feature, const FeatureValue& value);
    CXString LengthText(const FeatureNode& feature, const Dimension& length) const;
    CXString AffectedText(const Constraint& constraint);
    const CXString& Text(unsigned number);

    IStringSource& m_strings;
    LengthFormat m_lengths;
    unsigned m_lockReason = 0; ///< 0: not locked.
    std::unordered_map<unsigned, CXString> m_texts;
};

} // namespace o7

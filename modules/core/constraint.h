#pragma once

#include "description.h"

#include <memory>
#include <vector>

namespace o7 {

class FeatureNode;

/// One constraint at work: bound to the features of one list, with the answer of its last
/// evaluation. Owned by that list, or by the model when it was added at run time.
struct Constraint
{
    struct Cause
    {
        std::shared_ptr<FeatureNode> feature;
        Comparison comparison = DataModelIds::kEqual;
        std::vector<FeatureValue> values;
        bool holdsWithoutValue = false;

        bool Holds() const;
    };

    std::vector<Cause> when;
    std::shared_ptr<FeatureNode> target;
    /// Which values of the target are affected; none listed: the whole feature.
    Comparison comparison = DataModelIds::kEqual;
    std::vector<FeatureValue> values;
    EffectKind kind = EffectKind::Disable;
    unsigned reason = 0;

    bool active = false;
    bool queued = false; ///< Waiting for evaluation.

    bool AffectsWhole() const { return values.empty(); }
    bool Affects(const FeatureValue& value) const;
    bool ConditionsHold() const;
    /// Whether an affected value cannot be chosen while the constraint is active.
    bool Blocks() const;
};

} // namespace o7

#pragma once

#include "changeproposal.h"
#include "constraintengine.h"
#include "trial.h"

#include <cstdint>
#include <vector>

namespace o7 {

/// Tries a change on the model and looks for settings that can give way to it: always the first
/// rule that is newly broken, by changing what it limits or one of its causes, with as few changes
/// as possible. Bounded by depth and number of trials.
class ConflictResolver
{
public:
    struct Change
    {
        FeatureNode* feature;
        FeatureValue value; ///< The new one; monostate: unspecified.
    };
    struct Plan
    {
        AlternativeKind kind;
        std::vector<Change> changes;
    };
    ConflictResolver(ChangeLog& log, ConstraintEngine& engine);

    /// Tries the change: the rules it breaks, in their order. The value is one that the feature
    /// accepts; monostate: unspecified.
    std::vector<const Constraint*> Try(FeatureNode& feature, const FeatureValue& value);
    /// The ways to settle what was tried, which is taken back with the resolver.
    std::vector<Plan> Settle();

private:
    bool Repair(int depth);
    bool RepairWith(FeatureNode& feature, const Constraint& broken, int depth);
    bool RepairWithin();
    bool LiftsAll(const FeatureNode& feature, const FeatureValue& value) const;
    bool FindNearest(const Change& wished);
    const Constraint* FirstNew() const;
    bool IsPinned(const FeatureNode& feature) const;
    void Set(FeatureNode& feature, const FeatureValue& value);
    void TakeBack();

    ConstraintEngine& m_engine;
    Trial m_trial;
    std::uint64_t m_mark;
    int m_budget = 0;
    std::vector<Change> m_path;
    std::vector<const FeatureNode*> m_kept; ///< Features that are to stay besides those changed.
};

} // namespace o7

#pragma once

#include "changelog.h"
#include "constraintengine.h"
#include "featurevalue.h"
#include "trial.h"

#include <vector>

namespace o7 {

/// Finds what a person could change so that a constraint is no longer at work: one change of a
/// cause, or, where the causes themselves cannot be chosen now, first what holds those.
class RemedySearch
{
public:
    struct Step
    {
        FeatureNode* feature;
        FeatureValue before; ///< As in Trial: monostate is unspecified.
        FeatureValue after;
    };
    using Remedy = std::vector<Step>;

    RemedySearch(ChangeLog& log, ConstraintEngine& engine, const Constraint& constraint);

    /// The shortest ones, of the same length; none within the bounds gives none.
    std::vector<Remedy> Run();

private:
    void Search(int depth);
    void TryStep(FeatureNode& feature, const FeatureValue& value, int depth);
    bool IsLifted() const;
    std::vector<FeatureNode*> Features(const Constraint& constraint) const;
    std::vector<const Constraint*> Obstacles() const;

    const Constraint& m_constraint;
    const bool m_wasBroken;
    Trial m_trial;
    int m_budget;
    Remedy m_path;
    std::vector<Remedy> m_found;
};

} // namespace o7

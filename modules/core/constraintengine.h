#pragma once

#include "changelog.h"
#include "constraint.h"
#include "featurenode.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace o7 {

/// Keeps the answer of every constraint up to date. Each condition hangs on the feature it reads;
/// when that changes, only conditions whose answer changes touch their constraint. Features that
/// were cleared or forced, came back or follow a default are looked at again in the order of their
/// rank, so that each is looked at once: the result depends on the values alone, and it always
/// ends, because ranks rise along the way.
class ConstraintEngine
{
public:
    explicit ConstraintEngine(ChangeLog& changes) : m_changes(changes) {}

    /// Binds and evaluates the constraints of this feature and of those below it. Makes all the
    /// room that these will ever need: what is done with them later does not fail. When this fails,
    /// nothing was attached.
    void Attach(FeatureNode& feature);
    /// The inverse, for items that are deleted. Never fails, and neither does attaching them again.
    void Detach(FeatureNode& feature);

    /// Adds a constraint at run time; it stays for the life of the model, or until an item that it
    /// has to do with is gone for good. False, and nothing added, when it would clear its own cause
    /// in a circle.
    bool Add(std::unique_ptr<Constraint> constraint);
    /// Detached items will not be attached again.
    void ForgetDetached();

    /// To be told after the stored value of a feature changed.
    void ValueChanged(FeatureNode& feature);

    /// The constraints by which choices clash now, in no order.
    const std::vector<Constraint*>& Broken() const { return m_broken; }

    /// A number that no constraint's `seen` has.
    std::uint64_t NewMark() { return ++m_marks; }

    /// How many conditions have been asked.
    std::uint64_t Evaluations() const { return m_evaluations; }

private:
    void LinkAll(FeatureNode& feature);
    void UnlinkAll(FeatureNode& feature);
    void Link(Constraint& constraint);
    void Unlink(Constraint& constraint);
    void Raise(FeatureNode& feature, unsigned rank);
    void Activate(Constraint& constraint, bool active);
    void AddEffect(Constraint& constraint);
    void RemoveEffect(Constraint& constraint);
    void UpdateHit(const FeatureNode& feature, FeatureNode::ActiveEffect& effect);
    void UpdateBroken(Constraint& constraint);
    void UpdateAllBroken(FeatureNode& feature);
    void PresentChanged(FeatureNode& feature);
    void AskReaders(FeatureNode& feature);
    void Answer(FeatureNode::Reader& reader);
    void Postpone(FeatureNode& feature);
    void Settle();
    void FollowDefault(FeatureNode& feature);
    void FollowForce(FeatureNode& feature);
    void Unsettle(FeatureNode& feature);
    void TellStates();
    void TellState(const Constraint& constraint);
    void TellMembers(const FeatureNode& list);
    void TellReaders(const FeatureNode& feature);

    ChangeLog& m_changes;
    std::vector<std::unique_ptr<Constraint>> m_added;
    std::vector<FeatureNode*> m_pending;
    std::vector<Constraint*> m_toggled;
    std::vector<FeatureNode::Reader*> m_answers; ///< Empty but while readers are asked.
    std::vector<Constraint*> m_broken;
    std::size_t m_features = 0; ///< Attached.
    std::size_t m_linked = 0;   ///< Constraints.
    std::uint64_t m_evaluations = 0;
    std::uint64_t m_marks = 0;
};

} // namespace o7

#pragma once

#include "changelog.h"
#include "constraintmkii.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace o7 {

/// Keeps the answer of every constraint up to date. Constraints hang on the features they read, so
/// a change evaluates those alone, and further ones only where a feature was cleared or came back.
class ConstraintEngine
{
public:
    explicit ConstraintEngine(ChangeLog& changes) : m_changes(changes) {}

    /// Binds and evaluates the constraints of this list and of the lists below it.
    void Attach(FeatureNode& list);
    /// The inverse, for items that are deleted.
    void Detach(FeatureNode& list);

    /// Adds a constraint at run time; it stays for the life of the model.
    void Add(std::unique_ptr<Constraint> constraint);

    /// To be told after the stored value of a feature changed.
    void ValueChanged(FeatureNode& feature);

    std::uint64_t Evaluations() const { return m_evaluations; }

private:
    static std::unique_ptr<Constraint> Bind(const ConstraintDescription& description,
                                            FeatureNode& list);
    void Link(Constraint& constraint);
    void Unlink(Constraint& constraint);
    void Queue(Constraint& constraint);
    void Run();
    void StateChanged(FeatureNode& feature);

    ChangeLog& m_changes;
    std::vector<std::unique_ptr<Constraint>> m_added;
    std::vector<Constraint*> m_queue;
    std::uint64_t m_evaluations = 0;
};

} // namespace o7

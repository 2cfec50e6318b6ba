#include "remedysearch.h"

#include "choices.h"

#include <algorithm>
#include <set>

namespace o7 {
namespace {

constexpr int kDeepest = 3;
constexpr int kMostTrials = 3000;
constexpr std::size_t kMostRemedies = 64;

FeatureValue Present(const FeatureNode& feature)
{
    return feature.StoredSpecified() ? feature.StoredValue() : FeatureValue();
}

/// The active constraints that limit the feature, or a list around it, as a whole.
void AddHolders(const FeatureNode& feature, std::set<const Constraint*>& holders)
{
    for (const FeatureNode* node = &feature; node != nullptr; node = node->Parent()) {
        for (const auto& effect : node->activeEffects) {
            // What blocks some values may block those that would help.
            if (effect.blocks && (effect.whole || node == &feature))
                holders.insert(effect.constraint);
        }
    }
}

} // namespace

RemedySearch::RemedySearch(ChangeLog& log, ConstraintEngine& engine, const Constraint& constraint)
    : m_constraint(constraint),
      m_wasBroken(constraint.IsBroken()),
      m_trial(log, engine),
      m_budget(kMostTrials)
{
}

std::vector<RemedySearch::Remedy> RemedySearch::Run()
{
    for (int depth = 1; depth <= kDeepest && m_found.empty(); ++depth)
        Search(depth);
    return std::move(m_found);
}

bool RemedySearch::IsLifted() const
{
    return m_wasBroken ? !m_constraint.IsBroken() : !m_constraint.active;
}

std::vector<FeatureNode*> RemedySearch::Features(const Constraint& constraint) const
{
    std::vector<FeatureNode*> features;
    for (const Constraint::Cause& cause : constraint.when) {
        if (std::find(features.begin(), features.end(), cause.feature.get()) == features.end())
            features.push_back(cause.feature.get());
    }
    // A choice that clashes can also be given up.
    const bool ownChoice = &constraint == &m_constraint && m_wasBroken && !constraint.whole;
    if (ownChoice &&
        std::find(features.begin(), features.end(), constraint.target) == features.end())
        features.push_back(constraint.target);
    return features;
}

std::vector<const Constraint*> RemedySearch::Obstacles() const
{
    std::vector<const Constraint*> all{&m_constraint};
    std::set<const Constraint*> known{&m_constraint};
    for (std::size_t next = 0; next < all.size(); ++next) {
        std::set<const Constraint*> holders;
        for (const FeatureNode* feature : Features(*all[next]))
            AddHolders(*feature, holders);
        for (const Constraint* holder : holders) {
            if (known.insert(holder).second)
                all.push_back(holder);
        }
    }
    all.erase(all.begin());
    std::sort(all.begin(), all.end(), ComesBefore);
    return all;
}

void RemedySearch::Search(int depth)
{
    const std::vector<const Constraint*> targets =
        depth == 1 ? std::vector<const Constraint*>{&m_constraint} : Obstacles();
    for (const Constraint* target : targets) {
        for (FeatureNode* feature : Features(*target)) {
            const bool used = std::any_of(m_path.begin(), m_path.end(), [&](const Step& step) {
                return step.feature == feature;
            });
            if (used || !IsPersons(*feature) || feature->IsLimitedWhole())
                continue;
            for (const FeatureValue& value : Choices(*feature))
                TryStep(*feature, value, depth);
        }
    }
}

void RemedySearch::TryStep(FeatureNode& feature, const FeatureValue& value, int depth)
{
    if (IsPresent(feature, value) || !IsFree(feature, value) || m_budget <= 0 ||
        m_found.size() >= kMostRemedies)
        return;
    --m_budget;
    const std::size_t steps = m_trial.Steps();
    m_path.push_back({&feature, Present(feature), value});
    m_trial.Set(feature, value);
    if (IsLifted())
        m_found.push_back(m_path);
    else if (depth > 1)
        Search(depth - 1);
    m_trial.TakeBackTo(steps);
    m_path.pop_back();
}

} // namespace o7

#include "conflictresolver.h"

#include "choices.h"

#include <algorithm>

namespace o7 {
namespace {

constexpr int kDeepest = 4;
constexpr int kMostTrials = 400;

/// Whether the resolver may change the feature: a setting of the job.
bool MayGiveWay(const FeatureNode& feature)
{
    return IsPersons(feature) && !feature.Description().flags.device && !feature.IsForced();
}

/// How far apart two values stand in the list of options.
std::size_t Distance(const FeatureNode& feature, const FeatureValue& a, const FeatureValue& b)
{
    const auto place = [&](const FeatureValue& value) {
        const auto& options = feature.Description().options;
        const auto* option = std::get_if<ValueId>(&value);
        return std::find_if(options.begin(), options.end(),
                            [&](const OptionDescription& known) {
                                return option != nullptr && known.number == option->GetValueEnum();
                            }) -
               options.begin();
    };
    const auto distance = place(a) - place(b);
    return static_cast<std::size_t>(distance < 0 ? -distance : distance);
}

/// Whether the change by itself would end the conflict, as far as can be said without trying.
bool Lifts(const FeatureNode& feature, const FeatureValue& value, const Constraint& broken)
{
    if (broken.target == &feature && !broken.whole &&
        (value.index() == 0 || !broken.Affects(value)))
        return true;
    return std::any_of(broken.when.begin(), broken.when.end(), [&](const auto& cause) {
        return cause.feature.get() == &feature &&
               (value.index() == 0 || !cause.test.Matches(value));
    });
}

} // namespace

ConflictResolver::ConflictResolver(ChangeLog& log, ConstraintEngine& engine)
    : m_engine(engine), m_trial(log, engine), m_mark(engine.NewMark())
{
    m_path.reserve(kDeepest + 1);
    // What is broken already is not this change's doing.
    for (Constraint* broken : m_engine.Broken())
        broken->seen = m_mark;
}

std::vector<const Constraint*> ConflictResolver::Try(FeatureNode& feature,
                                                     const FeatureValue& value)
{
    Set(feature, value);
    std::vector<const Constraint*> broken;
    for (const Constraint* constraint : m_engine.Broken()) {
        if (constraint->seen != m_mark)
            broken.push_back(constraint);
    }
    std::sort(broken.begin(), broken.end(), ComesBefore);
    return broken;
}

std::vector<ConflictResolver::Plan> ConflictResolver::Settle()
{
    std::vector<Plan> plans;
    plans.reserve(3);
    const bool clashes = FirstNew() != nullptr;
    const bool kept = RepairWithin();
    if (kept)
        plans.push_back({AlternativeKind::KeepNew, m_path});
    plans.push_back({AlternativeKind::KeepOld, {}});
    if (!clashes)
        return plans;
    // Another way leaves alone what gave way in the first.
    for (std::size_t i = 1; kept && i < m_path.size(); ++i)
        m_kept.push_back(m_path[i].feature);
    while (m_path.size() > 1)
        TakeBack();
    if (kept && RepairWithin()) {
        plans.push_back({AlternativeKind::SmallestOther, m_path});
    } else {
        const Change wished = m_path.front();
        TakeBack();
        if (FindNearest(wished))
            plans.push_back({AlternativeKind::SmallestOther, m_path});
    }
    return plans;
}

void ConflictResolver::Set(FeatureNode& feature, const FeatureValue& value)
{
    m_path.push_back({&feature, value});
    m_trial.Set(feature, value);
}

void ConflictResolver::TakeBack()
{
    m_path.pop_back();
    m_trial.TakeBackTo(m_path.size());
}

const Constraint* ConflictResolver::FirstNew() const
{
    const Constraint* first = nullptr;
    for (const Constraint* broken : m_engine.Broken()) {
        if (broken->seen != m_mark && (first == nullptr || ComesBefore(broken, first)))
            first = broken;
    }
    return first;
}

bool ConflictResolver::RepairWithin()
{
    m_budget = kMostTrials;
    for (int depth = 0; depth <= kDeepest; ++depth) {
        if (Repair(depth))
            return true;
    }
    return false;
}

bool ConflictResolver::Repair(int depth)
{
    const Constraint* broken = FirstNew();
    if (broken == nullptr)
        return true;
    if (depth == 0)
        return false;
    // What is limited gives way first.
    const auto isTarget = [&](const auto& cause) { return cause.feature.get() == broken->target; };
    const bool helps =
        !broken->whole || std::any_of(broken->when.begin(), broken->when.end(), isTarget);
    if (helps && RepairWith(*broken->target, *broken, depth))
        return true;
    return std::any_of(broken->when.begin(), broken->when.end(), [&](const auto& cause) {
        return !isTarget(cause) && RepairWith(*cause.feature, *broken, depth);
    });
}

bool ConflictResolver::RepairWith(FeatureNode& feature, const Constraint& broken, int depth)
{
    if (IsPinned(feature) || !MayGiveWay(feature))
        return false;
    for (const FeatureValue& value : Choices(feature)) {
        // The last change has to lift all that is broken, an earlier one at least this.
        if (IsPresent(feature, value) || !IsFree(feature, value) ||
            (depth == 1 ? !LiftsAll(feature, value) : !Lifts(feature, value, broken)))
            continue;
        if (--m_budget < 0)
            return false;
        Set(feature, value);
        if (!broken.IsBroken() && Repair(depth - 1))
            return true;
        TakeBack();
    }
    return false;
}

bool ConflictResolver::LiftsAll(const FeatureNode& feature, const FeatureValue& value) const
{
    const auto& broken = m_engine.Broken();
    return std::all_of(broken.begin(), broken.end(), [&](const Constraint* constraint) {
        return constraint->seen == m_mark || Lifts(feature, value, *constraint);
    });
}

bool ConflictResolver::FindNearest(const Change& wished)
{
    FeatureNode& feature = *wished.feature;
    std::vector<const FeatureValue*> values;
    for (const FeatureValue& value : Choices(feature)) {
        if (value.index() != 0 && value != wished.value && !IsPresent(feature, value) &&
            IsFree(feature, value))
            values.push_back(&value);
    }
    if (feature.Description().kind == FeatureKind::Option)
        std::stable_sort(values.begin(), values.end(), [&](const auto* a, const auto* b) {
            return Distance(feature, *a, wished.value) < Distance(feature, *b, wished.value);
        });
    for (const FeatureValue* value : values) {
        Set(feature, *value);
        if (FirstNew() == nullptr)
            return true;
        TakeBack();
    }
    return false;
}

bool ConflictResolver::IsPinned(const FeatureNode& feature) const
{
    return std::find(m_kept.begin(), m_kept.end(), &feature) != m_kept.end() ||
           std::any_of(m_path.begin(), m_path.end(),
                       [&](const Change& change) { return change.feature == &feature; });
}

} // namespace o7

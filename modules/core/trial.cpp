#include "trial.h"

#include "featurenode.h"

#include <utility>

namespace o7 {

Trial::Trial(ChangeLog& log, ConstraintEngine& engine) : m_log(log), m_engine(engine)
{
    m_steps.reserve(8);
    m_log.SetMuted(true);
}

Trial::~Trial()
{
    TakeBackTo(0);
    m_log.SetMuted(false);
}

void Trial::Set(FeatureNode& feature, const FeatureValue& value)
{
    const bool specified = value.index() != 0;
    FeatureValue wanted = specified ? value : feature.StoredValue();
    m_steps.push_back({&feature, {}, feature.StoredSpecified(), feature.FollowsDefault()});
    m_steps.back().value = feature.Release();
    feature.Store(std::move(wanted), specified, false);
    m_engine.ValueChanged(feature);
}

void Trial::TakeBackTo(std::size_t steps)
{
    while (m_steps.size() > steps) {
        Step& step = m_steps.back();
        step.feature->Store(std::move(step.value), step.specified, step.followsDefault);
        m_engine.ValueChanged(*step.feature);
        m_steps.pop_back();
    }
}

} // namespace o7

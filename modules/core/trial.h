#pragma once

#include "changelog.h"
#include "constraintengine.h"
#include "featurevalue.h"

#include <cstddef>
#include <vector>

namespace o7 {

/// Values that are tried on the model and taken back before anybody learns of them. While one lives
/// nothing is noted or recorded; only one at a time.
class Trial
{
public:
    /// Both are borrowed.
    Trial(ChangeLog& log, ConstraintEngine& engine);
    ~Trial();
    Trial(const Trial&) = delete;
    Trial& operator=(const Trial&) = delete;

    /// A value that the feature accepts, whatever constraints say; monostate: unspecified.
    void Set(FeatureNode& feature, const FeatureValue& value);

    std::size_t Steps() const { return m_steps.size(); }
    void TakeBackTo(std::size_t steps);

private:
    struct Step
    {
        FeatureNode* feature;
        FeatureValue value;
        bool specified;
        bool followsDefault;
    };

    ChangeLog& m_log;
    ConstraintEngine& m_engine;
    std::vector<Step> m_steps;
};

} // namespace o7

#pragma once

#include "changelog.h"
#include "constraintengine.h"
#include "settingssnapshot.h"

#include <memory>
#include <vector>

namespace o7 {

/// Changes features: checks what is asked for, records how to take it back, and keeps the
/// constraints in step. Tells nobody; that is for the model when an operation is complete.
class SettingsWriter
{
public:
    /// Both are borrowed.
    SettingsWriter(ChangeLog& log, ConstraintEngine& engine) : m_log(log), m_engine(engine) {}

    /// False, and nothing changed, when the feature does not take the value now.
    bool SetValue(FeatureNode& feature, const FeatureValue& value);
    bool SetSpecified(FeatureNode& feature, bool specified);
    bool CopyFrom(FeatureNode& feature, const IFeatureNode& source);
    void RestoreToDefault(FeatureNode& feature);
    /// Null when the list takes no (further) item.
    std::shared_ptr<FeatureNode> CreateItem(FeatureNode& list);
    bool DeleteItems(FeatureNode& list, std::vector<std::size_t> indices);

    /// Whether the feature takes the value (monostate: unspecified) apart from constraints; the
    /// value is completed.
    bool CanTake(const FeatureNode& feature, FeatureValue& value) const;
    /// A value that the feature can take, whatever constraints say; monostate: unspecified.
    void Force(FeatureNode& feature, const FeatureValue& value);
    void Apply(FeatureNode& feature, const SettingsSnapshot& snapshot);
    void Undo(ChangeLog::Undo undo);

private:
    void Write(FeatureNode& feature, FeatureValue value, bool specified, bool followsDefault);
    std::shared_ptr<FeatureNode> CreateItem(FeatureNode& list, std::size_t index, int key);
    void Insert(FeatureNode& list, const std::shared_ptr<FeatureNode>& item, std::size_t index);
    void Erase(FeatureNode& list, std::size_t index);
    void DeleteItem(FeatureNode& list, std::size_t index);
    void ApplyItems(FeatureNode& list, const SettingsSnapshot& snapshot);

    ChangeLog& m_log;
    ConstraintEngine& m_engine;
};

/// Neither a list of features nor a list of values.
bool IsLeaf(const FeatureNode& feature);

} // namespace o7

#pragma once

#include <windows.h>

#include <functional>

#include "featureidwithcontext.h"

class FeatureServices;
class UIEventProcessor;

/// Looks at the data model as a whole before an Apply is completed: a required feature that could
/// have a value and has none keeps the sheet open. What one molecule alone can tell is validated by
/// the molecule.
class UIDataValidator
{
public:
    UIDataValidator(FeatureServices& featureServices, UIEventProcessor& eventProcessor);

    /// Leaves alone what it answers false for: what the person cannot reach here.
    void setScope(std::function<bool(const FeatureIdWithContext&)> scope);
    /// @param apply  the PSN_APPLY notification. @return false when the settings cannot be
    /// accepted.
    bool validate(const NMHDR& apply);
    /// The required feature without a value, after validate() has failed.
    const FeatureIdWithContext& getMissing() const { return m_missing; }

private:
    FeatureServices& m_featureServices;
    std::function<bool(const FeatureIdWithContext&)> m_scope;
    FeatureIdWithContext m_missing;
};

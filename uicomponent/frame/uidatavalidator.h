#pragma once

#include <windows.h>

class FeatureServices;
class UIEventProcessor;

/// Looks at the data model as a whole before an Apply is completed: a required feature without a
/// value keeps the sheet open. What one molecule alone can tell is validated by the molecule.
class UIDataValidator
{
public:
    UIDataValidator(FeatureServices& featureServices, UIEventProcessor& eventProcessor);

    /// @param apply  the PSN_APPLY notification. @return false when the settings cannot be
    /// accepted.
    bool validate(const NMHDR& apply) const;

private:
    FeatureServices& m_featureServices;
};

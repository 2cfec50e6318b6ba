#pragma once

#include "uitvcontroldata.h"

/// An item of the tree that chooses one option of its feature.
class UITvComboControlData : public UITvControlData
{
public:
    using UITvControlData::UITvControlData;

    /// The tree shows the value behind the label; a combo without a feature shows the label alone.
    bool showsValue() const { return getFeature() != DataModelIds::kNoFeature; }
};

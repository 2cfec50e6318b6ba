#pragma once

#include "uitvcontroldata.h"

/// An item of the tree that sets a number.
class UITvSpinControlData : public UITvControlData
{
public:
    using UITvControlData::UITvControlData;

    std::uint32_t getIncrement() const { return getRecord().limit != 0 ? getRecord().limit : 1; }
};

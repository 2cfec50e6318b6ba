#pragma once

#include "uitvcontroldata.h"

/// An item of the tree that takes a text.
class UITvEditControlData : public UITvControlData
{
public:
    using UITvControlData::UITvControlData;

    std::uint32_t getLimit() const { return getRecord().limit; } ///< Most characters; 0: any.
};

#pragma once

#include "uitvcontroldata.h"

/// An item of the tree that reports an action or opens a dialog.
class UITvButtonControlData : public UITvControlData
{
public:
    using UITvControlData::UITvControlData;

    std::uint32_t getAction() const { return getRecord().action; } ///< 0: reports nothing.
    DialogId getDialog() const { return getRecord().dialog; }      ///< 0: opens nothing.
};

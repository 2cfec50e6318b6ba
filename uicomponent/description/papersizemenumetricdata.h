#pragma once

#include "papersizemenudata.h"

/// The menu of paper sizes with the metric sizes first.
class PaperSizeMenuMetricData : public PaperSizeMenuData
{
public:
    PaperSizeMenuMetricData();
};

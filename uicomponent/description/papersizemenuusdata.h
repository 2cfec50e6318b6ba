#pragma once

#include "papersizemenudata.h"

/// The menu of paper sizes with the inch sizes first.
class PaperSizeMenuUSData : public PaperSizeMenuData
{
public:
    PaperSizeMenuUSData();
};

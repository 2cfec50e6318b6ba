#include "papersizemenumetricdata.h"

#include "tables/papersizemenus.h"

PaperSizeMenuMetricData::PaperSizeMenuMetricData() : PaperSizeMenuData(o7::paperSizeMenuMetric())
{
}

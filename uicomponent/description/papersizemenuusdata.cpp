#include "papersizemenuusdata.h"

#include "tables/papersizemenus.h"

PaperSizeMenuUSData::PaperSizeMenuUSData() : PaperSizeMenuData(o7::paperSizeMenuUS())
{
}

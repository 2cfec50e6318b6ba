#pragma once

#include <functional>
#include <vector>

#include "rawsheet.h"

class ProductStringLoader;
class UIData;

namespace o7::bench {

/// Opens a sheet and returns when it is closed.
using Run = std::function<void()>;

/// Times of one opening, in milliseconds.
struct SheetTimes
{
    double entry = 0; ///< from the call to everything painted
    std::vector<double> firstSwitches;
    std::vector<double> laterSwitches;
    double close = 0;
    double memory = 0; ///< KiB that are in use while the first page is shown
};

/// Opens a sheet, switches to the pages 1, 2, ... visited - 1, 0, then the same again, and closes
/// it. @throws std::runtime_error when the sheet does not follow.
SheetTimes timeSheet(const Run& open, int visited);

/// What our sheet shows: the titles and sizes of all pages, the windows of those visited, and the
/// areas.
RawSheet recordSheet(const Run& open, const UIData& data, const ProductStringLoader& strings,
                     std::size_t visited);

} // namespace o7::bench

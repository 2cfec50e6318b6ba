#pragma once

#include <optional>

#include "cxstring.h"
#include "valueid.h"

namespace o7 {

/// How the public fields of a DEVMODE name the values of a product. A value is known by its name
/// in the package ("a4", "tray-2", "600-dpi"), so a package needs no table of the system's numbers;
/// papers, bins and media with names that nobody else has get numbers of the driver's own.

/// The fields whose numbers stand for values of an option feature.
enum class DocumentField
{
    Orientation,
    PaperSize,
    Source,
    Duplex,
    Colour,
    Quality, ///< dots per inch across
    Grade,   ///< negative: draft to high
    MediaType,
};

/// The number for a value; nothing when the field cannot say it.
std::optional<int> systemNumber(DocumentField field, const ValueId& value);

/// Whether `number` is another way to say the value: small A4 for A4, the upper bin for tray 1.
bool isOtherNumber(DocumentField field, const ValueId& value, int number);

struct DotsPerInch
{
    int across = 0;
    int down = 0;
};

/// Of a name such as "600-dpi" or "1200x600-dpi".
std::optional<DotsPerInch> resolutionOf(const CXString& valueName);

} // namespace o7

// Holds our copy of the system's numbers and of its layout against the system's headers.
#include "systemnumbers.h"

#include <windows.h>

#include <winspool.h>

#include <cstddef>

#include "devmodelayout.h"

namespace o7 {
namespace {

// clang-format off
static_assert(kOrientationField == DM_ORIENTATION && kPaperSizeField == DM_PAPERSIZE &&
              kPaperLengthField == DM_PAPERLENGTH && kPaperWidthField == DM_PAPERWIDTH &&
              kScaleField == DM_SCALE && kCopiesField == DM_COPIES &&
              kSourceField == DM_DEFAULTSOURCE && kQualityField == DM_PRINTQUALITY &&
              kColourField == DM_COLOR && kDuplexField == DM_DUPLEX &&
              kYResolutionField == DM_YRESOLUTION && kCollateField == DM_COLLATE &&
              kFormNameField == DM_FORMNAME && kMediaTypeField == DM_MEDIATYPE);
static_assert(kDuplexLongEdge == DMDUP_VERTICAL && kColourPrinting == DMCOLOR_COLOR &&
              kLandscape == DMORIENT_LANDSCAPE && kFirstOwnPaper == DMPAPER_USER &&
              kFirstOwnPaper == DMBIN_USER && kFirstOwnPaper == DMMEDIA_USER);
static_assert(kCapFields == DC_FIELDS && kCapPapers == DC_PAPERS && kCapPaperSize == DC_PAPERSIZE &&
              kCapMinExtent == DC_MINEXTENT && kCapMaxExtent == DC_MAXEXTENT &&
              kCapBins == DC_BINS && kCapDuplex == DC_DUPLEX && kCapSize == DC_SIZE &&
              kCapExtra == DC_EXTRA && kCapVersion == DC_VERSION && kCapDriver == DC_DRIVER &&
              kCapBinNames == DC_BINNAMES && kCapResolutions == DC_ENUMRESOLUTIONS &&
              kCapPaperNames == DC_PAPERNAMES && kCapOrientation == DC_ORIENTATION &&
              kCapCopies == DC_COPIES && kCapCollate == DC_COLLATE &&
              kCapPrintRate == DC_PRINTRATE && kCapPrintRateUnit == DC_PRINTRATEUNIT &&
              kCapPrinterMemory == DC_PRINTERMEM && kCapMediaReady == DC_MEDIAREADY &&
              kCapStaple == DC_STAPLE && kCapPrintRatePpm == DC_PRINTRATEPPM &&
              kCapColourDevice == DC_COLORDEVICE && kCapPagesPerSheet == DC_NUP &&
              kCapMediaTypeNames == DC_MEDIATYPENAMES && kCapMediaTypes == DC_MEDIATYPES);
static_assert(kDevModeVersion == DM_SPECVERSION && kPagesPerMinuteUnit == PRINTRATEUNIT_PPM);
static_assert(kPublicPartSize == sizeof(DEVMODEW) && kSizeAt == offsetof(DEVMODEW, dmSize) &&
              kExtraAt == offsetof(DEVMODEW, dmDriverExtra) &&
              kFieldsAt == offsetof(DEVMODEW, dmFields) &&
              kOrientationAt == offsetof(DEVMODEW, dmOrientation) &&
              kPaperSizeAt == offsetof(DEVMODEW, dmPaperSize) &&
              kPaperLengthAt == offsetof(DEVMODEW, dmPaperLength) &&
              kPaperWidthAt == offsetof(DEVMODEW, dmPaperWidth) &&
              kScaleAt == offsetof(DEVMODEW, dmScale) &&
              kCopiesAt == offsetof(DEVMODEW, dmCopies) &&
              kSourceAt == offsetof(DEVMODEW, dmDefaultSource) &&
              kQualityAt == offsetof(DEVMODEW, dmPrintQuality) &&
              kColourAt == offsetof(DEVMODEW, dmColor) &&
              kDuplexAt == offsetof(DEVMODEW, dmDuplex) &&
              kYResolutionAt == offsetof(DEVMODEW, dmYResolution) &&
              kCollateAt == offsetof(DEVMODEW, dmCollate) &&
              kFormNameAt == offsetof(DEVMODEW, dmFormName) &&
              kMediaTypeAt == offsetof(DEVMODEW, dmMediaType) &&
              kNameLength == CCHDEVICENAME && kNameLength == CCHFORMNAME);
// clang-format on

} // namespace
} // namespace o7

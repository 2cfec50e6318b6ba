#include "papersizemenus.h"

#include "productids.h"
#include "uistringnumbers.h"

namespace {

constexpr UIMenuItemRecord size(DataModelIds::tagValueEnum value)
{
    return {.feature = o7::kPaperSize, .value = value};
}

constexpr UIMenuItemRecord kMetricItems[] = {
    size(o7::kPaperA4),
    size(o7::kPaperA3),
    size(o7::kPaperA5),
};
constexpr UIMenuItemRecord kInchItems[] = {
    size(o7::kPaperLetter),
    size(o7::kPaperLegal),
    size(o7::kPaperTabloid),
};
constexpr UIMenuItemRecord kEnvelopeItems[] = {
    size(o7::kPaperEnvelopeDL),
    size(o7::kPaperEnvelopeC5),
};

constexpr UIMenuSectionRecord kMetric{.title = O7STR_G_METRIC_SIZES, .items = kMetricItems};
constexpr UIMenuSectionRecord kInch{.title = O7STR_G_INCH_SIZES, .items = kInchItems};
constexpr UIMenuSectionRecord kEnvelopes{.title = O7STR_G_ENVELOPES, .items = kEnvelopeItems};

constexpr UIMenuSectionRecord kInchFirst[] = {kInch, kMetric, kEnvelopes};
constexpr UIMenuSectionRecord kMetricFirst[] = {kMetric, kInch, kEnvelopes};

} // namespace

UIRecords<UIMenuSectionRecord> o7::paperSizeMenuUS()
{
    return kInchFirst;
}

UIRecords<UIMenuSectionRecord> o7::paperSizeMenuMetric()
{
    return kMetricFirst;
}

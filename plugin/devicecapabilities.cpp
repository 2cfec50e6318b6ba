#include "devicecapabilities.h"

#include <algorithm>
#include <vector>

#include "documentsettings.h"
#include "publicfields.h"

namespace o7 {
namespace {

constexpr DWORD kNotAnswered = static_cast<DWORD>(-1);
constexpr int kPaperNameLength = 64;
constexpr int kBinNameLength = 24;

struct PaperRow
{
    short number;
    POINT size; ///< upright, in tenths of a millimetre
};

// clang-format off
constexpr PaperRow kPaperSizes[] = {
    {DMPAPER_A3,     {2970, 4200}},
    {DMPAPER_A4,     {2100, 2970}},
    {DMPAPER_A5,     {1480, 2100}},
    {DMPAPER_LETTER, {2159, 2794}},
    {DMPAPER_LEGAL,  {2159, 3556}},
    {DMPAPER_11X17,  {2794, 4318}},
    {DMPAPER_ENV_DL, {1100, 2200}},
    {DMPAPER_ENV_C5, {1620, 2290}},
};
// clang-format on

POINT paperSize(short number)
{
    const auto row = std::ranges::find(kPaperSizes, number, &PaperRow::number);
    return row == std::end(kPaperSizes) ? POINT{} : row->size;
}

using Choices = std::vector<FieldChoice>;

DWORD count(const Choices& choices)
{
    return static_cast<DWORD>(choices.size());
}

DWORD numbers(const Choices& choices, void* output)
{
    if (output != nullptr) {
        std::ranges::transform(choices, static_cast<WORD*>(output), [](const FieldChoice& choice) {
            return static_cast<WORD>(choice.number);
        });
    }
    return count(choices);
}

/// Texts of a fixed length, cut and ended by a zero.
DWORD names(const Choices& choices, void* output, int length)
{
    if (output != nullptr) {
        auto* text = static_cast<wchar_t*>(output);
        for (const FieldChoice& choice : choices) {
            std::fill_n(text, length, L'\0');
            lstrcpynW(text, choice.name.c_str(), length);
            text += length;
        }
    }
    return count(choices);
}

DWORD sizes(const Choices& choices, void* output)
{
    if (output != nullptr) {
        std::ranges::transform(choices, static_cast<POINT*>(output),
                               [](const FieldChoice& choice) { return paperSize(choice.number); });
    }
    return count(choices);
}

/// Horizontal and vertical dots per inch.
DWORD resolutions(const Choices& choices, void* output)
{
    if (output != nullptr) {
        auto* number = static_cast<LONG*>(output);
        for (const FieldChoice& choice : choices) {
            *number++ = choice.number;
            *number++ = choice.number;
        }
    }
    return count(choices);
}

bool offers(const ListOfFeaturesRef& features, DWORD field, short number)
{
    const Choices choices = fieldChoices(features, field);
    return std::ranges::find(choices, number, &FieldChoice::number) != choices.end();
}

DWORD fields(const ListOfFeaturesRef& features)
{
    DEVMODEW devMode{};
    writePublicFields(features, devMode);
    return devMode.dmFields;
}

} // namespace

DWORD deviceCapability(IDataModel& model, WORD capability, void* output)
{
    const ListOfFeaturesRef features = model.GetFullListOfFeatures();
    switch (capability) {
    case DC_FIELDS:
        return fields(features);
    case DC_PAPERS:
        return numbers(fieldChoices(features, DM_PAPERSIZE), output);
    case DC_PAPERNAMES:
        return names(fieldChoices(features, DM_PAPERSIZE), output, kPaperNameLength);
    case DC_PAPERSIZE:
        return sizes(fieldChoices(features, DM_PAPERSIZE), output);
    case DC_BINS:
        return numbers(fieldChoices(features, DM_DEFAULTSOURCE), output);
    case DC_BINNAMES:
        return names(fieldChoices(features, DM_DEFAULTSOURCE), output, kBinNameLength);
    case DC_ENUMRESOLUTIONS:
        return resolutions(fieldChoices(features, DM_PRINTQUALITY), output);
    case DC_DUPLEX:
        return offers(features, DM_DUPLEX, DMDUP_VERTICAL);
    case DC_COLORDEVICE:
        return offers(features, DM_COLOR, DMCOLOR_COLOR);
    case DC_COLLATE:
        return (fields(features) & DM_COLLATE) != 0;
    case DC_COPIES:
        return static_cast<DWORD>(mostCopies(features));
    case DC_ORIENTATION:
        return 90; // degrees by which a landscape page is turned
    case DC_SIZE:
        return sizeof(DEVMODEW);
    case DC_EXTRA:
        return kPrivatePartSize;
    case DC_VERSION:
        return DM_SPECVERSION;
    default:
        return kNotAnswered;
    }
}

} // namespace o7

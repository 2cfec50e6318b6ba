#include "documentvalues.h"

#include <algorithm>
#include <span>
#include <string_view>
#include <utility>

#include "systemnumbers.h"

namespace o7 {
namespace {

using Name = std::wstring_view;

struct NameRow
{
    Name name;
    int number;
};

// clang-format off
constexpr NameRow kOrientations[] = {
    {L"portrait",  1},
    {L"landscape", kLandscape},
};
constexpr NameRow kDuplexModes[] = {
    {L"one-sided",            1},
    {L"two-sided-long-edge",  kDuplexLongEdge},
    {L"two-sided-short-edge", 3},
};
// What is not said to be colourless may have colour.
constexpr NameRow kColourless[] = {
    {L"black-and-white", 1},
    {L"greyscale",       1},
    {L"black-only",      1},
};
constexpr NameRow kGrades[] = {
    {L"draft",    -1},
    {L"standard", -3},
    {L"normal",   -3},
    {L"high",     -4},
    {L"best",     -4},
};
constexpr NameRow kSources[] = {
    {L"automatic",              7},
    {L"bypass-tray",            4},
    {L"envelope-feeder",        5},
    {L"large-tray",            11},
    {L"cassette",              14},
    {L"tray-1", kFirstOwnPaper + 1},
    {L"tray-2", kFirstOwnPaper + 2},
    {L"tray-3", kFirstOwnPaper + 3},
    {L"tray-4", kFirstOwnPaper + 4},
    {L"tray-5", kFirstOwnPaper + 5},
    {L"tray-6", kFirstOwnPaper + 6},
    {L"tray-7", kFirstOwnPaper + 7},
    {L"tray-8", kFirstOwnPaper + 8},
};
constexpr NameRow kMediaTypes[] = {
    {L"plain",        1},
    {L"transparency", 2},
    {L"glossy",       3},
    {L"photo-glossy", 3},
};
constexpr NameRow kPapers[] = {
    {L"letter",                1},
    {L"11x17",                17},
    {L"tabloid",              17},
    {L"ledger",                4},
    {L"legal",                 5},
    {L"statement",             6},
    {L"executive",             7},
    {L"a3",                    8},
    {L"a4",                    9},
    {L"a5",                   11},
    {L"b4-jis",               12},
    {L"b5-jis",               13},
    {L"folio",                14},
    {L"envelope-10",          20},
    {L"ansi-c",               24},
    {L"ansi-d",               25},
    {L"ansi-e",               26},
    {L"envelope-dl",          27},
    {L"envelope-c5",          28},
    {L"envelope-c4",          30},
    {L"envelope-c6",          31},
    {L"envelope-b5",          34},
    {L"envelope-monarch",     37},
    {L"japanese-postcard",    43},
    {L"postcard",             43},
    {L"a2",                   66},
    {L"a6",                   70},
    {L"b6-jis",               88},
    {L"b4",                   42},
    {L"custom",              kFirstOwnPaper},
};

// Numbers that are understood but never written.
constexpr std::pair<DocumentField, NameRow> kOtherNumbers[] = {
    {DocumentField::PaperSize, {L"a4",      10}}, // small
    {DocumentField::PaperSize, {L"letter",   2}}, // small
    {DocumentField::PaperSize, {L"tabloid",  3}},
    {DocumentField::PaperSize, {L"tabloid",  4}}, // lying
    {DocumentField::PaperSize, {L"11x17",    3}},
    {DocumentField::Source,    {L"tray-1",   1}}, // upper
    {DocumentField::Source,    {L"tray-2",   2}}, // lower
    {DocumentField::Source,    {L"tray-3",   3}}, // middle
    {DocumentField::Source,    {L"bypass-tray", 6}}, // envelopes by hand
    {DocumentField::Source,    {L"automatic", 15}}, // by form
    {DocumentField::Grade,     {L"draft",   -2}},
};
// clang-format on

/// Papers, bins and media without a number of the system's get one from the number of the value,
/// which is theirs in every product. Below it there is room for the rows above.
constexpr int kFirstNumberOfValue = kFirstOwnPaper + 256;
constexpr int kFirstValue = DataModelIds::kValueUnspecified;

std::optional<int> ownNumber(const ValueId& value)
{
    const int number = value.GetValueEnum();
    // Texts of the user's share one number, so it says nothing.
    return number > kFirstValue && number < DataModelIds::kValueFirstUserText
               ? std::optional(kFirstNumberOfValue + number - kFirstValue)
               : std::nullopt;
}

std::optional<int> numberOr(std::optional<int> number, const ValueId& value)
{
    return number ? number : ownNumber(value);
}

std::optional<int> find(std::span<const NameRow> rows, Name name)
{
    const auto row = std::ranges::find(rows, name, &NameRow::name);
    return row == rows.end() ? std::nullopt : std::optional(row->number);
}

/// A whole number at the beginning of the text, which is cut off.
std::optional<int> takeNumber(Name& text)
{
    constexpr int kMost = 100000;
    int number = 0;
    while (!text.empty() && text.front() >= L'0' && text.front() <= L'9' && number < kMost) {
        number = number * 10 + static_cast<int>(text.front() - L'0');
        text.remove_prefix(1);
    }
    return number > 0 ? std::optional(number) : std::nullopt;
}

std::optional<int> dotsPerInch(const ValueId& value)
{
    const auto resolution = resolutionOf(value.GetValueName());
    return resolution ? std::optional(resolution->across) : std::nullopt;
}

} // namespace

std::optional<int> systemNumber(DocumentField field, const ValueId& value)
{
    const Name name = value.GetValueName().View();
    if (name.empty()) {
        return std::nullopt;
    }
    switch (field) {
    case DocumentField::Orientation:
        return find(kOrientations, name);
    case DocumentField::PaperSize:
        return numberOr(find(kPapers, name), value);
    case DocumentField::Source:
        return numberOr(find(kSources, name), value);
    case DocumentField::Duplex:
        return find(kDuplexModes, name);
    case DocumentField::Colour:
        return find(kColourless, name).value_or(kColourPrinting);
    case DocumentField::Quality:
        return dotsPerInch(value);
    case DocumentField::Grade:
        return find(kGrades, name);
    case DocumentField::MediaType:
        return numberOr(find(kMediaTypes, name), value);
    }
    return std::nullopt;
}

bool isOtherNumber(DocumentField field, const ValueId& value, int number)
{
    return std::ranges::any_of(kOtherNumbers, [&](const auto& row) {
        return row.first == field && row.second.number == number &&
               row.second.name == value.GetValueName().View();
    });
}

std::optional<DotsPerInch> resolutionOf(const CXString& valueName)
{
    Name name = valueName.View();
    const auto across = takeNumber(name);
    if (!across) {
        return std::nullopt;
    }
    auto down = across;
    if (name.starts_with(L'x')) {
        name.remove_prefix(1);
        down = takeNumber(name);
    }
    if (!down || !name.starts_with(L"-dpi")) {
        return std::nullopt;
    }
    return DotsPerInch{*across, *down};
}

} // namespace o7

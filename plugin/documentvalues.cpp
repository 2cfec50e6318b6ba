#include "documentvalues.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <string>
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

struct PaperRow
{
    Name name;
    int number; ///< 0: the system has none
    PaperSize size;
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
    {L"high-capacity-tray",    11},
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
};
constexpr PaperRow kPapers[] = {
    {L"letter",              1, {2159, 2794}},
    {L"11x17",              17, {2794, 4318}},
    {L"tabloid",            17, {2794, 4318}},
    {L"ledger",              4, {2794, 4318}},
    {L"legal",               5, {2159, 3556}},
    {L"statement",           6, {1397, 2159}},
    {L"executive",           7, {1842, 2667}},
    {L"a3",                  8, {2970, 4200}},
    {L"a4",                  9, {2100, 2970}},
    {L"a5",                 11, {1480, 2100}},
    {L"b4-jis",             12, {2570, 3640}},
    {L"b5-jis",             13, {1820, 2570}},
    {L"folio",              14, {2159, 3302}},
    {L"envelope-10",        20, {1048, 2413}},
    {L"ansi-c",             24, {4318, 5588}},
    {L"ansi-d",             25, {5588, 8636}},
    {L"ansi-e",             26, {8636, 11176}},
    {L"envelope-dl",        27, {1100, 2200}},
    {L"envelope-c5",        28, {1620, 2290}},
    {L"envelope-c4",        30, {2290, 3240}},
    {L"envelope-c6",        31, {1140, 1620}},
    {L"envelope-b5",        34, {1760, 2500}},
    {L"envelope-monarch",   37, {984, 1905}},
    {L"japanese-postcard",  43, {1000, 1480}},
    {L"postcard",           43, {1000, 1480}},
    {L"a2",                 66, {4200, 5940}},
    {L"a6",                 70, {1050, 1480}},
    {L"b6-jis",             88, {1280, 1820}},
    {L"12x18",               0, {3048, 4572}},
    {L"13x19",               0, {3302, 4826}},
    {L"sra3",                0, {3200, 4500}},
    {L"sra4",                0, {2250, 3200}},
    {L"a3-plus",             0, {3290, 4830}},
    {L"a0",                  0, {8410, 11890}},
    {L"a1",                  0, {5940, 8410}},
    {L"b1",                  0, {7070, 10000}},
    {L"b2",                  0, {5000, 7070}},
    {L"b3",                  0, {3530, 5000}},
    {L"b4",                 42, {2500, 3530}},
    {L"b5",                  0, {1760, 2500}},
    {L"arch-a",              0, {2286, 3048}},
    {L"arch-b",              0, {3048, 4572}},
    {L"arch-c",              0, {4572, 6096}},
    {L"arch-d",              0, {6096, 9144}},
    {L"arch-e",              0, {9144, 12192}},
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

const PaperRow* findPaper(Name name)
{
    const auto row = std::ranges::find(kPapers, name, &PaperRow::name);
    return row == std::end(kPapers) ? nullptr : row;
}

/// A decimal number at the beginning of the text, which is cut off; nothing when there is none or
/// when it is no length of a paper.
std::optional<double> takeNumber(Name& text)
{
    constexpr double kMost = 10000;
    double number = 0;
    double digit = 0; // what the next digit counts; 0 before the point
    std::size_t length = 0;
    for (; length < text.size(); ++length) {
        const wchar_t character = text[length];
        if (character == L'.' && digit == 0) {
            digit = 0.1;
        } else if (character < L'0' || character > L'9' || number > kMost) {
            break;
        } else if (digit == 0) {
            number = number * 10 + (character - L'0');
        } else {
            number += digit * (character - L'0');
            digit /= 10;
        }
    }
    text.remove_prefix(length);
    return length == 0 || number <= 0 || number > kMost ? std::nullopt : std::optional(number);
}

/// "<number>x<number><unit>", as the end of a name after its last hyphen.
std::optional<PaperSize> sizeAtEnd(Name name)
{
    struct Unit
    {
        Name name;
        double tenthsOfMillimetre;
    };
    constexpr Unit kUnits[] = {{L"mm", 10}, {L"cm", 100}, {L"in", 254}};
    name.remove_prefix(name.rfind(L'-') + 1); // npos + 1 is 0
    const auto first = takeNumber(name);
    if (!first || !name.starts_with(L'x')) {
        return std::nullopt;
    }
    name.remove_prefix(1);
    const auto second = takeNumber(name);
    const auto unit = std::ranges::find(kUnits, name, &Unit::name);
    if (!second || unit == std::end(kUnits)) {
        return std::nullopt;
    }
    const auto tenths = [&](double length) {
        return static_cast<int>(std::lround(length * unit->tenthsOfMillimetre));
    };
    return PaperSize{tenths(std::min(*first, *second)), tenths(std::max(*first, *second))};
}

std::optional<int> paperNumber(const ValueId& value)
{
    const PaperRow* const row = findPaper(value.GetValueName().View());
    return numberOr(row != nullptr && row->number != 0 ? std::optional(row->number) : std::nullopt,
                    value);
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
        return paperNumber(value);
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

std::optional<PaperSize> paperSize(const CXString& valueName)
{
    const PaperRow* const row = findPaper(valueName.View());
    return row != nullptr ? std::optional(row->size) : sizeAtEnd(valueName.View());
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
    return DotsPerInch{static_cast<int>(*across), static_cast<int>(*down)};
}

} // namespace o7

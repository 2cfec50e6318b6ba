#include "documentfields.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>

#include "systemnumbers.h"

namespace o7::story {
namespace {

struct NumberWord
{
    std::string_view word;
    int number;
};

// clang-format off
/// The first word of a number is the one that is written.
constexpr NumberWord kPapers[] = {
    {"Letter", 1}, {"Tabloid", 3}, {"Ledger", 4}, {"Legal", 5}, {"Statement", 6},
    {"Executive", 7}, {"A3", 8}, {"A4", 9}, {"A5", 11}, {"B4-JIS", 12}, {"B5-JIS", 13},
    {"Folio", 14}, {"11x17", 17}, {"Envelope-10", 20}, {"ANSI-C", 24}, {"ANSI-D", 25},
    {"ANSI-E", 26}, {"Envelope-DL", 27}, {"Envelope-C5", 28}, {"Envelope-C4", 30},
    {"Envelope-C6", 31}, {"Envelope-B5", 34}, {"Envelope-Monarch", 37}, {"B4", 42},
    {"Postcard", 43}, {"A2", 66}, {"A6", 70}, {"B6-JIS", 88}, {"custom", kFirstOwnPaper}};
constexpr NumberWord kOrientations[] = {{"portrait", 1}, {"landscape", kLandscape}};
constexpr NumberWord kDuplexes[]     = {{"none", 1}, {"long", kDuplexLongEdge}, {"short", 3}};
constexpr NumberWord kSwitches[]     = {{"off", 0}, {"on", 1}};
constexpr NumberWord kColours[]      = {{"mono", 1}, {"colour", kColourPrinting}};
constexpr NumberWord kGrades[]       = {{"draft", -1}, {"low", -2}, {"medium", -3}, {"high", -4}};
// clang-format on

/// The fields are 16 bits wide.
constexpr int kLargest = 32767;

std::optional<int> numberIn(std::string_view text)
{
    int number = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole && number >= 0 && number <= kLargest ? std::optional(number) : std::nullopt;
}

bool sameWord(std::string_view a, std::string_view b)
{
    const auto lower = [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; };
    return std::ranges::equal(a, b, {}, lower, lower);
}

std::optional<int> numberOf(std::span<const NumberWord> words, std::string_view text)
{
    const auto found = std::ranges::find_if(
        words, [&](const NumberWord& each) { return sameWord(each.word, text); });
    return found != words.end() ? std::optional(found->number) : std::nullopt;
}

/// The number itself where there is no word for it.
std::string wordOf(std::span<const NumberWord> words, int number)
{
    const auto found = std::ranges::find(words, number, &NumberWord::number);
    return found != words.end() ? std::string(found->word) : std::to_string(number);
}

/// Millimetres with one decimal place at most, as tenths.
std::optional<int> tenthsIn(std::string_view text)
{
    const std::size_t point = std::min(text.find('.'), text.size());
    const auto whole = numberIn(text.substr(0, point));
    if (!whole || *whole > kLargest / 10) {
        return std::nullopt;
    }
    if (point == text.size()) {
        return *whole * 10;
    }
    const auto part = numberIn(text.substr(point + 1));
    return part && text.size() == point + 2 ? std::optional(*whole * 10 + *part) : std::nullopt;
}

std::string millimetres(int tenths)
{
    std::string text = std::to_string(tenths / 10);
    return tenths % 10 == 0 ? text : text + "." + std::to_string(tenths % 10);
}

std::string resolutionText(const PublicFields& fields)
{
    if (fields.quality < 0) {
        return wordOf(kGrades, fields.quality);
    }
    std::string text = std::to_string(fields.quality);
    const bool oblong = fields.has(kYResolutionField) && fields.yResolution != fields.quality;
    return oblong ? text + "x" + std::to_string(fields.yResolution) : text;
}

bool setResolution(PublicFields& fields, std::string_view text)
{
    if (const auto grade = numberOf(kGrades, text)) {
        fields.quality = *grade;
        fields.fields &= ~std::uint32_t{kYResolutionField};
        return true;
    }
    const std::size_t cross = std::min(text.find('x'), text.size());
    const auto across = numberIn(text.substr(0, cross));
    const auto down = cross == text.size() ? across : numberIn(text.substr(cross + 1));
    if (!across || !down || *across == 0 || *down == 0) {
        return false;
    }
    fields.quality = *across;
    fields.yResolution = *down;
    fields.fields |= kYResolutionField;
    return true;
}

bool take(int& field, std::optional<int> number)
{
    field = number.value_or(field);
    return number.has_value();
}

struct FieldRow
{
    std::string_view name;
    std::uint32_t bit;
    std::string_view words; ///< that it takes
    std::string (*read)(const PublicFields&);
    bool (*write)(PublicFields&, std::string_view);
};

using Fields = PublicFields;
using Text = std::string_view;

constexpr FieldRow kFields[] = {
    {"paper", kPaperSizeField, "A4, Letter and so on, custom, or the system's number",
     [](const Fields& f) { return wordOf(kPapers, f.paperSize); },
     [](Fields& f, Text text) {
         const auto named = numberOf(kPapers, text);
         return take(f.paperSize, named ? named : numberIn(text));
     }},
    {"width", kPaperWidthField, "millimetres, such as 215.9",
     [](const Fields& f) { return millimetres(f.paperWidth); },
     [](Fields& f, Text text) { return take(f.paperWidth, tenthsIn(text)); }},
    {"length", kPaperLengthField, "millimetres, such as 279.4",
     [](const Fields& f) { return millimetres(f.paperLength); },
     [](Fields& f, Text text) { return take(f.paperLength, tenthsIn(text)); }},
    {"orientation", kOrientationField, "portrait or landscape",
     [](const Fields& f) { return wordOf(kOrientations, f.orientation); },
     [](Fields& f, Text text) { return take(f.orientation, numberOf(kOrientations, text)); }},
    {"duplex", kDuplexField, "none, long or short",
     [](const Fields& f) { return wordOf(kDuplexes, f.duplex); },
     [](Fields& f, Text text) { return take(f.duplex, numberOf(kDuplexes, text)); }},
    {"copies", kCopiesField, "a number", [](const Fields& f) { return std::to_string(f.copies); },
     [](Fields& f, Text text) { return take(f.copies, numberIn(text)); }},
    {"collate", kCollateField, "on or off",
     [](const Fields& f) { return wordOf(kSwitches, f.collate); },
     [](Fields& f, Text text) { return take(f.collate, numberOf(kSwitches, text)); }},
    {"colour", kColourField, "colour or mono",
     [](const Fields& f) { return wordOf(kColours, f.colour); },
     [](Fields& f, Text text) { return take(f.colour, numberOf(kColours, text)); }},
    {"resolution", kQualityField, "600, 1200x600, draft, low, medium or high", resolutionText,
     setResolution},
    {"scale", kScaleField, "percent, such as 71",
     [](const Fields& f) { return std::to_string(f.scale); },
     [](Fields& f, Text text) { return take(f.scale, numberIn(text)); }},
};

constexpr auto kNames = [] {
    std::array<std::string_view, std::size(kFields)> names{};
    std::ranges::transform(kFields, names.begin(), &FieldRow::name);
    return names;
}();

const FieldRow* rowOf(std::string_view name)
{
    const auto* const found = std::ranges::find(kFields, name, &FieldRow::name);
    return found != std::end(kFields) ? found : nullptr;
}

} // namespace

std::span<const std::string_view> documentFieldNames()
{
    return kNames;
}

std::string documentFieldText(const PublicFields& fields, std::string_view name)
{
    const FieldRow* const row = rowOf(name);
    return row != nullptr && fields.has(row->bit) ? row->read(fields) : std::string(kNotSet);
}

std::string setDocumentField(PublicFields& fields, std::string_view name, std::string_view text)
{
    const FieldRow* const row = rowOf(name);
    if (row == nullptr) {
        return "one of those that stories know";
    }
    if (!row->write(fields, text)) {
        return std::string(row->words);
    }
    fields.fields |= row->bit;
    return {};
}

} // namespace o7::story

#include "previewoptions.h"

#include <algorithm>
#include <array>

namespace o7 {
namespace {

struct EntryName
{
    std::wstring_view name;
    PreviewEntry entry;
};

constexpr std::array<EntryName, 4> kEntries{{
    {L"sheet", PreviewEntry::Sheet},
    {L"cpsui", PreviewEntry::Cpsui},
    {L"dialog", PreviewEntry::Dialog},
    {L"child", PreviewEntry::Child},
}};

constexpr std::wstring_view kUsage =
    L"Usage: o7preview [options]\n"
    L"Opens the pages of a product without installing a driver.\n"
    L"\n"
    L"  --product P      folder name of the product package (default: office-c430)\n"
    L"  --products DIR   where the packages are (default: products beside the program)\n"
    L"  --mode N         1 printing preferences, 2 device settings, 3 compact dialog,\n"
    L"                   4 printing defaults (default: 1, with --entry dialog 3)\n"
    L"  --entry E        sheet, cpsui, dialog or child (default: sheet)\n"
    L"  --lang xx        language of the texts (default: the system's)\n"
    L"  --longer         every text a third longer, as in the longest translations;\n"
    L"                   not with --entry cpsui\n"
    L"  --shots DIR      visit every page, save one picture each, cancel\n"
    L"  --snapshot FILE  visit every page, write what is on them as text, cancel\n"
    L"  --user-dir DIR   where accepted settings are kept\n"
    L"  --family N       run with another device family (feature 285), keep nothing\n"
    L"  --check PACKAGE  open nothing; say all that is wrong with a product package: its\n"
    L"                   folder, its package.json, or the name of a product\n"
    L"  --story FILE...  play stories, each line as a person would, and say what came out\n"
    L"                   otherwise than told\n"
    L"  --gallery        show every control in every state; takes --shots and --snapshot\n"
    L"  --mirrored       the gallery right to left\n"
    L"  --classic        the gallery without themes\n"
    L"  --help           this text\n"
    L"\n"
    L"Ends with 0 when everything asked for was done, 1 when something failed (or a\n"
    L"check found mistakes), 2 when the options, the product or its package are at fault.\n";

/// Whole decimal numbers without a sign only; anything longer than nine digits is no family value.
std::optional<int> parseNumber(std::wstring_view text)
{
    if (text.empty() || text.size() > 9 ||
        !std::ranges::all_of(text, [](wchar_t c) { return c >= L'0' && c <= L'9'; })) {
        return std::nullopt;
    }
    int number = 0;
    for (const wchar_t c : text) {
        number = number * 10 + static_cast<int>(c - L'0');
    }
    return number;
}

/// Each setter answers with what it expected instead, or with nothing when it took the value.
using Setter = std::wstring_view (*)(PreviewOptions&, const std::wstring&);

std::wstring_view setText(std::wstring& field, const std::wstring& value)
{
    field = value;
    return value.empty() ? L"a text that is not empty" : L"";
}

std::wstring_view setMode(PreviewOptions& options, const std::wstring& value)
{
    options.mode = parseNumber(value);
    return options.mode >= 1 && options.mode <= 4 ? L"" : L"a number from 1 to 4";
}

std::wstring_view setEntry(PreviewOptions& options, const std::wstring& value)
{
    const auto* const found = std::ranges::find(kEntries, value, &EntryName::name);
    if (found == kEntries.end()) {
        return L"sheet, cpsui, dialog or child";
    }
    options.entry = found->entry;
    return L"";
}

/// The language becomes part of a file name, so nothing but a language tag passes.
std::wstring_view setLanguage(PreviewOptions& options, const std::wstring& value)
{
    const auto allowed = [](wchar_t c) {
        return (c >= L'a' && c <= L'z') || (c >= L'A' && c <= L'Z') || c == L'-';
    };
    options.language = value;
    return value.size() >= 2 && std::ranges::all_of(value, allowed)
               ? L""
               : L"a language such as en or de";
}

std::wstring_view setFamily(PreviewOptions& options, const std::wstring& value)
{
    options.family = parseNumber(value);
    return options.family ? L"" : L"a number such as 8430";
}

struct OptionRow
{
    std::wstring_view name;
    Setter set;
};

constexpr std::array<OptionRow, 10> kOptions{{
    {L"--product", [](PreviewOptions& o, const std::wstring& v) { return setText(o.product, v); }},
    {L"--products",
     [](PreviewOptions& o, const std::wstring& v) { return setText(o.productsDirectory, v); }},
    {L"--mode", setMode},
    {L"--entry", setEntry},
    {L"--lang", setLanguage},
    {L"--shots",
     [](PreviewOptions& o, const std::wstring& v) { return setText(o.shotsDirectory, v); }},
    {L"--snapshot",
     [](PreviewOptions& o, const std::wstring& v) { return setText(o.snapshotFile, v); }},
    {L"--user-dir",
     [](PreviewOptions& o, const std::wstring& v) { return setText(o.userDirectory, v); }},
    {L"--family", setFamily},
    {L"--check",
     [](PreviewOptions& o, const std::wstring& v) { return setText(o.checkedPackage, v); }},
}};

struct FlagRow
{
    std::wstring_view name;
    bool PreviewOptions::*field;
};

constexpr std::array<FlagRow, 6> kFlags{{
    {L"--gallery", &PreviewOptions::gallery},
    {L"--longer", &PreviewOptions::longer},
    {L"--mirrored", &PreviewOptions::mirrored},
    {L"--classic", &PreviewOptions::classic},
    {L"--help", &PreviewOptions::help},
    {L"-h", &PreviewOptions::help},
}};

/// What is wrong with options that are right one by one; empty when nothing is.
std::wstring_view conflictIn(const PreviewOptions& options)
{
    if ((options.mirrored || options.classic) && !options.gallery)
        return L"Options --mirrored and --classic go with --gallery.";
    if (options.longer && options.entry == PreviewEntry::Cpsui) // the plug-in brings the texts
        return L"Option --longer does not go with --entry cpsui.";
    if (!options.stories.empty() &&
        (options.unattended() || options.gallery || !options.checkedPackage.empty() ||
         options.family || !options.product.empty() || options.mode))
        return L"Option --story goes with --products only: a story says what it opens.";
    return {};
}

/// The files that follow the option, up to the next option.
/// @return the position of the last one, or of the option itself when there is none.
std::size_t takeStories(PreviewOptions& options, std::span<const std::wstring> words,
                        std::size_t at)
{
    while (at + 1 < words.size() && !words[at + 1].starts_with(L"--")) {
        options.stories.push_back(words[++at]);
    }
    return at;
}

} // namespace

ParsedOptions parsePreviewOptions(std::span<const std::wstring> words)
{
    ParsedOptions result;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const std::wstring& word = words[i];
        if (const auto* const flag = std::ranges::find(kFlags, word, &FlagRow::name);
            flag != kFlags.end()) {
            result.options.*flag->field = true;
            continue;
        }
        if (word == L"--story") {
            const std::size_t last = takeStories(result.options, words, i);
            if (last == i) {
                result.error = L"Option --story needs a value.";
                return result;
            }
            i = last;
            continue;
        }
        const std::size_t equals = word.find(L'=');
        const std::wstring name = word.substr(0, equals);
        const auto* const row = std::ranges::find(kOptions, name, &OptionRow::name);
        if (row == kOptions.end()) {
            result.error = L"Unknown option \"" + name + L"\".";
            return result;
        }
        if (equals == std::wstring::npos && i + 1 == words.size()) {
            result.error = L"Option " + name + L" needs a value.";
            return result;
        }
        const std::wstring value =
            equals == std::wstring::npos ? words[++i] : word.substr(equals + 1);
        if (const std::wstring_view expected = row->set(result.options, value); !expected.empty()) {
            result.error = L"Option " + name + L": expected ";
            result.error.append(expected).append(L", found \"").append(value).append(L"\".");
            return result;
        }
    }
    result.error = conflictIn(result.options);
    return result;
}

std::wstring_view entryName(PreviewEntry entry)
{
    return std::ranges::find(kEntries, entry, &EntryName::entry)->name;
}

std::wstring_view previewUsage()
{
    return kUsage;
}

} // namespace o7

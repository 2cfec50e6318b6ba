#include "storygrammar.h"

#include <algorithm>
#include <array>

#include "nearestword.h"

namespace o7::story {
namespace {

// clang-format off
constexpr Form kForms[] = {
    {"product NAME",                                   Setting::Product},
    {"entry NAME",                                     Setting::Entry},
    {"mode NUMBER",                                    Setting::Mode},
    {"language NAME",                                  Setting::Language},
    {"open",                                           Verb::Open},
    {"reopen",                                         Verb::Reopen},
    {"restart",                                        Verb::Restart}, // what follows is read apart
    {"page NAME",                                      Verb::Page},
    {"choose CONTROL TEXT",                            Verb::Choose},
    {"tick CONTROL",                                   Verb::Tick},
    {"untick CONTROL",                                 Verb::Untick},
    {"type CONTROL TEXT",                              Verb::Type},
    {"key CHORD",                                      Verb::Key},
    {"key CHORD in CONTROL",                           Verb::Key},
    {"press NAME",                                     Verb::Press},
    {"answer NAME",                                    Verb::Answer},
    {"set CONTROL TEXT",                               Verb::Set},
    {"document FIELD TEXT",                            Verb::Document},
    {"expect closed",                                  Aspect::Closed},
    {"expect open",                                    Aspect::Open},
    {"expect no conflict",                             Aspect::ConflictCount},
    {"expect count conflicts NUMBER",                  Aspect::ConflictCount},
    {"expect no message",                              Aspect::NoMessage},
    {"expect message contains TEXT",                   Aspect::Message},
    {"expect status contains TEXT",                    Aspect::Status},
    {"expect tab NAME marked",                         Aspect::TabMarked},
    {"expect tab NAME unmarked",                       Aspect::TabUnmarked},
    {"expect document FIELD is TEXT",                  Aspect::Document},
    {"expect entry LABEL ENTRY enabled",               Aspect::Enabled},
    {"expect entry LABEL ENTRY disabled [REASON]",     Aspect::Disabled},
    {"expect entry LABEL ENTRY hidden [REASON]",       Aspect::Hidden},
    {"expect LABEL is TEXT",                           Aspect::Value},
    {"expect LABEL enabled",                           Aspect::Enabled},
    {"expect LABEL disabled [REASON]",                 Aspect::Disabled},
    {"expect LABEL hidden [REASON]",                   Aspect::Hidden},
    {"expect LABEL empty [REASON]",                    Aspect::Empty},
    {"expect LABEL conflict [REASON]",                 Aspect::Conflict},
    {"expect LABEL no conflict",                       Aspect::Settled},
    {"expect LABEL reason contains TEXT",              Aspect::Reason},
    {"expect LABEL entry ENTRY enabled",               Aspect::Enabled},
    {"expect LABEL entry ENTRY disabled [REASON]",     Aspect::Disabled},
    {"expect LABEL entry ENTRY hidden [REASON]",       Aspect::Hidden},
};

/// How the places of patterns are called in sentences.
constexpr std::pair<std::string_view, std::string_view> kPlaces[] = {
    {"NAME",    "a name"},
    {"NUMBER",  "a number"},
    {"CONTROL", "the name of a control or feature"},
    {"LABEL",   "the label of a control in quotation marks"},
    {"ENTRY",   "an entry of the list"},
    {"TEXT",    "a text"},
    {"CHORD",   "a key such as F8 or Alt+Down"},
    {"FIELD",   "a field of the document"},
};
// clang-format on

constexpr std::string_view kReason = "[REASON]";
/// What the optional end of a pattern stands for.
constexpr std::string_view kReasonWords[] = {"reason", "contains", "REASON"};

bool isPlace(std::string_view part)
{
    return part.front() >= 'A' && part.front() <= 'Z';
}

bool isNumber(std::string_view text)
{
    return !text.empty() && text.size() <= 9 &&
           std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
}

std::vector<std::string_view> partsOf(std::string_view pattern)
{
    std::vector<std::string_view> parts;
    while (!pattern.empty()) {
        const std::size_t end = std::min(pattern.find(' '), pattern.size());
        parts.push_back(pattern.substr(0, end));
        pattern.remove_prefix(std::min(end + 1, pattern.size()));
    }
    return parts;
}

bool fits(const Word& word, std::string_view part, bool bareNames)
{
    if (!isPlace(part)) {
        return !word.quoted && word.text == part;
    }
    if (part == "LABEL") {
        return word.quoted || bareNames;
    }
    return part != "NUMBER" || isNumber(word.text);
}

/// How far a line goes along with a form.
struct Attempt
{
    const Form* form = nullptr;
    std::size_t fitting = 0;   ///< words
    std::string_view expected; ///< the part that the next word does not fit; empty: nothing more
    bool whole = false;
    std::vector<Filled> places;
};

Attempt attempt(const Form& form, std::span<const Word> words, bool bareNames)
{
    std::vector<std::string_view> parts = partsOf(form.pattern);
    const bool mayEnd = parts.back() == kReason;
    if (mayEnd) {
        parts.pop_back();
        if (words.size() > parts.size()) {
            parts.insert(parts.end(), std::begin(kReasonWords), std::end(kReasonWords));
        }
    }
    Attempt result;
    result.form = &form;
    for (const std::string_view part : parts) {
        result.expected = part;
        if (result.fitting == words.size() || !fits(words[result.fitting], part, bareNames)) {
            return result;
        }
        if (isPlace(part)) {
            result.places.push_back({part, words[result.fitting].text});
        }
        ++result.fitting;
    }
    result.expected = {};
    result.whole = result.fitting == words.size();
    return result;
}

std::string_view spoken(std::string_view part)
{
    const auto* const place =
        std::ranges::find(kPlaces, part, &std::pair<std::string_view, std::string_view>::first);
    return place != std::end(kPlaces) ? place->second : part == "REASON" ? "a text" : part;
}

std::string shown(const Word& word)
{
    return word.quoted ? inQuotes(word.text) : word.text;
}

std::string joined(const std::vector<std::string_view>& parts)
{
    std::string text;
    for (std::size_t i = 0; i < parts.size(); ++i) {
        text.append(i == 0 ? "" : i + 1 == parts.size() ? " or " : ", ").append(spoken(parts[i]));
    }
    return text;
}

std::string unknownStep(const Word& first)
{
    std::vector<std::string_view> steps;
    for (const Form& form : kForms) {
        const std::string_view step = partsOf(form.pattern).front();
        if (steps.empty() || steps.back() != step) {
            steps.push_back(step);
        }
    }
    const std::string near = suggestion(first.text, steps);
    return shown(first) + " is no step" + (near.empty() ? "; there are " + joined(steps) : near);
}

/// The sentence about the word at which every form that came so far ends.
std::string faultOf(const std::vector<Attempt>& attempts, std::span<const Word> words)
{
    const std::size_t fitting = std::ranges::max(attempts, {}, &Attempt::fitting).fitting;
    if (fitting == 0) {
        return unknownStep(words.front());
    }
    std::vector<std::string_view> expected;
    bool mayEnd = false;
    for (const Attempt& each : attempts) {
        if (each.fitting != fitting) {
            continue;
        }
        mayEnd = mayEnd || each.expected.empty();
        if (!each.expected.empty() &&
            std::ranges::find(expected, each.expected) == expected.end()) {
            expected.push_back(each.expected);
        }
    }
    std::string text = "after " + shown(words[fitting - 1]) + " comes ";
    text += expected.empty() ? "nothing more" : mayEnd ? "nothing, or " : "";
    text += joined(expected);
    if (fitting == words.size()) {
        return text + ", and the line ends there";
    }
    const Word& found = words[fitting];
    text += ", not " + shown(found);
    if (found.quoted) {
        return text;
    }
    const std::string near = suggestion(found.text, expected);
    return near.empty() && expected.empty()
               ? text + "; a text with blanks stands in quotation marks"
               : text + near;
}

} // namespace

std::span<const Form> forms()
{
    return kForms;
}

Recognition recognise(std::span<const Word> words, bool bareNames)
{
    std::vector<Attempt> attempts;
    for (const Form& form : kForms) {
        attempts.push_back(attempt(form, words, bareNames));
        if (attempts.back().whole) {
            return {&form, std::move(attempts.back().places), {}};
        }
    }
    return {nullptr, {}, faultOf(attempts, words)};
}

} // namespace o7::story

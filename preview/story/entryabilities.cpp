#include "entryabilities.h"

#include <algorithm>
#include <iterator>
#include <string_view>

namespace o7::story {
namespace {

using Entries = unsigned;

constexpr Entries only(Entry entry)
{
    return 1U << static_cast<unsigned>(entry);
}

constexpr Entry kAllEntries[] = {Entry::Sheet,  Entry::Cpsui, Entry::Child,
                                 Entry::Dialog, Entry::InApp, Entry::Model};

constexpr Entries kSheets = only(Entry::Sheet) | only(Entry::Cpsui) | only(Entry::Child);
constexpr Entries kOwnWindows = kSheets | only(Entry::Dialog);
constexpr Entries kWindows = kOwnWindows | only(Entry::InApp);
constexpr Entries kPaged = kSheets | only(Entry::InApp);
constexpr Entries kUnmasked = kOwnWindows | only(Entry::Model); ///< all but a foreign program
constexpr Entries kAny = kWindows | only(Entry::Model);
constexpr Entries kDocuments = only(Entry::Cpsui) | only(Entry::Model);

struct VerbRow
{
    Verb verb;
    Entries entries;
    std::string_view words; ///< what an entry that is not among them cannot do
};

struct AspectRow
{
    Aspect aspect;
    Entries entries;
    std::string_view words;
};

// clang-format off
constexpr VerbRow kVerbs[] = {
    {Verb::Open,     kAny,               "open"},
    {Verb::Reopen,   kAny,               "reopen"},
    {Verb::Restart,  kAny,               "restart"},
    {Verb::Page,     kPaged,             "turn to a page"},
    {Verb::Choose,   kWindows,           "choose from a list by what it shows"},
    {Verb::Tick,     kWindows,           "tick a box"},
    {Verb::Untick,   kWindows,           "untick a box"},
    {Verb::Type,     kWindows,           "type"},
    {Verb::Key,      kWindows,           "press keys"},
    {Verb::Press,    kAny,               "press a button"},
    {Verb::Answer,   kWindows,           "answer a message"},
    {Verb::Set,      only(Entry::Model), "set a feature by its name"},
    {Verb::Document, kDocuments,         "change the fields of a document"},
    {Verb::Expect,   kAny,               "look"},
};

constexpr AspectRow kAspects[] = {
    {Aspect::Value,         kAny,       "read a value"},
    {Aspect::Enabled,       kAny,       "read whether a control is enabled"},
    {Aspect::Disabled,      kAny,       "read whether a control is disabled"},
    {Aspect::Hidden,        kUnmasked,  "tell what is hidden"},
    {Aspect::Empty,         kUnmasked,  "tell what is empty"},
    {Aspect::Conflict,      kUnmasked,  "see the mark of a conflict"},
    {Aspect::Settled,       kUnmasked,  "see the mark of a conflict"},
    {Aspect::Reason,        kUnmasked,  "read a reason"},
    {Aspect::Status,        kPaged,     "read the status line"},
    {Aspect::Message,       kWindows,   "read a message"},
    {Aspect::NoMessage,     kWindows,   "read a message"},
    {Aspect::TabMarked,     kSheets,    "see the mark of a tab"},
    {Aspect::TabUnmarked,   kSheets,    "see the mark of a tab"},
    {Aspect::ConflictCount, kUnmasked,  "count conflicts"},
    {Aspect::Closed,        kAny,       "tell whether it is closed"},
    {Aspect::Open,          kAny,       "tell whether it is open"},
    {Aspect::Document,      kDocuments, "read the fields of a document"},
};
// clang-format on

constexpr std::string_view kModelButtons[] = {"OK", "Apply", "Cancel"};

std::string namesOf(Entries entries)
{
    std::string names;
    for (const Entry entry : kAllEntries) {
        if ((entries & only(entry)) != 0) {
            names.append(names.empty() ? "" : ", ").append(entryName(entry));
        }
    }
    return names;
}

std::string objection(Entry entry, Entries able, std::string_view words)
{
    if ((able & only(entry)) != 0) {
        return {};
    }
    return "entry " + std::string(entryName(entry)) + " cannot " + std::string(words) +
           "; these can: " + namesOf(able);
}

std::string objectionToLook(Entry entry, const Expectation& expected)
{
    // A foreign program shows what is chosen and greyed, nothing beyond.
    if (expected.entry) {
        return objection(entry, kUnmasked, "read the state of a list's entry");
    }
    if (expected.reason) {
        return objection(entry, kUnmasked, "read a reason");
    }
    const auto* const row = std::ranges::find(kAspects, expected.aspect, &AspectRow::aspect);
    return objection(entry, row->entries, row->words);
}

} // namespace

std::optional<Entry> entryNamed(std::string_view name)
{
    const auto* const found = std::ranges::find(kAllEntries, name, entryName);
    return found != std::end(kAllEntries) ? std::optional(*found) : std::nullopt;
}

std::string objectionTo(Entry entry, int mode)
{
    switch (entry) {
    case Entry::Cpsui:
        return mode == 3 ? "entry cpsui shows pages only: it has modes 1, 2 and 4" : "";
    case Entry::Dialog:
        return mode != 3 ? "entry dialog has mode 3 only" : "";
    case Entry::InApp:
        return mode != 1 ? "entry in-app has mode 1 only" : "";
    default:
        return {};
    }
}

std::string objectionTo(Entry entry, const Step& step)
{
    if (step.expectation) {
        return objectionToLook(entry, *step.expectation);
    }
    if (entry == Entry::Model && step.verb == Verb::Press &&
        std::ranges::find(kModelButtons, step.control.text()) == std::end(kModelButtons)) {
        return "entry model has the buttons OK, Apply and Cancel, and no \"" + step.control.text() +
               "\"";
    }
    const auto* const row = std::ranges::find(kVerbs, step.verb, &VerbRow::verb);
    return objection(entry, row->entries, row->words);
}

} // namespace o7::story

#include "judgement.h"

#include <string_view>

#include "words.h"

namespace o7::story {
namespace {

/// Texts are compared as they read: each run of blanks and line ends is one blank.
std::string plain(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        const bool blank = c == ' ' || c == '\t' || c == '\r' || c == '\n';
        if (!blank) {
            result += c;
        } else if (!result.empty() && result.back() != ' ') {
            result += ' ';
        }
    }
    if (result.ends_with(' ')) {
        result.pop_back();
    }
    return result;
}

bool contains(const std::string& text, const std::string& part)
{
    return plain(text).find(plain(part)) != std::string::npos;
}

std::string judgeText(const std::string& seen, const std::string& expected)
{
    return plain(seen) == plain(expected) ? "" : "it is " + inQuotes(seen);
}

std::string judgeContains(const char* what, const std::string& seen, const std::string& part)
{
    if (!seen.empty() && contains(seen, part)) {
        return {};
    }
    return seen.empty() ? "there is no " + std::string(what)
                        : "the " + std::string(what) + " is " + inQuotes(seen);
}

std::string judgeCount(int seen, int expected)
{
    return seen == expected ? ""
                            : std::to_string(seen) + (seen == 1 ? " setting is" : " settings are") +
                                  " in conflict";
}

/// Whether a control, or an entry of its list, is in the state that the aspect names.
bool holds(Aspect aspect, const ControlState& state)
{
    switch (aspect) {
    case Aspect::Hidden:
        return state.hidden;
    case Aspect::Enabled:
        return !state.hidden && state.enabled;
    case Aspect::Disabled:
        return !state.hidden && !state.enabled;
    case Aspect::Empty:
        return !state.hidden && state.empty;
    case Aspect::Conflict:
        return !state.hidden && state.conflict;
    default: // Settled
        return state.hidden || !state.conflict;
    }
}

std::string words(const ControlState& state)
{
    if (state.hidden) {
        return "it is hidden";
    }
    return std::string("it is ") + (state.enabled ? "enabled" : "disabled") +
           (state.empty ? ", empty" : "") + (state.conflict ? ", in conflict" : "");
}

std::string reasonOf(StoryStage& stage, const Expectation& expected)
{
    return expected.entry ? stage.entryReason(expected.control, *expected.entry)
                          : stage.reason(expected.control);
}

std::string judgeState(StoryStage& stage, const Expectation& expected)
{
    const ControlState state = expected.entry ? stage.entryState(expected.control, *expected.entry)
                                              : stage.state(expected.control);
    if (!holds(expected.aspect, state)) {
        const std::string reason =
            state.enabled && !state.conflict ? "" : reasonOf(stage, expected);
        return words(state) + (reason.empty() ? "" : ": " + inQuotes(reason));
    }
    return expected.reason ? judgeContains("reason", reasonOf(stage, expected), *expected.reason)
                           : "";
}

/// What stands in the way of the window, if something does.
std::string withMessage(StoryStage& stage, const std::string& seen)
{
    const auto message = stage.message();
    return message ? seen + ", and a message says " + inQuotes(*message) : seen;
}

} // namespace

std::string judge(StoryStage& stage, const Expectation& expected)
{
    switch (expected.aspect) {
    case Aspect::Value:
        return judgeText(stage.value(expected.control), expected.text);
    case Aspect::Reason:
        return judgeContains("reason", reasonOf(stage, expected), expected.text);
    case Aspect::Status:
        return judgeContains("status", stage.status(), expected.text);
    case Aspect::Message:
        return judgeContains("message", stage.message().value_or(""), expected.text);
    case Aspect::NoMessage: {
        const auto message = stage.message();
        return message ? "the message is " + inQuotes(*message) : "";
    }
    case Aspect::TabMarked:
        return stage.tabMarked(expected.control.text()) ? "" : "it is not marked";
    case Aspect::TabUnmarked:
        return stage.tabMarked(expected.control.text()) ? "it is marked" : "";
    case Aspect::ConflictCount:
        return judgeCount(stage.conflictCount(), expected.count);
    case Aspect::Closed:
        return stage.closed() ? "" : withMessage(stage, "it is open");
    case Aspect::Open:
        return stage.closed() ? "it is closed" : "";
    case Aspect::Document:
        return judgeText(stage.documentField(expected.control.text()), expected.text);
    default:
        return judgeState(stage, expected);
    }
}

} // namespace o7::story

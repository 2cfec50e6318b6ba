#pragma once

#include <optional>
#include <string>
#include <vector>

#include "chord.h"
#include "controlname.h"
#include "session.h"

namespace o7::story {

/// What is looked at by `expect`.
enum class Aspect
{
    Value,   ///< `"C" is "V"`
    Enabled, ///< of a control or of an entry of a list, as the next two
    Disabled,
    Hidden,
    Empty,    ///< the control shows no value
    Conflict, ///< the control has the mark of a conflict
    Settled,  ///< `"C" no conflict`
    Reason,   ///< `"C" reason contains "T"`, without a state
    Status,   ///< the text of the status line
    Message,  ///< the text of the message box that is open
    NoMessage,
    TabMarked, ///< the page's tab has the mark of a conflict
    TabUnmarked,
    ConflictCount, ///< `count conflicts N`, and `no conflict` with 0
    Closed,
    Open,
    Document, ///< a public field of the document
};

struct Expectation
{
    Aspect aspect = Aspect::Closed;
    ControlName control;               ///< of the control; the tab's title; the document's field
    std::optional<std::string> entry;  ///< of the control's list, when that is looked at
    std::string text;                  ///< what the value is or the text contains
    std::optional<std::string> reason; ///< a state's reason contains this
    int count = 0;
};

enum class Verb
{
    Open,
    Reopen,
    Restart, ///< closes the session; the next step belongs to another one
    Page,
    Choose,
    Tick,
    Untick,
    Type,
    Key,
    Press,
    Answer,
    Set,
    Document,
    Expect,
};

/// One line of a story that does or looks at something.
struct Step
{
    int line = 0; ///< counted from 1
    Verb verb = Verb::Open;
    std::string source;      ///< the line as it is written, without comment
    std::size_t session = 0; ///< in Story::sessions
    /// The control; of `page` the title, of `press` and `answer` the button, of `set` the feature,
    /// of `document` the field, of `key` what follows `in` (empty without).
    ControlName control;
    std::string value;                      ///< of `choose`, `type`, `set`, `document`
    Chord chord;                            ///< of `key`
    std::optional<Expectation> expectation; ///< of `expect`
};

/// A story that was read without a mistake.
struct Story
{
    std::string file; ///< as reports name it
    std::vector<Session> sessions;
    std::vector<Step> steps;
};

} // namespace o7::story

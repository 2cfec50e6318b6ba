#pragma once

#include <optional>
#include <string>

#include "chord.h"
#include "controlname.h"

namespace o7::story {

/// How a control, or an entry of a list, presents itself.
struct ControlState
{
    bool hidden = false;   ///< not to be seen on the page in front; of an entry: not in the list
    bool enabled = true;   ///< can be changed; of an entry: can be chosen
    bool empty = false;    ///< shows no value
    bool conflict = false; ///< has the mark of a conflict
};

/// One session of a story, under one entry: does what a person does and reads what a person sees.
///
/// Every operation returns when it is done and everything that follows from it is on screen; the
/// next one may come at once. A sheet is modal, so a stage with windows sees to it by itself that
/// somebody else runs the modal loop. All calls come from one thread, which may wait.
///
/// An operation that cannot be done throws StepFailure with a sentence; so does every operation
/// but closed() and message() while nothing is open. A reading gives what is there and judges
/// nothing. Texts are UTF-8, in the language of the session. What an entry cannot do is left as it
/// is here: it throws StepFailure, and no story that was read without a mistake comes there.
class StoryStage
{
public:
    StoryStage(const StoryStage&) = delete;
    StoryStage& operator=(const StoryStage&) = delete;
    /// Ends everything that the session started, whatever its state.
    virtual ~StoryStage() = default;

    /// Opens the window (or the model) with what printer and user have kept.
    virtual void open() = 0;
    /// The same once more, after it was closed: what the entry stored is all that comes along. It
    /// is called only while closed() is true.
    virtual void reopen() = 0;
    /// Closes what is open as Cancel does, message boxes included; nothing when nothing is open.
    virtual void leave() = 0;
    /// Whether the window is gone: after OK or Cancel, or before open().
    virtual bool closed() = 0;

    /// Brings the page with this title to the front.
    virtual void page(const std::string& title);
    /// Picks an entry of a list, or a button of a group of radio buttons, by its text.
    virtual void choose(const ControlName& control, const std::string& entry);
    /// Clicks a check box until it is checked (or not); one that is so already is left alone.
    virtual void tick(const ControlName& control, bool checked);
    /// Types in place of all that a field holds. The focus stays in the field.
    virtual void type(const ControlName& control, const std::string& text);
    /// Presses a key, in the control when one is named, else where the focus is.
    virtual void key(const Chord& chord, const ControlName& control);
    /// Clicks a button of the page, the sheet or the dialog by its text.
    virtual void press(const std::string& button);
    /// Clicks a button of the message box that is open.
    virtual void answer(const std::string& button);
    /// Gives a feature a value, both by the names of the package.
    virtual void set(const ControlName& feature, const std::string& value);

    /// The visible text; of numbers without their unit; of check boxes checked, unchecked or mixed.
    virtual std::string value(const ControlName& control);
    /// Throws for a control that is not on the page in front, hidden or shown.
    virtual ControlState state(const ControlName& control);
    /// Why a control is as it is; empty when it says nothing.
    virtual std::string reason(const ControlName& control);
    virtual ControlState entryState(const ControlName& control, const std::string& entry);
    virtual std::string entryReason(const ControlName& control, const std::string& entry);
    virtual std::string status();
    /// The text of the message box that is open, if there is one.
    virtual std::optional<std::string> message();
    /// Whether the tab of the page with this title has the mark of a conflict.
    virtual bool tabMarked(const std::string& title);
    /// How many settings the window says are in conflict.
    virtual int conflictCount();

    /// A public field of the document that the program holds, as documentfields.h writes it. Only
    /// while nothing is open, as a program can.
    virtual std::string documentField(const std::string& field);
    virtual void setDocumentField(const std::string& field, const std::string& value);

protected:
    StoryStage() = default;
};

} // namespace o7::story

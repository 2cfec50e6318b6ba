// A stage that writes down what it is told, and shows what the test has put there.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "stepfailure.h"
#include "storystage.h"

namespace o7::story {

/// What stages of one story have been told, and what they show.
struct Recording
{
    std::vector<std::string> calls;
    std::map<std::string, std::string> values;  ///< by control, "status", field or tab
    std::map<std::string, std::string> reasons; ///< by control, or control and entry
    std::map<std::string, ControlState> states; ///< the same
    std::optional<std::string> message;
    std::string failing; ///< the call that fails
    int conflicts = 0;
    int stages = 0; ///< that exist now
};

class RecordingStage final : public StoryStage
{
public:
    explicit RecordingStage(Recording& recording) : m_recording(recording) { ++m_recording.stages; }
    ~RecordingStage() override { --m_recording.stages; }

    void open() override { opened("open"); }
    void reopen() override { opened("reopen"); }
    void leave() override
    {
        note("leave");
        m_closed = true;
    }
    bool closed() override { return m_closed; }

    void page(const std::string& title) override { note("page " + title); }
    void choose(const ControlName& control, const std::string& entry) override
    {
        note("choose " + control.text() + "=" + entry);
    }
    void tick(const ControlName& control, bool checked) override
    {
        note((checked ? "tick " : "untick ") + control.text());
    }
    void type(const ControlName& control, const std::string& text) override
    {
        note("type " + control.text() + "=" + text);
    }
    void key(const Chord& chord, const ControlName& control) override
    {
        note("key " + chord.key + " in " + control.text());
    }
    void press(const std::string& button) override
    {
        note("press " + button);
        m_closed = button != "Apply";
    }
    void answer(const std::string& button) override { note("answer " + button); }
    void set(const ControlName& feature, const std::string& value) override
    {
        note("set " + feature.text() + "=" + value);
    }
    void setDocumentField(const std::string& field, const std::string& value) override
    {
        note("document " + field + "=" + value);
    }

    std::string value(const ControlName& control) override
    {
        return m_recording.values[control.text()];
    }
    ControlState state(const ControlName& control) override
    {
        return m_recording.states[control.text()];
    }
    std::string reason(const ControlName& control) override
    {
        return m_recording.reasons[control.text()];
    }
    ControlState entryState(const ControlName& control, const std::string& entry) override
    {
        return m_recording.states[control.text() + "=" + entry];
    }
    std::string entryReason(const ControlName& control, const std::string& entry) override
    {
        return m_recording.reasons[control.text() + "=" + entry];
    }
    std::string status() override { return m_recording.values["status"]; }
    std::optional<std::string> message() override { return m_recording.message; }
    bool tabMarked(const std::string& title) override
    {
        return m_recording.values[title] == "marked";
    }
    int conflictCount() override { return m_recording.conflicts; }
    std::string documentField(const std::string& field) override
    {
        return m_recording.values[field];
    }

private:
    void opened(const std::string& call)
    {
        note(call);
        m_closed = false;
    }
    void note(const std::string& call)
    {
        m_recording.calls.push_back(call);
        if (call == m_recording.failing) {
            throw StepFailure(call + " does not\nwork");
        }
    }

    Recording& m_recording;
    bool m_closed = true;
};

} // namespace o7::story

#pragma once

#include <windows.h>

#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace o7::test {

/// One message as the window got it.
struct RecordedMessage
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
};

/// One row of a table of messages that a window has to get, in order. A parameter that is not given
/// matches anything; an optional row may be missing (what differs between systems).
struct ExpectedMessage
{
    enum Presence
    {
        Required,
        Optional
    };

    UINT message = 0;
    Presence presence = Required;
    std::optional<WPARAM> wParam{};
    std::optional<LPARAM> lParam{};
};

/// Records the messages of one window, sent and posted ones, by standing before its window
/// procedure. Use it on the window's own thread. Ends recording when it is destroyed, or with the
/// window.
class MessageRecorder
{
public:
    /// Records only the wanted messages, or all when none is named.
    explicit MessageRecorder(HWND window, std::initializer_list<UINT> wanted = {});
    ~MessageRecorder();
    MessageRecorder(const MessageRecorder&) = delete;
    MessageRecorder& operator=(const MessageRecorder&) = delete;

    const std::vector<RecordedMessage>& messages() const { return messages_; }
    void clear() { messages_.clear(); }

    /// Empty when the recorded messages are those of the table; otherwise what was expected, what
    /// came instead, and the whole recording, for EXPECT_EQ(recorder.compare(table), "").
    std::string compare(std::span<const ExpectedMessage> table) const;

private:
    static LRESULT CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool wants(UINT message) const;
    void restore();

    HWND window_;
    WNDPROC previous_;
    std::vector<UINT> wanted_;
    std::vector<RecordedMessage> messages_;
};

} // namespace o7::test

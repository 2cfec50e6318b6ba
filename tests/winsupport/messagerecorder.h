#pragma once

#include <windows.h>

#include <initializer_list>
#include <vector>

namespace o7::test {

/// One message as the window got it.
struct RecordedMessage
{
    UINT message;
    WPARAM wParam;
    LPARAM lParam;
    bool operator==(const RecordedMessage&) const = default;
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

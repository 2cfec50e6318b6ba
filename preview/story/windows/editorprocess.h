#pragma once

#include <windows.h>

namespace o7::story {

/// The system's text editor, started with a small text. Ended with the object, when it is still
/// running then.
class EditorProcess
{
public:
    /// @throws std::runtime_error when it cannot be started.
    EditorProcess();
    ~EditorProcess();
    EditorProcess(const EditorProcess&) = delete;
    EditorProcess& operator=(const EditorProcess&) = delete;

    DWORD process() const { return m_info.dwProcessId; }
    /// The thread of its windows.
    DWORD thread() const { return m_info.dwThreadId; }
    /// @throws std::runtime_error with the code that it ended with, when it is not running any
    /// more.
    void requireRunning() const;

    /// @throws std::runtime_error when it does not end within ten seconds, or does not end well.
    void waitForEnd() const;

private:
    PROCESS_INFORMATION m_info{};
};

} // namespace o7::story

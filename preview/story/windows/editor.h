#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "editorprocess.h"

namespace o7::story {

/// The system's text editor as a program that prints: its main window and its own set-up of printer
/// and paper, from which our sheet is opened. Done by mouse and keyboard. Everything throws
/// StepFailure with a sentence that says what did not happen.
class Editor
{
public:
    /// Starts the editor and waits for its window.
    Editor();

    /// Opens the set-up by the menu.
    void openSetUp();
    /// Closes it with OK.
    void closeSetUp();
    bool isSetUpOpen() const;
    /// Presses its Properties button and waits for the sheet.
    HWND openProperties();

    /// What the set-up's list of papers shows; choosing an entry of it.
    std::string paper() const;
    void choosePaper(const std::string& text);

    HWND window() const { return m_window; }
    DWORD thread() const { return m_process.thread(); }
    DWORD process() const { return m_process.process(); }

    /// Waits until the editor's windows stay as they are and answer.
    void settle() const;

    /// Leaves the program the way a person does, and waits for it.
    void end();

private:
    void clickButton(int id) const;
    void waitFor(const std::string& what, const std::function<bool()>& condition) const;

    EditorProcess m_process;
    HWND m_window = nullptr;
    HWND m_setUp = nullptr;
};

} // namespace o7::story

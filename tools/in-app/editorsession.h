#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

#include "appwindows.h"
#include "editorprocess.h"

namespace o7::inapp {

/// The system's text editor with one of its dialogs about printing and, now and then, our sheet.
/// Everything is found by the texts of the product, and done by mouse and keyboard.
/// All operations throw std::runtime_error with a sentence that says what did not happen.
class EditorSession
{
public:
    /// @param strings  the product's module of texts in the language of the desktop.
    /// @param shots    folder for pictures; empty: none.
    EditorSession(const std::filesystem::path& strings, std::filesystem::path shots);
    ~EditorSession();
    EditorSession(const EditorSession&) = delete;
    EditorSession& operator=(const EditorSession&) = delete;

    /// Opens the system's print dialog by its key.
    void openPrintDialog();
    /// Opens the program's own set-up of paper and orientation by its menu.
    void openSetUp();
    /// Presses OK or Cancel of the dialog that is open.
    void closeDialog(int button);

    /// Presses the dialog's Properties button.
    void openProperties();
    /// Presses OK or Cancel of our sheet.
    void closeProperties(int button);

    /// What the list of our sheet shows that has an entry with this text, on whichever page it is.
    std::wstring chosen(UINT entry);
    /// Picks the entry with this text in our sheet.
    void choose(UINT entry);

    /// What the program's own list of papers shows.
    std::wstring chosenPaper() const;
    void choosePaper(UINT entry) const;

    std::wstring text(UINT number) const;
    DWORD process() const { return m_editor.process(); }

    /// What lies over the editor's window, the editor included, as a numbered picture.
    void shoot(const std::string& name);

    /// Leaves the program the way a person does.
    void end();

private:
    HWND listOf(UINT entry) const;
    void arrange() const;

    std::filesystem::path m_shots;
    int m_shotCount = 0;
    EditorProcess m_editor;
    HMODULE m_strings;
    HWND m_window = nullptr;
    HWND m_dialog = nullptr;
    HWND m_sheet = nullptr;
};

} // namespace o7::inapp

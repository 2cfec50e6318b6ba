#pragma once

#include <windows.h>

#include <filesystem>
#include <memory>
#include <string>

#include "editor.h"
#include "session.h"
#include "windowstage.h"

namespace o7::story {

/// The entry in-app: our sheet as the installed driver shows it in the system's text editor. What
/// comes along to the next opening is the editor's own DEVMODE, which it takes over when its set-up
/// is closed, and what is kept with the installed printer.
class EditorStage : public WindowStage
{
public:
    /// Installs the product's driver, unless this program has just done so.
    /// @param programs  the folder of o7install and of the modules.
    EditorStage(const std::filesystem::path& programs, const Session& session);

    void reopen() override;
    void leave() override;
    bool closed() override;

    /// The name that the printer for a product is installed under.
    static std::string printerName(const std::string& product);

    /// For what only a program does. There is one from the first open() on.
    Editor& editor() { return *m_editor; }

protected:
    void start() override;
    DWORD thread() const override;
    void settle() override;

private:
    std::unique_ptr<Editor> m_editor;
    HWND m_sheet = nullptr;
};

} // namespace o7::story

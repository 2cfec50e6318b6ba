#include "editorstage.h"

#include <stdexcept>

#include "otherwindow.h"
#include "productsession.h"
#include "stepfailure.h"

namespace o7::story {
namespace {

constexpr DWORD kInstallMilliseconds = 60000;

/// Runs o7install. What it says of success does not belong among the lines of a story.
void install(const std::filesystem::path& programs, const std::string& product)
{
    std::wstring command = L"\"" + (programs / "o7install.exe").wstring() + L"\" \"" +
                           programs.wstring() + L"\" --product \"" + wide(product) +
                           L"\" --printer \"" + wide(EditorStage::printerName(product)) + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    startup.dwFlags = STARTF_USESTDHANDLES; // none
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(nullptr, command.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &startup, &process)) {
        throw std::runtime_error("o7install cannot be started (error " +
                                 std::to_string(GetLastError()) + ").");
    }
    DWORD code = 1;
    if (WaitForSingleObject(process.hProcess, kInstallMilliseconds) == WAIT_OBJECT_0) {
        GetExitCodeProcess(process.hProcess, &code);
    } else {
        TerminateProcess(process.hProcess, 1);
    }
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    if (code != 0) {
        throw std::runtime_error("The driver of \"" + product + "\" could not be installed.");
    }
}

/// Drivers share one folder of the system, so only the product installed last is whole.
void installOnce(const std::filesystem::path& programs, const std::string& product)
{
    static std::string s_installed;
    if (s_installed != product) {
        install(programs, product);
        s_installed = product;
    }
}

} // namespace

EditorStage::EditorStage(const std::filesystem::path& programs, const Session& session)
{
    if (session.language != desktopLanguage().ToUtf8()) {
        throw std::runtime_error("Programs show the language of the desktop, which is \"" +
                                 desktopLanguage().ToUtf8() + "\".");
    }
    installOnce(programs, session.product);
}

std::string EditorStage::printerName(const std::string& product)
{
    return product + " of the story";
}

void EditorStage::start()
{
    if (!m_editor) {
        m_editor = std::make_unique<Editor>();
    }
    if (!m_editor->isSetUpOpen()) {
        m_editor->openSetUp();
    }
    m_sheet = m_editor->openProperties();
}

/// The program takes settings over when its set-up is closed with OK.
void EditorStage::reopen()
{
    if (m_editor->isSetUpOpen()) {
        m_editor->closeSetUp();
    }
    open();
}

void EditorStage::leave()
{
    if (!closed()) {
        WindowStage::leave();
    }
}

bool EditorStage::closed()
{
    return m_sheet == nullptr || !IsWindow(m_sheet);
}

DWORD EditorStage::thread() const
{
    return m_sheet != nullptr && IsWindow(m_sheet) ? m_editor->thread() : 0;
}

void EditorStage::settle()
{
    m_editor->settle();
}

} // namespace o7::story

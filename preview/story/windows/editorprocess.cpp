#include "editorprocess.h"

#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>

namespace o7::story {
namespace {

constexpr DWORD kEndMilliseconds = 10000;

std::filesystem::path writeText()
{
    auto file = std::filesystem::temp_directory_path() / L"o7story.txt";
    std::ofstream(file) << "A page to print.\n";
    return file;
}

} // namespace

EditorProcess::EditorProcess()
{
    wchar_t system[MAX_PATH];
    GetSystemDirectoryW(system, MAX_PATH);
    const std::wstring program = std::wstring(system) + L"\\notepad.exe";
    std::wstring command = L"\"" + program + L"\" \"" + writeText().wstring() + L"\"";
    STARTUPINFOW startup{};
    startup.cb = sizeof startup;
    if (!CreateProcessW(program.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                        nullptr, &startup, &m_info)) {
        throw std::runtime_error("The text editor cannot be started (error " +
                                 std::to_string(GetLastError()) + ").");
    }
}

EditorProcess::~EditorProcess()
{
    DWORD code = 0;
    if (GetExitCodeProcess(m_info.hProcess, &code) && code == STILL_ACTIVE) {
        TerminateProcess(m_info.hProcess, 1);
    }
    CloseHandle(m_info.hThread);
    CloseHandle(m_info.hProcess);
}

void EditorProcess::requireRunning() const
{
    DWORD code = 0;
    if (WaitForSingleObject(m_info.hProcess, 0) == WAIT_OBJECT_0) {
        GetExitCodeProcess(m_info.hProcess, &code);
        throw std::runtime_error("The text editor has ended with code " + std::to_string(code) +
                                 ".");
    }
}

void EditorProcess::waitForEnd() const
{
    DWORD code = 0;
    if (WaitForSingleObject(m_info.hProcess, kEndMilliseconds) != WAIT_OBJECT_0) {
        throw std::runtime_error("The text editor did not end.");
    }
    GetExitCodeProcess(m_info.hProcess, &code);
    if (code != 0) {
        throw std::runtime_error("The text editor ended with code " + std::to_string(code) + ".");
    }
}

} // namespace o7::story

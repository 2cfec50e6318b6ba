#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <string>
#include <string_view>

#include "input.h"

namespace {

namespace fs = std::filesystem;

/// The visible sheet or dialog of another process.
struct WindowSearch
{
    DWORD processId;
    HWND found;
};

BOOL CALLBACK considerWindow(HWND window, LPARAM parameter)
{
    auto& search = *reinterpret_cast<WindowSearch*>(parameter);
    DWORD processId = 0;
    GetWindowThreadProcessId(window, &processId);
    wchar_t className[16];
    GetClassNameW(window, className, 16);
    if (processId == search.processId && IsWindowVisible(window) &&
        std::wstring_view(className) == L"#32770") {
        search.found = window;
    }
    return search.found == nullptr;
}

struct Outcome
{
    DWORD exitCode = 0;
    std::string errors; ///< what came on the error stream, UTF-8
};

std::string readFile(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

fs::path programFolder()
{
    wchar_t path[MAX_PATH];
    GetModuleFileNameW(nullptr, path, MAX_PATH);
    return fs::path(path).parent_path();
}

/// Starts o7preview with a user directory of its own.
class PreviewProgram : public testing::Test
{
protected:
    PreviewProgram()
    {
        // The desktop's own process starts with the first who asks for it, and would keep the
        // program's error stream open.
        GetDesktopWindow();
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
    }
    ~PreviewProgram() override { fs::remove_all(m_folder); }

    /// Starts the program, with the product that the tests know unless the options name one;
    /// `meanwhile` acts as its user and gets its process id.
    Outcome run(std::wstring options, const std::function<void(DWORD)>& meanwhile = nullptr) const
    {
        if (options.find(L"--product") == std::wstring::npos) {
            options += L" --product office-c430";
        }
        const fs::path errors = m_folder / "errors.txt";
        SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
        HANDLE stream = CreateFileW(errors.c_str(), GENERIC_WRITE, FILE_SHARE_READ, &inherited,
                                    CREATE_ALWAYS, 0, nullptr);
        STARTUPINFOW startup{};
        startup.cb = sizeof startup;
        startup.dwFlags = STARTF_USESTDHANDLES;
        startup.hStdError = stream;
        std::wstring command = L"\"" + (programFolder() / "o7preview.exe").wstring() +
                               L"\" --user-dir \"" + userDirectory().wstring() + L"\" " + options;
        PROCESS_INFORMATION process{};
        const BOOL started = CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0,
                                            nullptr, nullptr, &startup, &process);
        EXPECT_TRUE(started);
        Outcome outcome;
        if (started) {
            if (meanwhile) {
                meanwhile(process.dwProcessId);
            }
            EXPECT_EQ(WaitForSingleObject(process.hProcess, 60000), WAIT_OBJECT_0);
            TerminateProcess(process.hProcess, 99); // nothing is left behind by a failed test
            GetExitCodeProcess(process.hProcess, &outcome.exitCode);
            CloseHandle(process.hThread);
            CloseHandle(process.hProcess);
        }
        CloseHandle(stream);
        outcome.errors = readFile(errors);
        return outcome;
    }

    /// False when the program's window did not come up and get the keyboard.
    static bool waitForSheet(DWORD processId)
    {
        WindowSearch search{processId, nullptr};
        const bool isThere = o7::test::pumpUntil(
            [&] {
                EnumWindows(considerWindow, reinterpret_cast<LPARAM>(&search));
                return search.found && GetForegroundWindow() == search.found;
            },
            10000);
        o7::test::pumpUntilQuiet(300); // the other process paints its first page
        return isThere;
    }

    /// Chooses the next value in the list of sides by keyboard, then presses the closing key.
    static void chooseNextSidesAndClose(DWORD processId, bool pageIsSecond, WORD closingKey)
    {
        ASSERT_TRUE(waitForSheet(processId));
        if (pageIsSecond) {
            o7::test::sendKey(VK_TAB, {VK_CONTROL});
        }
        o7::test::sendKey('S', {VK_MENU});
        o7::test::sendKey(VK_DOWN);
        o7::test::sendKey(closingKey);
    }

    std::wstring snapshotOption(const char* name) const
    {
        return L" --snapshot \"" + (m_folder / name).wstring() + L"\"";
    }

    fs::path userDirectory() const { return m_folder / "user"; }

    const fs::path m_folder = fs::temp_directory_path() / "o7-preview-program-test";
};

bool contains(const std::string& text, const char* part)
{
    return text.find(part) != std::string::npos;
}

TEST_F(PreviewProgram, BadInputEndsWithTwoAndASentence)
{
    const fs::path packages = m_folder / "products";
    fs::create_directories(packages / "broken");
    std::ofstream(packages / "broken" / "package.json") << "{\n  \"product\": {,\n}\n";

    const Outcome option = run(L"--mode 9");
    EXPECT_EQ(option.exitCode, 2u);
    EXPECT_TRUE(contains(option.errors, "--mode: expected a number from 1 to 4, found \"9\""));
    EXPECT_TRUE(contains(option.errors, "Usage: o7preview"));

    const Outcome product = run(L"--product no-such-device");
    EXPECT_EQ(product.exitCode, 2u);
    EXPECT_TRUE(contains(product.errors, "office-c430"));

    const Outcome package = run(L"--products \"" + packages.wstring() + L"\"");
    EXPECT_EQ(package.exitCode, 2u);
    EXPECT_TRUE(contains(package.errors, "package.json:2:")) << package.errors;
    EXPECT_FALSE(fs::exists(userDirectory()));

    const Outcome family = run(L"--family 9999");
    EXPECT_EQ(family.exitCode, 2u);
    EXPECT_TRUE(contains(family.errors, "9999"));
}

TEST_F(PreviewProgram, ChecksPackagesThatAreBuiltAndThatAreNot)
{
    EXPECT_EQ(run(L"--check office-c430").exitCode, 0u);
    EXPECT_EQ(run(L"--check no-such-device").exitCode, 2u);
    const fs::path package = m_folder / "broken";
    fs::create_directories(package);
    std::ofstream(package / "package.json") << "{\n  \"product\": {,\n}\n";
    const Outcome broken = run(L"--check \"" + package.wstring() + L"\"");
    EXPECT_EQ(broken.exitCode, 1u);
    EXPECT_TRUE(contains(broken.errors, "package.json:2:")) << broken.errors;
}

TEST_F(PreviewProgram, ThePluginShowsWhatTheModuleShows)
{
    for (const wchar_t* mode : {L"1", L"2", L"4"}) {
        const std::wstring options = std::wstring(L"--lang de --mode ") + mode;
        EXPECT_EQ(run(options + snapshotOption("sheet.txt")).exitCode, 0u);
        EXPECT_EQ(run(options + L" --entry cpsui" + snapshotOption("cpsui.txt")).exitCode, 0u);
        EXPECT_EQ(readFile(m_folder / "sheet.txt"), readFile(m_folder / "cpsui.txt"));
    }
}

TEST_F(PreviewProgram, EveryEntryShowsEveryPage)
{
    for (const wchar_t* entry : {L"sheet", L"cpsui", L"child", L"dialog"}) {
        const fs::path shots = m_folder / entry;
        const Outcome outcome =
            run(std::wstring(L"--entry ") + entry + L" --shots \"" + shots.wstring() + L"\"");
        EXPECT_EQ(outcome.exitCode, 0u) << outcome.errors;
        EXPECT_EQ(outcome.errors, "");
        const auto pictures = std::distance(fs::directory_iterator(shots), {});
        EXPECT_GE(pictures, std::wstring_view(entry) == L"dialog" ? 1 : 3);
        EXPECT_FALSE(fs::exists(userDirectory())) << "Cancel keeps nothing";
    }
}

TEST_F(PreviewProgram, OkKeepsAndEscapeDropsUnderEveryEntry)
{
    for (const wchar_t* name : {L"sheet", L"cpsui", L"child", L"dialog"}) {
        const bool pageIsSecond = std::wstring_view(name) == L"child";
        const std::wstring options = std::wstring(L"--lang en --entry ") + name;
        for (const WORD key : {WORD{VK_ESCAPE}, WORD{VK_RETURN}}) {
            const Outcome outcome = run(options, [&](DWORD processId) {
                chooseNextSidesAndClose(processId, pageIsSecond, key);
            });
            EXPECT_EQ(outcome.exitCode, 0u) << outcome.errors;
            EXPECT_EQ(fs::exists(userDirectory()), key == VK_RETURN);
            run(options + snapshotOption("after.txt"));
            const std::string after = readFile(m_folder / "after.txt");
            EXPECT_TRUE(contains(after, key == VK_RETURN ? "= \"Two-sided, long edge\""
                                                         : "= \"One-sided\""));
        }
        fs::remove_all(userDirectory());
    }
}

TEST_F(PreviewProgram, SnapshotIsTheSameTwice)
{
    EXPECT_EQ(run(snapshotOption("first.txt")).exitCode, 0u);
    EXPECT_EQ(run(snapshotOption("second.txt")).exitCode, 0u);
    const std::string first = readFile(m_folder / "first.txt");
    EXPECT_EQ(first, readFile(m_folder / "second.txt"));
    EXPECT_GT(std::ranges::count(first, '\n'), 20);
}

TEST_F(PreviewProgram, GalleryTakesItsPicturesAndClosesByEscape)
{
    const fs::path shots = m_folder / "gallery";
    const Outcome pictures =
        run(L"--gallery --shots \"" + shots.wstring() + L"\"" + snapshotOption("gallery.txt"));
    EXPECT_EQ(pictures.exitCode, 0u) << pictures.errors;
    EXPECT_EQ(pictures.errors, "");
    EXPECT_EQ(std::distance(fs::directory_iterator(shots), {}), 5);
    EXPECT_TRUE(contains(readFile(m_folder / "gallery.txt"), "Combo box, Unavailable"));

    const Outcome closed = run(L"--gallery --mirrored", [](DWORD processId) {
        ASSERT_TRUE(waitForSheet(processId));
        o7::test::sendKey(VK_ESCAPE);
    });
    EXPECT_EQ(closed.exitCode, 0u) << closed.errors;

    std::ofstream(m_folder / "file") << "no folder";
    const Outcome failed = run(L"--gallery --shots \"" + (m_folder / "file").wstring() + L"\"");
    EXPECT_EQ(failed.exitCode, 1u);
    EXPECT_TRUE(contains(failed.errors, "could not be made")) << failed.errors;
}

TEST_F(PreviewProgram, UnknownLanguageFallsBackAndSaysSo)
{
    const Outcome outcome = run(L"--lang xx" + snapshotOption("xx.txt"));
    EXPECT_EQ(outcome.exitCode, 0u);
    EXPECT_TRUE(contains(outcome.errors, "\"xx\"")) << outcome.errors;
    EXPECT_EQ(run(L"--lang en" + snapshotOption("en.txt")).errors, "");
    EXPECT_EQ(readFile(m_folder / "xx.txt"), readFile(m_folder / "en.txt"));
    EXPECT_EQ(run(L"--lang de" + snapshotOption("de.txt")).exitCode, 0u);
    EXPECT_NE(readFile(m_folder / "de.txt"), readFile(m_folder / "en.txt"));
}

TEST_F(PreviewProgram, DamagedSettingsAreSetAsideAndDefaultsShown)
{
    EXPECT_EQ(run(snapshotOption("defaults.txt")).errors, "");
    fs::create_directories(userDirectory());
    const fs::path ticket = userDirectory() / "office-c430.ojtf";
    std::ofstream(ticket) << "{ \"format\": ";
    const Outcome outcome = run(snapshotOption("damaged.txt"));
    EXPECT_EQ(outcome.exitCode, 0u);
    EXPECT_TRUE(contains(outcome.errors, "office-c430.ojtf")) << outcome.errors;
    EXPECT_EQ(readFile(m_folder / "damaged.txt"), readFile(m_folder / "defaults.txt"));
    EXPECT_FALSE(fs::exists(ticket));
    EXPECT_FALSE(fs::is_empty(userDirectory())) << "the damaged file must still be there";
}

TEST_F(PreviewProgram, NothingToShowIsAFailureOfAnUnattendedRun)
{
    const Outcome outcome = run(L"--entry dialog --mode 1" + snapshotOption("none.txt"));
    EXPECT_EQ(outcome.exitCode, 1u);
    EXPECT_TRUE(contains(outcome.errors, "No window was shown."));
    EXPECT_FALSE(fs::exists(m_folder / "none.txt"));
}

} // namespace

#include <gtest/gtest.h>

#include <windows.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

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
        fs::remove_all(m_folder);
        fs::create_directories(m_folder);
    }
    ~PreviewProgram() override { fs::remove_all(m_folder); }

    Outcome run(const std::wstring& options) const
    {
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
        Outcome outcome;
        const BOOL started = CreateProcessW(nullptr, command.data(), nullptr, nullptr, TRUE, 0,
                                            nullptr, nullptr, &startup, &process);
        EXPECT_TRUE(started);
        if (started) {
            EXPECT_EQ(WaitForSingleObject(process.hProcess, 120000), WAIT_OBJECT_0);
            GetExitCodeProcess(process.hProcess, &outcome.exitCode);
            CloseHandle(process.hThread);
            CloseHandle(process.hProcess);
        }
        CloseHandle(stream);
        outcome.errors = readFile(errors);
        return outcome;
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

TEST_F(PreviewProgram, SnapshotIsTheSameTwice)
{
    EXPECT_EQ(run(snapshotOption("first.txt")).exitCode, 0u);
    EXPECT_EQ(run(snapshotOption("second.txt")).exitCode, 0u);
    const std::string first = readFile(m_folder / "first.txt");
    EXPECT_EQ(first, readFile(m_folder / "second.txt"));
    EXPECT_GT(std::ranges::count(first, '\n'), 20);
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

TEST_F(PreviewProgram, NothingToShowIsAFailureOfAnUnattendedRun)
{
    const Outcome outcome = run(L"--entry dialog --mode 1" + snapshotOption("none.txt"));
    EXPECT_EQ(outcome.exitCode, 1u);
    EXPECT_TRUE(contains(outcome.errors, "No window was shown."));
    EXPECT_FALSE(fs::exists(m_folder / "none.txt"));
}

} // namespace

#include "ticketfile.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <random>
#include <system_error>

#if defined(_WIN32)
#include <windows.h>
#else
#include <cerrno>
#include <ctime>
#include <fcntl.h>
#include <unistd.h>
#endif

namespace o7 {
namespace {

/// A program that has the file has it for a few milliseconds.
constexpr int kAttempts = 50;
constexpr int kPauseMilliseconds = 20;

#if defined(_WIN32)

void Pause()
{
    Sleep(kPauseMilliseconds);
}

/// A file of the system's, in nobody's way: others may read, replace and rename it meanwhile.
class SystemFile
{
public:
    static SystemFile ToRead(const std::filesystem::path& file)
    {
        return SystemFile(CreateFileW(file.c_str(), GENERIC_READ,
                                      FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                                      nullptr, OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    }
    /// One that did not exist.
    static SystemFile ToWrite(const std::filesystem::path& file)
    {
        return SystemFile(CreateFileW(file.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_NEW,
                                      FILE_ATTRIBUTE_NORMAL, nullptr));
    }
    ~SystemFile()
    {
        if (IsOpen())
            CloseHandle(m_file);
    }
    SystemFile(const SystemFile&) = delete;
    SystemFile& operator=(const SystemFile&) = delete;

    bool IsOpen() const { return m_file != INVALID_HANDLE_VALUE; }
    /// After a failed ToRead().
    static bool IsAbsent()
    {
        const DWORD error = GetLastError();
        return error == ERROR_FILE_NOT_FOUND || error == ERROR_PATH_NOT_FOUND;
    }
    /// The bytes read, 0 at the end; negative when that fails.
    long Read(char* bytes, unsigned size) const
    {
        DWORD read = 0;
        return ReadFile(m_file, bytes, size, &read, nullptr) ? static_cast<long>(read) : -1;
    }
    bool WriteAll(std::string_view text) const
    {
        DWORD written = 0;
        return WriteFile(m_file, text.data(), static_cast<DWORD>(text.size()), &written, nullptr) &&
               written == text.size() && FlushFileBuffers(m_file);
    }

private:
    explicit SystemFile(HANDLE file) : m_file(file) {}
    HANDLE m_file;
};

#else

void Pause()
{
    const timespec pause{0, kPauseMilliseconds * 1000000L};
    nanosleep(&pause, nullptr);
}

/// A file of the system's.
class SystemFile
{
public:
    static SystemFile ToRead(const std::filesystem::path& file)
    {
        return SystemFile(open(file.c_str(), O_RDONLY | O_CLOEXEC));
    }
    /// One that did not exist.
    static SystemFile ToWrite(const std::filesystem::path& file)
    {
        return SystemFile(open(file.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666));
    }
    ~SystemFile()
    {
        if (IsOpen())
            close(m_file);
    }
    SystemFile(const SystemFile&) = delete;
    SystemFile& operator=(const SystemFile&) = delete;

    bool IsOpen() const { return m_file >= 0; }
    /// After a failed ToRead().
    static bool IsAbsent() { return errno == ENOENT || errno == ENOTDIR; }
    /// The bytes read, 0 at the end; negative when that fails.
    long Read(char* bytes, unsigned size) const { return read(m_file, bytes, size); }
    bool WriteAll(std::string_view text) const
    {
        while (!text.empty()) {
            const ssize_t written = write(m_file, text.data(), text.size());
            if (written < 0)
                return false;
            text.remove_prefix(static_cast<std::size_t>(written));
        }
        return fsync(m_file) == 0;
    }

private:
    explicit SystemFile(int file) : m_file(file) {}
    int m_file;
};

#endif

FileRead ReadOnce(const std::filesystem::path& path, std::size_t limit, std::string& text)
{
    text.clear();
    const SystemFile file = SystemFile::ToRead(path);
    if (!file.IsOpen())
        return SystemFile::IsAbsent() ? FileRead::None : FileRead::Busy;
    std::array<char, 16384> part{};
    for (;;) {
        const long read = file.Read(part.data(), static_cast<unsigned>(part.size()));
        if (read < 0)
            return FileRead::Busy;
        if (read == 0)
            return FileRead::Done;
        text.append(part.data(), static_cast<std::size_t>(read));
        if (text.size() > limit)
            return FileRead::TooLarge;
    }
}

/// A name beside the file that no other writer has.
std::filesystem::path Unfinished(const std::filesystem::path& file)
{
    std::random_device random;
    std::array<char, 24> ending{};
    std::snprintf(ending.data(), ending.size(), ".%08x%08x.new", static_cast<unsigned>(random()),
                  static_cast<unsigned>(random()));
    std::filesystem::path unfinished = file;
    unfinished += ending.data();
    return unfinished;
}

bool WriteNew(const std::filesystem::path& path, std::string_view text)
{
    const SystemFile file = SystemFile::ToWrite(path);
    return file.IsOpen() && file.WriteAll(text);
}

} // namespace

std::string NameOf(const std::filesystem::path& file)
{
    const std::u8string name = file.filename().generic_u8string();
    return {name.begin(), name.end()};
}

FileRead ReadTicketFile(const std::filesystem::path& file, std::size_t limit, std::string& text)
{
    FileRead read = ReadOnce(file, limit, text);
    for (int attempt = 1; attempt < kAttempts && read == FileRead::Busy; ++attempt) {
        Pause();
        read = ReadOnce(file, limit, text);
    }
    return read;
}

bool WriteTicketFile(const std::filesystem::path& file, std::string_view text, std::string& message)
{
    std::error_code error;
    if (file.has_parent_path())
        std::filesystem::create_directories(file.parent_path(), error);
    const std::filesystem::path unfinished = Unfinished(file);
    if (!WriteNew(unfinished, text)) {
        message = NameOf(file) + " cannot be written";
        std::filesystem::remove(unfinished, error);
        return false;
    }
    // The old file is there until the new one, which is on the disk, takes its name in one step.
    std::filesystem::rename(unfinished, file, error);
    for (int attempt = 1; attempt < kAttempts && error; ++attempt) {
        Pause();
        std::filesystem::rename(unfinished, file, error);
    }
    if (!error)
        return true;
    message = NameOf(file) + " cannot be replaced: " + error.message();
    std::filesystem::remove(unfinished, error);
    return false;
}

} // namespace o7

#pragma once

#include <filesystem>

namespace o7::story {

/// A new empty folder below the system's temporary one; gone with its owner.
class RunFolder
{
public:
    /// @throws std::filesystem::filesystem_error when none can be made.
    RunFolder();
    ~RunFolder();
    RunFolder(const RunFolder&) = delete;
    RunFolder& operator=(const RunFolder&) = delete;

    const std::filesystem::path& path() const { return m_path; }

private:
    std::filesystem::path m_path;
};

} // namespace o7::story

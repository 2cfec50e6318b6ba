#pragma once

#include <filesystem>
#include <string>

#include "shownwindow.h"

namespace o7 {

/// Keeps what a visit of a window yields: one numbered picture per page and the text snapshot.
class WindowRecorder
{
public:
    /// Empty paths switch the part off. Missing directories are made; throws
    /// std::runtime_error when they cannot be.
    WindowRecorder(std::filesystem::path shotsDirectory, std::filesystem::path snapshotFile);

    /// Saves `NN-<title>.png`; throws std::runtime_error when the window is blank or the file
    /// cannot be written.
    void savePicture(const ShownWindow& window, int number, const std::wstring& title) const;

    /// Writes the text as UTF-8 without a byte-order mark, lines ended by line feeds alone; throws
    /// std::runtime_error when the file cannot be written.
    void saveSnapshot(std::wstring text) const;

private:
    std::filesystem::path m_shotsDirectory;
    std::filesystem::path m_snapshotFile;
};

} // namespace o7

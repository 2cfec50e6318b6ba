#include "windowrecorder.h"

#include <fstream>
#include <stdexcept>
#include <string>
#include <system_error>
#include <utility>

#include "cxstring.h"
#include "picturefilename.h"
#include "windowpicture.h"

namespace o7 {
namespace {

std::string utf8(const std::filesystem::path& path)
{
    return CXString(path.wstring()).ToUtf8();
}

void makeFolder(const std::filesystem::path& folder)
{
    std::error_code error;
    if (!folder.empty() && !std::filesystem::is_directory(folder, error) &&
        !std::filesystem::create_directories(folder, error)) {
        throw std::runtime_error("The folder " + utf8(folder) + " could not be made.");
    }
}

} // namespace

WindowRecorder::WindowRecorder(std::filesystem::path shotsDirectory,
                               std::filesystem::path snapshotFile)
    : m_shotsDirectory(std::move(shotsDirectory)), m_snapshotFile(std::move(snapshotFile))
{
    makeFolder(m_shotsDirectory);
    makeFolder(m_snapshotFile.parent_path());
}

void WindowRecorder::savePicture(const ShownWindow& window, int number,
                                 const std::wstring& title) const
{
    if (m_shotsDirectory.empty()) {
        return;
    }
    const WindowPicture picture(window.handle());
    if (picture.isBlank()) {
        throw std::runtime_error("Nothing was painted on page " + std::to_string(number) + ".");
    }
    picture.savePng(m_shotsDirectory / pictureFileName(number, title));
}

void WindowRecorder::saveSnapshot(std::wstring text) const
{
    if (m_snapshotFile.empty()) {
        return;
    }
    std::erase(text, L'\r');
    std::ofstream file(m_snapshotFile, std::ios::binary | std::ios::trunc);
    file << CXString(text).ToUtf8();
    file.close();
    if (!file) {
        throw std::runtime_error("The snapshot could not be written to " + utf8(m_snapshotFile) +
                                 ".");
    }
}

} // namespace o7

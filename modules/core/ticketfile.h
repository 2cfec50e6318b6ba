// One file that several programs read and write at any time.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace o7 {

enum class FileRead
{
    Done,
    None,     ///< There is no such file.
    TooLarge, ///< Nothing of ours.
    Busy,     ///< Something is there that cannot be read, not after waiting a second either.
};

/// The whole file as it was at one moment.
FileRead ReadTicketFile(const std::filesystem::path& file, std::size_t limit, std::string& text);

/// Puts the text in place of the file, in one step: whoever reads finds the old one or the new one,
/// also when the machine stops. False, with a sentence in `message`, when that cannot be done; the
/// old file is there then.
bool WriteTicketFile(const std::filesystem::path& file, std::string_view text,
                     std::string& message);

/// The file's name without its folder, as UTF-8.
std::string NameOf(const std::filesystem::path& file);

} // namespace o7

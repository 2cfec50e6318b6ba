#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

namespace o7::story {

/// What the printer and the user of one story keep from session to session, as files in a folder of
/// the run; every product is a printer of its own. Throws StepFailure when the file system refuses.
class StoryStore
{
public:
    enum class Record
    {
        Printer,  ///< the device settings, as a settings block
        Defaults, ///< the printing defaults, as a DEVMODE
        Document, ///< what the user's program holds, as a DEVMODE
    };

    StoryStore(std::filesystem::path folder, std::string product);

    /// Nothing when it was never kept.
    std::optional<std::vector<std::uint8_t>> load(Record record) const;
    void keep(Record record, const std::vector<std::uint8_t>& bytes) const;

private:
    std::filesystem::path file(Record record) const;

    std::filesystem::path m_folder;
    std::string m_product;
};

} // namespace o7::story

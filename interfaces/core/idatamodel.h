#pragma once

#include "featureservices.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <vector>

namespace o7 {

/// What became of reading a job-ticket file.
enum class JobTicketOutcome
{
    Loaded,  ///< Its settings are the current and the accepted ones.
    None,    ///< There is no file: defaults stay.
    Damaged, ///< Set aside under another name: defaults stay.
};

struct JobTicketResult
{
    JobTicketOutcome outcome = JobTicketOutcome::None;
    /// For Damaged: what was wrong and where the file is now, as an English sentence in UTF-8.
    std::string message;
    /// For Damaged: where the file is now; empty when it could not be moved.
    std::filesystem::path setAside;
};

/// The private part of a DEVMODE has to hold a block of exported settings.
inline constexpr std::size_t kSettingsBlockLimit = 4096;

} // namespace o7

/// A data model together with what only the driver shell does with it: keeping settings in a
/// job-ticket file and in the binary block that travels inside a DEVMODE.
class IDataModel : public FeatureServices
{
public:
    /// Writes the accepted settings, atomically: the old file stays until the new one is complete.
    /// Features flagged as not saved are left out; entries that the last load did not know are
    /// kept. False, with a sentence in `message`, when the file cannot be written.
    virtual bool SaveJobTicket(const std::filesystem::path& file, std::string& message) = 0;

    /// Reads settings from the file, notifies what changed, and makes them the accepted ones.
    virtual o7::JobTicketResult LoadJobTicket(const std::filesystem::path& file) = 0;

    /// The accepted settings that differ from the defaults, as a versioned block with checksum.
    /// False, and an empty block, when it would be larger than `limit` bytes.
    virtual bool ExportSettings(std::vector<std::uint8_t>& block,
                                std::size_t limit = o7::kSettingsBlockLimit) const = 0;

    /// The inverse: all settings become what the block says, the others their defaults, and the
    /// result becomes the accepted settings. A block that is damaged in any way, or of another
    /// product, is refused whole: false, and nothing changed. Entries for features or values that
    /// this product does not have are passed over.
    virtual bool ImportSettings(const std::uint8_t* bytes, std::size_t size) = 0;

    /// How many constraints have been evaluated since the model was created; for measuring.
    virtual std::uint64_t GetEvaluationCount() const = 0;
};

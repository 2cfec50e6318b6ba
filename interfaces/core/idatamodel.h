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
    Loaded,     ///< Its settings are the current and the accepted ones.
    None,       ///< There is no file: the settings stay as they are.
    Damaged,    ///< Set aside under another name: the settings stay as they are.
    Unreadable, ///< Another program holds it, or a transaction is open. The settings and the file
                ///< stay as they are, and saving to it is refused until it was read.
};

struct JobTicketResult
{
    JobTicketOutcome outcome = JobTicketOutcome::None;
    /// For Damaged and Unreadable: what was wrong and where the file is now, as an English sentence
    /// in UTF-8.
    std::string message;
    /// For Damaged: where the file is now; empty when it could not be moved.
    std::filesystem::path setAside;
};

/// A model never holds more settings than fit into a block of so many bytes, whatever becomes of
/// them by choosing among what there is: a further item of a list, or a longer text, that would not
/// fit is refused when it is asked for. The private part of the plug-in's DEVMODE holds such a
/// block; with its header and the public part it stays below 32,768 bytes, so that programs which
/// keep these sizes in signed numbers of 16 bits go on working.
inline constexpr std::size_t kSettingsBlockLimit = 0x7C00 - 16;

/// Which settings a block holds. What is not in the scope is not in the block, and where a block is
/// taken it stays as it is in the model, whatever the block says.
enum class SettingsScope
{
    Document, ///< What a document carries: all but the device's own. Secrets travel scrambled.
    Defaults, ///< What new documents begin with: the same without secrets.
    All,      ///< The device's own too, without secrets.
};

} // namespace o7

/// A data model together with what only the driver shell does with it: keeping settings in a
/// job-ticket file and in the binary block that travels inside a DEVMODE.
class IDataModel : public FeatureServices
{
public:
    /// Writes the accepted settings, atomically: the old file stays until the new one is complete
    /// and on the disk. Several programs may write at once; the last one wins.
    /// Features flagged as not saved are left out; entries that the last load did not know are
    /// kept. False, with a sentence in `message`, when the file cannot be written.
    virtual bool SaveJobTicket(const std::filesystem::path& file, std::string& message) = 0;

    /// Reads settings from the file, notifies what changed, and makes them the accepted ones. A
    /// file that another program holds is tried for a second.
    virtual o7::JobTicketResult LoadJobTicket(const std::filesystem::path& file) = 0;

    /// The accepted settings that differ from the defaults, as a versioned block with checksum.
    /// False, and an empty block, when it would be larger than `limit` bytes.
    virtual bool ExportSettings(std::vector<std::uint8_t>& block,
                                std::size_t limit = o7::kSettingsBlockLimit,
                                o7::SettingsScope scope = o7::SettingsScope::All) const = 0;

    /// The inverse: all settings of the scope become what the block says, the others of the scope
    /// their defaults, and the result becomes the accepted settings. A block that is damaged in any
    /// way, or of another product, is refused whole, and so is any while a transaction is open:
    /// false, and nothing changed. What does not fit this product (an unknown feature or value, one
    /// of another kind, items beyond what a list takes) is passed over, and the rest is kept.
    virtual bool ImportSettings(const std::uint8_t* bytes, std::size_t size,
                                o7::SettingsScope scope = o7::SettingsScope::All) = 0;

    /// How many constraints have been evaluated since the model was created; for measuring.
    virtual std::uint64_t GetEvaluationCount() const = 0;

    /// From now on the settings can be looked at but not changed, whatever their kind, the items of
    /// lists included: every write is refused, and every state says the reason (the number of a
    /// text). What is no setting (state-only features, those private to the UI) stays as it was,
    /// and so does what only the host asks for: import, job ticket, the accepted settings. To be
    /// called before anything is shown; nobody is notified.
    virtual void LockSettings(unsigned reasonStringNumber) = 0;
};

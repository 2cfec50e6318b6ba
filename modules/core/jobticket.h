// Settings as a job-ticket file: JSON text that a person can read and mend.
//
//   { "format": "o7-job-ticket", "version": 1, "packageVersion": 1, "product": "<unique id>",
//     "settings": { "<feature name>": <value>, ... }, "checksum": "<8 hex digits>" }
//
// Secrets are not in it. The version of the package tells which names its author meant; without one
// they are those of before the first. The checksum is the CRC-32 of the settings in their shortest
// form with sorted keys.
#pragma once

#include "settingssnapshot.h"

#include <string>
#include <string_view>

namespace o7 {

struct JobTicket
{
    SettingsSnapshot settings;
    /// Entries of nobody we know, as the JSON text of an object; they are written back.
    std::string foreignEntries;
    /// Names of features whose value was not accepted; they have their default.
    std::string refused;
};

/// Puts the settings, the text of a JSON object, into a ticket whose checksum fits.
std::string SealJobTicket(const ProductDescription& product, std::string_view settings);

std::string WriteJobTicket(const ProductDescription& product, const JobTicket& ticket);

/// Puts what the text says over `ticket.settings`, which the caller fills with the defaults. On
/// false, `fault` says what is wrong (English, UTF-8) and the ticket is in no particular state.
bool ReadJobTicket(const ProductDescription& product, std::string_view text, JobTicket& ticket,
                   std::string& fault);

} // namespace o7

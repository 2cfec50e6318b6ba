// The part of the data model that keeps settings outside the process.
#include "datamodel.h"
#include "jobticket.h"
#include "listofvaluescapability.h"
#include "settingsblock.h"
#include "ticketfile.h"

#include <system_error>
#include <utility>

namespace o7 {
namespace {

/// Why a list takes no further item: texts of every product.
constexpr unsigned kDocumentIsFull = 60296;
constexpr unsigned kListIsFull = 60269;

constexpr std::size_t kLargestTicket = 4U << 20U;

/// "<file>.damaged", or with a number where such files exist already; empty when that fails too.
std::filesystem::path SetAside(const std::filesystem::path& file)
{
    for (int attempt = 1; attempt < 100; ++attempt) {
        std::filesystem::path aside = file;
        aside += attempt == 1 ? ".damaged" : ".damaged-" + std::to_string(attempt);
        std::error_code error;
        if (std::filesystem::exists(aside, error))
            continue;
        std::filesystem::rename(file, aside, error);
        return error ? std::filesystem::path() : aside;
    }
    return {};
}

} // namespace

bool DataModel::SaveJobTicket(const std::filesystem::path& file, std::string& message)
{
    if (!m_unreadTicket.empty() && m_unreadTicket == file) {
        message = "The saved settings in " + NameOf(file) +
                  " could not be read, so they are not replaced by others.";
        return false;
    }
    return WriteTicketFile(
        file, WriteJobTicket(*m_product, {m_accepted, m_foreignTicketEntries, {}}), message);
}

JobTicketResult DataModel::LoadJobTicket(const std::filesystem::path& file)
{
    JobTicketResult result;
    std::string text;
    const FileRead read =
        m_log.IsAnyOpen() ? FileRead::Busy : ReadTicketFile(file, kLargestTicket, text);
    m_unreadTicket = read == FileRead::Busy ? file : std::filesystem::path();
    if (read == FileRead::None)
        return result;
    if (read == FileRead::Busy) {
        result.outcome = JobTicketOutcome::Unreadable;
        result.message = "The saved settings in " + NameOf(file) +
                         " cannot be read now: another program may be using them. They stay as "
                         "they are, and what is chosen meanwhile is not saved.";
        return result;
    }
    std::string fault = "it is too large";
    JobTicket ticket{DefaultsOf(), {}, {}};
    if (read == FileRead::Done && ReadJobTicket(*m_product, text, ticket, fault)) {
        const std::string trimmed = TrimToRoom(*m_product, ticket.settings);
        m_foreignTicketEntries = std::move(ticket.foreignEntries);
        Adopt(ticket.settings);
        result.outcome = JobTicketOutcome::Loaded;
        if (!ticket.refused.empty())
            result.message = "These settings have values that this product does not have, and "
                             "start from their defaults: " +
                             ticket.refused;
        if (!trimmed.empty())
            result.message += (result.message.empty() ? "" : ". ") +
                              ("These lists have more entries than a document has room for, and "
                               "lose the last ones: " +
                               trimmed);
        return result;
    }
    result.outcome = JobTicketOutcome::Damaged;
    result.setAside = SetAside(file);
    result.message =
        "The saved settings in " + NameOf(file) + " cannot be used: " + fault + ". " +
        (result.setAside.empty() ? std::string("The file could not be moved out of the way.")
                                 : "The file was set aside as " + NameOf(result.setAside) + ".");
    return result;
}

bool DataModel::ExportSettings(std::vector<std::uint8_t>& block, std::size_t limit,
                               SettingsScope scope) const
{
    block = EncodeSettings(*m_product, m_accepted, scope);
    if (block.size() <= limit)
        return true;
    block.clear();
    return false;
}

bool DataModel::ImportSettings(const std::uint8_t* bytes, std::size_t size, SettingsScope scope)
{
    SettingsSnapshot settings = ResettableDefaults(*m_root, scope);
    // What is open would be taken back later, and with it what was just taken.
    if (m_log.IsAnyOpen() || !DecodeSettings(*m_product, bytes, size, scope, settings))
        return false;
    TrimToRoom(*m_product, settings);
    Adopt(settings);
    return true;
}

InterpretedState DataModel::NewItemState(const FeatureNode& list)
{
    InterpretedState state;
    const FeatureDescription& item = *list.Description().item;
    if (m_interpreter.IsLocked(list))
        state.Disable(m_interpreter.LockReason());
    else if (list.Children().size() >= list.Description().maxItems)
        state.Disable(m_interpreter.Sentence(kListIsFull));
    else if (!m_room->Has(LongestEntry(item, DefaultSettings(item))))
        state.Disable(m_interpreter.Sentence(kDocumentIsFull));
    return state;
}

std::unique_ptr<CapabilitiesNode> DataModel::Capabilities(const FeatureNode& feature)
{
    auto capabilities = m_interpreter.Capabilities(feature);
    if (!feature.Description().item)
        return capabilities;
    return std::make_unique<ListOfValuesCapability>(*capabilities, feature.Description().maxItems,
                                                    NewItemState(feature));
}

} // namespace o7

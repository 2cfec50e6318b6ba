// The part of the data model that keeps settings outside the process.
#include "datamodel.h"
#include "jobticket.h"
#include "listofvaluescapability.h"
#include "settingsblock.h"

#include <fstream>
#include <iterator>
#include <system_error>
#include <utility>

namespace o7 {
namespace {

/// Why a list takes no further item: texts of every product.
constexpr unsigned kDocumentIsFull = 60296;
constexpr unsigned kListIsFull = 60269;

constexpr std::uintmax_t kLargestTicket = 4U << 20U;

std::string NameOf(const std::filesystem::path& file)
{
    const std::u8string name = file.filename().generic_u8string();
    return {name.begin(), name.end()};
}

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

/// False when there is something but it cannot be read as a whole.
bool ReadWhole(const std::filesystem::path& file, std::string& text)
{
    std::error_code error;
    const auto size = std::filesystem::file_size(file, error);
    if (error || size > kLargestTicket)
        return false;
    std::ifstream stream(file, std::ios::binary);
    text.assign(std::istreambuf_iterator<char>(stream), {});
    return stream.good() && text.size() == size;
}

} // namespace

bool DataModel::SaveJobTicket(const std::filesystem::path& file, std::string& message)
{
    const std::string text = WriteJobTicket(*m_product, {m_accepted, m_foreignTicketEntries, {}});
    std::filesystem::path unfinished = file;
    unfinished += ".new";
    std::error_code error;
    if (file.has_parent_path())
        std::filesystem::create_directories(file.parent_path(), error);
    {
        std::ofstream stream(unfinished, std::ios::binary | std::ios::trunc);
        stream << text;
        stream.close();
        if (stream.fail()) {
            message = NameOf(unfinished) + " cannot be written";
            std::filesystem::remove(unfinished, error);
            return false;
        }
    }
    // The old file is there until the new one takes its name in one step.
    std::filesystem::rename(unfinished, file, error);
    if (!error)
        return true;
    message = NameOf(file) + " cannot be replaced: " + error.message();
    std::filesystem::remove(unfinished, error);
    return false;
}

JobTicketResult DataModel::LoadJobTicket(const std::filesystem::path& file)
{
    JobTicketResult result;
    std::error_code error;
    if (!std::filesystem::exists(file, error) && !error)
        return result;
    std::string text;
    std::string fault = "it cannot be read";
    JobTicket ticket{DefaultsOf(), {}, {}};
    if (ReadWhole(file, text) && ReadJobTicket(*m_product, text, ticket, fault)) {
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
    if (!DecodeSettings(*m_product, bytes, size, scope, settings))
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

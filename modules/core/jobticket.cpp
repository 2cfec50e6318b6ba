#include "jobticket.h"

#include "crc32.h"
#include "locatedjson.h"
#include "settingsscope.h"

#include <nlohmann/json.hpp>

#include <array>
#include <climits>
#include <cstdio>
#include <utility>

namespace o7 {
namespace {

using nlohmann::json;

constexpr const char* kFormat = "o7-job-ticket";
constexpr int kVersion = 1;

// In the order of Dimension::UnitsEnum.
constexpr std::array<const char*, 4> kUnitNames = {"inch", "mm", "tenth-mm", "pt"};

std::string Checksum(const json& settings)
{
    std::array<char, 9> text{};
    std::snprintf(text.data(), text.size(), "%08x",
                  Crc32(settings.dump(-1, ' ', false, json::error_handler_t::replace)));
    return text.data();
}

json ToJson(const FeatureValue& value)
{
    if (const auto* option = std::get_if<ValueId>(&value))
        return option->GetValueName().ToUtf8();
    if (const auto* number = std::get_if<int>(&value))
        return *number;
    if (const auto* text = std::get_if<CXString>(&value))
        return text->ToUtf8();
    if (const auto* flag = std::get_if<bool>(&value))
        return *flag;
    if (const auto* range = std::get_if<RangeOfInteger>(&value))
        return json::array({range->GetLowerBound(), range->GetUpperBound()});
    if (const auto* length = std::get_if<Dimension>(&value))
        return json{{"length", length->GetCount()},
                    {"unit", kUnitNames.at(static_cast<std::size_t>(length->GetUnits()))}};
    return nullptr;
}

json ToJson(const FeatureDescription& description, const SettingsSnapshot& settings);

json ToJson(const ListDescription& list, const SettingsSnapshot& settings, json entries)
{
    for (std::size_t i = 0; i < list.features.size(); ++i) {
        const FeatureDescription& member = list.features[i];
        if (!member.savedInTicket || !Travels(member, SettingsScope::All))
            continue;
        const std::string name = member.name.ToUtf8();
        if (settings.children[i].followsDefault) {
            entries.erase(name); // left out, it follows again when it is read
        } else if (member.list) {
            const auto foreign = entries.find(name);
            const bool object = foreign != entries.end() && foreign->is_object();
            entries[name] =
                ToJson(*member.list, settings.children[i], object ? *foreign : json::object());
        } else {
            entries[name] = ToJson(member, settings.children[i]);
        }
    }
    return entries;
}

json ToJson(const FeatureDescription& description, const SettingsSnapshot& settings)
{
    if (description.item) {
        json items = json::array();
        for (const SettingsSnapshot& item : settings.children)
            items.push_back(ToJson(*description.item, item));
        return items;
    }
    if (description.list)
        return ToJson(*description.list, settings, json::object());
    return ToJson(settings.value);
}

bool FitsInt(const json& entry)
{
    return entry.is_number_integer() && entry >= INT_MIN && entry <= INT_MAX;
}

FeatureValue FromJson(const FeatureDescription& description, const json& entry)
{
    switch (description.kind) {
    case FeatureKind::Option:
        if (entry.is_string())
            return ValueId(description.Id(), CXString::FromUtf8(entry.get<std::string>()));
        break;
    case FeatureKind::Integer:
        if (FitsInt(entry))
            return entry.get<int>();
        break;
    case FeatureKind::String:
        if (entry.is_string())
            return CXString::FromUtf8(entry.get<std::string>());
        break;
    case FeatureKind::Boolean:
        if (entry.is_boolean())
            return entry.get<bool>();
        break;
    case FeatureKind::Range:
        if (entry.is_array() && entry.size() == 2 && FitsInt(entry[0]) && FitsInt(entry[1]))
            return RangeOfInteger(entry[0].get<int>(), entry[1].get<int>());
        break;
    case FeatureKind::Dimension:
        for (std::size_t unit = 0; entry.is_object() && unit < kUnitNames.size(); ++unit) {
            if (entry.value("unit", json()) == kUnitNames.at(unit) &&
                entry.value("length", json()).is_number_integer())
                return Dimension::FromCount(entry["length"].get<std::int64_t>(),
                                            static_cast<Dimension::UnitsEnum>(unit));
        }
        break;
    case FeatureKind::Resolution:
    case FeatureKind::ListOfFeatures:
    case FeatureKind::ListOfValues:
    case FeatureKind::Unsupported:
        break;
    }
    return {};
}

/// Reads entries into settings and leaves in `entries` what belongs to nobody we know.
class TicketReader
{
public:
    /// @param version  of the package that wrote the ticket.
    TicketReader(unsigned version, std::string& refused) : m_version(version), m_refused(refused) {}

    void ReadMembers(const ListDescription& list, json& entries, SettingsSnapshot& settings)
    {
        for (std::size_t i = 0; i < list.features.size(); ++i) {
            const FeatureDescription& member = list.features[i];
            const auto entry = entries.find(list.NameAt(m_version, i).ToUtf8());
            if (entry == entries.end() || member.kind == FeatureKind::Resolution ||
                !member.IsKept())
                continue;
            // A ticket may hold secrets all the same; they neither come in nor stay.
            if (member.loadedFromTicket && !member.flags.secret)
                Read(member, *entry, settings.children[i]);
            const bool foreignInside = member.list && entry->is_object() && !entry->empty();
            if (!foreignInside && member.savedInTicket)
                entries.erase(entry);
        }
    }

private:
    void Read(const FeatureDescription& description, json& entry, SettingsSnapshot& settings)
    {
        if (description.item) {
            ReadItems(description, entry, settings);
        } else if (description.list) {
            if (entry.is_object())
                ReadMembers(*description.list, entry, settings);
            else
                Refuse(description);
        } else if (entry.is_null() && !description.flags.required) {
            settings.Choose({});
        } else {
            FeatureValue value = FromJson(description, entry);
            if (auto* option = std::get_if<ValueId>(&value))
                *option = description.PresentOption(*option, m_version);
            if (description.Accepts(value))
                settings.Choose(std::move(value));
            else
                Refuse(description);
        }
    }

    void ReadItems(const FeatureDescription& list, json& entry, SettingsSnapshot& settings)
    {
        if (!entry.is_array() || entry.size() > list.maxItems)
            Refuse(list);
        if (!entry.is_array())
            return;
        settings.children.clear();
        for (json& item : entry) {
            if (settings.children.size() >= list.maxItems)
                return; // the first ones stay
            settings.children.push_back(DefaultSettings(*list.item));
            Read(*list.item, item, settings.children.back());
        }
    }

    void Refuse(const FeatureDescription& description)
    {
        m_refused += (m_refused.empty() ? "" : ", ") + description.name.ToUtf8();
    }

    unsigned m_version;
    std::string& m_refused;
};

std::string Seal(const ProductDescription& product, json settings)
{
    json document = {{"format", kFormat},
                     {"version", kVersion},
                     {"packageVersion", product.version},
                     {"product", product.info.uniqueId.ToUtf8()},
                     {"checksum", Checksum(settings)}};
    document["settings"] = std::move(settings);
    return document.dump(2) + "\n";
}

} // namespace

std::string SealJobTicket(const ProductDescription& product, std::string_view settings)
{
    const bool sound = std::holds_alternative<LocatedJson>(ParseLocatedJson(settings));
    return Seal(product, sound ? json::parse(settings, nullptr, false) : json::object());
}

std::string WriteJobTicket(const ProductDescription& product, const JobTicket& ticket)
{
    json foreign = json::parse(ticket.foreignEntries, nullptr, false);
    return Seal(product, ToJson(product.root, ticket.settings,
                                foreign.is_object() ? std::move(foreign) : json::object()));
}

bool ReadJobTicket(const ProductDescription& product, std::string_view text, JobTicket& ticket,
                   std::string& fault)
{
    // This also keeps nesting within bounds, so that the recursion below is safe.
    const auto sound = ParseLocatedJson(text);
    if (const auto* broken = std::get_if<JsonFault>(&sound)) {
        fault = "line " + std::to_string(broken->line) + ": " + broken->message;
        return false;
    }
    json document = json::parse(text, nullptr, false);
    if (!document.is_object() || document.value("format", json()) != kFormat) {
        fault = "it is no job ticket";
        return false;
    }
    if (document.value("version", json()) != kVersion) {
        fault = "it was written by another version of the driver";
        return false;
    }
    if (document.value("product", json()) != product.info.uniqueId.ToUtf8()) {
        fault = "it belongs to another product";
        return false;
    }
    json settings = document.value("settings", json());
    if (!settings.is_object() || document.value("checksum", json()) != Checksum(settings)) {
        fault = "its contents do not fit its checksum";
        return false;
    }
    const json version = document.value("packageVersion", json());
    const bool known = version.is_number_unsigned() && version <= kHighestPackageVersion;
    TicketReader(known ? version.get<unsigned>() : 0, ticket.refused)
        .ReadMembers(product.root, settings, ticket.settings);
    ticket.foreignEntries = settings.dump(-1, ' ', false, json::error_handler_t::replace);
    return true;
}

} // namespace o7

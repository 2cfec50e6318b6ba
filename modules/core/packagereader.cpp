#include "packagereader.h"

#include "circlesearch.h"
#include "jsonfields.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace o7 {
namespace {

constexpr std::array<Named<FeatureKind>, 9> kKinds = {{
    {"option", FeatureKind::Option},
    {"integer", FeatureKind::Integer},
    {"string", FeatureKind::String},
    {"boolean", FeatureKind::Boolean},
    {"range", FeatureKind::Range},
    {"dimension", FeatureKind::Dimension},
    {"resolution", FeatureKind::Resolution},
    {"list", FeatureKind::ListOfFeatures},
    {"values", FeatureKind::ListOfValues},
}};

constexpr std::array<Named<Dimension::UnitsEnum>, 4> kUnits = {{
    {"inch", Dimension::UnitsEnum::Inch},
    {"mm", Dimension::UnitsEnum::Millimetre},
    {"tenth-mm", Dimension::UnitsEnum::TenthOfMillimetre},
    {"pt", Dimension::UnitsEnum::Point},
}};

} // namespace

void PackageReader::Fail(const LocatedJson& at, std::string message)
{
    m_faults.push_back({at.line, std::move(message)});
}

ProductDescription PackageReader::Read(const LocatedJson& document)
{
    ProductDescription product;
    ReadProduct(*document.Find("product"), product.info);
    if (const auto* version = document.Find("product")->Find("version"))
        m_version = static_cast<unsigned>(Int(*version));
    product.version = m_version;
    Scope scope;
    product.root = ReadList(document, scope);
    return product;
}

void PackageReader::ReadProduct(const LocatedJson& json, ProductInfo& info)
{
    info.id = Wide(*json.Find("id"));
    info.modelName = Wide(*json.Find("modelName"));
    info.uniqueId = Wide(*json.Find("uniqueId"));
    info.controllerFamily = Int(*json.Find("controllerFamily"));
    for (const LocatedJson& language : Entries(*json.Find("languages")))
        info.languages.push_back(Wide(language));
    const std::array<Named<CXString*>, 3> files = {{{"helpFile", &info.helpFile},
                                                    {"urlFile", &info.urlFile},
                                                    {"resourceFolder", &info.resourceFolder}}};
    for (const auto& [key, target] : files) {
        if (const auto* file = json.Find(key))
            *target = Wide(*file);
    }
}

ListDescription PackageReader::ReadList(const LocatedJson& json, Scope& scope)
{
    ListDescription list;
    scope.push_back(&list);
    if (const auto* features = json.Find("features"))
        ReadFeatures(*features, scope, list);
    if (const auto* constraints = json.Find("constraints")) {
        for (const LocatedJson& entry : Entries(*constraints)) {
            for (ConstraintDescription& constraint : m_constraints.ReadConstraint(entry, scope))
                list.constraints.push_back(std::move(constraint));
        }
    }
    const std::string circle = FindConstraintCircle(list);
    if (!circle.empty()) {
        const auto* constraints = json.Find("constraints");
        Fail(constraints != nullptr ? *constraints : json,
             "the constraints clear or force each other, or defaults adapt, in a circle: " +
                 circle);
    }
    scope.pop_back();
    return list;
}

void PackageReader::ReadFeatures(const LocatedJson& features, Scope& scope, ListDescription& list)
{
    std::set<int> numbers;
    std::set<CXString> names;
    std::vector<const LocatedJson*> entries;
    list.features.reserve(Entries(features).size());
    // Members stand before the lists that look outwards to them have to be read: conditions in a
    // nested list may mean any member of this one.
    for (const bool lists : {false, true}) {
        for (const LocatedJson& entry : Entries(features)) {
            const std::string& kind = Text(*entry.Find("kind"));
            if ((kind == "list" || kind == "values") != lists)
                continue;
            FeatureDescription feature = ReadFeature(entry, scope);
            CheckDistinct(entry, feature, numbers, names);
            list.Add(std::move(feature));
            entries.push_back(&entry);
        }
    }
    for (std::size_t i = 0; i < entries.size(); ++i)
        m_constraints.ReadDefaults(*entries[i], scope, list.features[i]);
}

void PackageReader::CheckDistinct(const LocatedJson& entry, const FeatureDescription& feature,
                                  std::set<int>& numbers, std::set<CXString>& names)
{
    if (!numbers.insert(feature.number).second)
        Fail(entry, "the number of " + NameOf(feature) + " is used twice in this list");
    if (!names.insert(feature.name).second)
        Fail(entry, "the name of " + NameOf(feature) + " is used twice in this list");
}

FeatureDescription PackageReader::ReadFeature(const LocatedJson& json, Scope& scope)
{
    FeatureDescription feature;
    feature.line = json.line;
    feature.number = static_cast<FeatureEnum>(Int(*json.Find("enum")));
    feature.name = Wide(*json.Find("name"));
    if (feature.name.Find(L"odrv-") != 0)
        Fail(*json.Find("name"),
             "found " + json.Find("name")->ToText() + ", expected a name beginning with odrv-");
    feature.kind = ByName(kKinds, Text(*json.Find("kind")));
    feature.former = ReadFormer(json);
    ReadFlags(json, feature);
    const bool around = std::exchange(m_deviceAround, feature.flags.device);
    ReadKind(json, feature, scope);
    m_deviceAround = around;
    ReadDefault(json, feature);
    return feature;
}

FormerIds PackageReader::ReadFormer(const LocatedJson& json)
{
    FormerIds former;
    const auto* entries = json.Find("former");
    if (entries == nullptr)
        return former;
    for (const LocatedJson& entry : Entries(*entries)) {
        FormerId id;
        id.until = static_cast<unsigned>(Int(*entry.Find("until")));
        if (const auto* number = entry.Find("enum"))
            id.number = Int(*number);
        if (const auto* name = entry.Find("name"))
            id.name = Wide(*name);
        if (id.number == 0 && id.name.IsEmpty())
            Fail(entry, "expected \"enum\" or \"name\": what it was called until then");
        if (id.until >= m_version)
            Fail(entry, "found until " + std::to_string(id.until) +
                            ", expected a version before that of the package, " +
                            std::to_string(m_version));
        if (!former.empty() && former.back().until >= id.until)
            Fail(entry, "expected former names in the order of their versions");
        former.push_back(std::move(id));
    }
    return former;
}

void PackageReader::ReadKind(const LocatedJson& json, FeatureDescription& feature, Scope& scope)
{
    // Keys that mean nothing for the kind are mistakes: the author meant something by them.
    struct Allowed
    {
        std::string_view key;
        std::array<FeatureKind, 3> kinds;
    };
    static constexpr Allowed kAllowed[] = {
        {"options", {FeatureKind::Option, FeatureKind::Option, FeatureKind::Option}},
        {"range", {FeatureKind::Integer, FeatureKind::Range, FeatureKind::Dimension}},
        {"ranges", {FeatureKind::Integer, FeatureKind::Range, FeatureKind::Range}},
        {"unit", {FeatureKind::Integer, FeatureKind::Dimension, FeatureKind::Dimension}},
        {"maxLength", {FeatureKind::String, FeatureKind::Option, FeatureKind::Option}},
        {"features",
         {FeatureKind::ListOfFeatures, FeatureKind::ListOfFeatures, FeatureKind::ListOfFeatures}},
        {"constraints",
         {FeatureKind::ListOfFeatures, FeatureKind::ListOfFeatures, FeatureKind::ListOfFeatures}},
        {"item", {FeatureKind::ListOfValues, FeatureKind::ListOfValues, FeatureKind::ListOfValues}},
        {"maxItems",
         {FeatureKind::ListOfValues, FeatureKind::ListOfValues, FeatureKind::ListOfValues}},
    };
    for (const Allowed& row : kAllowed) {
        const auto* value = json.Find(row.key);
        const bool fits =
            std::find(row.kinds.begin(), row.kinds.end(), feature.kind) != row.kinds.end();
        if (value != nullptr && !fits)
            Fail(*value, NameOf(feature) + ": \"" + std::string(row.key) +
                             "\" has no meaning for kind " + json.Find("kind")->ToText());
    }
    if (const auto* unit = json.Find("unit"))
        feature.units = ByName(kUnits, Text(*unit));
    if (const auto* longest = json.Find("maxLength"))
        feature.maxLength = static_cast<std::size_t>(Int(*longest));
    if (const auto* most = json.Find("maxItems"))
        feature.maxItems = static_cast<std::size_t>(Int(*most));
    if (feature.kind == FeatureKind::Dimension && !feature.units)
        Fail(json, NameOf(feature) + ": expected a unit (inch, mm, tenth-mm or pt)");
    if (feature.kind == FeatureKind::Option)
        ReadOptions(json, feature);
    ReadRanges(json, feature);
    if (feature.kind == FeatureKind::ListOfFeatures)
        feature.list = std::make_shared<const ListDescription>(ReadList(json, scope));
    if (feature.kind == FeatureKind::ListOfValues)
        ReadItem(json, feature, scope);
}

void PackageReader::ReadOptions(const LocatedJson& json, FeatureDescription& feature)
{
    const auto* options = json.Find("options");
    if (options == nullptr) {
        Fail(json, NameOf(feature) + ": expected options");
        return;
    }
    std::set<int> numbers;
    std::set<CXString> names;
    for (const LocatedJson& entry : Entries(*options)) {
        OptionDescription option{static_cast<ValueEnum>(Int(*entry.Find("enum"))),
                                 Wide(*entry.Find("name")), ReadSize(entry), ReadFormer(entry)};
        if (!numbers.insert(option.number).second)
            Fail(entry, NameOf(feature) + ": the value " + std::to_string(option.number) +
                            " is used twice");
        if (!names.insert(option.name).second)
            Fail(entry, NameOf(feature) + ": the value name " + entry.Find("name")->ToText() +
                            " is used twice");
        feature.options.push_back(std::move(option));
    }
}

std::optional<std::pair<Dimension, Dimension>> PackageReader::ReadSize(const LocatedJson& option)
{
    const auto* size = option.Find("size");
    if (size == nullptr)
        return {};
    const double width = Entries(*size).front().Number();
    const double height = Entries(*size).back().Number();
    if (width > kLongestLength || height > kLongestLength) {
        Fail(*size, "expected lengths up to 1000000");
        return {};
    }
    constexpr auto kUnit = Dimension::UnitsEnum::Millimetre;
    return std::pair(Dimension(width, kUnit), Dimension(height, kUnit));
}

void PackageReader::ReadRanges(const LocatedJson& json, FeatureDescription& feature)
{
    std::vector<const LocatedJson*> entries;
    if (const auto* single = json.Find("range"))
        entries.push_back(single);
    if (const auto* several = json.Find("ranges")) {
        for (const LocatedJson& entry : Entries(*several))
            entries.push_back(&entry);
    }
    for (const LocatedJson* entry : entries) {
        const LocatedJson& low = *entry->Find("min");
        const LocatedJson& high = *entry->Find("max");
        if (low.Number() > high.Number()) {
            Fail(*entry, NameOf(feature) + ": the range begins above its end");
        } else if (feature.kind == FeatureKind::Dimension && feature.units) {
            if (std::abs(low.Number()) > kLongestLength || std::abs(high.Number()) > kLongestLength)
                Fail(*entry, NameOf(feature) + ": expected lengths up to 1000000");
            feature.limits = {Dimension(low.Number(), *feature.units),
                              Dimension(high.Number(), *feature.units)};
        } else if (!FitsInt(low) || !FitsInt(high)) {
            Fail(*entry, NameOf(feature) + ": expected whole numbers of 32 bits");
        } else if (!feature.ranges.empty() && feature.ranges.back().GetUpperBound() >= Int(low)) {
            Fail(*entry, NameOf(feature) + ": expected ranges in rising order");
        } else {
            feature.ranges.emplace_back(Int(low), Int(high));
        }
    }
}

void PackageReader::ReadFlags(const LocatedJson& json, FeatureDescription& feature)
{
    const bool installed = feature.name.Find(L"odrv-installed-") == 0;
    feature.flags.device = m_deviceAround || installed;
    const auto* flags = json.Find("flags");
    for (const LocatedJson& entry : flags != nullptr ? Entries(*flags) : LocatedJson::Array()) {
        const std::string& flag = Text(entry);
        feature.flags.readOnly |= flag == "readOnly";
        feature.flags.required |= flag == "required";
        feature.flags.stateOnly |= flag == "stateOnly";
        feature.flags.device |= flag == "device";
        feature.flags.secret |= flag == "secret";
        feature.userDefinedValues |= flag == "userDefinedValues";
        feature.savedInTicket &= flag != "notSaved";
        feature.loadedFromTicket &= flag != "notLoaded";
    }
    if (m_inItem && feature.flags.device && !m_deviceAround)
        Fail(json,
             NameOf(feature) + ": the items of a document's list cannot belong to the device");
}

void PackageReader::ReadDefault(const LocatedJson& json, FeatureDescription& feature)
{
    const auto* value = json.Find("default");
    const std::size_t faults = m_faults.size();
    if (value != nullptr)
        feature.defaultValue = m_constraints.Values().ReadInitial(*value, feature);
    if (feature.flags.required && feature.defaultValue.index() == 0 && m_faults.size() == faults)
        Fail(json, NameOf(feature) + ": required, so a default is expected");
}

void PackageReader::ReadItem(const LocatedJson& json, FeatureDescription& feature, Scope& scope)
{
    const auto* entry = json.Find("item");
    if (entry == nullptr) {
        Fail(json, NameOf(feature) + ": expected \"item\", the description of its items");
        return;
    }
    FeatureDescription item;
    item.number = feature.number;
    item.name = feature.name;
    item.kind = ByName(kKinds, Text(*entry->Find("kind")));
    const bool inItem = std::exchange(m_inItem, true);
    ReadFlags(*entry, item);
    ReadKind(*entry, item, scope);
    m_inItem = inItem;
    ReadDefault(*entry, item);
    feature.item = std::make_shared<const FeatureDescription>(std::move(item));
}

} // namespace o7

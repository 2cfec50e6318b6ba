#include "packagereader.h"

#include "listoffeaturesref.h"

#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <utility>

namespace o7 {
namespace {

template <typename T> struct Named
{
    std::string_view name;
    T value;
};

template <typename T, std::size_t N>
T ByName(const std::array<Named<T>, N>& table, std::string_view name)
{
    for (const auto& row : table) {
        if (row.name == name)
            return row.value;
    }
    return table.front().value;
}

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

constexpr std::array<Named<EffectKind>, 5> kEffects = {{
    {"disable", EffectKind::Disable},
    {"clear", EffectKind::Clear},
    {"hide", EffectKind::Hide},
    {"info", EffectKind::Info},
    {"conflict", EffectKind::Conflict},
}};

constexpr std::array<Named<Comparison>, 6> kComparisons = {{
    {"equal", DataModelIds::kEqual},
    {"notEqual", DataModelIds::kNotEqual},
    {"less", DataModelIds::kLess},
    {"lessOrEqual", DataModelIds::kLessOrEqual},
    {"greater", DataModelIds::kGreater},
    {"greaterOrEqual", DataModelIds::kGreaterOrEqual},
}};

const std::string& Text(const LocatedJson& json)
{
    return *json.As<std::string>();
}
CXString Wide(const LocatedJson& json)
{
    return CXString::FromUtf8(Text(json));
}
const LocatedJson::Array& Entries(const LocatedJson& json)
{
    return *json.As<LocatedJson::Array>();
}

bool FitsInt(const LocatedJson& json)
{
    const auto* number = json.As<std::int64_t>();
    return number != nullptr && *number >= INT_MIN && *number <= INT_MAX;
}

int Int(const LocatedJson& json)
{
    return static_cast<int>(*json.As<std::int64_t>());
}

std::string NameOf(const FeatureDescription& feature)
{
    return "feature " + std::to_string(feature.number) + " (" + feature.name.ToUtf8() + ")";
}

/// Lengths beyond this many units are no paper any more, and stay far inside Dimension's range.
constexpr double kLongestLength = 1e6;

} // namespace

void PackageReader::Fail(const LocatedJson& at, std::string message)
{
    m_faults.push_back({at.line, std::move(message)});
}

ProductDescription PackageReader::Read(const LocatedJson& document)
{
    ProductDescription product;
    ReadProduct(*document.Find("product"), product.info);
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
    std::set<int> numbers;
    std::set<CXString> names;
    scope.push_back(&list);
    // Members stand before the lists that look outwards to them have to be read: conditions in a
    // nested list may mean any member of this one.
    std::vector<const LocatedJson*> nested;
    if (const auto* features = json.Find("features")) {
        list.features.reserve(Entries(*features).size());
        for (const bool lists : {false, true}) {
            for (const LocatedJson& entry : Entries(*features)) {
                const std::string& kind = Text(*entry.Find("kind"));
                if ((kind == "list" || kind == "values") != lists)
                    continue;
                FeatureDescription feature = ReadFeature(entry, scope);
                CheckDistinct(entry, feature, numbers, names);
                list.features.push_back(std::move(feature));
            }
        }
    }
    if (const auto* constraints = json.Find("constraints")) {
        for (const LocatedJson& entry : Entries(*constraints))
            list.constraints.push_back(ReadConstraint(entry, scope));
        const std::string circle = FindConstraintCircle(list);
        if (!circle.empty())
            Fail(*constraints, "the constraints clear each other in a circle: " + circle);
    }
    scope.pop_back();
    return list;
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
    feature.number = static_cast<FeatureEnum>(Int(*json.Find("enum")));
    feature.name = Wide(*json.Find("name"));
    if (feature.name.Find(L"odrv-") != 0)
        Fail(*json.Find("name"),
             "found " + json.Find("name")->ToText() + ", expected a name beginning with odrv-");
    feature.kind = ByName(kKinds, Text(*json.Find("kind")));
    ReadFlags(json, feature);
    ReadKind(json, feature, scope);
    ReadDefault(json, feature);
    return feature;
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
                                 Wide(*entry.Find("name"))};
        if (!numbers.insert(option.number).second)
            Fail(entry, NameOf(feature) + ": the value " + std::to_string(option.number) +
                            " is used twice");
        if (!names.insert(option.name).second)
            Fail(entry, NameOf(feature) + ": the value name " + entry.Find("name")->ToText() +
                            " is used twice");
        feature.options.push_back(std::move(option));
    }
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
    const auto* flags = json.Find("flags");
    if (flags == nullptr)
        return;
    for (const LocatedJson& entry : Entries(*flags)) {
        const std::string& flag = Text(entry);
        feature.flags.readOnly |= flag == "readOnly";
        feature.flags.required |= flag == "required";
        feature.flags.stateOnly |= flag == "stateOnly";
        feature.userDefinedValues |= flag == "userDefinedValues";
        feature.savedInTicket &= flag != "notSaved";
        feature.loadedFromTicket &= flag != "notLoaded";
    }
}

void PackageReader::ReadDefault(const LocatedJson& json, FeatureDescription& feature)
{
    const auto* value = json.Find("default");
    if (value == nullptr || value->As<std::nullptr_t>() != nullptr) {
        if (feature.flags.required)
            Fail(json, NameOf(feature) + ": required, so a default is expected");
        return;
    }
    const auto* parts = value->As<LocatedJson::Array>();
    const bool whole = parts != nullptr && std::all_of(parts->begin(), parts->end(), FitsInt);
    FeatureValue read;
    if (feature.kind == FeatureKind::Range && whole && parts->size() == 2)
        read = RangeOfInteger(Int((*parts)[0]), Int((*parts)[1]));
    else if (feature.kind == FeatureKind::Resolution && whole && parts->size() == 3)
        read = Resolution{Int((*parts)[0]), Int((*parts)[1]), Int((*parts)[2])};
    else if (parts == nullptr) {
        read = ReadComparedValue(*value, feature);
        if (read.index() == 0)
            return; // that fault is told already
    }
    const bool unspecified =
        std::holds_alternative<ValueId>(read) &&
        std::get<ValueId>(read).GetValueEnum() == DataModelIds::kValueUnspecified;
    if (!feature.Accepts(read))
        Fail(*value, NameOf(feature) + ": the default " + value->ToText() +
                         " is not among the values that the feature accepts");
    else if (!unspecified)
        feature.defaultValue = read;
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
    ReadFlags(*entry, item);
    ReadKind(*entry, item, scope);
    ReadDefault(*entry, item);
    feature.item = std::make_shared<const FeatureDescription>(std::move(item));
}

ConstraintDescription PackageReader::ReadConstraint(const LocatedJson& json, const Scope& scope)
{
    ConstraintDescription constraint;
    constraint.id = Text(*json.Find("id"));
    constraint.line = json.line;
    constraint.reason = static_cast<unsigned>(Int(*json.Find("reason")));
    if (!m_constraintIds.insert(constraint.id).second)
        Fail(json, "the constraint id " + json.Find("id")->ToText() + " is used twice");
    for (const LocatedJson& condition : Entries(*json.Find("when")))
        constraint.when.push_back(ReadCondition(condition, scope));
    ReadEffect(*json.Find("effect"), scope, constraint);
    return constraint;
}

ConditionDescription PackageReader::ReadCondition(const LocatedJson& json, const Scope& scope)
{
    ConditionDescription condition;
    const auto* feature = FindFeature(*json.Find("feature"), scope);
    const auto* is = json.Find("is");
    const auto* isNot = json.Find("isNot");
    const auto* compare = json.Find("compare");
    const auto* value = json.Find("value");
    const int questions = (is != nullptr) + (isNot != nullptr) + (compare != nullptr);
    if (questions != 1 || (compare != nullptr) != (value != nullptr)) {
        Fail(json, "expected one of \"is\", \"isNot\", or \"compare\" together with \"value\"");
        return condition;
    }
    if (feature == nullptr)
        return condition;
    condition.feature = feature->number;
    condition.comparison = is != nullptr      ? DataModelIds::kEqual
                           : isNot != nullptr ? DataModelIds::kNotEqual
                                              : ByName(kComparisons, Text(*compare));
    const bool ordered = condition.comparison != DataModelIds::kEqual &&
                         condition.comparison != DataModelIds::kNotEqual;
    const bool number =
        feature->kind == FeatureKind::Integer || feature->kind == FeatureKind::Dimension;
    if (ordered && !number)
        Fail(*compare, NameOf(*feature) + " has no order to compare by");
    if (value != nullptr) {
        condition.values.push_back(ReadComparedValue(*value, *feature));
        return condition;
    }
    for (const LocatedJson& entry : Entries(is != nullptr ? *is : *isNot))
        condition.values.push_back(ReadComparedValue(entry, *feature));
    return condition;
}

void PackageReader::ReadEffect(const LocatedJson& json, const Scope& scope,
                               ConstraintDescription& constraint)
{
    constraint.kind = ByName(kEffects, Text(*json.Find("kind")));
    const LocatedJson& reference = *json.Find("feature");
    const auto* target = FindFeature(reference, {scope.back()});
    if (target == nullptr)
        return;
    constraint.target = target->number;
    const auto* options = json.Find("options");
    if (options == nullptr)
        return;
    for (const LocatedJson& entry : Entries(*options))
        constraint.values.push_back(ReadComparedValue(entry, *target));
}

const FeatureDescription* PackageReader::FindFeature(const LocatedJson& reference,
                                                     const Scope& scope)
{
    for (auto list = scope.rbegin(); list != scope.rend(); ++list) {
        const auto* name = reference.As<std::string>();
        const auto* found = name != nullptr ? (*list)->Find(CXString::FromUtf8(*name))
                            : FitsInt(reference)
                                ? (*list)->Find(static_cast<FeatureEnum>(Int(reference)))
                                : nullptr;
        if (found != nullptr)
            return found;
    }
    Fail(reference, "unknown feature " + reference.ToText() +
                        ", expected the number or name of a feature of this list");
    return nullptr;
}

FeatureValue PackageReader::ReadComparedValue(const LocatedJson& json,
                                              const FeatureDescription& feature)
{
    FeatureValue value;
    if (feature.kind == FeatureKind::Option && FitsInt(json))
        value = ValueId(static_cast<ValueEnum>(Int(json)));
    else if (feature.kind == FeatureKind::Option && json.As<std::string>() != nullptr)
        value = ValueId(feature.Id(), Wide(json));
    else if (feature.kind == FeatureKind::Integer && FitsInt(json))
        value = Int(json);
    else if (feature.kind == FeatureKind::String && json.As<std::string>() != nullptr)
        value = Wide(json);
    else if (feature.kind == FeatureKind::Boolean && json.As<bool>() != nullptr)
        value = *json.As<bool>();
    else if (feature.kind == FeatureKind::Dimension && json.IsNumber() && feature.units &&
             std::abs(json.Number()) <= kLongestLength)
        value = Dimension(json.Number(), *feature.units);
    // A number outside the range may still be compared with; an unknown option cannot be meant.
    const bool known =
        feature.kind == FeatureKind::Option ? feature.Accepts(value) : value.index() != 0;
    if (!known) {
        Fail(json, NameOf(feature) + " has no value " + json.ToText());
        return {};
    }
    return value;
}

namespace {

/// Depth-first search along "clears" edges from feature to feature.
class CircleSearch
{
public:
    explicit CircleSearch(const ListDescription& list) : m_list(list) {}

    std::string Run()
    {
        for (const ConstraintDescription& constraint : m_list.constraints) {
            if (constraint.kind == EffectKind::Clear && Visit(constraint))
                return m_circle;
        }
        return {};
    }

private:
    bool Visit(const ConstraintDescription& constraint)
    {
        const auto onPath = std::find(m_path.begin(), m_path.end(), &constraint);
        if (onPath != m_path.end()) {
            for (auto step = onPath; step != m_path.end(); ++step)
                m_circle += (*step)->id + " -> ";
            m_circle += constraint.id;
            return true;
        }
        if (!m_done.insert(&constraint).second)
            return false;
        m_path.push_back(&constraint);
        for (const ConstraintDescription& next : m_list.constraints) {
            if (next.kind == EffectKind::Clear && Reads(next, constraint.target) && Visit(next))
                return true;
        }
        m_path.pop_back();
        return false;
    }

    static bool Reads(const ConstraintDescription& constraint, FeatureEnum feature)
    {
        return std::any_of(constraint.when.begin(), constraint.when.end(),
                           [&](const auto& condition) { return condition.feature == feature; });
    }

    const ListDescription& m_list;
    std::vector<const ConstraintDescription*> m_path;
    std::set<const ConstraintDescription*> m_done;
    std::string m_circle;
};

} // namespace

std::string FindConstraintCircle(const ListDescription& list)
{
    return CircleSearch(list).Run();
}

} // namespace o7

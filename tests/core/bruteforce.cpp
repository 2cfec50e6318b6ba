#include "bruteforce.h"

#include "testproduct.h"

#include <algorithm>
#include <map>
#include <set>
#include <stdexcept>

namespace test {
namespace {

using nlohmann::json;

/// The name of an option that is written by name or number.
std::string OptionName(const json& feature, const json& written)
{
    if (written.is_string())
        return written;
    for (const json& option : feature["options"]) {
        if (option["enum"] == written)
            return option["name"];
    }
    return "unspecified";
}

Dimension::UnitsEnum UnitOf(const json& feature)
{
    const std::string unit = feature["unit"];
    return unit == "inch"       ? Dimension::UnitsEnum::Inch
           : unit == "mm"       ? Dimension::UnitsEnum::Millimetre
           : unit == "tenth-mm" ? Dimension::UnitsEnum::TenthOfMillimetre
                                : Dimension::UnitsEnum::Point;
}

/// A length as a count, so that equal lengths are equal.
json Count(const json& feature, const json& written)
{
    return Dimension(written.get<double>(), UnitOf(feature)).GetCount();
}

/// A written value in the form in which values are compared here.
json Plain(const json& feature, const json& written)
{
    if (feature["kind"] == "option")
        return OptionName(feature, written);
    return feature["kind"] == "dimension" ? Count(feature, written) : written;
}

bool LiesWithin(const json& range, const json& size)
{
    return size[0] >= range.value("minWidth", -1e9) && size[0] <= range.value("maxWidth", 1e9) &&
           size[1] >= range.value("minHeight", -1e9) && size[1] <= range.value("maxHeight", 1e9);
}

bool Ordered(const std::string& how, const json& a, const json& b)
{
    return how == "less"             ? a < b
           : how == "lessOrEqual"    ? a <= b
           : how == "greater"        ? a > b
           : how == "greaterOrEqual" ? a >= b
           : how == "equal"          ? a == b
                                     : a != b;
}

std::string InOrder(const std::set<char>& letters)
{
    std::string text;
    for (const char letter : {'d', 'c', 'h', 'i', 'x'})
        text += letters.count(letter) != 0 ? std::string(1, letter) : "";
    return text;
}

/// What a constraint on a whole item makes of it.
void AddLetters(const std::string& kind, std::set<char>& letters)
{
    const std::string all = kind.empty()                           ? ""
                            : kind == "disable" || kind == "force" ? "di"
                            : kind == "clear"                      ? "dci"
                            : kind == "hide"                       ? "h"
                            : kind == "info" || kind == "require"  ? "i"
                                                                   : "x";
    letters.insert(all.begin(), all.end());
}

} // namespace

BruteForce::BruteForce(const json& package, const ListOfFeaturesRef& all)
    : m_package(package), m_all(all)
{
}

std::vector<std::string> BruteForce::Differences()
{
    m_top =
        std::make_unique<Feature>(Feature{&m_package, m_all.GetNode(), nullptr, {}, {}, false, {}});
    m_limits.clear();
    Read(*m_top);
    CollectLimits(*m_top);
    Settle();
    std::vector<std::string> differences;
    for (const auto& member : m_top->members)
        Compare(*member, differences);
    return differences;
}

void BruteForce::Read(Feature& list)
{
    const auto found = list.json->find("features");
    if (found == list.json->end())
        return;
    for (const json& member : *found) {
        const auto number = static_cast<DataModelIds::tagFeatureEnum>(member["enum"].get<int>());
        auto feature = std::make_unique<Feature>(
            Feature{&member, list.node->FindFeature(FeatureId(number)), &list, {}, {}, false, {}});
        ReadValue(*feature);
        if (member["kind"] == "list")
            Read(*feature);
        for (std::size_t i = 0; member["kind"] == "values" && i < feature->node->GetNumChildren();
             ++i) {
            feature->members.push_back(std::make_unique<Feature>(Feature{
                &member["item"], feature->node->GetChild(i), feature.get(), {}, {}, false, {}}));
            ReadValue(*feature->members.back());
            Read(*feature->members.back());
        }
        list.members.push_back(std::move(feature));
    }
}

void BruteForce::ReadValue(Feature& feature)
{
    o7::FeatureValue value;
    if (!feature.node->GetValue(value))
        return;
    if (const auto* option = std::get_if<ValueId>(&value))
        feature.value = feature.node->IsSpecified() ? option->GetValueName().ToUtf8()
                                                    : OptionName(*feature.json, 5001);
    else if (const auto* number = std::get_if<int>(&value))
        feature.value = *number;
    else if (const auto* flag = std::get_if<bool>(&value))
        feature.value = *flag;
    else if (const auto* text = std::get_if<CXString>(&value))
        feature.value = text->ToUtf8();
    else if (const auto* length = std::get_if<Dimension>(&value))
        feature.value = length->GetCount();
}

void BruteForce::CollectLimits(Feature& list)
{
    const auto constraints = list.json->find("constraints");
    if (constraints != list.json->end()) {
        for (const json& constraint : *constraints)
            AddLimits(list, constraint);
    }
    for (const auto& member : list.members)
        CollectLimits(*member);
}

void BruteForce::AddLimits(Feature& list, const json& constraint)
{
    if (!constraint.contains("never")) {
        Limit limit{{},
                    nullptr,
                    &constraint["effect"],
                    constraint["effect"]["kind"],
                    &list,
                    &Find(list, constraint["effect"]["feature"])};
        for (const json& condition : constraint["when"])
            limit.when.push_back(&condition);
        const json& effect = constraint["effect"];
        for (const char* key :
             {"options", "isNot", "compare", "between", "outside", "sizeWithin", "sizeOutside"})
            limit.test = effect.contains(key) ? &effect : limit.test;
        m_limits.push_back(std::move(limit));
        return;
    }
    const json& together = constraint["never"];
    for (std::size_t i = 0; i < together.size(); ++i) {
        Feature& target = Find(list, together[i]["feature"]);
        bool limited = target.list == &list;
        if (constraint.contains("limit"))
            limited = std::any_of(
                constraint["limit"].begin(), constraint["limit"].end(),
                [&](const json& reference) { return &Find(list, reference) == &target; });
        if (!limited)
            continue;
        Limit limit{{}, &together[i], nullptr, "disable", &list, &target};
        for (std::size_t other = 0; other < together.size(); ++other) {
            if (other != i)
                limit.when.push_back(&together[other]);
        }
        m_limits.push_back(std::move(limit));
    }
}

BruteForce::Feature& BruteForce::Find(const Feature& list, const json& reference)
{
    for (const Feature* scope = &list; scope != nullptr; scope = scope->list) {
        for (const auto& member : scope->members) {
            if (member->json->contains("enum") &&
                (member->json->at("enum") == reference || member->json->at("name") == reference))
                return *member;
        }
    }
    throw std::runtime_error("no feature " + reference.dump());
}

bool BruteForce::Asks(const Feature& feature, const json& test, const json& value)
{
    const json& json_ = *feature.json;
    const auto among = [&](const json& list) {
        return std::any_of(list.begin(), list.end(),
                           [&](const json& one) { return Plain(json_, one) == value; });
    };
    const auto within = [&](const json& bounds) {
        return value >= Plain(json_, bounds[0]) && value <= Plain(json_, bounds[1]);
    };
    const auto sized = [&](const json& range, bool inside) {
        return std::any_of(json_["options"].begin(), json_["options"].end(), [&](const json& one) {
            return one["name"] == value && one.contains("size") &&
                   LiesWithin(range, one["size"]) == inside;
        });
    };
    if (test.contains("is") || test.contains("options"))
        return among(test.contains("is") ? test["is"] : test["options"]);
    if (test.contains("isNot"))
        return !among(test["isNot"]);
    if (test.contains("between"))
        return within(test["between"]);
    if (test.contains("outside"))
        return !within(test["outside"]);
    if (test.contains("sizeWithin"))
        return sized(test["sizeWithin"], true);
    if (test.contains("sizeOutside"))
        return sized(test["sizeOutside"], false);
    return Ordered(test["compare"], value, Plain(json_, test["value"]));
}

bool BruteForce::Holds(const Feature& list, const json& condition) const
{
    const Feature& feature = Find(list, condition["feature"]);
    bool cleared = false;
    for (const Feature* around = &feature; around != nullptr; around = around->list)
        cleared = cleared || around->cleared;
    const json& value = Now(feature);
    if (cleared || value.is_null())
        return condition.value("orWithoutValue", false) || condition.contains("isNot") ||
               condition.value("compare", "") == "notEqual";
    return Asks(feature, condition, value);
}

const json& BruteForce::Now(const Feature& feature)
{
    return feature.forced.is_null() ? feature.value : feature.forced;
}

bool BruteForce::AllHold(const Limit& limit) const
{
    return std::all_of(limit.when.begin(), limit.when.end(),
                       [&](const json* condition) { return Holds(*limit.list, *condition); });
}

void BruteForce::Settle()
{
    // Again and again until nothing moves any more; packages in which it never ends do not load.
    while (SettleClearing() || SettleForcing()) {
    }
}

bool BruteForce::SettleClearing()
{
    std::set<Feature*> cleared;
    for (const Limit& limit : m_limits) {
        const json& value = Now(*limit.target);
        const bool hit =
            limit.test == nullptr || (!value.is_null() && Asks(*limit.target, *limit.test, value));
        if (limit.kind == "clear" && hit && AllHold(limit))
            cleared.insert(limit.target);
    }
    bool moved = false;
    for (const Limit& limit : m_limits) {
        const bool now = cleared.count(limit.target) != 0;
        moved = moved || now != limit.target->cleared;
        limit.target->cleared = now;
    }
    return moved;
}

json BruteForce::ForcedBy(const Limit& limit) const
{
    const json& effect = *limit.effect;
    const json& target = *limit.target->json;
    if (effect.contains("to"))
        return Plain(target, effect["to"]);
    const bool width = effect.contains("toWidthOf");
    const Feature& medium = Find(*limit.list, effect[width ? "toWidthOf" : "toHeightOf"]);
    const json& chosen = Now(medium);
    for (const json& option : (*medium.json)["options"]) {
        if (!medium.cleared && option["name"] == chosen && option.contains("size"))
            return Count(target, option["size"][width ? 0 : 1].get<double>());
    }
    return {};
}

bool BruteForce::SettleForcing()
{
    std::map<Feature*, json> forced;
    for (const Limit& limit : m_limits) {
        json& value = forced[limit.target];
        if (limit.kind == "force" && value.is_null() && AllHold(limit))
            value = ForcedBy(limit);
    }
    bool moved = false;
    for (const auto& [feature, value] : forced) {
        moved = moved || feature->forced != value;
        feature->forced = value;
    }
    return moved;
}

std::string BruteForce::StateOf(const Feature& feature) const
{
    std::set<char> letters;
    for (const Limit& limit : m_limits) {
        bool around = false;
        for (const Feature* list = feature.list; list != nullptr; list = list->list)
            around = around || list == limit.target;
        if ((!around && limit.target != &feature) || !AllHold(limit))
            continue;
        if (limit.test == nullptr) {
            const bool idle = limit.kind == "force" && ForcedBy(limit).is_null();
            AddLetters(idle ? "" : limit.kind, letters);
            continue;
        }
        const bool hit = feature.node->IsSpecified() && Asks(feature, *limit.test, Now(feature));
        const bool forbids = limit.kind == "disable" || limit.kind == "clear";
        if (hit)
            letters.insert(limit.kind == "info" || limit.kind == "clear" ? 'i' : 'x');
        if (hit && limit.kind == "clear")
            letters.insert('c');
        if (!hit && forbids)
            letters.insert('i');
        if (!hit && (forbids || limit.kind == "hide") && IsLastChoice(feature))
            letters.insert('d');
    }
    if (IsIdle(feature))
        letters.erase('x');
    return InOrder(letters);
}

/// What is chosen for it counts for nothing, because of it or of a list around it.
bool BruteForce::IsIdle(const Feature& feature) const
{
    for (const Feature* one = &feature; one != nullptr; one = one->list) {
        const bool limited = std::any_of(m_limits.begin(), m_limits.end(), [&](const Limit& limit) {
            return limit.target == one && limit.test == nullptr && limit.kind != "info" &&
                   limit.kind != "conflict" && limit.kind != "require" && AllHold(limit);
        });
        if (one->cleared || limited)
            return true;
    }
    return false;
}

bool BruteForce::IsLastChoice(const Feature& feature) const
{
    const json& description = *feature.json;
    const json flags = description.value("flags", json::array());
    const bool open = std::find(flags.begin(), flags.end(), "userDefinedValues") != flags.end();
    std::vector<json> values;
    if (description["kind"] == "boolean")
        values = {false, true};
    for (const json& option : description.value("options", json::array()))
        values.push_back(option["name"]);
    std::erase_if(values, [&](const json& value) {
        return std::any_of(m_limits.begin(), m_limits.end(), [&](const Limit& limit) {
            return limit.target == &feature && limit.test != nullptr && limit.kind != "info" &&
                   limit.kind != "conflict" && AllHold(limit) && Asks(feature, *limit.test, value);
        });
    });
    return !open && feature.node->IsSpecified() && values == std::vector<json>{Now(feature)};
}

std::string BruteForce::StateOfOption(const Feature& feature, const std::string& option) const
{
    std::set<char> letters;
    for (const Limit& limit : m_limits) {
        if (limit.target == &feature && limit.test != nullptr && AllHold(limit) &&
            Asks(feature, *limit.test, option))
            AddLetters(limit.kind, letters);
    }
    return InOrder(letters);
}

json BruteForce::DefaultOf(const Feature& feature) const
{
    const json rows = feature.json->value("defaults", json::array());
    for (const json& row : rows) {
        if (std::all_of(row["when"].begin(), row["when"].end(),
                        [&](const json& condition) { return Holds(*feature.list, condition); }))
            return Plain(*feature.json, row["value"]);
    }
    return rows.empty() ? json() : Plain(*feature.json, feature.json->value("default", json()));
}

void BruteForce::Compare(const Feature& feature, std::vector<std::string>& differences) const
{
    const std::string name = feature.node->GetId().Dump(false).ToUtf8();
    const auto differ = [&](const std::string& what, const std::string& ours,
                            const std::string& models) {
        if (ours != models)
            differences.push_back(name + what + ": expected \"" + ours + "\", the model says \"" +
                                  models + "\"");
    };
    const auto capabilities = feature.node->GetCapabilities();
    if (!feature.forced.is_null())
        differ(" value", feature.forced.dump(), feature.value.dump());
    differ("", StateOf(feature), Letters(capabilities->GetInterpretedState()));
    if (const auto* options = dynamic_cast<const OptionCapability*>(capabilities.get())) {
        for (std::size_t i = 0; i < options->GetNumberOfValues(); ++i) {
            const OptionWithState& option = options->GetOptionWithState(i);
            const std::string value = option.GetValueId().GetValueName().ToUtf8();
            differ("=" + value, StateOfOption(feature, value),
                   Letters(option.GetInterpretedState()));
        }
    }
    const json expected = DefaultOf(feature);
    o7::FeatureValue now;
    const auto* option = feature.node->GetDefaultValue(now) ? std::get_if<ValueId>(&now) : nullptr;
    if (!expected.is_null() && option != nullptr && feature.forced.is_null())
        differ(" default", expected, option->GetValueName().ToUtf8());
    for (const auto& member : feature.members)
        Compare(*member, differences);
}

} // namespace test

#include "packageanalysis.h"

#include "choices.h"
#include "datamodel.h"
#include "jsonfields.h"
#include "loadedpackage.h"
#include "rulespace.h"
#include "valuetext.h"

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace o7 {
namespace {

using Settings = RuleSpace::Settings;
using ValueSet = RuleSpace::ValueSet;
using Rule = RuleSpace::Rule;

/// How many steps a search for settings may take.
constexpr int kMostSteps = 20000;

/// Looks for settings in which none of some rules holds.
class EscapeSearch
{
public:
    explicit EscapeSearch(std::vector<const Rule*> rules) : m_rules(std::move(rules)) {}

    /// Also true when the search was too long to tell.
    bool Exists(const Settings& settings) { return Search(settings, 0); }

private:
    bool Search(const Settings& settings, std::size_t next)
    {
        if (++m_steps > kMostSteps)
            return true;
        while (next < m_rules.size() && !RuleSpace::CanHold(*m_rules[next], settings))
            ++next;
        if (next == m_rules.size())
            return true;
        // One of its conditions has to fail.
        for (const RuleSpace::Question& question : m_rules[next]->when) {
            Settings without = settings;
            bool any = false;
            ValueSet& values = without[question.feature];
            for (std::size_t i = 0; i < values.size(); ++i) {
                values[i] = values[i] && !question.holds[i];
                any = any || values[i];
            }
            if (any && Search(without, next + 1))
                return true;
        }
        return false;
    }

    std::vector<const Rule*> m_rules;
    int m_steps = 0;
};

bool IsChoice(const FeatureDescription& feature)
{
    return feature.kind == FeatureKind::Option || feature.kind == FeatureKind::Boolean;
}

std::string Names(const std::vector<const Rule*>& rules)
{
    std::set<std::string> names;
    for (const Rule* rule : rules)
        names.insert(rule->name);
    std::string text;
    for (const std::string& name : names)
        text.append(text.empty() ? "" : ", ").append(name);
    return text;
}

/// The checks of one list.
class ListAnalysis
{
public:
    ListAnalysis(const ListDescription& list, const std::vector<const ListDescription*>& outer,
                 std::vector<PackageFinding>& findings)
        : m_space(list, outer), m_findings(findings), m_possible(m_space.Everything())
    {
        for (const Rule& rule : m_space.Rules())
            m_limiting[rule.target].push_back(&rule);
    }

    void Run()
    {
        FindUnreachableOptions();
        FindRulesThatNeverHold();
        FindContradictions();
        FindCircles();
        FindDuplicates();
    }

private:
    void Add(PackageFindingKind kind, unsigned line, std::string message)
    {
        m_findings.push_back({kind, line, std::move(message)});
    }

    std::string NameOfFeature(std::size_t feature) const
    {
        return m_space.Domains()[feature].feature->name.ToUtf8();
    }
    std::string NameOfValue(std::size_t feature, std::size_t value) const
    {
        return PlainText(m_space.Domains()[feature].values[value]);
    }

    /// The rules that keep this value from being chosen.
    std::vector<const Rule*> Blocking(std::size_t feature, std::size_t value) const
    {
        std::vector<const Rule*> rules;
        const auto limiting = m_limiting.find(feature);
        if (limiting == m_limiting.end())
            return rules;
        for (const Rule* rule : limiting->second) {
            if (rule->Blocks() && rule->affected[value])
                rules.push_back(rule);
        }
        return rules;
    }

    void FindUnreachableOptions();
    bool IsUnreachable(std::size_t feature, std::size_t value) const;
    void FindRulesThatNeverHold();
    void FindContradictions();
    void FindContradictionsOf(std::size_t cause, std::size_t value);
    void FindCircles();
    bool FollowCircle(const Rule& rule, std::vector<const Rule*>& path);
    void FindDuplicates();

    RuleSpace m_space;
    std::vector<PackageFinding>& m_findings;
    Settings m_possible; ///< Without the options that are unreachable.
    std::map<std::size_t, std::vector<const Rule*>> m_limiting;
    std::set<const Rule*> m_followed;
};

bool ListAnalysis::IsUnreachable(std::size_t feature, std::size_t value) const
{
    const std::vector<const Rule*> rules = Blocking(feature, value);
    return !rules.empty() && !EscapeSearch(rules).Exists(m_possible);
}

void ListAnalysis::FindUnreachableOptions()
{
    const auto& domains = m_space.Domains();
    // What is unreachable holds no condition, and so may make more unreachable.
    for (bool again = true; again;) {
        again = false;
        for (std::size_t feature = 0; feature < domains.size(); ++feature) {
            // The first value is the default: nobody has to choose it.
            for (std::size_t value = 1; value < domains[feature].values.size(); ++value) {
                if (!IsChoice(*domains[feature].feature) || !m_possible[feature][value] ||
                    domains[feature].values[value].index() == 0 || !IsUnreachable(feature, value))
                    continue;
                m_possible[feature][value] = false;
                again = true;
                Add(PackageFindingKind::UnreachableOption, domains[feature].feature->line,
                    NameOfFeature(feature) + ": the value " + NameOfValue(feature, value) +
                        " can never be chosen; forbidden by " + Names(Blocking(feature, value)));
            }
        }
    }
}

void ListAnalysis::FindRulesThatNeverHold()
{
    std::set<std::string> told;
    for (const Rule& rule : m_space.Rules()) {
        if (!RuleSpace::CanHold(rule, m_possible) && told.insert(rule.name).second)
            Add(PackageFindingKind::NeverHolds, rule.line,
                rule.name + ": its conditions can never hold together");
    }
}

void ListAnalysis::FindContradictions()
{
    const auto& domains = m_space.Domains();
    for (std::size_t cause = 0; cause < domains.size(); ++cause) {
        for (std::size_t value = 0; value < domains[cause].values.size(); ++value) {
            if (m_possible[cause][value])
                FindContradictionsOf(cause, value);
        }
    }
}

void ListAnalysis::FindContradictionsOf(std::size_t cause, std::size_t value)
{
    for (const auto& [target, rules] : m_limiting) {
        ValueSet left = m_possible[target];
        std::vector<const Rule*> active;
        for (const Rule* rule : rules) {
            const bool holds = rule->when.size() == 1 && rule->when.front().feature == cause &&
                               rule->when.front().holds[value];
            if (!holds || !rule->Blocks() || rule->IsWhole())
                continue;
            active.push_back(rule);
            for (std::size_t i = 0; i < left.size(); ++i)
                left[i] = left[i] && !rule->affected[i] &&
                          m_space.Domains()[target].values[i].index() != 0;
        }
        if (active.empty() || !IsChoice(*m_space.Domains()[target].feature) ||
            std::find(left.begin(), left.end(), true) != left.end())
            continue;
        Add(PackageFindingKind::Contradiction, active.front()->line,
            Names(active) + ": with " + NameOfFeature(cause) + " " + NameOfValue(cause, value) +
                " no value of " + NameOfFeature(target) + " can be chosen");
    }
}

void ListAnalysis::FindCircles()
{
    for (const Rule& rule : m_space.Rules()) {
        std::vector<const Rule*> path;
        FollowCircle(rule, path);
    }
}

/// Whether the question about the target of a rule can hold while the rule is at work.
bool HoldsAfter(const Rule& rule, const RuleSpace::Question& question)
{
    if (rule.constraint->kind != EffectKind::Force ||
        rule.constraint->forced.side != ForcedValue::Side::None)
        return true;
    for (std::size_t i = 0; i < question.holds.size(); ++i) {
        if (question.holds[i] && !rule.affected[i])
            return true;
    }
    return false;
}

bool ListAnalysis::FollowCircle(const Rule& rule, std::vector<const Rule*>& path)
{
    // A cleared feature no longer fulfils conditions, so only these can hold each other.
    const bool locks = rule.Blocks() && rule.IsWhole() && rule.when.size() == 1 &&
                       rule.constraint->kind != EffectKind::Clear &&
                       RuleSpace::CanHold(rule, m_possible);
    if (!locks)
        return false;
    const auto start = std::find(path.begin(), path.end(), &rule);
    if (start != path.end()) {
        std::string text;
        for (auto step = start; step != path.end(); ++step)
            text += (*step)->name + " -> ";
        Add(PackageFindingKind::Circle, rule.line,
            text + rule.name + ": once these hold, none of their features can be changed any more");
        return true;
    }
    if (!m_followed.insert(&rule).second)
        return false;
    path.push_back(&rule);
    for (const Rule& next : m_space.Rules()) {
        if (!next.when.empty() && next.when.front().feature == rule.target &&
            HoldsAfter(rule, next.when.front()) && FollowCircle(next, path))
            return true;
    }
    path.pop_back();
    return false;
}

void ListAnalysis::FindDuplicates()
{
    using Conditions = std::set<std::pair<std::size_t, ValueSet>>;
    std::map<std::tuple<std::size_t, ValueSet, int, Conditions>, const Rule*> known;
    for (const Rule& rule : m_space.Rules()) {
        if (rule.constraint == nullptr)
            continue;
        Conditions conditions;
        for (const RuleSpace::Question& question : rule.when)
            conditions.emplace(question.feature, question.holds);
        const auto [first, fresh] =
            known.try_emplace({rule.target, rule.affected, static_cast<int>(rule.constraint->kind),
                               std::move(conditions)},
                              &rule);
        if (!fresh && first->second->name != rule.name)
            Add(PackageFindingKind::Duplicate, rule.line,
                rule.name + " says the same as " + first->second->name);
    }
}

void AnalyseFeature(const FeatureDescription& feature,
                    const std::vector<const ListDescription*>& outer,
                    std::vector<PackageFinding>& findings);

void AnalyseList(const ListDescription& list, const std::vector<const ListDescription*>& outer,
                 std::vector<PackageFinding>& findings)
{
    ListAnalysis(list, outer, findings).Run();
    std::vector<const ListDescription*> around{&list};
    around.insert(around.end(), outer.begin(), outer.end());
    for (const FeatureDescription& feature : list.features)
        AnalyseFeature(feature, around, findings);
}

void AnalyseFeature(const FeatureDescription& feature,
                    const std::vector<const ListDescription*>& outer,
                    std::vector<PackageFinding>& findings)
{
    if (feature.list)
        AnalyseList(*feature.list, outer, findings);
    if (feature.item)
        AnalyseFeature(*feature.item, outer, findings);
}

class NoStrings : public IStringSource
{
public:
    CXString LoadStringW(unsigned id) const override { return CXString::Formatted(L"#%u", id); }
};

void FindConflictsOfDefaults(const LoadedPackage& package, std::vector<PackageFinding>& findings)
{
    NoStrings strings;
    const DataModel model(package.GetDescription(), strings);
    for (const Constraint* broken : model.Engine().Broken()) {
        const FeatureDescription& target = broken->target->Description();
        findings.push_back({PackageFindingKind::DefaultConflict, target.line,
                            broken->id + " is broken by the defaults: " + target.name.ToUtf8() +
                                " starts as " + PlainText(broken->target->PresentValue())});
    }
}

/// Makes every single change that a person could make to the defaults.
class SingleChanges
{
public:
    SingleChanges(const LoadedPackage& package, std::vector<PackageFinding>& findings)
        : m_model(package.GetDescription(), m_strings), m_findings(findings)
    {
        const auto& broken = m_model.Engine().Broken();
        m_before.insert(broken.begin(), broken.end());
    }

    void Run() { PlayList(*m_model.FindNode(FeatureIdWithContext())); }

private:
    void PlayList(const FeatureNode& list)
    {
        for (const auto& feature : list.Children()) {
            if (feature->Description().list)
                PlayList(*feature);
            else if (IsPersons(*feature))
                Play(*feature);
        }
    }

    void Play(FeatureNode& feature)
    {
        const std::vector<FeatureValue> choices = Choices(feature);
        for (const FeatureValue& value : choices) {
            const auto transaction = m_model.OpenTransaction(CXString());
            const bool made =
                value.index() != 0 ? feature.SetValue(value) : feature.SetIsSpecified(false);
            for (const Constraint* broken : m_model.Engine().Broken()) {
                if (made && broken->target != &feature && m_before.count(broken) == 0)
                    Tell(feature, value, *broken);
            }
            transaction->Close(false);
        }
    }

    void Tell(const FeatureNode& feature, const FeatureValue& value, const Constraint& broken)
    {
        m_findings.push_back({PackageFindingKind::UntouchedConflict, feature.Description().line,
                              feature.Description().name.ToUtf8() + " " + PlainText(value) +
                                  " puts " + broken.target->Description().name.ToUtf8() + " " +
                                  PlainText(broken.target->PresentValue()) +
                                  ", which nobody has touched, in conflict: " + broken.id});
    }

    NoStrings m_strings;
    DataModel m_model;
    std::vector<PackageFinding>& m_findings;
    std::set<const Constraint*> m_before;
};

} // namespace

const char* NameOf(PackageFindingKind kind)
{
    switch (kind) {
    case PackageFindingKind::UnreachableOption:
        return "unreachable option";
    case PackageFindingKind::Contradiction:
        return "contradiction";
    case PackageFindingKind::Circle:
        return "circle";
    case PackageFindingKind::NeverHolds:
        return "never holds";
    case PackageFindingKind::Duplicate:
        return "duplicate";
    case PackageFindingKind::DefaultConflict:
        return "conflict of defaults";
    case PackageFindingKind::UntouchedConflict:
        return "conflict of an untouched setting";
    }
    return "";
}

std::vector<PackageFinding> AnalyseProductPackage(const ProductPackage& package)
{
    const auto& loaded = dynamic_cast<const LoadedPackage&>(package);
    std::vector<PackageFinding> findings;
    AnalyseList(loaded.GetDescription()->root, {}, findings);
    FindConflictsOfDefaults(loaded, findings);
    SingleChanges(loaded, findings).Run();
    std::sort(findings.begin(), findings.end(), [](const auto& a, const auto& b) {
        return std::tie(a.line, a.message) < std::tie(b.line, b.message);
    });
    return findings;
}

} // namespace o7

#include "rulespace.h"

#include "representatives.h"

#include <algorithm>
#include <deque>
#include <set>
#include <stdexcept>

namespace o7 {
namespace {

/// The answer for one value of the domain; monostate is no value.
bool Answer(const FeatureValue& value, const ValueTest& test, bool holdsWithoutValue)
{
    return value.index() == 0 ? holdsWithoutValue || test.MatchesNothing() : test.Matches(value);
}

void Narrow(RuleSpace::ValueSet& set, const RuleSpace::ValueSet& by)
{
    for (std::size_t i = 0; i < set.size(); ++i)
        set[i] = set[i] && by[i];
}

bool Meets(const RuleSpace::ValueSet& a, const RuleSpace::ValueSet& b)
{
    for (std::size_t i = 0; i < a.size(); ++i) {
        if (a[i] && b[i])
            return true;
    }
    return false;
}

} // namespace

bool RuleSpace::Rule::Blocks() const
{
    return constraint != nullptr && o7::Blocks(constraint->kind);
}

RuleSpace::RuleSpace(const ListDescription& list, const std::vector<const ListDescription*>& outer)
    : m_list(list), m_outer(outer)
{
    const std::vector<Source> sources = Sources();
    MakeDomains(sources);
    for (const Source& source : sources)
        m_rules.push_back(MakeRule(source));
}

std::vector<RuleSpace::Source> RuleSpace::Sources() const
{
    std::vector<Source> sources;
    for (const ConstraintDescription& constraint : m_list.constraints) {
        sources.push_back({&constraint.when, &constraint, &Find(constraint.target), constraint.id,
                           constraint.line});
    }
    for (const FeatureDescription& feature : m_list.features) {
        for (const AdaptingDefault& row : feature.defaults)
            sources.push_back(
                {&row.when, nullptr, &feature, "default of " + feature.name.ToUtf8(), row.line});
    }
    return sources;
}

const FeatureDescription& RuleSpace::Find(FeatureEnum number) const
{
    if (const auto* own = m_list.Find(number))
        return *own;
    for (const ListDescription* list : m_outer) {
        if (const auto* found = list->Find(number))
            return *found;
    }
    throw std::logic_error("a checked package names a feature that it does not have");
}

void RuleSpace::MakeDomains(const std::vector<Source>& sources)
{
    std::map<const FeatureDescription*, std::vector<const ValueTest*>> tests;
    std::deque<ValueTest> forced;
    std::set<const FeatureDescription*> cleared;
    for (const Source& source : sources) {
        auto& own = tests[source.target];
        if (source.constraint != nullptr) {
            own.push_back(&source.constraint->affected);
            if (source.constraint->kind == EffectKind::Clear)
                cleared.insert(source.target);
            if (source.constraint->forced.value.index() != 0)
                own.push_back(&forced.emplace_back(
                    ValueTest{DataModelIds::kEqual, {source.constraint->forced.value}}));
        }
        for (const ConditionDescription& condition : *source.when)
            tests[&Find(condition.feature)].push_back(&condition.test);
    }
    for (const auto& [feature, asked] : tests) {
        Domain domain{feature, Representatives(*feature, asked)};
        const bool hasNothing = std::find(domain.values.begin(), domain.values.end(),
                                          FeatureValue()) != domain.values.end();
        if (cleared.count(feature) != 0 && !hasNothing)
            domain.values.emplace_back();
        m_index[feature] = m_domains.size();
        m_domains.push_back(std::move(domain));
    }
}

RuleSpace::Rule RuleSpace::MakeRule(const Source& source) const
{
    Rule rule{source.name, source.line, {}, source.constraint, m_index.at(source.target), {}};
    for (const ConditionDescription& condition : *source.when) {
        const std::size_t feature = m_index.at(&Find(condition.feature));
        ValueSet holds;
        for (const FeatureValue& value : m_domains[feature].values)
            holds.push_back(Answer(value, condition.test, condition.holdsWithoutValue));
        const auto known = std::find_if(rule.when.begin(), rule.when.end(),
                                        [&](const auto& q) { return q.feature == feature; });
        if (known != rule.when.end())
            Narrow(known->holds, holds);
        else
            rule.when.push_back({feature, std::move(holds)});
    }
    if (source.constraint != nullptr) {
        for (const FeatureValue& value : m_domains[rule.target].values)
            rule.affected.push_back(source.constraint->kind == EffectKind::Force
                                        ? value != source.constraint->forced.value
                                        : rule.IsWhole() ||
                                              source.constraint->affected.Matches(value));
    }
    return rule;
}

RuleSpace::Settings RuleSpace::Everything() const
{
    Settings settings;
    for (const Domain& domain : m_domains) {
        ValueSet all(domain.values.size(), !domain.feature->flags.readOnly);
        all.front() = true; // the default
        settings.push_back(std::move(all));
    }
    return settings;
}

bool RuleSpace::CanHold(const Rule& rule, const Settings& settings)
{
    return std::all_of(rule.when.begin(), rule.when.end(), [&](const Question& question) {
        return Meets(question.holds, settings[question.feature]);
    });
}

} // namespace o7

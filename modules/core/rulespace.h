#pragma once

#include "description.h"

#include <map>
#include <string>
#include <vector>

namespace o7 {

/// The constraints of one list as sets of values, for reasoning about all settings at once. Every
/// feature that they read or limit has a domain of representative values; a set of values is a bit
/// for each of them.
class RuleSpace
{
public:
    using ValueSet = std::vector<bool>;
    /// For each feature the values that it may have.
    using Settings = std::vector<ValueSet>;

    struct Domain
    {
        const FeatureDescription* feature = nullptr;
        std::vector<FeatureValue> values; ///< monostate: none.
    };
    struct Question
    {
        std::size_t feature = 0;
        ValueSet holds;
    };
    struct Rule
    {
        std::string name;
        unsigned line = 0;
        std::vector<Question> when; ///< A feature at most once.
        /// None for a row of adapting defaults.
        const ConstraintDescription* constraint = nullptr;
        std::size_t target = 0;
        /// Of a constraint on the whole feature all; of a forcing one all but what it forces.
        ValueSet affected;

        bool IsWhole() const { return constraint->affected.values.empty(); }
        bool Blocks() const;
    };

    /// `outer` is the list around `list`, and so on outwards; borrowed.
    RuleSpace(const ListDescription& list, const std::vector<const ListDescription*>& outer);

    const std::vector<Domain>& Domains() const { return m_domains; }
    const std::vector<Rule>& Rules() const { return m_rules; }

    /// Every value of every feature; of a read-only one its default.
    Settings Everything() const;
    /// Whether all conditions of the rule can hold within the settings.
    static bool CanHold(const Rule& rule, const Settings& settings);

private:
    struct Source
    {
        const std::vector<ConditionDescription>* when = nullptr;
        const ConstraintDescription* constraint = nullptr;
        const FeatureDescription* target = nullptr;
        std::string name;
        unsigned line = 0;
    };

    std::vector<Source> Sources() const;
    const FeatureDescription& Find(FeatureEnum number) const;
    void MakeDomains(const std::vector<Source>& sources);
    Rule MakeRule(const Source& source) const;

    const ListDescription& m_list;
    const std::vector<const ListDescription*>& m_outer;
    std::map<const FeatureDescription*, std::size_t> m_index;
    std::vector<Domain> m_domains;
    std::vector<Rule> m_rules;
};

} // namespace o7

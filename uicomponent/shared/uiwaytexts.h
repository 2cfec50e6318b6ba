#pragma once

#include <initializer_list>
#include <vector>

#include "changeproposal.h"
#include "istringsource.h"
#include "statereason.h"
#include "uiregionalsettings.h"

class FeatureServices;

/// Says what a change of settings does, in the product's own words: "Turn Booklet on", "Sides
/// becomes Two-sided, long edge".
class UIWayTexts
{
public:
    /// Both are borrowed.
    UIWayTexts(FeatureServices& featureServices, const IStringSource& strings,
               const UIRegionalSettings& regional)
        : m_featureServices(featureServices), m_strings(strings), m_regional(regional)
    {
    }

    /// What the person would do, as a verb.
    CXString verb(const o7::SettingChange& change) const;
    /// What comes of it for a setting; empty where there is nothing to tell.
    CXString outcome(const o7::Consequence& consequence) const;

    /// The first change as a verb, and all that follows from it.
    CXString sentence(const o7::Alternative& alternative,
                      const std::vector<o7::Consequence>& consequences) const;
    /// A sentence for each: the changes as verbs, then what follows from them.
    std::vector<CXString> lines(const o7::Alternative& alternative,
                                const std::vector<o7::Consequence>& consequences) const;

private:
    struct Patterns;
    CXString worded(const FeatureIdWithContext& feature, const o7::FeatureValue& value,
                    const Patterns& patterns) const;
    CXString filledIn(unsigned pattern, std::initializer_list<CXString> texts) const;
    CXString valueText(const FeatureIdWithContext& feature, const o7::FeatureValue& value) const;
    CXString lengthText(const Dimension& length) const;
    bool losesItsEffect(const o7::Consequence& consequence) const;

    FeatureServices& m_featureServices;
    const IStringSource& m_strings;
    UIRegionalSettings m_regional;
};

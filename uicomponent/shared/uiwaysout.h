#pragma once

#include <vector>

#include "changeproposal.h"
#include "istringsource.h"
#include "uiregionalsettings.h"
#include "uiwaysearch.h"
#include "uiwaytexts.h"

class FeatureServices;

namespace o7 {

/// One way out: what it is called, consequences included, and what it writes.
struct WayOut
{
    CXString sentence;
    Alternative alternative;
};

/// How conflicts can be settled all at once.
struct Settlement
{
    std::vector<CXString> lines; ///< what is done: a sentence for each setting that changes
    Alternative alternative;     ///< without changes where nothing helps
    std::vector<FeatureIdWithContext> left; ///< what stays in conflict all the same
};

} // namespace o7

/// The ways out that are offered for a setting in conflict, or one that cannot be chosen: as verbs
/// with their exact consequences. Only what helps is offered, and only changes that the person
/// could make in the same place: installed options where the printer is set up, settings of the job
/// elsewhere. Knows no window; everything is asked of the model when it is wanted.
class UIWaysOut
{
public:
    /// Both are borrowed.
    UIWaysOut(FeatureServices& featureServices, const IStringSource& strings,
              const UIRegionalSettings& regional)
        : m_featureServices(featureServices), m_texts(featureServices, strings, regional)
    {
    }

    /// Out of the feature's conflict; without one, back to where it can be chosen. What changes
    /// least comes first. Empty for a feature that is free, and where nothing helps.
    std::vector<o7::WayOut> of(const FeatureIdWithContext& feature) const;
    /// To choosing an entry that is grey now.
    std::vector<o7::WayOut> toEntry(const FeatureIdWithContext& feature,
                                    const ValueId& entry) const;
    /// Out of all these conflicts, each by what settles most of the others as well.
    o7::Settlement settle(const std::vector<FeatureIdWithContext>& conflicts) const;

    /// Makes the changes, as one transaction. False, and nothing changed, when a setting does not
    /// take its value any more.
    bool carryOut(const o7::Alternative& way) const;

private:
    FeatureServices& m_featureServices;
    UIWayTexts m_texts;
};

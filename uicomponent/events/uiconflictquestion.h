#pragma once

#include <windows.h>

#include <utility>
#include <vector>

#include "featureidwithcontext.h"
#include "uimode.h"

class CXString;
class FeatureServices;
class ProductStringLoader;
class UIServices;
namespace o7 {
struct Settlement;
}

/// What stands between settings in conflict and their being accepted: one question, about all of
/// them. Settling carries out what is proposed, keeping is remembered for exactly these conflicts:
/// the next time only a new one is a reason to ask.
class UIConflictQuestion
{
public:
    using Features = std::vector<FeatureIdWithContext>;

    enum class Answer
    {
        GoOn,    ///< nothing to ask, or to be kept
        Settled, ///< settings were changed; they may ask for others now
        GoBack
    };

    /// All borrowed. @param mode  where the printer itself is set up, jobs' settings do not count
    UIConflictQuestion(FeatureServices& featureServices, const ProductStringLoader& strings,
                       const UIServices& services, UIMode mode);

    /// @param conflicts  in the order in which they are shown
    Answer ask(HWND owner, const Features& conflicts);
    /// The first conflict that was asked about; where to go back to.
    const FeatureIdWithContext& getFirst() const { return m_first; }

private:
    using Conflict = std::pair<FeatureIdWithContext, CXString>; ///< and its sentences

    std::vector<Conflict> openOnes(const Features& conflicts) const;
    bool isNew(const std::vector<Conflict>& open) const;
    CXString textOf(const std::vector<Conflict>& open, const o7::Settlement& settlement) const;

    FeatureServices& m_featureServices;
    const ProductStringLoader& m_strings;
    const UIServices& m_services;
    const UIMode m_mode;
    std::vector<Conflict> m_kept;
    FeatureIdWithContext m_first;
};

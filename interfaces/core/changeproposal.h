#pragma once

#include "interpretedstate.h"
#include "statereason.h"

#include <vector>

namespace o7 {

enum class AlternativeKind
{
    KeepNew,       ///< The new value stays; other settings give way.
    KeepOld,       ///< Nothing changes.
    SmallestOther, ///< The new value stays and different settings give way, as few as possible; or,
                   ///< where there is no such way, the nearest value that clashes with nothing.
};

/// One way to settle a change, as the settings to be written, the changed feature's first.
struct Alternative
{
    AlternativeKind kind = AlternativeKind::KeepOld;
    std::vector<SettingChange> changes;
};

/// One rule that the change would break.
struct ProposedConflict
{
    FeatureIdWithContext limited;
    std::vector<FeatureIdWithContext> causes;
    CXString sentence;
};

/// The answer to "what if": found on the model and taken back; nothing changed and nobody was told.
struct ChangeProposal
{
    FeatureIdWithContext feature;
    /// False when the feature never takes the value: unknown, out of range, read-only. There are no
    /// alternatives then.
    bool possible = false;
    /// Those that are not broken already; empty when the change can simply be made.
    std::vector<ProposedConflict> conflicts;
    /// Keep the new (where a way was found), keep the old, and the smallest other change if there
    /// is one. The search is bounded. Installed options and what the device reports never give way.
    std::vector<Alternative> alternatives;
};

/// What an alternative does to one feature: every one whose value or state differs afterwards.
struct Consequence
{
    FeatureIdWithContext feature;
    FeatureValue before;
    FeatureValue after; ///< Equal to `before` where only the state differs.
    InterpretedState stateBefore;
    InterpretedState stateAfter;
};

} // namespace o7

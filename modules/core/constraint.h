#pragma once

#include "description.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace o7 {

class FeatureNode;

/// One constraint at work, or one row of a default that adapts: bound to the features of one list,
/// with its present answer. Owned by that list or feature, or by the model when it was added at run
/// time. What the engine touches at each change stands first.
struct alignas(64) Constraint
{
    struct Cause
    {
        std::shared_ptr<FeatureNode> feature;
        ValueTest test;
        bool holdsWithoutValue = false;

        bool Holds() const;
    };

    static constexpr int kNoRow = -1;
    static constexpr std::uint32_t kNotBroken = ~0U;
    static constexpr std::size_t kNoSource = ~std::size_t{0};

    FeatureNode* target = nullptr;
    std::uint64_t affectedCodes = 0; ///< Of a target that has codes.
    unsigned unmet = 0;              ///< Conditions that do not hold.
    EffectKind kind = EffectKind::Disable;
    bool active = false;
    bool onList = false;       ///< The target is a list: its members are limited with it.
    bool whole = true;         ///< The feature as a whole is affected, not some of its values.
    bool hit = false;          ///< Active, and the target's value is one that is affected.
    bool linked = false;       ///< Hangs on the features that it reads and limits.
    bool toggled = false;      ///< In the change under way ...
    bool activeBefore = false; ///< ... and what it was before that.
    std::uint32_t brokenAt = kNotBroken; ///< Where the engine's list of broken ones has it.
    std::uint64_t seen = 0;              ///< A mark of the conflict resolver.
    int defaultRow = kNoRow; ///< For a row of adapting defaults which one; it has no effect.

    unsigned reason = 0;
    std::string id;
    std::vector<Cause> when;
    ValueTest affected;
    ForcedValue forced;
    std::shared_ptr<FeatureNode> targetOwner; ///< Keeps the target.

    bool Affects(const FeatureValue& value) const { return affected.Matches(value); }
    /// Whether an affected value cannot be chosen while the constraint is active.
    bool Blocks() const { return o7::Blocks(kind); }
    /// Two of the person's choices clash; one that is without effect clashes with none.
    bool IsBroken() const;
    /// Of a forcing one while it is active: what it makes of its target.
    FeatureValue Forced() const;
    /// The condition whose feature's value, not only whether it holds, decides what is forced.
    std::size_t SourceOfForced() const
    {
        return forced.side == ForcedValue::Side::None ? kNoSource : when.size() - 1;
    }
};

/// The order in which constraints are told: by reason, then by id; nothing that depends on the
/// order of loading.
bool ComesBefore(const Constraint* a, const Constraint* b);

} // namespace o7

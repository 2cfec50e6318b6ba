#pragma once

#include "featurenode.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace o7 {

/// What about a feature changed; combined as bits.
enum ChangeBits : unsigned
{
    kValueBit = 1,
    kStateBit = 2,
};

struct Change
{
    std::shared_ptr<FeatureNode> feature;
    unsigned bits = 0;
};

/// The open transactions, innermost last: for each what changed, and how to take it back. Below
/// them lies a base level that gathers changes made outside any transaction and takes nothing back.
class ChangeLog
{
public:
    struct Undo
    {
        enum class Kind
        {
            Value,
            ItemCreated,
            ItemDeleted,
        };

        Kind kind = Kind::Value;
        std::shared_ptr<FeatureNode> feature; ///< What changed; for items the list.
        FeatureValue value;
        bool specified = false;
        std::shared_ptr<FeatureNode> item;
        std::size_t index = 0;
    };

    struct Level
    {
        std::uint64_t id = 0;
        std::vector<Change> changes;
        std::vector<Undo> undo;
    };

    ChangeLog();

    /// Notes a change on the innermost level; once per feature and level.
    void Note(FeatureNode& feature, unsigned bits);
    /// Records how to take a change back; forgotten at once outside transactions.
    void Record(Undo undo);

    /// The id of the new level; never 0.
    std::uint64_t Open();
    bool IsOpen(std::uint64_t id) const;
    bool IsAnyOpen() const { return m_levels.size() > 1; }
    Level& Innermost() { return m_levels.back(); }
    /// Removes the innermost transaction. With `keep` its undo records go to the level below.
    std::vector<Change> Pop(bool keep);
    /// Takes what the base level has gathered.
    std::vector<Change> TakeBase();
    /// Puts changes back for a later delivery.
    void ReturnToBase(std::vector<Change> changes);

private:
    std::uint64_t m_nextId = 1;
    std::vector<Level> m_levels;
};

} // namespace o7

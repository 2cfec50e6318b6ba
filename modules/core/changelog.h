#pragma once

#include "featurevalue.h"
#include "room.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace o7 {

class FeatureNode;

/// What about a feature changed; combined as bits.
enum ChangeBits : unsigned
{
    kValueBit = 1,
    kStateBit = 2,
};

/// The feature stays in memory until the change was told, also where it was deleted meanwhile.
struct Change
{
    FeatureNode* feature = nullptr;
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
        FeatureNode* feature = nullptr; ///< What changed; for items the list.
        FeatureValue value;
        bool specified = false;
        bool followsDefault = false;
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

    /// To be told of each feature, with those below it, before it is first noted. Makes the room
    /// that noting it, and burying it, takes: neither fails then.
    void Expect(const FeatureNode& feature);

    /// Notes a change on the innermost level; once per feature and level.
    void Note(FeatureNode& feature, unsigned bits);
    /// Records how to take a change back; to be asked for with IsRecording() first, because outside
    /// transactions nothing is taken back.
    Undo& Record(Undo undo)
    {
        m_levels.back().undo.push_back(std::move(undo));
        return m_levels.back().undo.back();
    }
    /// The next Record() will not fail.
    void MakeRoomForRecord() { MakeRoom(m_levels.back().undo, m_levels.back().undo.size() + 1); }
    bool IsRecording() const { return IsAnyOpen() && !m_muted; }
    /// Keeps an item that was deleted until nothing speaks of it any more.
    void Bury(std::shared_ptr<FeatureNode> item);
    /// The item is in its list again.
    void Exhume(const std::shared_ptr<FeatureNode>& item);
    void ReleaseBuried();

    /// While muted, changes are neither noted nor recorded: somebody tries something and takes it
    /// back by itself.
    void SetMuted(bool muted) { m_muted = muted; }

    /// The id of the new level; never 0.
    std::uint64_t Open();
    bool IsOpen(std::uint64_t id) const;
    bool IsAnyOpen() const { return m_levels.size() > 1; }
    Level& Innermost() { return m_levels.back(); }
    /// Takes the innermost level's records of how to take it back.
    std::vector<Undo> TakeUndo() { return std::exchange(m_levels.back().undo, {}); }
    /// Removes the innermost transaction. With `keep` its undo records go to the level below; that
    /// may fail, and then the transaction is still open.
    std::vector<Change> Pop(bool keep);
    /// Hands a delivered list back, so that the next level need not allocate one.
    void Recycle(std::vector<Change> changes);
    /// Takes what the base level has gathered; when that fails, it is still there.
    std::vector<Change> TakeBase();
    /// Puts changes back for a later delivery.
    void ReturnToBase(const std::vector<Change>& changes);

private:
    static void NoteIn(Level& level, FeatureNode& feature, unsigned bits);
    /// Makes the marks in the features those of this level again.
    static void MarkIn(const Level& level);

    std::uint64_t m_nextId = 1;
    bool m_muted = false;
    std::vector<Level> m_levels;
    std::vector<std::shared_ptr<FeatureNode>> m_buried;
    std::size_t m_features = 0; ///< That can be noted: those in the tree, and the buried ones.
    Level m_spare;              ///< Empty lists with their memory.
};

} // namespace o7

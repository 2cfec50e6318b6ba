#pragma once

#include "blockbytes.h"
#include "idatamodel.h"
#include "settingssnapshot.h"

#include <cstddef>
#include <cstdint>

namespace o7 {

/// What the entries of a settings block say they are; part of the format.
enum class EntryKind : std::uint8_t
{
    Unspecified = 0,
    Option = 1,
    Integer = 2,
    String = 3,
    Boolean = 4,
    Range = 5,
    Dimension = 6,
    ListOfFeatures = 7,
    ListOfValues = 8,
    Scrambled = 9, ///< An entry of another kind, made unreadable.
};

EntryKind EntryKindOf(FeatureKind kind);
/// Unsupported for numbers that are no kind of a feature.
FeatureKind FeatureKindOf(EntryKind kind);

/// Reads the payload of a settings block (version 2) over settings that are there:
///
///     members:  { number, size << 4 | kind, <size> bytes of the entry }...
///     items:    { size << 5 | kind << 1 | repeated, [count,] <size> bytes of the entry }...
///
/// All numbers are of variable length.
class SettingsBlockReader
{
public:
    /// @param version  of the package that wrote the block.
    SettingsBlockReader(unsigned version, SettingsScope scope) : m_version(version), m_scope(scope)
    {
    }

    /// False when the bytes are no members.
    bool ReadMembers(const ListDescription& list, BlockReader in, SettingsSnapshot& settings);
    /// The same for a block of version 1, where neither entries nor items say their kind.
    bool ReadMembersV1(const ListDescription& list, BlockReader in, SettingsSnapshot& settings);

private:
    void ReadEntry(const FeatureDescription& description, EntryKind kind, BlockReader in,
                   SettingsSnapshot& settings);
    void ReadItems(const FeatureDescription& list, BlockReader in, SettingsSnapshot& settings);
    void ReadEntryV1(const FeatureDescription& description, BlockReader in,
                     SettingsSnapshot& settings);
    /// The member that an entry is for and that is to be taken; null without one.
    const FeatureDescription* Member(const ListDescription& list, std::uint64_t number,
                                     std::size_t& index) const;
    /// Null when the list takes no further item.
    SettingsSnapshot* AddItem(const FeatureDescription& list, SettingsSnapshot& settings);

    unsigned m_version;
    SettingsScope m_scope;
    /// No more would fit: a few bytes may stand for many items inside many items.
    std::size_t m_itemsLeft = kSettingsBlockLimit;
};

} // namespace o7

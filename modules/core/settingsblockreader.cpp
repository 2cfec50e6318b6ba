#include "settingsblockreader.h"

#include "blockvalue.h"
#include "scrambling.h"
#include "settingsscope.h"

#include <utility>
#include <vector>

namespace o7 {
namespace {

constexpr std::pair<EntryKind, FeatureKind> kKinds[] = {
    {EntryKind::Option, FeatureKind::Option},
    {EntryKind::Integer, FeatureKind::Integer},
    {EntryKind::String, FeatureKind::String},
    {EntryKind::Boolean, FeatureKind::Boolean},
    {EntryKind::Range, FeatureKind::Range},
    {EntryKind::Dimension, FeatureKind::Dimension},
    {EntryKind::ListOfFeatures, FeatureKind::ListOfFeatures},
    {EntryKind::ListOfValues, FeatureKind::ListOfValues},
};

EntryKind KindIn(std::uint64_t bits)
{
    return static_cast<EntryKind>(bits & 0xFU);
}

} // namespace

EntryKind EntryKindOf(FeatureKind kind)
{
    for (const auto& [entry, feature] : kKinds) {
        if (feature == kind)
            return entry;
    }
    return EntryKind::Unspecified;
}

FeatureKind FeatureKindOf(EntryKind kind)
{
    for (const auto& [entry, feature] : kKinds) {
        if (entry == kind)
            return feature;
    }
    return FeatureKind::Unsupported;
}

const FeatureDescription* SettingsBlockReader::Member(const ListDescription& list,
                                                      std::uint64_t number,
                                                      std::size_t& index) const
{
    index = list.IndexAt(m_version, number);
    if (index == ListDescription::kNotThere)
        return nullptr;
    const FeatureDescription& member = list.features[index];
    return member.loadedFromTicket && Travels(member, m_scope) ? &member : nullptr;
}

SettingsSnapshot* SettingsBlockReader::AddItem(const FeatureDescription& list,
                                               SettingsSnapshot& settings)
{
    if (settings.children.size() >= list.maxItems || m_itemsLeft == 0)
        return nullptr;
    --m_itemsLeft;
    return &settings.children.emplace_back(DefaultSettings(*list.item));
}

bool SettingsBlockReader::ReadMembers(const ListDescription& list, BlockReader in,
                                      SettingsSnapshot& settings)
{
    while (!in.AtEnd()) {
        std::uint64_t number = 0;
        std::uint64_t head = 0;
        BlockReader entry;
        if (!in.Unsigned(number) || !in.Unsigned(head) || !in.Block(head >> 4U, entry))
            return false;
        std::size_t index = 0;
        if (const auto* member = Member(list, number, index))
            ReadEntry(*member, KindIn(head), entry, settings.children[index]);
    }
    return true;
}

void SettingsBlockReader::ReadEntry(const FeatureDescription& description, EntryKind kind,
                                    BlockReader in, SettingsSnapshot& settings)
{
    std::vector<std::uint8_t> plain;
    if (kind == EntryKind::Scrambled) {
        if (!Unscramble(in.At(), in.Left(), plain) || plain.empty())
            return;
        kind = static_cast<EntryKind>(plain.front());
        in = BlockReader(plain.data() + 1, plain.size() - 1);
    }
    const bool isLeaf = !description.item && !description.list;
    if (kind == EntryKind::Unspecified) {
        if (isLeaf && !description.flags.required && in.AtEnd())
            settings.Choose({});
    } else if (FeatureKindOf(kind) != description.kind) {
        return; // of another kind than it was
    } else if (description.item) {
        ReadItems(description, in, settings);
    } else if (description.list) {
        ReadMembers(*description.list, in, settings);
    } else {
        TakeValue(description, description.kind, in, m_version, settings);
    }
}

void SettingsBlockReader::ReadItems(const FeatureDescription& list, BlockReader in,
                                    SettingsSnapshot& settings)
{
    settings.children.clear();
    while (!in.AtEnd()) {
        std::uint64_t head = 0;
        std::uint64_t count = 1;
        BlockReader entry;
        if (!in.Unsigned(head) || ((head & 1U) != 0 && !in.Unsigned(count)) ||
            !in.Block(head >> 5U, entry))
            return;
        for (; count > 0; --count) {
            SettingsSnapshot* const item = AddItem(list, settings);
            if (item == nullptr)
                return;
            ReadEntry(*list.item, KindIn(head >> 1U), entry, *item);
        }
    }
}

bool SettingsBlockReader::ReadMembersV1(const ListDescription& list, BlockReader in,
                                        SettingsSnapshot& settings)
{
    while (!in.AtEnd()) {
        std::uint64_t number = 0;
        std::uint64_t size = 0;
        BlockReader entry;
        if (!in.Unsigned(number) || !in.Unsigned(size) || !in.Block(size, entry))
            return false;
        std::size_t index = 0;
        if (const auto* member = Member(list, number, index))
            ReadEntryV1(*member, entry, settings.children[index]);
    }
    return true;
}

void SettingsBlockReader::ReadEntryV1(const FeatureDescription& description, BlockReader in,
                                      SettingsSnapshot& settings)
{
    if (description.list) {
        ReadMembersV1(*description.list, in, settings);
        return;
    }
    if (description.item) {
        settings.children.clear();
        std::uint64_t size = 0;
        BlockReader entry;
        while (in.Unsigned(size) && in.Block(size, entry)) {
            SettingsSnapshot* const item = AddItem(description, settings);
            if (item == nullptr)
                return;
            ReadEntryV1(*description.item, entry, *item);
        }
        return;
    }
    std::uint8_t specified = 0;
    if (!in.Byte(specified) || specified > 1)
        return;
    if (specified == 1)
        TakeValue(description, description.kind, in, m_version, settings);
    else if (!description.flags.required && in.AtEnd())
        settings.Choose({});
}

} // namespace o7

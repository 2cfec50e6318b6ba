#include "settingsblock.h"

#include "blockvalue.h"
#include "crc32.h"
#include "scrambling.h"
#include "settingsblockreader.h"
#include "settingsscope.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace o7 {
namespace {

constexpr std::string_view kMagic = "O7SB";
constexpr std::uint16_t kVersion = 2;
constexpr std::uint16_t kFirstVersion = 1;
constexpr std::size_t kHeaderSize = 20;

struct Entry
{
    EntryKind kind = EntryKind::Unspecified;
    std::vector<std::uint8_t> bytes;

    friend bool operator==(const Entry&, const Entry&) = default;
};

/// Writes what SettingsBlockReader reads.
class SettingsBlockWriter
{
public:
    explicit SettingsBlockWriter(SettingsScope scope) : m_scope(scope) {}

    std::vector<std::uint8_t> Members(const ListDescription& list,
                                      const SettingsSnapshot& settings) const
    {
        BlockWriter out;
        for (std::size_t i = 0; i < list.features.size(); ++i) {
            const FeatureDescription& member = list.features[i];
            const SettingsSnapshot& child = settings.children[i];
            if (!member.savedInTicket || !Travels(member, m_scope) || IsDefault(member, child))
                continue;
            const Entry entry = EntryOf(member, child);
            if (member.list && entry.bytes.empty())
                continue; // what differs is of another scope
            out.Unsigned(static_cast<std::uint64_t>(member.number));
            out.Unsigned(std::uint64_t{entry.bytes.size()} << 4U |
                         static_cast<std::uint64_t>(entry.kind));
            out.Append(entry.bytes);
        }
        return out.Take();
    }

private:
    Entry EntryOf(const FeatureDescription& description, const SettingsSnapshot& settings) const
    {
        if (description.item)
            return {EntryKind::ListOfValues, Items(*description.item, settings)};
        if (description.list)
            return {EntryKind::ListOfFeatures, Members(*description.list, settings)};
        const bool specified = settings.value.index() != 0;
        const EntryKind kind = specified ? EntryKindOf(description.kind) : EntryKind::Unspecified;
        BlockWriter out;
        if (description.flags.secret)
            out.Fixed(static_cast<std::uint32_t>(kind), 1);
        WriteValue(settings.value, out);
        if (description.flags.secret)
            return {EntryKind::Scrambled, Scramble(out.Bytes())};
        return {kind, out.Take()};
    }

    /// Equal items behind one another are written once.
    std::vector<std::uint8_t> Items(const FeatureDescription& item,
                                    const SettingsSnapshot& settings) const
    {
        BlockWriter out;
        Entry run;
        std::uint64_t count = 0;
        const auto end = [&] {
            if (count == 0)
                return;
            out.Unsigned(std::uint64_t{run.bytes.size()} << 5U |
                         static_cast<std::uint64_t>(run.kind) << 1U | (count > 1 ? 1U : 0U));
            if (count > 1)
                out.Unsigned(count);
            out.Append(run.bytes);
            count = 0;
        };
        for (const SettingsSnapshot& child : settings.children) {
            Entry entry = EntryOf(item, child);
            if (!(entry == run))
                end();
            run = std::move(entry);
            ++count;
        }
        end();
        return out.Take();
    }

    SettingsScope m_scope;
};

std::size_t UnsignedSize(std::uint64_t value)
{
    BlockWriter out;
    out.Unsigned(value);
    return out.Bytes().size();
}

std::size_t LongestMembers(const ListDescription& list, const SettingsSnapshot& settings)
{
    std::size_t size = 0;
    for (std::size_t i = 0; i < list.features.size(); ++i) {
        const FeatureDescription& member = list.features[i];
        if (member.savedInTicket && member.IsKept())
            size += UnsignedSize(static_cast<std::uint64_t>(member.number)) +
                    LongestEntry(member, settings.children[i]);
    }
    return size;
}

} // namespace

std::size_t LongestEntry(const FeatureDescription& description, const SettingsSnapshot& settings)
{
    std::size_t size = 0;
    if (description.item) {
        for (const SettingsSnapshot& item : settings.children)
            size += LongestEntry(*description.item, item);
    } else if (description.list) {
        size = LongestMembers(*description.list, settings);
    } else {
        size = LongestValue(description, settings);
        if (description.flags.secret)
            size = ScrambledSize(1 + size);
    }
    // The larger of the two kinds of heads.
    return UnsignedSize(std::uint64_t{size} << 5U) + size;
}

std::size_t LongestBlock(const ProductDescription& product, const SettingsSnapshot& settings)
{
    return kHeaderSize + UnsignedSize(product.version) + LongestMembers(product.root, settings);
}

std::vector<std::uint8_t> EncodeSettings(const ProductDescription& product,
                                         const SettingsSnapshot& settings, SettingsScope scope)
{
    BlockWriter content;
    content.Unsigned(product.version);
    content.Append(SettingsBlockWriter(scope).Members(product.root, settings));
    const std::vector<std::uint8_t> payload = content.Take();
    BlockWriter block;
    block.Text(kMagic);
    block.Fixed(kVersion, 2);
    block.Fixed(0, 2);
    block.Fixed(Crc32(product.info.uniqueId.ToUtf8()), 4);
    block.Fixed(static_cast<std::uint32_t>(payload.size()), 4);
    block.Fixed(Crc32(payload.data(), payload.size()), 4);
    block.Append(payload);
    return block.Take();
}

bool DecodeSettings(const ProductDescription& product, const std::uint8_t* bytes, std::size_t size,
                    SettingsScope scope, SettingsSnapshot& settings)
{
    if (bytes == nullptr || size < kHeaderSize ||
        !std::equal(kMagic.begin(), kMagic.end(), bytes,
                    [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; }))
        return false;
    BlockReader in(bytes + kMagic.size(), size - kMagic.size());
    std::uint32_t version = 0;
    std::uint32_t reserved = 0;
    std::uint32_t owner = 0;
    std::uint32_t length = 0;
    std::uint32_t sum = 0;
    const bool sound = in.Fixed(version, 2) && in.Fixed(reserved, 2) && in.Fixed(owner, 4) &&
                       in.Fixed(length, 4) && in.Fixed(sum, 4) && reserved == 0 &&
                       owner == Crc32(product.info.uniqueId.ToUtf8()) && length <= in.Left() &&
                       sum == Crc32(bytes + kHeaderSize, length);
    if (!sound)
        return false;
    BlockReader payload(bytes + kHeaderSize, length);
    if (version == kFirstVersion)
        return SettingsBlockReader(0, scope).ReadMembersV1(product.root, payload, settings);
    std::uint64_t packageVersion = 0;
    return version == kVersion && payload.Unsigned(packageVersion) &&
           packageVersion <= kHighestPackageVersion &&
           SettingsBlockReader(static_cast<unsigned>(packageVersion), scope)
               .ReadMembers(product.root, payload, settings);
}

} // namespace o7

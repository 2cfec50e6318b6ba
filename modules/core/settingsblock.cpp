#include "settingsblock.h"

#include "crc32.h"

#include <algorithm>
#include <climits>
#include <string_view>
#include <utility>

namespace o7 {
namespace {

constexpr std::string_view kMagic = "O7SB";
constexpr std::uint16_t kVersion = 1;
constexpr std::size_t kHeaderSize = 20;

enum Tag : std::uint8_t
{
    kUnspecified = 0,
    kSpecified = 1,
};

class Writer
{
public:
    std::vector<std::uint8_t>& Bytes() { return m_bytes; }

    void Fixed(std::uint32_t value, int bytes)
    {
        for (int i = 0; i < bytes; ++i)
            m_bytes.push_back(static_cast<std::uint8_t>(value >> (8 * i)));
    }
    /// Seven bits a byte, the lowest first.
    void Unsigned(std::uint64_t value)
    {
        for (; value > 0x7F; value >>= 7U)
            m_bytes.push_back(static_cast<std::uint8_t>(value | 0x80U));
        m_bytes.push_back(static_cast<std::uint8_t>(value));
    }
    /// Signs alternate, so that small numbers of either sign stay short.
    void Signed(std::int64_t value)
    {
        Unsigned((static_cast<std::uint64_t>(value) << 1U) ^
                 static_cast<std::uint64_t>(value >> 63));
    }
    void Text(const CXString& text)
    {
        for (const char character : text.ToUtf8())
            m_bytes.push_back(static_cast<std::uint8_t>(character));
    }
    void Block(const Writer& block)
    {
        Unsigned(block.m_bytes.size());
        m_bytes.insert(m_bytes.end(), block.m_bytes.begin(), block.m_bytes.end());
    }

private:
    std::vector<std::uint8_t> m_bytes;
};

/// Reads what Writer wrote; every operation answers false instead of reading past the end.
class Reader
{
public:
    Reader(const std::uint8_t* bytes, std::size_t size) : m_at(bytes), m_left(size) {}

    bool AtEnd() const { return m_left == 0; }
    std::size_t Left() const { return m_left; }

    bool Fixed(std::uint32_t& value, int bytes)
    {
        value = 0;
        for (int i = 0; i < bytes; ++i) {
            std::uint8_t byte = 0;
            if (!Byte(byte))
                return false;
            value |= static_cast<std::uint32_t>(byte) << (8 * i);
        }
        return true;
    }
    bool Byte(std::uint8_t& value)
    {
        if (m_left == 0)
            return false;
        value = *m_at++;
        --m_left;
        return true;
    }
    bool Unsigned(std::uint64_t& value)
    {
        value = 0;
        for (unsigned shift = 0; shift < 64; shift += 7) {
            std::uint8_t byte = 0;
            if (!Byte(byte))
                return false;
            value |= static_cast<std::uint64_t>(byte & 0x7FU) << shift;
            if ((byte & 0x80U) == 0)
                return shift < 63 || byte <= 1;
        }
        return false;
    }
    bool Signed(std::int64_t& value)
    {
        std::uint64_t raw = 0;
        if (!Unsigned(raw))
            return false;
        value = static_cast<std::int64_t>((raw >> 1U) ^ (0U - (raw & 1U)));
        return true;
    }
    bool Int(int& value)
    {
        std::int64_t wide = 0;
        if (!Signed(wide) || wide < INT_MIN || wide > INT_MAX)
            return false;
        value = static_cast<int>(wide);
        return true;
    }
    /// The rest as text.
    CXString Text()
    {
        const std::string_view text(reinterpret_cast<const char*>(m_at), m_left);
        m_at += m_left;
        m_left = 0;
        return CXString::FromUtf8(text);
    }
    bool Block(Reader& block)
    {
        std::uint64_t size = 0;
        if (!Unsigned(size) || size > m_left)
            return false;
        block = Reader(m_at, static_cast<std::size_t>(size));
        m_at += size;
        m_left -= static_cast<std::size_t>(size);
        return true;
    }

private:
    const std::uint8_t* m_at;
    std::size_t m_left;
};

void WriteFeature(const FeatureDescription& description, const SettingsSnapshot& settings,
                  Writer& out);

void WriteValue(const FeatureValue& value, Writer& out)
{
    if (const auto* option = std::get_if<ValueId>(&value)) {
        out.Signed(option->GetValueEnum());
        if (option->GetValueEnum() == DataModelIds::kValueFirstUserText)
            out.Text(option->GetValueName());
    } else if (const auto* number = std::get_if<int>(&value)) {
        out.Signed(*number);
    } else if (const auto* text = std::get_if<CXString>(&value)) {
        out.Text(*text);
    } else if (const auto* flag = std::get_if<bool>(&value)) {
        out.Fixed(*flag ? 1 : 0, 1);
    } else if (const auto* range = std::get_if<RangeOfInteger>(&value)) {
        out.Signed(range->GetLowerBound());
        out.Signed(range->GetUpperBound());
    } else if (const auto* length = std::get_if<Dimension>(&value)) {
        out.Signed(length->GetCount());
        out.Fixed(static_cast<std::uint32_t>(length->GetUnits()), 1);
    }
}

void WriteMembers(const ListDescription& list, const SettingsSnapshot& settings, Writer& out)
{
    for (std::size_t i = 0; i < list.features.size(); ++i) {
        const FeatureDescription& member = list.features[i];
        const SettingsSnapshot& child = settings.children[i];
        if (!member.IsKept() || !member.savedInTicket || member.kind == FeatureKind::Resolution ||
            IsDefault(member, child))
            continue;
        Writer block;
        WriteFeature(member, child, block);
        out.Unsigned(static_cast<std::uint64_t>(member.number));
        out.Block(block);
    }
}

void WriteFeature(const FeatureDescription& description, const SettingsSnapshot& settings,
                  Writer& out)
{
    if (description.item) {
        for (const SettingsSnapshot& item : settings.children) {
            Writer block;
            WriteFeature(*description.item, item, block);
            out.Block(block);
        }
    } else if (description.list) {
        WriteMembers(*description.list, settings, out);
    } else {
        out.Fixed(settings.value.index() != 0 ? kSpecified : kUnspecified, 1);
        WriteValue(settings.value, out);
    }
}

bool ReadFeature(const FeatureDescription& description, Reader in, SettingsSnapshot& settings);

/// False when the bytes are no value of this kind.
bool ReadValue(FeatureKind kind, Reader in, FeatureValue& value)
{
    int first = 0;
    int second = 0;
    std::int64_t count = 0;
    std::uint8_t byte = 0;
    switch (kind) {
    case FeatureKind::Option:
        if (!in.Int(first))
            return false;
        value = ValueId(static_cast<ValueEnum>(first), FeatureId(), in.Text(), CXString());
        return true;
    case FeatureKind::Integer:
        if (!in.Int(first) || !in.AtEnd())
            return false;
        value = first;
        return true;
    case FeatureKind::String:
        value = in.Text();
        return true;
    case FeatureKind::Boolean:
        if (!in.Byte(byte) || byte > 1 || !in.AtEnd())
            return false;
        value = byte == 1;
        return true;
    case FeatureKind::Range:
        if (!in.Int(first) || !in.Int(second) || !in.AtEnd())
            return false;
        value = RangeOfInteger(first, second);
        return true;
    case FeatureKind::Dimension:
        if (!in.Signed(count) || !in.Byte(byte) || !in.AtEnd() ||
            byte > static_cast<std::uint8_t>(Dimension::UnitsEnum::Point))
            return false;
        value = Dimension::FromCount(count, static_cast<Dimension::UnitsEnum>(byte));
        return true;
    case FeatureKind::Resolution:
    case FeatureKind::ListOfFeatures:
    case FeatureKind::ListOfValues:
    case FeatureKind::Unsupported:
        break;
    }
    return false;
}

bool ReadMembers(const ListDescription& list, Reader in, SettingsSnapshot& settings)
{
    while (!in.AtEnd()) {
        std::uint64_t number = 0;
        Reader block(nullptr, 0);
        if (!in.Unsigned(number) || !in.Block(block))
            return false;
        for (std::size_t i = 0; i < list.features.size(); ++i) {
            const FeatureDescription& member = list.features[i];
            if (static_cast<std::uint64_t>(member.number) == number && member.IsKept() &&
                member.loadedFromTicket && member.kind != FeatureKind::Resolution &&
                !ReadFeature(member, block, settings.children[i]))
                return false;
        }
    }
    return true;
}

bool ReadItems(const FeatureDescription& list, Reader in, SettingsSnapshot& settings)
{
    settings.children.clear();
    while (!in.AtEnd()) {
        Reader block(nullptr, 0);
        if (!in.Block(block) || settings.children.size() >= list.maxItems)
            return false;
        settings.children.push_back(DefaultSettings(*list.item));
        if (!ReadFeature(*list.item, block, settings.children.back()))
            return false;
    }
    return true;
}

bool ReadFeature(const FeatureDescription& description, Reader in, SettingsSnapshot& settings)
{
    if (description.item)
        return ReadItems(description, in, settings);
    if (description.list)
        return ReadMembers(*description.list, in, settings);
    std::uint8_t tag = 0;
    if (!in.Byte(tag) || tag > kSpecified)
        return false;
    FeatureValue value;
    if (tag == kUnspecified) {
        if (!description.flags.required)
            settings.Choose(value);
        return in.AtEnd();
    }
    if (!ReadValue(description.kind, in, value))
        return false;
    // A value that this product does not have (any more) leaves the default.
    if (description.Accepts(value))
        settings.Choose(std::move(value));
    return true;
}

} // namespace

std::vector<std::uint8_t> EncodeSettings(const ProductDescription& product,
                                         const SettingsSnapshot& settings)
{
    Writer payload;
    WriteMembers(product.root, settings, payload);
    Writer block;
    for (const char character : kMagic)
        block.Bytes().push_back(static_cast<std::uint8_t>(character));
    block.Fixed(kVersion, 2);
    block.Fixed(0, 2);
    block.Fixed(Crc32(product.info.uniqueId.ToUtf8()), 4);
    block.Fixed(static_cast<std::uint32_t>(payload.Bytes().size()), 4);
    block.Fixed(Crc32(payload.Bytes().data(), payload.Bytes().size()), 4);
    block.Bytes().insert(block.Bytes().end(), payload.Bytes().begin(), payload.Bytes().end());
    return std::move(block.Bytes());
}

bool DecodeSettings(const ProductDescription& product, const std::uint8_t* bytes, std::size_t size,
                    SettingsSnapshot& settings)
{
    if (bytes == nullptr || size < kHeaderSize ||
        !std::equal(kMagic.begin(), kMagic.end(), bytes,
                    [](char a, std::uint8_t b) { return static_cast<std::uint8_t>(a) == b; }))
        return false;
    Reader in(bytes + kMagic.size(), size - kMagic.size());
    std::uint32_t version = 0;
    std::uint32_t reserved = 0;
    std::uint32_t owner = 0;
    std::uint32_t length = 0;
    std::uint32_t sum = 0;
    const bool sound = in.Fixed(version, 2) && in.Fixed(reserved, 2) && in.Fixed(owner, 4) &&
                       in.Fixed(length, 4) && in.Fixed(sum, 4) && version == kVersion &&
                       reserved == 0 && owner == Crc32(product.info.uniqueId.ToUtf8()) &&
                       length <= in.Left() && sum == Crc32(bytes + kHeaderSize, length);
    return sound && ReadMembers(product.root, Reader(bytes + kHeaderSize, length), settings);
}

} // namespace o7

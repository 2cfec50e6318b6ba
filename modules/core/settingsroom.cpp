#include "settingsroom.h"

#include "featurenode.h"
#include "settingsblock.h"

#include <algorithm>

namespace o7 {
namespace {

/// What a text brings along: longer heads around it, and steps of 16 where it is scrambled.
constexpr std::size_t kAroundText = 32;

struct GrowingList
{
    const FeatureDescription* description;
    SettingsSnapshot* settings;
    std::size_t size;
};

/// The list of values that takes the most; null without items.
void FindLargest(const ListDescription& list, SettingsSnapshot& settings, GrowingList& largest)
{
    for (std::size_t i = 0; i < list.features.size(); ++i) {
        const FeatureDescription& member = list.features[i];
        SettingsSnapshot& child = settings.children[i];
        if (member.list)
            FindLargest(*member.list, child, largest);
        if (!member.item || child.children.empty())
            continue;
        const std::size_t size = LongestEntry(member, child);
        if (size > largest.size)
            largest = {&member, &child, size};
    }
}

} // namespace

bool SettingsRoom::IsEnough()
{
    const std::size_t used = LongestBlock(m_product, CaptureSettings(m_root));
    const bool enough = used <= kSettingsBlockLimit;
    m_left = enough ? kSettingsBlockLimit - used : 0;
    return enough;
}

bool SettingsRoom::Take(std::size_t bytes, std::size_t instead)
{
    if (bytes > m_left)
        IsEnough();
    // What stands around a text is not given back: with more bytes its sizes may need more.
    if (bytes > m_left + (instead - std::min(instead, kAroundText)))
        return false;
    m_left -= std::min(bytes, m_left);
    return true;
}

bool SettingsRoom::Has(std::size_t bytes)
{
    if (bytes > m_left)
        IsEnough();
    return bytes <= m_left;
}

std::size_t RoomFor(const FeatureDescription& feature, const FeatureValue& value)
{
    const auto* text = std::get_if<CXString>(&value);
    const auto* option = std::get_if<ValueId>(&value);
    const CXString own = text != nullptr                                  ? *text
                         : option != nullptr && feature.userDefinedValues ? option->GetValueName()
                                                                          : CXString();
    return own.IsEmpty() ? 0 : own.ToUtf8().size() + kAroundText;
}

std::string TrimToRoom(const ProductDescription& product, SettingsSnapshot& settings)
{
    std::string trimmed;
    for (std::size_t size = LongestBlock(product, settings); size > kSettingsBlockLimit;
         size = LongestBlock(product, settings)) {
        GrowingList list{nullptr, nullptr, 0};
        FindLargest(product.root, settings, list);
        if (list.settings == nullptr)
            break;
        std::size_t excess = size - kSettingsBlockLimit;
        auto& items = list.settings->children;
        while (!items.empty() && excess > 0) {
            excess -= std::min(excess, LongestEntry(*list.description->item, items.back()));
            items.pop_back();
        }
        const std::string name = list.description->name.ToUtf8();
        if (trimmed.find(name) == std::string::npos)
            trimmed.append(trimmed.empty() ? "" : ", ").append(name);
    }
    return trimmed;
}

} // namespace o7

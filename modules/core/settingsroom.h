#pragma once

#include "settingssnapshot.h"

#include <cstddef>
#include <string>

namespace o7 {

class FeatureNode;

/// Sees to it that the settings of a model always fit into a block of kSettingsBlockLimit bytes:
/// whoever adds something asks for room first. Counts what was given away since the settings were
/// last measured, so that asking costs next to nothing until the room gets short.
class SettingsRoom
{
public:
    /// Both are borrowed.
    SettingsRoom(const ProductDescription& product, const FeatureNode& root)
        : m_product(product), m_root(root)
    {
    }

    /// Whether so many bytes can come where `instead` are now; they count as taken then.
    bool Take(std::size_t bytes, std::size_t instead = 0);
    /// The same without taking anything.
    bool Has(std::size_t bytes);
    /// Whether what there is fits.
    bool IsEnough();
    /// Settings came that nobody asked room for.
    void Forget() { m_left = 0; }

private:
    const ProductDescription& m_product;
    const FeatureNode& m_root;
    std::size_t m_left = 0;
};

/// The bytes that a value may need beyond those that are reserved for the feature anyway.
std::size_t RoomFor(const FeatureDescription& feature, const FeatureValue& value);

/// Takes items from the ends of lists until the settings fit into a block; the names of those
/// lists. Empty when nothing had to go.
std::string TrimToRoom(const ProductDescription& product, SettingsSnapshot& settings);

} // namespace o7

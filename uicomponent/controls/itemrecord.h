#pragma once

#include <cstdint>

/// What a combo or list box keeps for each of its entries. It belongs to the molecule that fills
/// the list and must outlive the entry; the control never frees it.
struct ItemRecord
{
    std::int32_t id = 0;      ///< the option or value that the entry stands for
    bool unavailable = false; ///< the entry is shown grey
};

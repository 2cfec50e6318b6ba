#pragma once

#include <algorithm>
#include <cstddef>

namespace o7 {

/// Sees to it that a vector takes `count` elements in all without allocating. What must not fail
/// half-way (a change, taking one back) finds its room made before it begins.
template <typename Vector> void MakeRoom(Vector& vector, std::size_t count)
{
    if (vector.capacity() < count)
        vector.reserve(std::max(count, 2 * vector.capacity()));
}

} // namespace o7

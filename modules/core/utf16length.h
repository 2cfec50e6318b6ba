#pragma once

#include "cxstring.h"

#include <cstddef>

namespace o7 {

/// The length of a text in UTF-16 units, the same on every platform.
inline std::size_t Utf16Length(const CXString& text)
{
    auto length = static_cast<std::size_t>(text.GetLength());
    if constexpr (sizeof(wchar_t) > 2) {
        for (const wchar_t character : text.View())
            length += static_cast<unsigned long>(character) > 0xFFFFUL ? 1U : 0U;
    }
    return length;
}

} // namespace o7

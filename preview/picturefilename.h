#pragma once

#include <string>
#include <string_view>

namespace o7 {

/// The file name of a page's picture, `NN-<title>.png`: blanks become hyphens, characters that no
/// file name may hold are left out, an empty title counts as "page".
std::wstring pictureFileName(int number, std::wstring_view title);

} // namespace o7

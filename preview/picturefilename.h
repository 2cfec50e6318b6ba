#pragma once

#include <string>
#include <string_view>

namespace o7 {

/// The file name of a page's picture, `NN-<title>.png`: each run of blanks and of characters
/// that no file name may hold becomes a hyphen; a title without any other counts as "page".
std::wstring pictureFileName(int number, std::wstring_view title);

} // namespace o7

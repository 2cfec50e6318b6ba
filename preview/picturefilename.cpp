#include "picturefilename.h"

namespace o7 {
namespace {

constexpr std::wstring_view kNotInFileNames = L"<>:\"/\\|?*.";

} // namespace

std::wstring pictureFileName(int number, std::wstring_view title)
{
    std::wstring name;
    for (const wchar_t c : title) {
        const bool usable = c > L' ' && kNotInFileNames.find(c) == std::wstring_view::npos;
        if (usable) {
            name += c;
        } else if (!name.empty() && name.back() != L'-') {
            name += L'-';
        }
    }
    if (name.ends_with(L'-')) {
        name.pop_back();
    }
    return (number < 10 ? L"0" : L"") + std::to_wstring(number) + L"-" +
           (name.empty() ? L"page" : name) + L".png";
}

} // namespace o7

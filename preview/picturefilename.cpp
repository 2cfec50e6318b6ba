#include "picturefilename.h"

namespace o7 {

std::wstring pictureFileName(int number, std::wstring_view title)
{
    std::wstring name;
    for (const wchar_t c : title) {
        if (c == L' ') {
            name += L'-';
        } else if (c > L' ' && std::wstring_view(L"<>:\"/\\|?*.").find(c) == std::wstring::npos) {
            name += c;
        }
    }
    return (number < 10 ? L"0" : L"") + std::to_wstring(number) + L"-" +
           (name.empty() ? L"page" : name) + L".png";
}

} // namespace o7

#include "windowtext.h"

#include <array>

namespace o7 {

CXString windowText(HWND window)
{
    // Almost every text fits: one message instead of two, and no allocation before it is known.
    std::array<wchar_t, 260> shortText{};
    const int copied =
        ::GetWindowTextW(window, shortText.data(), static_cast<int>(shortText.size()));
    if (copied + 1 < static_cast<int>(shortText.size())) {
        return {shortText.data(), copied};
    }
    CXString text;
    const int length = ::GetWindowTextLengthW(window);
    wchar_t* buffer = text.GetBuffer(length);
    text.ReleaseBuffer(::GetWindowTextW(window, buffer, length + 1));
    return text;
}

bool setWindowTextIfDifferent(HWND window, const CXString& text)
{
    return windowText(window) != text && text.SetWindowTextW(window);
}

CXString withoutMnemonics(const CXString& text)
{
    const std::wstring_view marked = text.View();
    std::wstring shown;
    shown.reserve(marked.size());
    for (std::size_t i = 0; i < marked.size(); ++i) {
        // A mark at the end or before a blank marks nothing and is shown.
        const bool isMark = marked[i] == L'&' && i + 1 < marked.size() && marked[i + 1] != L' ';
        shown.push_back(isMark ? marked[++i] : marked[i]);
    }
    return CXString(std::wstring_view(shown));
}

CXString withMarkedAmpersands(const CXString& text)
{
    CXString marked = text;
    marked.Replace(L"&", L"&&");
    return marked;
}

CXString spokenName(const CXString& label)
{
    std::wstring name(label.View());
    while (!name.empty() &&
           (name.back() == L':' || name.back() == L'\uFF1A' || name.back() == L' ')) {
        name.pop_back();
    }
    constexpr std::size_t kMarkLength = 4; // "(&P)"
    if (name.ends_with(L')') && name.size() > kMarkLength &&
        name.compare(name.size() - kMarkLength, 2, L"(&") == 0) {
        name.resize(name.size() - kMarkLength);
    }
    return withoutMnemonics(CXString(std::wstring_view(name)));
}

CXString oneLine(const CXString& text)
{
    CXString line = text;
    line.Replace(L"\\", L"\\\\");
    line.Replace(L"\"", L"\\\"");
    line.Replace(L"\r", L"");
    line.Replace(L"\n", L"\\n");
    return line;
}

} // namespace o7

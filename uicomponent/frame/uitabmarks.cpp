#include "uitabmarks.h"

#include <commctrl.h>

#include <array>
#include <utility>

namespace {

constexpr wchar_t kMark[] = L" !";
constexpr wchar_t kShortenedMark[] = L"\u2026 !";
constexpr std::size_t kShortestTitle = 3;

} // namespace

UITabMarks::UITabMarks(HWND tabs, int firstTab, std::vector<CXString> titles)
    : m_tabs(tabs), m_firstTab(firstTab), m_titles(std::move(titles)), m_shown(m_titles)
{
}

void UITabMarks::show(const std::vector<bool>& marked)
{
    if (!m_tabs || m_firstTab < 0)
        return;
    for (std::size_t page = 0; page < marked.size() && page < m_titles.size(); ++page) {
        const int tab = m_firstTab + static_cast<int>(page);
        const bool isMarked = m_shown[page] != m_titles[page];
        if (isMarked == marked[page] || getText(tab) != m_shown[page])
            continue;
        if (marked[page])
            mark(page);
        else
            setText(tab, m_shown[page] = m_titles[page]);
    }
}

// A sheet does not lay its pages out again when its tabs need another row, which would then cover
// the pages; the title gives way instead.
void UITabMarks::mark(std::size_t page)
{
    const int tab = m_firstTab + static_cast<int>(page);
    const int rowsBefore = rows();
    const std::wstring title = m_titles[page].c_str();
    m_shown[page] = m_titles[page] + kMark;
    setText(tab, m_shown[page]);
    for (std::size_t kept = title.size() - 1; rows() > rowsBefore && kept >= kShortestTitle;
         --kept) {
        m_shown[page] = CXString(std::wstring_view(title).substr(0, kept)) + kShortenedMark;
        setText(tab, m_shown[page]);
    }
}

int UITabMarks::rows() const
{
    return static_cast<int>(SendMessageW(m_tabs, TCM_GETROWCOUNT, 0, 0));
}

void UITabMarks::setText(int tab, const CXString& text) const
{
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = const_cast<wchar_t*>(text.c_str());
    SendMessageW(m_tabs, TCM_SETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
}

CXString UITabMarks::getText(int tab) const
{
    std::array<wchar_t, 256> text{};
    TCITEMW item{};
    item.mask = TCIF_TEXT;
    item.pszText = text.data();
    item.cchTextMax = static_cast<int>(text.size());
    SendMessageW(m_tabs, TCM_GETITEMW, static_cast<WPARAM>(tab), reinterpret_cast<LPARAM>(&item));
    return CXString(item.pszText ? item.pszText : L"");
}

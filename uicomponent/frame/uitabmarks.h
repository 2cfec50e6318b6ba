#pragma once

#include <windows.h>

#include <vector>

#include "cxstring.h"

/// The marks on the tabs of pages that need attention. The tab control belongs to the sheet, and
/// some of its tabs may be the host's, so only texts of our own tabs are changed (TCM_SETITEMW),
/// and only while they are as we left them.
class UITabMarks
{
public:
    /// @param tabs      the sheet's tab control, with all its tabs
    /// @param firstTab  index of our first page in the sheet; negative: unknown, nothing is marked
    /// @param titles    of our pages, which stand one behind the other
    UITabMarks(HWND tabs, int firstTab, std::vector<CXString> titles);

    /// @param marked  one for each page. A tab that shows its mark or has none already stays as it
    ///                is.
    void show(const std::vector<bool>& marked);

private:
    void setText(int tab, const CXString& text) const;
    CXString getText(int tab) const;
    void mark(std::size_t page);
    int rows() const;

    HWND m_tabs;
    int m_firstTab;
    std::vector<CXString> m_titles;
    std::vector<CXString> m_shown;
};

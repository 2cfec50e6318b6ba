#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace o7::bench {

/// What a window is told after it is created: its entries' heights, its check, its range.
struct RawMessage
{
    UINT message = 0;
    WPARAM wParam = 0; ///< UDM_SETBUDDY: the id of the other window
    LPARAM lParam = 0;
};

/// One child window as it stood on a page of ours.
struct RawWindow
{
    std::wstring className;
    std::wstring text;
    DWORD style = 0;
    DWORD exStyle = 0;
    RECT place{}; ///< pixels of the page
    int id = 0;
    bool enabled = true;
    bool bold = false;
    std::vector<std::wstring> items; ///< of a list or combo box
    std::vector<RawMessage> messages;
};

struct RawPage
{
    std::wstring title;
    long width = 0; ///< dialog units
    long height = 0;
    std::vector<RawWindow> windows;
};

/// A dialog in the sheet's window itself, under the pages.
struct RawArea
{
    RECT place{}; ///< pixels of the sheet
    std::vector<RawWindow> windows;
};

struct RawSheet
{
    std::vector<RawPage> pages;
    std::vector<RawArea> areas;
};

/// The children of a page, in the order in which they were created.
std::vector<RawWindow> recordWindows(HWND page);
/// The areas of a sheet that shows its first page.
std::vector<RawArea> recordAreas(HWND sheet);

/// The baseline: a bare property sheet with the same windows, texts and entries, created by plain
/// calls when a page is first shown, under the same activation context. Modal; returns what
/// PropertySheetW returns.
INT_PTR runRawSheet(const RawSheet& sheet);

/// Keeps a recorded sheet in a file and reads them again, for a process that must not open our
/// sheet before it opens the bare one. Both throw std::runtime_error when the file fails them.
void saveSheet(const RawSheet& sheet, const std::wstring& path);
RawSheet loadSheet(const std::wstring& path);

} // namespace o7::bench

#include "rawsheet.h"

#include <commctrl.h>
#include <prsht.h>

#include <list>

#include "isolationaware.h"
#include "uidialogtemplate.h"

namespace o7::bench {

namespace {

std::wstring textOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

void recordCombo(HWND window, RawWindow& raw)
{
    const auto count = static_cast<int>(SendMessageW(window, CB_GETCOUNT, 0, 0));
    for (int index = 0; index < count; ++index) {
        const auto length = SendMessageW(window, CB_GETLBTEXTLEN, static_cast<WPARAM>(index), 0);
        std::wstring item(static_cast<std::size_t>(length) + 1, L'\0');
        SendMessageW(window, CB_GETLBTEXT, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(item.data()));
        item.resize(static_cast<std::size_t>(length));
        raw.items.push_back(item);
    }
    raw.selection = static_cast<int>(SendMessageW(window, CB_GETCURSEL, 0, 0));
}

void createWindow(HWND page, HFONT font, const RawWindow& raw)
{
    const HWND window = CreateWindowExW(
        raw.exStyle, raw.className.c_str(), raw.text.c_str(), raw.style & ~WS_DISABLED,
        raw.place.left, raw.place.top, raw.place.right - raw.place.left,
        raw.place.bottom - raw.place.top, page,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(raw.id)), GetModuleHandleW(nullptr), nullptr);
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    for (const std::wstring& item : raw.items)
        SendMessageW(window, CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(item.c_str()));
    if (raw.selection >= 0)
        SendMessageW(window, CB_SETCURSEL, static_cast<WPARAM>(raw.selection), 0);
    if (!raw.enabled)
        EnableWindow(window, FALSE);
}

void createAll(HWND page, const RawPage& raw)
{
    const IsolationAware::ActivationScope scope;
    CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                    WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                    CW_USEDEFAULT, CW_USEDEFAULT, page, nullptr, nullptr, nullptr);
    const auto font = reinterpret_cast<HFONT>(SendMessageW(page, WM_GETFONT, 0, 0));
    for (const RawWindow& window : raw.windows)
        createWindow(page, font, window);
}

// As little drawing as an owner-drawn entry can do with.
void drawItem(const DRAWITEMSTRUCT& item)
{
    if (item.CtlType == ODT_BUTTON) {
        DrawIconEx(item.hDC, item.rcItem.left, item.rcItem.top, LoadIconW(nullptr, IDI_INFORMATION),
                   14, 14, 0, nullptr, DI_NORMAL);
        return;
    }
    if (item.itemID == static_cast<UINT>(-1))
        return;
    wchar_t text[260] = L"";
    SendMessageW(item.hwndItem, CB_GETLBTEXT, item.itemID, reinterpret_cast<LPARAM>(text));
    SetBkColor(item.hDC, GetSysColor(COLOR_WINDOW));
    SetTextColor(item.hDC, GetSysColor(COLOR_WINDOWTEXT));
    ExtTextOutW(item.hDC, item.rcItem.left + 2, item.rcItem.top, ETO_OPAQUE | ETO_CLIPPED,
                &item.rcItem, text, static_cast<UINT>(wcslen(text)), nullptr);
}

INT_PTR CALLBACK pageProcedure(HWND page, UINT message, WPARAM, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        createAll(page, *reinterpret_cast<const RawPage*>(
                            reinterpret_cast<const PROPSHEETPAGEW*>(lParam)->lParam));
        return TRUE;
    }
    if (message == WM_DRAWITEM) {
        drawItem(*reinterpret_cast<const DRAWITEMSTRUCT*>(lParam));
        return TRUE;
    }
    return FALSE;
}

} // namespace

std::vector<RawWindow> recordWindows(HWND page)
{
    std::vector<RawWindow> windows;
    for (HWND child = GetWindow(page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        RawWindow raw;
        wchar_t name[64] = L"";
        GetClassNameW(child, name, 64);
        raw.className = name;
        raw.text = textOf(child);
        raw.style = static_cast<DWORD>(GetWindowLongW(child, GWL_STYLE));
        raw.exStyle = static_cast<DWORD>(GetWindowLongW(child, GWL_EXSTYLE));
        GetWindowRect(child, &raw.place);
        MapWindowPoints(nullptr, page, reinterpret_cast<POINT*>(&raw.place), 2);
        raw.id = GetDlgCtrlID(child);
        raw.enabled = IsWindowEnabled(child) != FALSE;
        if (_wcsicmp(name, L"COMBOBOX") == 0)
            recordCombo(child, raw);
        windows.push_back(raw);
    }
    return windows;
}

INT_PTR runRawSheet(const std::vector<RawPage>& pages)
{
    const HINSTANCE instance = GetModuleHandleW(nullptr);
    std::list<UIDialogTemplate> templates;
    std::vector<HPROPSHEETPAGE> handles;
    for (const RawPage& raw : pages) {
        UIDialogTemplate& dialogTemplate = templates.emplace_back(instance);
        dialogTemplate.setSize(raw.width, raw.height);
        PROPSHEETPAGEW page{};
        page.dwSize = sizeof page;
        page.dwFlags = PSP_DLGINDIRECT | PSP_USETITLE;
        page.hInstance = instance;
        page.pResource = dialogTemplate.get();
        page.pszTitle = raw.title.c_str();
        page.pfnDlgProc = &pageProcedure;
        page.lParam = reinterpret_cast<LPARAM>(&raw);
        handles.push_back(IsolationAware::createPropertySheetPage(page));
    }
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    header.dwFlags = PSH_NOAPPLYNOW;
    header.hInstance = instance;
    header.pszCaption = L"Raw";
    header.nPages = static_cast<UINT>(handles.size());
    header.phpage = handles.data();
    return IsolationAware::propertySheet(header);
}

} // namespace o7::bench

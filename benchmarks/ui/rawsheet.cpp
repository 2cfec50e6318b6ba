#include "rawsheet.h"

#include <commctrl.h>
#include <prsht.h>

#include <list>

#include "isolationaware.h"
#include "uidialogtemplate.h"
#include "uihandles.h"

namespace o7::bench {

namespace {

std::wstring textOf(HWND window)
{
    std::wstring text(static_cast<std::size_t>(GetWindowTextLengthW(window)) + 1, L'\0');
    text.resize(static_cast<std::size_t>(
        GetWindowTextW(window, text.data(), static_cast<int>(text.size()))));
    return text;
}

LRESULT ask(HWND window, UINT message, WPARAM wParam = 0)
{
    return SendMessageW(window, message, wParam, 0);
}

/// The numbers of the messages of a combo box, and of a list box.
struct ListMessages
{
    UINT count, textLength, text, add, selection, select;
};
constexpr ListMessages kComboMessages{CB_GETCOUNT,  CB_GETLBTEXTLEN, CB_GETLBTEXT,
                                      CB_ADDSTRING, CB_GETCURSEL,    CB_SETCURSEL};
constexpr ListMessages kListMessages{LB_GETCOUNT,  LB_GETTEXTLEN, LB_GETTEXT,
                                     LB_ADDSTRING, LB_GETCURSEL,  LB_SETCURSEL};

void recordItems(HWND window, const ListMessages& list, RawWindow& raw)
{
    const auto count = static_cast<WPARAM>(ask(window, list.count));
    for (WPARAM index = 0; index < count; ++index) {
        const auto length = static_cast<std::size_t>(ask(window, list.textLength, index));
        std::wstring item(length + 1, L'\0');
        SendMessageW(window, list.text, index, reinterpret_cast<LPARAM>(item.data()));
        item.resize(length);
        raw.items.push_back(item);
    }
    const LRESULT selection = ask(window, list.selection);
    if (selection >= 0)
        raw.messages.push_back({list.select, static_cast<WPARAM>(selection), 0});
}

void recordCombo(HWND window, RawWindow& raw)
{
    raw.style |= WS_VSCROLL; // the window takes it off itself when it is created
    for (const WPARAM part : {static_cast<WPARAM>(-1), WPARAM{0}})
        raw.messages.push_back({CB_SETITEMHEIGHT, part, ask(window, CB_GETITEMHEIGHT, part)});
    recordItems(window, kComboMessages, raw);
}

void recordList(HWND window, RawWindow& raw)
{
    recordItems(window, kListMessages, raw);
}

void recordButton(HWND window, RawWindow& raw)
{
    if (const LRESULT check = ask(window, BM_GETCHECK))
        raw.messages.push_back({BM_SETCHECK, static_cast<WPARAM>(check), 0});
}

void recordEdit(HWND window, RawWindow& raw)
{
    raw.messages.push_back({EM_LIMITTEXT, static_cast<WPARAM>(ask(window, EM_GETLIMITTEXT)), 0});
}

void recordSlider(HWND window, RawWindow& raw)
{
    raw.messages.push_back({TBM_SETRANGEMIN, FALSE, ask(window, TBM_GETRANGEMIN)});
    raw.messages.push_back({TBM_SETRANGEMAX, TRUE, ask(window, TBM_GETRANGEMAX)});
    raw.messages.push_back({TBM_SETPOS, TRUE, ask(window, TBM_GETPOS)});
}

void recordSpin(HWND window, RawWindow& raw)
{
    int low = 0;
    int high = 0;
    SendMessageW(window, UDM_GETRANGE32, reinterpret_cast<WPARAM>(&low),
                 reinterpret_cast<LPARAM>(&high));
    raw.messages.push_back({UDM_SETRANGE32, static_cast<WPARAM>(low), high});
    if (const auto buddy = reinterpret_cast<HWND>(ask(window, UDM_GETBUDDY)))
        raw.messages.push_back({UDM_SETBUDDY, static_cast<WPARAM>(GetDlgCtrlID(buddy)), 0});
    raw.messages.push_back({UDM_SETPOS32, 0, ask(window, UDM_GETPOS32)});
}

constexpr struct
{
    const wchar_t* className;
    void (*record)(HWND, RawWindow&);
    UINT add; ///< what an entry is added with
} kClasses[] = {
    {L"ComboBox", &recordCombo, CB_ADDSTRING},
    {L"ListBox", &recordList, LB_ADDSTRING},
    {L"Button", &recordButton, 0},
    {L"Edit", &recordEdit, 0},
    {TRACKBAR_CLASSW, &recordSlider, 0},
    {UPDOWN_CLASSW, &recordSpin, 0},
};

UINT addMessageOf(const RawWindow& raw)
{
    for (const auto& row : kClasses)
        if (_wcsicmp(raw.className.c_str(), row.className) == 0)
            return row.add;
    return 0;
}

bool isBold(HWND window)
{
    LOGFONTW font{};
    GetObjectW(reinterpret_cast<HFONT>(ask(window, WM_GETFONT)), sizeof font, &font);
    return font.lfWeight >= FW_BOLD;
}

HFONT boldOf(HFONT font)
{
    LOGFONTW bold{};
    GetObjectW(font, sizeof bold, &bold);
    bold.lfWeight = FW_BOLD;
    return CreateFontIndirectW(&bold);
}

void tell(HWND page, HWND window, const RawMessage& message)
{
    const WPARAM wParam =
        message.message == UDM_SETBUDDY
            ? reinterpret_cast<WPARAM>(GetDlgItem(page, static_cast<int>(message.wParam)))
            : message.wParam;
    SendMessageW(window, message.message, wParam, message.lParam);
}

void createWindow(HWND page, HFONT font, const RawWindow& raw)
{
    const HWND window = CreateWindowExW(
        raw.exStyle, raw.className.c_str(), raw.text.c_str(), raw.style & ~WS_DISABLED,
        raw.place.left, raw.place.top, raw.place.right - raw.place.left,
        raw.place.bottom - raw.place.top, page,
        reinterpret_cast<HMENU>(static_cast<INT_PTR>(raw.id)), GetModuleHandleW(nullptr), nullptr);
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
    const UINT add = addMessageOf(raw);
    for (const std::wstring& item : raw.items)
        SendMessageW(window, add, 0, reinterpret_cast<LPARAM>(item.c_str()));
    for (const RawMessage& message : raw.messages)
        tell(page, window, message);
    if (!raw.enabled)
        EnableWindow(window, FALSE);
}

void createAll(HWND page, const std::vector<RawWindow>& windows)
{
    const IsolationAware::ActivationScope scope;
    CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                    WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                    CW_USEDEFAULT, CW_USEDEFAULT, page, nullptr, nullptr, nullptr);
    const auto font = reinterpret_cast<HFONT>(ask(page, WM_GETFONT));
    static const UniqueFont bold(boldOf(font)); // all pages have the same font
    for (const RawWindow& window : windows)
        createWindow(page, window.bold ? bold.get() : font, window);
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

RECT placeIn(HWND sheet, HWND child)
{
    RECT place{};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, sheet, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

LONG tabBottom(HWND sheet)
{
    const auto tabs = reinterpret_cast<HWND>(ask(sheet, PSM_GETTABCONTROL));
    return placeIn(sheet, tabs).bottom;
}

INT_PTR CALLBACK areaProcedure(HWND area, UINT message, WPARAM, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
        createAll(area, reinterpret_cast<const RawArea*>(lParam)->windows);
    return FALSE;
}

/// Makes room under the pages and puts the areas there.
void openAreas(HWND sheet, const std::vector<RawArea>& areas)
{
    if (areas.empty())
        return;
    const LONG bottom = tabBottom(sheet);
    const LONG growth = areas.back().place.bottom - bottom;
    RECT frame{};
    GetWindowRect(sheet, &frame);
    SetWindowPos(sheet, nullptr, 0, 0, frame.right - frame.left, frame.bottom - frame.top + growth,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
    for (HWND child = GetWindow(sheet, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const RECT place = placeIn(sheet, child);
        if (place.top >= bottom)
            SetWindowPos(child, nullptr, place.left, place.top + growth, 0, 0,
                         SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }
    const HINSTANCE instance = GetModuleHandleW(nullptr);
    for (const RawArea& area : areas) {
        UIDialogTemplate areaTemplate(instance);
        areaTemplate.makeArea();
        const IsolationAware::ActivationScope scope;
        const HWND window = CreateDialogIndirectParamW(
            instance, areaTemplate.get(), sheet, &areaProcedure, reinterpret_cast<LPARAM>(&area));
        SetWindowPos(window, nullptr, area.place.left, area.place.top,
                     area.place.right - area.place.left, area.place.bottom - area.place.top,
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_SHOWWINDOW);
    }
}

/// What a page is given: itself, and the areas if it is the first.
struct PageParameter
{
    const RawPage* page;
    const std::vector<RawArea>* areas;
};

INT_PTR CALLBACK pageProcedure(HWND page, UINT message, WPARAM, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        const auto& parameter = *reinterpret_cast<const PageParameter*>(
            reinterpret_cast<const PROPSHEETPAGEW*>(lParam)->lParam);
        if (parameter.areas)
            openAreas(GetParent(page), *parameter.areas);
        createAll(page, parameter.page->windows);
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
        raw.bold = isBold(child);
        for (const auto& row : kClasses)
            if (_wcsicmp(name, row.className) == 0)
                row.record(child, raw);
        windows.push_back(raw);
    }
    return windows;
}

std::vector<RawArea> recordAreas(HWND sheet)
{
    std::vector<RawArea> areas;
    const LONG bottom = tabBottom(sheet);
    for (HWND child = GetWindow(sheet, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const RECT place = placeIn(sheet, child);
        if (place.top >= bottom && GetWindow(child, GW_CHILD))
            areas.push_back({place, recordWindows(child)});
    }
    return areas;
}

INT_PTR runRawSheet(const RawSheet& sheet)
{
    const HINSTANCE instance = GetModuleHandleW(nullptr);
    std::list<UIDialogTemplate> templates;
    std::vector<HPROPSHEETPAGE> handles;
    std::list<PageParameter> parameters;
    for (const RawPage& raw : sheet.pages) {
        parameters.push_back({&raw, handles.empty() ? &sheet.areas : nullptr});
        UIDialogTemplate& dialogTemplate = templates.emplace_back(instance);
        dialogTemplate.setSize(raw.width, raw.height);
        PROPSHEETPAGEW page{};
        page.dwSize = sizeof page;
        page.dwFlags = PSP_DLGINDIRECT | PSP_USETITLE;
        page.hInstance = instance;
        page.pResource = dialogTemplate.get();
        page.pszTitle = raw.title.c_str();
        page.pfnDlgProc = &pageProcedure;
        page.lParam = reinterpret_cast<LPARAM>(&parameters.back());
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

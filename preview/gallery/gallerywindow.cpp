#include "gallerywindow.h"

#include <commctrl.h>

#include <stdexcept>

#include "gallerytemplate.h"
#include "isolationaware.h"
#include "uiguard.h"

namespace o7 {
namespace {

constexpr int kTabsId = 1;
constexpr WORD kPointSize = 8;
constexpr int kFrameMargin = 6; ///< pixels round the tabs

HWND check(HWND window)
{
    if (!window) {
        throw std::runtime_error("The gallery could not be opened: the system made no window.");
    }
    return window;
}

} // namespace

GalleryWindow::GalleryWindow(bool mirrored)
{
    const DWORD style = WS_POPUP | WS_CAPTION | WS_SYSMENU | WS_MINIMIZEBOX | DS_CENTER;
    const GalleryTemplate frame(style, mirrored ? WS_EX_LAYOUTRTL : 0U, {0, 0},
                                GalleryPage::sizeInDialogUnits(), kPointSize);
    check(frame.create(nullptr, &GalleryWindow::procedure, this));
    SetWindowTextW(m_frame, L"Control gallery");
    createPages(mirrored);
    createTabs();
    arrange();
    // Focus and mnemonics show from the start, as after the first key.
    SendMessageW(m_frame, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS | UISF_HIDEACCEL),
                 0);
    selectPage(0);
    ShowWindow(m_frame, SW_SHOW);
    SetFocus(m_tabs);
}

GalleryWindow::~GalleryWindow()
{
    m_pages.clear(); // while their windows are still there
    if (m_frame) {
        DestroyWindow(m_frame);
    }
}

void GalleryWindow::createPages(bool mirrored)
{
    for (const GallerySection& section : gallerySections()) {
        const GalleryPage::Look look{
            .pointSize = kPointSize, .mirrored = mirrored, .visible = false};
        m_pages.push_back(std::make_unique<GalleryPage>(m_frame, section, look));
        check(m_pages.back()->handle());
    }
}

/// After the pages, so that it stands behind them, in painting and for the Tab key.
void GalleryWindow::createTabs()
{
    m_tabs = check(IsolationAware::createWindow(
        0, WC_TABCONTROLW, WS_CHILD | WS_VISIBLE | WS_TABSTOP | WS_CLIPSIBLINGS, {0, 0, 0, 0},
        m_frame, kTabsId));
    SendMessageW(m_tabs, WM_SETFONT, static_cast<WPARAM>(SendMessageW(m_frame, WM_GETFONT, 0, 0)),
                 FALSE);
    for (int i = 0; i < pageCount(); ++i) {
        std::wstring title = page(i).section().title;
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = title.data();
        SendMessageW(m_tabs, TCM_INSERTITEMW, static_cast<WPARAM>(i),
                     reinterpret_cast<LPARAM>(&item));
    }
}

/// Pages inside the tabs, tabs inside the frame.
void GalleryWindow::arrange()
{
    RECT outer{};
    GetClientRect(page(0).handle(), &outer);
    const SIZE inside{outer.right, outer.bottom};
    SendMessageW(m_tabs, TCM_ADJUSTRECT, TRUE, reinterpret_cast<LPARAM>(&outer));
    const POINT shift{kFrameMargin - outer.left, kFrameMargin - outer.top};
    for (const auto& page : m_pages) {
        SetWindowPos(page->handle(), nullptr, shift.x, shift.y, inside.cx, inside.cy,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
    OffsetRect(&outer, shift.x, shift.y);
    SetWindowPos(m_tabs, nullptr, outer.left, outer.top, outer.right - outer.left,
                 outer.bottom - outer.top, SWP_NOZORDER | SWP_NOACTIVATE);

    RECT frame{0, 0, outer.right + kFrameMargin, outer.bottom + kFrameMargin};
    AdjustWindowRectEx(&frame, static_cast<DWORD>(GetWindowLongPtrW(m_frame, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongPtrW(m_frame, GWL_EXSTYLE)));
    const SIZE size{frame.right - frame.left, frame.bottom - frame.top};
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    SetWindowPos(m_frame, nullptr, (work.left + work.right - size.cx) / 2,
                 (work.top + work.bottom - size.cy) / 2, size.cx, size.cy,
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

int GalleryWindow::currentPage() const
{
    return static_cast<int>(SendMessageW(m_tabs, TCM_GETCURSEL, 0, 0));
}

void GalleryWindow::selectPage(int index)
{
    SendMessageW(m_tabs, TCM_SETCURSEL, static_cast<WPARAM>(index), 0);
    showCurrentPage();
}

void GalleryWindow::showCurrentPage()
{
    const int current = currentPage();
    for (int i = 0; i < pageCount(); ++i) {
        if (i != current) {
            ShowWindow(page(i).handle(), SW_HIDE);
        }
    }
    ShowWindow(page(current).handle(), SW_SHOW);
}

std::wstring GalleryWindow::dumpText() const
{
    std::wstring text;
    for (const auto& page : m_pages) {
        text += page->dumpText();
    }
    return text;
}

void GalleryWindow::run()
{
    MSG message{};
    while (isOpen() && GetMessageW(&message, nullptr, 0, 0) > 0) {
        dispatch(message);
    }
}

void GalleryWindow::dispatch(MSG& message)
{
    if (!turnsPage(message) && !IsDialogMessageW(m_frame, &message)) {
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
}

/// Ctrl+Tab and Ctrl+Shift+Tab, as in a property sheet.
bool GalleryWindow::turnsPage(const MSG& message)
{
    if (message.message != WM_KEYDOWN || message.wParam != VK_TAB || GetKeyState(VK_CONTROL) >= 0) {
        return false;
    }
    const int step = GetKeyState(VK_SHIFT) < 0 ? pageCount() - 1 : 1;
    SetFocus(m_tabs); // off the page that is about to be hidden
    selectPage((currentPage() + step) % pageCount());
    return true;
}

INT_PTR CALLBACK GalleryWindow::procedure(HWND window, UINT message, WPARAM wParam,
                                          LPARAM lParam) noexcept
{
    return guarded<INT_PTR>(L"GalleryWindow::procedure", L"gallerywindow", [&]() -> INT_PTR {
        if (message == WM_INITDIALOG) {
            SetWindowLongPtrW(window, GWLP_USERDATA, lParam);
            reinterpret_cast<GalleryWindow*>(lParam)->m_frame = window;
            return FALSE;
        }
        auto* self = reinterpret_cast<GalleryWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        return self ? self->route(message, wParam, lParam) : FALSE;
    });
}

INT_PTR GalleryWindow::route(UINT message, WPARAM wParam, LPARAM lParam)
{
    switch (message) {
    case WM_NOTIFY:
        if (reinterpret_cast<const NMHDR*>(lParam)->code == TCN_SELCHANGE) {
            showCurrentPage();
        }
        return TRUE;
    case WM_COMMAND:
        if (LOWORD(wParam) == IDCANCEL) {
            m_pages.clear(); // as a sheet does: its pages go before it
            DestroyWindow(m_frame);
        }
        return TRUE;
    case WM_NCDESTROY:
        m_frame = nullptr;
        PostMessageW(nullptr, WM_NULL, 0, 0); // wakes run()
        return FALSE;
    default:
        return FALSE;
    }
}

} // namespace o7

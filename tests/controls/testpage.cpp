#include "testpage.h"

#include "dialogconversion.h"
#include "isolationaware.h"
#include "uidump.h"
#include "uiresourceids.h"

#include <array>

namespace o7::test {

namespace {

WindowWatch* s_watch = nullptr;

} // namespace

TestPage::TestPage()
    : m_frame(::CreateWindowExW(0, L"#32770", L"Test page", WS_OVERLAPPEDWINDOW | WS_VISIBLE, 20,
                                20, 600, 500, nullptr, nullptr, nullptr, nullptr))
{
    const IsolationAware::ActivationScope scope;
    m_page = ::CreateDialogParamW(IsolationAware::moduleInstance(),
                                  MAKEINTRESOURCEW(O7_DIALOG_EMPTY_PAGE), m_frame.get(),
                                  &TestPage::procedure, reinterpret_cast<LPARAM>(this));
    // What a sheet does to its pages: Tab and the arrow keys then find the controls on them.
    ::SetWindowLongPtrW(m_page, GWL_STYLE, WS_CHILD | DS_SETFONT);
    ::SetWindowLongPtrW(m_page, GWL_EXSTYLE, WS_EX_CONTROLPARENT);
    ::EnableWindow(m_page, TRUE);
    ::ShowWindow(m_page, SW_SHOW);
    m_services.getDialogConversion().initDialogConversions(m_page);
}

TestPage::~TestPage() = default;

void TestPage::destroyWindows()
{
    m_frame.reset();
    m_page = nullptr;
}

HFONT TestPage::font() const
{
    return fontOf(m_page);
}

HFONT fontOf(HWND window)
{
    return reinterpret_cast<HFONT>(::SendMessageW(window, WM_GETFONT, 0, 0));
}

std::wstring dumpOf(const UIControl& control)
{
    std::wstring dumped;
    const UIDump collector(dumped);
    control.dump();
    return dumped;
}

HWND makeStatic(const TestPage& page)
{
    return ::CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 9, 9, page.page(), nullptr, nullptr,
                             nullptr);
}

RECT TestPage::pixels(LONG left, LONG top, LONG right, LONG bottom) const
{
    RECT rect{left, top, right, bottom};
    ::MapDialogRect(m_page, &rect);
    return rect;
}

INT_PTR CALLBACK TestPage::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        ::SetWindowLongPtrW(window, DWLP_USER, lParam);
    }
    auto* page = reinterpret_cast<TestPage*>(::GetWindowLongPtrW(window, DWLP_USER));
    const _UIWindowsMessage packed{UIMessageKind::TabPage, window, message, wParam, lParam};
    if (page != nullptr && page->onMessage) {
        page->onMessage(packed);
    }
    if (page != nullptr && message == WM_COMMAND) {
        page->commands.push_back({LOWORD(wParam), HIWORD(wParam)});
    }
    const bool isClaimed =
        page != nullptr && page->handler != nullptr && page->handler->handleMessage(packed);
    return isClaimed ? packed.result : FALSE;
}

WindowWatch::WindowWatch(std::function<void(HWND)> beforeDestruction)
    : m_beforeDestruction(std::move(beforeDestruction)),
      m_hook(::SetWindowsHookExW(WH_CBT, &WindowWatch::hook, nullptr, ::GetCurrentThreadId()))
{
    s_watch = this;
}

WindowWatch::~WindowWatch()
{
    ::UnhookWindowsHookEx(m_hook);
    s_watch = nullptr;
}

LRESULT CALLBACK WindowWatch::hook(int code, WPARAM wParam, LPARAM lParam)
{
    auto* window = reinterpret_cast<HWND>(wParam);
    if (code == HCBT_CREATEWND) {
        std::array<wchar_t, 64> name{};
        ::GetClassNameW(window, name.data(), static_cast<int>(name.size()));
        const auto* creation = reinterpret_cast<const CBT_CREATEWNDW*>(lParam);
        s_watch->created.push_back({name.data(), *creation->lpcs});
    } else if (code == HCBT_DESTROYWND && s_watch->m_beforeDestruction) {
        s_watch->m_beforeDestruction(window);
    }
    return ::CallNextHookEx(nullptr, code, wParam, lParam);
}

} // namespace o7::test

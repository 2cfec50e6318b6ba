#pragma once

#include "uicontrol.h"
#include "uihandles.h"
#include "uiservices.h"
#include "uiwindowsmessage.h"

#include <windows.h>

#include <functional>
#include <string>
#include <vector>

namespace o7::test {

/// A visible frame window with one empty page of the module (template 101) in it, and the services
/// that its controls need. Keeps the WM_COMMANDs that the page gets.
class TestPage
{
public:
    TestPage();
    ~TestPage();
    TestPage(const TestPage&) = delete;
    TestPage& operator=(const TestPage&) = delete;

    HWND page() const { return m_page; }
    HFONT font() const;
    UIServices& services() { return m_services; }

    /// Destroys the page with everything on it, as a closing sheet does.
    void destroyWindows();

    /// What MapDialogRect makes of a rectangle in dialog units.
    RECT pixels(LONG left, LONG top, LONG right, LONG bottom) const;

    /// Notification codes of the WM_COMMANDs so far, by control id.
    struct Command
    {
        int id;
        int code;
        bool operator==(const Command&) const = default;
    };
    std::vector<Command> commands;

    /// Sees every message of the page first.
    std::function<void(const _UIWindowsMessage&)> onMessage;
    /// Is offered every message after that, as a page of a sheet offers them (borrowed).
    UIMessageHandler* handler = nullptr;

private:
    static INT_PTR CALLBACK procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

    UniqueWindow m_frame;
    HWND m_page = nullptr;
    UIServices m_services;
};

/// What the window was given by WM_SETFONT.
HFONT fontOf(HWND window);

/// What the control tells about itself.
std::wstring dumpOf(const UIControl& control);

/// A child STATIC of the page, invisible.
HWND makeStatic(const TestPage& page);

/// What a window was created with.
struct Creation
{
    std::wstring className;
    CREATESTRUCTW parameters;
};

/// Watches the windows of this thread being created and destroyed, as the system itself is asked to
/// (a computer-based-training hook).
class WindowWatch
{
public:
    explicit WindowWatch(std::function<void(HWND)> beforeDestruction = {});
    ~WindowWatch();
    WindowWatch(const WindowWatch&) = delete;
    WindowWatch& operator=(const WindowWatch&) = delete;

    std::vector<Creation> created;

private:
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam);

    std::function<void(HWND)> m_beforeDestruction;
    HHOOK m_hook;
};

} // namespace o7::test

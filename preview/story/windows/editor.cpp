#include "editor.h"

#include <algorithm>

#include "controlreading.h"
#include "frontwindow.h"
#include "otherwindow.h"
#include "personinput.h"
#include "stepfailure.h"

namespace o7::story {
namespace {

/// Controls of the system's dialogs about printing.
constexpr int kPropertiesButton = 0x0401;
constexpr int kPaperList = 0x0471;

constexpr SIZE kEditorSize{860, 620}; // pixels
constexpr int kWaitMilliseconds = 15000;
constexpr DWORD kPollMilliseconds = 15;
/// The queue of another process cannot be looked into. A thread answers between two messages of its
/// own only, so windows that look the same in several answers are at rest.
constexpr int kSameLooks = 5;

/// Everything that could be on its way: which windows there are, and what they show.
std::string lookOf(DWORD thread)
{
    std::string look;
    for (HWND window : visibleWindowsOf(thread)) {
        look += std::to_string(reinterpret_cast<ULONG_PTR>(window)) + ' ';
        ask(window, WM_NULL);
        findChild(window, [&](HWND child) {
            look += IsWindowVisible(child) ? (IsWindowEnabled(child) ? 'e' : 'd') : 'h';
            if (IsWindowVisible(child)) {
                look += std::to_string(ask(child, WM_GETTEXTLENGTH));
            }
            return false;
        });
    }
    return look;
}

} // namespace

Editor::Editor()
{
    waitFor("The text editor", [this] {
        for (HWND window : visibleWindowsOf(thread())) {
            if (hasClass(window, L"Notepad")) {
                m_window = window;
            }
        }
        return m_window != nullptr;
    });
    MoveWindow(m_window, 0, 0, kEditorSize.cx, kEditorSize.cy, TRUE);
    SetForegroundWindow(m_window);
    settle();
}

void Editor::waitFor(const std::string& what, const std::function<bool()>& condition) const
{
    const ULONGLONG end = GetTickCount64() + kWaitMilliseconds;
    while (!condition()) {
        m_process.requireRunning();
        if (GetTickCount64() >= end) {
            const FrontWindow front = FrontWindow::of(thread());
            throw StepFailure(what + " did not come; on screen is " +
                              (front.handle() != nullptr ? front.description() : "nothing") + ".");
        }
        Sleep(kPollMilliseconds);
    }
}

void Editor::settle() const
{
    std::string look;
    int same = 0;
    waitFor("Rest of the text editor", [&] {
        std::string now = lookOf(thread());
        same = now == look ? same + 1 : 0;
        look = std::move(now);
        return same == kSameLooks;
    });
}

void Editor::openSetUp()
{
    constexpr WORD kAlt[] = {VK_MENU};
    input::key('F', kAlt);
    settle();
    input::key('R'); // "Printer Setup…" of the menu
    waitFor("The program's own set-up", [this] {
        const FrontWindow front = FrontWindow::of(thread());
        m_setUp = front.handle();
        return m_setUp != nullptr && GetDlgItem(m_setUp, kPropertiesButton) != nullptr &&
               GetDlgItem(m_setUp, kPaperList) != nullptr;
    });
    settle();
}

void Editor::clickButton(int id) const
{
    input::click(input::middleOf(GetDlgItem(m_setUp, id)));
}

void Editor::closeSetUp()
{
    clickButton(IDOK);
    waitFor("The end of the set-up", [this] { return !isSetUpOpen(); });
    settle();
}

bool Editor::isSetUpOpen() const
{
    return m_setUp != nullptr && IsWindow(m_setUp);
}

HWND Editor::openProperties()
{
    clickButton(kPropertiesButton);
    HWND sheet = nullptr;
    waitFor("Our sheet", [&] {
        const FrontWindow front = FrontWindow::of(thread());
        sheet = front.isSheet() ? front.handle() : nullptr;
        return sheet != nullptr;
    });
    settle();
    return sheet;
}

std::string Editor::paper() const
{
    return shownValue({ControlKind::List, GetDlgItem(m_setUp, kPaperList), {}, {}, {}});
}

void Editor::choosePaper(const std::string& text)
{
    const PageControl list{ControlKind::List, GetDlgItem(m_setUp, kPaperList), {}, {}, {}};
    const auto entries = entriesOf(list);
    const auto steps = std::ranges::find(entries, text) - entries.begin();
    input::click(input::middleOf(list.window));
    settle();
    input::key(VK_HOME);
    for (std::ptrdiff_t i = 0; i < steps; ++i) {
        input::key(VK_DOWN);
    }
    input::key(VK_RETURN);
    settle();
    if (paper() != text) {
        throw StepFailure("The program's list of papers does not take \"" + text + "\".");
    }
}

void Editor::end()
{
    PostMessageW(m_window, WM_CLOSE, 0, 0);
    m_process.waitForEnd();
}

} // namespace o7::story

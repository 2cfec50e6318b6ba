// Who stands before a window's procedure, and that it is given back in time.

#include "uicomboboxcontrol.h"
#include "uitooltips.h"

#include "cxstring.h"
#include "messagerecorder.h"
#include "resourceguard.h"
#include "testpage.h"

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>

namespace {

using o7::test::TestPage;

LONG_PTR procedureOf(HWND window)
{
    return ::GetWindowLongPtrW(window, GWLP_WNDPROC);
}
LONG_PTR userDataOf(HWND window)
{
    return ::GetWindowLongPtrW(window, GWLP_USERDATA);
}

/// Stands before a window of its own and writes down what it is asked.
class Probe : private o7::SubclassedWindow<Probe>
{
public:
    Probe(HWND window, std::string& log, char name) : m_log(log), m_name(name)
    {
        subclassWindow(window);
    }
    ~Probe() { restoreProcedure(); }

    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == WM_APP) {
            m_log += m_name;
        }
        if (message == WM_APP + 1) {
            throw std::runtime_error("a fault inside a window procedure");
        }
        return callSavedProcedure(window, message, wParam, lParam);
    }
    bool isGone = false;

private:
    friend o7::SubclassedWindow<Probe>;
    static constexpr const wchar_t* kProcedureName = L"Probe::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"probe";
    void forgetWindow() noexcept { isGone = true; }

    std::string& m_log;
    char m_name;
};

std::unique_ptr<UIComboBoxControl> makeCombo(TestPage& page)
{
    return std::make_unique<UIComboBoxControl>(page.page(), 5, page.services(), page.font(),
                                               POINT{5, 5}, SIZE{60, 14});
}

TEST(SubclassedWindow, StandsBeforeTheProcedureAndPassesEverythingOn)
{
    TestPage page;
    const HWND window = o7::test::makeStatic(page);
    const LONG_PTR before = procedureOf(window);
    std::string log;
    {
        const o7::test::MessageRecorder recorder(window, {WM_APP, WM_SETTEXT});
        const LONG_PTR recording = procedureOf(window);
        {
            const Probe probe(window, log, 'p');
            EXPECT_EQ(reinterpret_cast<LONG_PTR>(&probe), userDataOf(window));
            ::SendMessageW(window, WM_APP, 1, 2);
            ::SetWindowTextW(window, L"text");
        }
        EXPECT_EQ(recording, procedureOf(window));
        EXPECT_EQ(0, userDataOf(window));
        ASSERT_EQ(2U, recorder.messages().size());
        EXPECT_EQ((o7::test::RecordedMessage{WM_APP, 1, 2}), recorder.messages()[0]);
        EXPECT_EQ(UINT{WM_SETTEXT}, recorder.messages()[1].message);
    }
    EXPECT_EQ("p", log);
    EXPECT_EQ(before, procedureOf(window));
}

TEST(SubclassedWindow, LetsGoWhenTheParentIsDestroyedFirst)
{
    TestPage page;
    const HWND window = o7::test::makeStatic(page);
    std::string log;
    const Probe probe(window, log, 'p');
    const auto combo = makeCombo(page);
    const UIToolTips tips(page.page());
    page.destroyWindows();
    EXPECT_TRUE(probe.isGone);
    EXPECT_EQ(nullptr, combo->getHwnd());
    EXPECT_EQ(nullptr, tips.getHwnd());
    EXPECT_EQ(0, combo->getCount());
}

TEST(SubclassedWindow, IsTakenOffBeforeTheWindowIsDestroyed)
{
    TestPage page;
    HWND watched = nullptr;
    LONG_PTR atDestruction = 0;
    LONG_PTR userData = -1;
    const o7::test::WindowWatch watch([&](HWND window) {
        if (window == watched) {
            atDestruction = procedureOf(window);
            userData = userDataOf(window);
        }
    });
    auto combo = makeCombo(page);
    watched = combo->getHwnd();
    const auto classProcedure = static_cast<LONG_PTR>(::GetClassLongPtrW(watched, GCLP_WNDPROC));
    EXPECT_NE(classProcedure, procedureOf(watched));
    combo.reset();
    EXPECT_EQ(classProcedure, atDestruction);
    EXPECT_EQ(0, userData);
}

TEST(SubclassedWindow, DoesNotCutOffWhoeverCameLater)
{
    TestPage page;
    const auto cycle = [&] {
        // The tool-tip window subclasses the combo box after us and outlives it.
        UIToolTips tips(page.page());
        const auto combo = makeCombo(page);
        tips.AddToolAndTipMessage(combo->getHwnd(), nullptr, reinterpret_cast<INT_PTR>(L"tip"));
    };
    cycle();
    const o7::test::ResourceGuard guard;
    for (int i = 0; i < 20; ++i) {
        cycle();
    }
    const auto combo = makeCombo(page);
    const HWND window = combo->getHwnd();
    std::string log;
    auto below = std::make_unique<Probe>(window, log, 'a');
    const o7::test::MessageRecorder above(window, {WM_APP});
    below.reset();
    ::SendMessageW(window, WM_APP, 0, 0);
    EXPECT_EQ("", log) << "the one below is gone and asked no more";
    EXPECT_EQ(1U, above.messages().size()) << "the one above still stands";
}

TEST(SubclassedWindow, AFaultInsideIsShownAndAnswersZero)
{
    static std::string shown;
    shown.clear();
    const auto former = OrvikException::SetDisplayHook(
        [](const ExceptionDisplay& display) { shown = display.text.ToUtf8(); });
    TestPage page;
    const HWND window = o7::test::makeStatic(page);
    std::string log;
    const Probe probe(window, log, 'p');
    EXPECT_EQ(0, ::SendMessageW(window, WM_APP + 1, 0, 0));
    EXPECT_NE(std::string::npos, shown.find("a fault inside a window procedure")) << shown;
    ::SendMessageW(window, WM_APP, 0, 0);
    EXPECT_EQ("p", log) << "the window lives on";
    OrvikException::SetDisplayHook(former);
}

} // namespace

// The three window procedures: whom they find, what they answer, and that nothing thrown behind
// them gets out.

#include <gtest/gtest.h>

#include <windows.h>

#include <prsht.h>

#include <functional>
#include <stdexcept>
#include <string>

#include "messagerecorder.h"
#include "orvikexception.h"
#include "uidialogprocedure.h"
#include "uihandles.h"
#include "uimessagemanager.h"

namespace o7::test {

namespace {

std::string s_shown;
void rememberShown(const ExceptionDisplay& display)
{
    s_shown = display.text.ToUtf8();
}

/// Does with every message what the test wants, and counts them.
class Handler : public UIMessageHandler
{
public:
    bool handleMessage(const _UIWindowsMessage& message) override
    {
        ++asked;
        return answer(message);
    }

    int asked = 0;
    std::function<bool(const _UIWindowsMessage&)> answer = [](const _UIWindowsMessage&) {
        return false;
    };
};

/// One of the procedures, with the way in which it finds its manager.
struct Route
{
    const char* name;
    UIMessageKind kind;
    std::function<LRESULT(HWND, UINT, WPARAM, LPARAM)> call;
    std::function<void(HWND, UIMessageManager*)> connect;
};

UIDialogRecord s_record;

const Route kRoutes[] = {
    {"CPSUIDialogProcedure", UIMessageKind::TabPage, &UIDialogProcedure::cpsuiDialogProcedure,
     [](HWND window, UIMessageManager* manager) {
         SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(manager));
     }},
    {"DialogProcedure", UIMessageKind::Dialog, &UIDialogProcedure::dialogProcedure,
     [](HWND window, UIMessageManager* manager) {
         s_record.messageManager = manager;
         SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&s_record));
     }},
    {"OffTabDialogProcedure", UIMessageKind::OffTab, &UIDialogProcedure::offTabDialogProcedure,
     [](HWND window, UIMessageManager* manager) {
         SetPropW(window, UIDialogProcedure::kManagerProperty, manager);
     }},
};

} // namespace

class MessagePathTest : public ::testing::Test
{
protected:
    MessagePathTest()
        : m_window(CreateWindowExW(0, L"#32770", L"", WS_POPUP, 0, 0, 10, 10, nullptr, nullptr,
                                   nullptr, nullptr))
    {
    }

    HWND window() const { return m_window.get(); }
    UIMessageManager m_manager;
    Handler m_handler;

private:
    o7::UniqueWindow m_window;
};

TEST_F(MessagePathTest, ControlsHearOfChangedColoursAndSettings)
{
    const HWND child = CreateWindowExW(0, L"STATIC", L"", WS_CHILD, 0, 0, 5, 5, window(), nullptr,
                                       nullptr, nullptr);
    MessageRecorder recorder(child);
    for (const Route& route : kRoutes) {
        const bool isParent = route.kind != UIMessageKind::OffTab; // a sheet tells its pages itself
        for (const UINT message :
             {UINT{WM_SYSCOLORCHANGE}, UINT{WM_SETTINGCHANGE}, UINT{WM_USER}}) {
            route.call(window(), message, 0, 0);
        }
        EXPECT_EQ(recorder.messages().size(), isParent ? 2U : 0U) << route.name;
        recorder.clear();
    }
}

TEST_F(MessagePathTest, EveryProcedureRoutesItsKindAndSwallowsWhatIsThrown)
{
    const auto former = OrvikException::SetDisplayHook(&rememberShown);
    for (const Route& route : kRoutes) {
        Handler handler;
        UIMessageManager manager;
        manager.append(route.kind, handler);
        EXPECT_EQ(route.call(window(), WM_USER, 1, 2), 0) << route.name;
        EXPECT_EQ(handler.asked, 0) << route.name << " routed without a manager";

        route.connect(window(), &manager);
        handler.answer = [&](const _UIWindowsMessage& message) {
            EXPECT_EQ(message.kind, route.kind);
            EXPECT_EQ(message.window, window());
            EXPECT_EQ(message.wParam, 1U);
            EXPECT_EQ(message.lParam, 2);
            message.result = 77;
            return true;
        };
        EXPECT_NE(route.call(window(), WM_USER, 1, 2), 0) << route.name;
        EXPECT_EQ(handler.asked, 1) << route.name;

        const std::pair<std::function<void()>, const char*> throwers[] = {
            {[] { throw std::runtime_error("a collaborator failed"); }, "a collaborator failed"},
            {[] { throw std::bad_alloc(); }, "bad allocation"},
            {[] { throw 5; }, ""},
        };
        for (const auto& thrown : throwers) {
            s_shown.clear();
            handler.answer = [&](const _UIWindowsMessage&) -> bool {
                thrown.first();
                return true;
            };
            EXPECT_EQ(route.call(window(), WM_USER, 1, 2), 0) << route.name;
            EXPECT_NE(s_shown.find(thrown.second), std::string::npos)
                << route.name << ": " << s_shown;
            EXPECT_NE(s_shown.find(route.name), std::string::npos) << s_shown;
        }
        route.connect(window(), nullptr);
        RemovePropW(window(), UIDialogProcedure::kManagerProperty);
        SetWindowLongPtrW(window(), GWLP_USERDATA, 0);
    }
    OrvikException::SetDisplayHook(former);
}

TEST_F(MessagePathTest, APageTakesItsManagerFromItsRecordUnlessItHasNone)
{
    m_manager.append(UIMessageKind::TabPage, m_handler);
    UIPageRecord record{&m_manager, nullptr, 1};
    PROPSHEETPAGEW page{};
    page.dwSize = sizeof page;
    page.lParam = reinterpret_cast<LPARAM>(&record);
    const auto begin = [&] {
        UIDialogProcedure::cpsuiDialogProcedure(window(), WM_INITDIALOG, 0,
                                                reinterpret_cast<LPARAM>(&page));
    };
    begin();
    EXPECT_EQ(m_handler.asked, 1);
    page.pResource = reinterpret_cast<const DLGTEMPLATE*>(static_cast<ULONG_PTR>(0xFFFF));
    begin();
    EXPECT_EQ(m_handler.asked, 1) << "a page without a template has no record";
    EXPECT_EQ(GetWindowLongPtrW(window(), GWLP_USERDATA), 0);
}

TEST_F(MessagePathTest, ADialogAnswersBrushesDirectlyAndTheRestByTheMessageResult)
{
    m_manager.append(UIMessageKind::Dialog, m_handler);
    UIDialogRecord record{&m_manager};
    SetWindowLongPtrW(window(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&record));
    m_handler.answer = [](const _UIWindowsMessage& message) {
        message.result = 4711;
        return true;
    };
    EXPECT_EQ(UIDialogProcedure::dialogProcedure(window(), WM_CTLCOLORSTATIC, 0, 0), 4711);
    EXPECT_EQ(UIDialogProcedure::dialogProcedure(window(), WM_USER, 0, 0), 1);
    EXPECT_EQ(GetWindowLongPtrW(window(), DWLP_MSGRESULT), 4711);
    SetWindowLongPtrW(window(), GWLP_USERDATA, 0);
}

} // namespace o7::test

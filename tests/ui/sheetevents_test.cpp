// What pages and sheets tell the data model, when, and with what; and when they read it again.

#include <windows.h>

#include <prsht.h>

#include <functional>

#include "booleanfeatureref.h"
#include "exceptiontabcreationfailure.h"
#include "hostsheet.h"
#include "importpatch.h"
#include "input.h"
#include "observercount.h"
#include "sheetrig.h"
#include "sheetsteps.h"
#include "uicontext.h"
#include "uidata.h"
#include "uieventprocessor.h"
#include "uifixture.h"
#include "uimanager.h"
#include "uimessagemanager.h"
#include "uiresourceids.h"
#include "uiservices.h"
#include "uitab.h"
#include "uitabmanager.h"

namespace o7::test {

namespace {

constexpr UIContainerRecord strictPage(bool validates)
{
    return {.id = 1,
            .title = O7STR_TAB_LAYOUT,
            .width = 220,
            .height = 90,
            .columns = kFieldColumns,
            .validateOnLeave = validates};
}
constexpr UIContainerRecord kStrict[] = {strictPage(true), checkPage(2)};
constexpr UIContainerRecord kLoose[] = {strictPage(false), checkPage(2)};
constexpr UIContainerRecord kPages[] = {checkPage(1), checkPage(2)};
constexpr UIContainerRecord kArea[] = {{1, 0, 214, 40, kCheckColumns}};
constexpr UIRootRecord root(UIRecords<UIContainerRecord> tabs,
                            UIRecords<UIContainerRecord> areas = {})
{
    return {.family = DataModelIds::kValueFamily8430,
            .mode = UIMode::PrintingPreferences,
            .tabs = tabs,
            .offTabs = areas};
}

/// Counts how often the model is settled, and what is on screen by then.
class SettleCount : public ObserverCount
{
public:
    using ObserverCount::ObserverCount;
    void SettleBeforeDisplay() override
    {
        ++settled;
        ObserverCount::SettleBeforeDisplay();
    }
    int settled = 0;
};

/// The pages that the print system's callback is given.
std::vector<PROPSHEETPAGEW> s_given;
DWORD s_givenSize = 0;
LONG_PTR s_answer = 0;
LONG_PTR CALLBACK takePage(HANDLE, UINT function, LPARAM page, LPARAM)
{
    EXPECT_EQ(function, 1U);
    s_given.push_back(*reinterpret_cast<const PROPSHEETPAGEW*>(page));
    s_givenSize = s_given.back().dwSize;
    return s_answer;
}

HANDLE s_contextOfWindows = nullptr;
decltype(&::CreateWindowExW) s_createWindow = nullptr;
HWND WINAPI noteContext(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, int x, int y,
                        int width, int height, HWND parent, HMENU menu, HINSTANCE instance,
                        void* param)
{
    GetCurrentActCtx(&s_contextOfWindows);
    ReleaseActCtx(s_contextOfWindows);
    return s_createWindow(exStyle, className, text, style, x, y, width, height, parent, menu,
                          instance, param);
}

/// A page that writes down which operations of its container it is asked for.
class LoggingTab : public UITab
{
public:
    using UITab::UITab;
    void leavePageAll() override { log += "leave "; }
    void refreshAll() override { log += "refresh "; }
    void connectAll() override { log += "connect "; }
    std::string log;
};

} // namespace

class SheetEventsTest : public UIFixture
{
protected:
    std::unique_ptr<SheetRig> makeRig(const UIRootRecord& description,
                                      UIMode mode = UIMode::PrintingPreferences)
    {
        m_data = std::make_unique<UIData>(description, mode, Workflow::Standard);
        return std::make_unique<SheetRig>(session().productData(), model(), session().strings(),
                                          *m_data, mode);
    }
    HWND open(SheetRig& rig)
    {
        const auto sheet = reinterpret_cast<HWND>(rig.run(PSH_MODELESS));
        pumpUntilQuiet();
        return sheet;
    }
    /// Lets a box show what is not in the model; gives the box.
    HWND falsify(HWND sheet)
    {
        const HWND box = findControl(currentPage(sheet), L"BUTTON", L"Collate copies");
        SendMessageW(box, BM_SETCHECK, boolean(kCollate) ? BST_UNCHECKED : BST_CHECKED, 0);
        return box;
    }
    bool isTrue(HWND box)
    {
        return (SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED) == boolean(kCollate);
    }

    std::unique_ptr<UIData> m_data;
};

TEST_F(SheetEventsTest, PagesAreReadAgainAfterEachEventThatMayHaveChangedAll)
{
    const auto rig = makeRig(root(kPages));
    const HWND sheet = open(*rig);
    for (const auto event : {DataModelIds::kEventTab21017, DataModelIds::kEventTab21005,
                             DataModelIds::kEventTab21056, DataModelIds::kEventPageActivated}) {
        const HWND box = falsify(sheet);
        rig->events().notifyDataModel(event, nullptr);
        EXPECT_EQ(isTrue(box), event != DataModelIds::kEventPageActivated) << event;
    }
    DestroyWindow(sheet);
}

/// A page whose description asks for it does not let anybody go before its fields are right.
TEST_F(SheetEventsTest, APageThatValidatesOnLeavingKeepsWhatItRefuses)
{
    for (const bool strict : {false, true}) {
        const auto rig = makeRig(root(strict ? UIRecords<UIContainerRecord>(kStrict) : kLoose));
        HWND sheetWindow = nullptr;
        bool left = false;
        std::vector<IdleDriver::Step> steps{
            [&](HWND sheet) { return (sheetWindow = sheet) != nullptr; }, type(L"0"),
            [](HWND sheet) { return PostMessageW(sheet, PSM_SETCURSEL, 1, 0) != FALSE; }};
        if (strict)
            steps.push_back([&](HWND box) {
                return box && box != sheetWindow && PostMessageW(box, WM_COMMAND, IDOK, 0);
            });
        steps.push_back([&](HWND sheet) {
            if (sheet != sheetWindow)
                return false;
            left = SendMessageW(sheet, PSM_HWNDTOINDEX,
                                reinterpret_cast<WPARAM>(currentPage(sheet)), 0) == 1;
            return true;
        });
        steps.push_back(press(PSBTN_CANCEL));
        const IdleDriver driver(std::move(steps));
        rig->run();
        EXPECT_EQ(driver.failure(), "");
        EXPECT_EQ(left, !strict);
    }
}

TEST_F(SheetEventsTest, APageIsLeftThenReadAgainAndConnectedWhenItComesBack)
{
    const auto rig = makeRig(root(kPages));
    UIServices services;
    UIContext context{model(), session().strings(), session().productData()};
    const UIContainerData data(kPages[0], 1);
    LoggingTab tab(model(), context, rig->events(), services, model().GetFullListOfFeatures(),
                   session().productData());
    ASSERT_TRUE(tab.build(data, 1));
    const o7::UniqueWindow page(CreateWindowExW(0, L"#32770", L"", WS_POPUP, 0, 0, 300, 200,
                                                nullptr, nullptr, nullptr, nullptr));
    PROPSHEETPAGEW structure{};
    structure.lParam = reinterpret_cast<LPARAM>(&tab.getPageRecord());
    const auto send = [&](UINT message, LPARAM lParam) {
        return tab.handleMessage({UIMessageKind::TabPage, page.get(), message, 0, lParam, 0});
    };
    ASSERT_TRUE(send(WM_INITDIALOG, reinterpret_cast<LPARAM>(&structure)));
    const struct
    {
        UINT code;
        const char* operations;
    } kRows[] = {{PSN_KILLACTIVE, "leave refresh "}, {PSN_SETACTIVE, "connect "}};
    for (const auto& row : kRows) {
        tab.log.clear();
        NMHDR notification{nullptr, 0, row.code};
        send(WM_NOTIFY, reinterpret_cast<LPARAM>(&notification));
        EXPECT_EQ(tab.log, row.operations);
    }
}

TEST_F(SheetEventsTest, TheSubclassedSheetIsToldOnceWithItsPage)
{
    const auto rig = makeRig(root(kPages, kArea));
    const EventCounter counter(model(), {DataModelIds::kEventSheetSubclassed});
    const HWND sheet = open(*rig);
    const HWND first = currentPage(sheet);
    SendMessageW(sheet, PSM_SETCURSEL, 1, 0);
    EXPECT_EQ(counter.data, std::vector<void*>{first});
    DestroyWindow(sheet);
}

TEST_F(SheetEventsTest, OkAndApplyTellTheModeOfTheirSheet)
{
    class ModeOf : public EventCounter
    {
    public:
        using EventCounter::EventCounter;
        void ProcessNotification(const INotification& notification, unsigned int kind) override
        {
            EventCounter::ProcessNotification(notification, kind);
            modes.push_back(*static_cast<const UIMode*>(data.back()));
        }
        std::vector<UIMode> modes;
    };
    for (const UIMode mode : {UIMode::PrintingPreferences, UIMode::PrintingDefaults}) {
        UIRootRecord description = root(kPages);
        description.mode = mode;
        const auto rig = makeRig(description, mode);
        ModeOf counter(model(), {DataModelIds::kEventOk, DataModelIds::kEventApply});
        const HWND sheet = open(*rig);
        SendMessageW(sheet, PSM_CHANGED, reinterpret_cast<WPARAM>(currentPage(sheet)), 0);
        for (const int button : {PSBTN_APPLYNOW, PSBTN_OK})
            SendMessageW(sheet, PSM_PRESSBUTTON, static_cast<WPARAM>(button), 0);
        EXPECT_EQ(counter.modes, (std::vector{mode, mode}));
        DestroyWindow(sheet);
    }
}

TEST_F(SheetEventsTest, EveryEntrySettlesTheModelOnceBeforeItShowsAnything)
{
    SettleCount services(model());
    const HostSheet host;
    const auto manager = [&](UIMode mode) {
        return std::make_unique<UIManager>(session().productData(), nullptr, mode, 0,
                                           Workflow::Standard);
    };
    const auto settledBy = [&](const std::function<void(UIManager&)>& entry, UIMode mode) {
        services.settled = 0;
        const auto one = manager(mode);
        int whenShown = -1;
        const IdleDriver driver({[&](HWND dialog) {
            if (!dialog || dialog == host.get())
                return false;
            whenShown = services.settled;
            return PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0) != FALSE;
        }});
        entry(*one);
        EXPECT_NE(whenShown, 0) << "shown before it was settled";
        return services.settled;
    };
    s_answer = 1;
    EXPECT_EQ(settledBy(
                  [&](UIManager& one) {
                      one.initialize(host.get(), services, session().strings(), nullptr);
                  },
                  UIMode::PrintingPreferences),
              1);
    EXPECT_EQ(settledBy(
                  [&](UIManager& one) {
                      one.initializeForCPSUI(nullptr, &takePage, services, session().strings(),
                                             nullptr);
                  },
                  UIMode::PrintingPreferences),
              1);
    for (const UIMode mode : {UIMode::PrintingPreferences, UIMode::CompactDialog})
        EXPECT_EQ(
            settledBy(
                [&](UIManager& one) { one.runAsDialog(services, session().strings(), nullptr); },
                mode),
            1);
    EXPECT_EQ(
        settledBy(
            [&](UIManager& one) { one.runAsPropertySheet(services, session().strings(), nullptr); },
            UIMode::PrintingPreferences),
        1);
}

TEST_F(SheetEventsTest, ACallbackThatGivesNoPageIsAFailure)
{
    for (const LONG_PTR answer : {LONG_PTR{0}, LONG_PTR{-1}}) {
        s_answer = answer;
        s_given.clear();
        UIManager manager(session().productData(), nullptr, UIMode::PrintingPreferences, 0,
                          Workflow::Standard);
        EXPECT_THROW(
            manager.initializeForCPSUI(nullptr, &takePage, model(), session().strings(), nullptr),
            ExceptionTabCreationFailure);
        EXPECT_EQ(s_given.size(), 1U);
    }
}

/// Pages name it to the system, and their windows are made in it.
TEST_F(SheetEventsTest, PagesUseTheContextThatTheCallerBrings)
{
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    description.hModule = IsolationAware::moduleInstance();
    description.lpResourceName = MAKEINTRESOURCEW(O7_MANIFEST);
    const o7::UniqueActivationContext own(CreateActCtxW(&description));
    constexpr DWORD kPlain = PSP_DLGINDIRECT | PSP_USETITLE;
    const struct
    {
        HANDLE context;
        DWORD flags;
    } kRows[] = {{nullptr, kPlain},
                 {INVALID_HANDLE_VALUE, kPlain},
                 {own.get(), kPlain | PSP_USEFUSIONCONTEXT}};
    s_answer = 1;
    for (const auto& row : kRows) {
        s_given.clear();
        {
            UIManager manager(session().productData(), nullptr, UIMode::PrintingPreferences, 0,
                              Workflow::Standard);
            manager.initializeForCPSUI(nullptr, &takePage, model(), session().strings(),
                                       row.context);
        }
        ASSERT_FALSE(s_given.empty());
        EXPECT_EQ(s_given[0].dwFlags, row.flags);
        EXPECT_EQ(s_givenSize, 104U);
        EXPECT_TRUE(row.flags == kPlain || s_given[0].hActCtx == own.get());

        const ImportPatch patch("CreateWindowExW", reinterpret_cast<void*>(&noteContext));
        ASSERT_TRUE(patch.isInPlace());
        s_createWindow = patch.originalAs<decltype(&::CreateWindowExW)>();
        const HostSheet host;
        UIManager manager(session().productData(), nullptr, UIMode::PrintingPreferences, 0,
                          Workflow::Standard);
        manager.initialize(host.get(), model(), session().strings(), row.context);
        s_contextOfWindows = nullptr;
        host.select(1);
        EXPECT_EQ(s_contextOfWindows == own.get(), row.context == own.get());
        EXPECT_NE(s_contextOfWindows, nullptr);
    }
}

} // namespace o7::test

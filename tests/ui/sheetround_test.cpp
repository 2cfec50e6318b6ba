// OK, Apply and Cancel of a whole sheet when it is not as simple as one page after the other: more
// pages are visited, pages go, somebody throws, a page of the host is in front.

#include <windows.h>

#include <prsht.h>

#include "booleanfeatureref.h"
#include "hostsheet.h"
#include "input.h"
#include "sheetrig.h"
#include "sheetsteps.h"
#include "uidata.h"
#include "uifixture.h"
#include "uimanager.h"
#include "uimessagemanager.h"
#include "watchedservices.h"

namespace o7::test {

namespace {

constexpr UIContainerRecord kPages[] = {checkPage(1), kFieldPage, checkPage(3)};
constexpr UIContainerRecord kArea[] = {{1, 0, 214, 40, kCheckColumns}};
constexpr UIRootRecord kThree = {
    .family = DataModelIds::kValueFamily8430, .mode = UIMode::PrintingPreferences, .tabs = kPages};
constexpr UIRootRecord kWithArea = {.family = DataModelIds::kValueFamily8430,
                                    .mode = UIMode::PrintingPreferences,
                                    .tabs = kPages,
                                    .offTabs = kArea};
const wchar_t* const kCollateText = L"Collate copies";

/// Throws at the n-th of the messages that it is made for; asked before the tabs.
class ThrowsAt : public UIMessageHandler
{
public:
    explicit ThrowsAt(UINT code, int number = 1) : m_code(code), m_left(number) {}
    bool handleMessage(const _UIWindowsMessage& message) override
    {
        if (message.message == WM_NOTIFY &&
            reinterpret_cast<const NMHDR*>(message.lParam)->code == m_code && --m_left == 0)
            throw std::runtime_error("the page failed");
        return false;
    }

private:
    UINT m_code;
    int m_left;
};

/// The host cannot store what was accepted, the first time.
class RefusesOnce : public IObserver
{
public:
    void ProcessNotification(const INotification&, unsigned int) override
    {
        if (!std::exchange(m_done, true))
            throw std::runtime_error("could not be stored");
    }

private:
    bool m_done = false;
};

/// A model with which registering for a feature fails, so many times from when it is armed.
class ThrowingServices : public ObserverCount
{
public:
    using ObserverCount::ObserverCount;
    int armed = 0;
    void RegisterObserver(IObserver& observer, SettingsInstanceId instance,
                          const FeatureIdWithContext& feature, unsigned int kind) override
    {
        if (armed > 0 && feature.GetFeatureEnum() != DataModelIds::kNoFeature) {
            --armed;
            throw std::runtime_error("could not be watched");
        }
        ObserverCount::RegisterObserver(observer, instance, feature, kind);
    }
};

int childrenOf(HWND window)
{
    int count = 0;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        ++count;
    return count;
}

constexpr std::initializer_list<DataModelIds::EventEnum> kEvents = {
    DataModelIds::kEventOk, DataModelIds::kEventApply, DataModelIds::kEventCancelQueried};
using Events = std::vector<int>;

} // namespace

class SheetRoundTest : public UIFixture
{
protected:
    std::unique_ptr<SheetRig> makeRig(FeatureServices& services, const UIRootRecord& root = kThree)
    {
        m_data = std::make_unique<UIData>(root, UIMode::PrintingPreferences, Workflow::Standard);
        return std::make_unique<SheetRig>(session().productData(), services, session().strings(),
                                          *m_data);
    }
    HWND open(SheetRig& rig)
    {
        const auto sheet = reinterpret_cast<HWND>(rig.run(PSH_MODELESS));
        pumpUntilQuiet();
        return sheet;
    }
    void pressIn(HWND sheet, int button)
    {
        SendMessageW(sheet, PSM_PRESSBUTTON, static_cast<WPARAM>(button), 0);
        pumpUntilQuiet();
    }
    /// What a modeless sheet that was closed answers; it is still there.
    static bool isClosed(HWND sheet)
    {
        return SendMessageW(sheet, PSM_GETCURRENTPAGEHWND, 0, 0) == 0;
    }
    void write(DataModelIds::tagFeatureEnum feature, bool value)
    {
        ASSERT_TRUE(
            model().GetFullListOfFeatures().GetBooleanFeature(FeatureId(feature)).SetValue(value));
    }

private:
    std::unique_ptr<UIData> m_data;
};

/// Apply, then one more page, which refuses: its refusal comes before any event.
TEST_F(SheetRoundTest, ARoundStartsAnewAfterEachThatWasCompleted)
{
    const auto rig = makeRig(model());
    const EventCounter counter(model(), kEvents);
    const bool toner = boolean(kTonerSaving);
    HWND sheetWindow = nullptr;
    const IdleDriver driver(
        {[&](HWND sheet) { return (sheetWindow = sheet) != nullptr; }, show(2), show(0),
         press(PSBTN_APPLYNOW),
         [&](HWND) { return counter.seen == Events{DataModelIds::kEventApply}; },
         clickOn(L"Save toner"), show(1), type(L"0"), press(PSBTN_OK),
         [&](HWND box) {
             return box && box != sheetWindow && PostMessageW(box, WM_COMMAND, IDOK, 0);
         },
         [&](HWND sheet) { return sheet == sheetWindow; },
         [&](HWND) {
             EXPECT_EQ(counter.seen, Events{DataModelIds::kEventApply});
             return true;
         },
         press(PSBTN_CANCEL)});
    rig->run();
    EXPECT_EQ(driver.failure(), "");
    EXPECT_EQ(counter.seen, (Events{DataModelIds::kEventApply, DataModelIds::kEventCancelQueried}));
    EXPECT_EQ(boolean(kTonerSaving), toner);
}

/// A page of the host between ours has refused: nobody tells us, but we are asked from the start.
TEST_F(SheetRoundTest, APageThatIsAskedAgainBeginsANewRound)
{
    const auto rig = makeRig(model());
    const EventCounter counter(model(), kEvents);
    const HWND sheet = open(*rig);
    SendMessageW(sheet, PSM_SETCURSEL, 1, 0);
    const HWND second = currentPage(sheet);
    SendMessageW(sheet, PSM_SETCURSEL, 0, 0);
    const HWND first = currentPage(sheet);
    const auto ask = [&](HWND page) {
        PSHNOTIFY notification{{sheet, 0, static_cast<UINT>(PSN_APPLY)}, TRUE};
        SendMessageW(page, WM_NOTIFY, 0, reinterpret_cast<LPARAM>(&notification));
    };
    ask(first);
    ask(first);
    EXPECT_EQ(counter.seen, Events{});
    ask(second);
    EXPECT_EQ(counter.seen, Events{DataModelIds::kEventOk});
    DestroyWindow(sheet);
}

TEST_F(SheetRoundTest, APageThatTheHostHasRemovedIsNotWaitedFor)
{
    for (const int removed : {0, 1, 2}) {
        SCOPED_TRACE(removed);
        const auto rig = makeRig(model());
        const EventCounter counter(model(), kEvents);
        const HWND sheet = open(*rig);
        for (const int page : {1, 2})
            SendMessageW(sheet, PSM_SETCURSEL, static_cast<WPARAM>(page), 0);
        SendMessageW(sheet, PSM_REMOVEPAGE, static_cast<WPARAM>(removed), 0);
        pumpUntilQuiet();
        EXPECT_NE(GetPropW(sheet, L"O7UIFunctionKey"), nullptr) << "F8";
        write(kCollate, !boolean(kCollate));
        pumpUntilQuiet();
        EXPECT_TRUE(IsWindowEnabled(GetDlgItem(sheet, 0x3021))) << "Apply";
        pressIn(sheet, PSBTN_OK);
        EXPECT_EQ(counter.seen, Events{DataModelIds::kEventOk});
        DestroyWindow(sheet);
    }
}

/// Whoever throws: the sheet stays, says why and has told nobody; the next OK goes through.
TEST_F(SheetRoundTest, WhatIsThrownWhileApplyingKeepsTheSheetOpen)
{
    for (const int page : {1, 2}) {
        SCOPED_TRACE(page);
        const ShownErrors shown;
        const auto rig = makeRig(model());
        ThrowsAt thrower(static_cast<UINT>(PSN_APPLY), page);
        rig->messages().append(UIMessageKind::TabPage, thrower);
        const EventCounter counter(model(), kEvents);
        const HWND sheet = open(*rig);
        SendMessageW(sheet, PSM_SETCURSEL, 1, 0);
        pressIn(sheet, PSBTN_OK);
        EXPECT_FALSE(isClosed(sheet));
        EXPECT_EQ(counter.seen, Events{});
        EXPECT_NE(shown.text().find("the page failed"), std::string::npos) << shown.text();
        pressIn(sheet, PSBTN_OK);
        EXPECT_TRUE(isClosed(sheet));
        EXPECT_EQ(counter.seen, Events{DataModelIds::kEventOk});
        DestroyWindow(sheet);
    }
}

TEST_F(SheetRoundTest, AHostThatCannotStoreKeepsTheSheetOpen)
{
    for (const int button : {PSBTN_OK, PSBTN_APPLYNOW}) {
        const ShownErrors shown;
        const auto rig = makeRig(model());
        RefusesOnce host;
        const EventId event(button == PSBTN_OK ? DataModelIds::kEventOk
                                               : DataModelIds::kEventApply);
        model().RegisterForEvent(host, event, DataModelIds::kObserverEvent);
        const HWND sheet = open(*rig);
        write(kCollate, !boolean(kCollate));
        pumpUntilQuiet();
        pressIn(sheet, button);
        EXPECT_FALSE(isClosed(sheet));
        EXPECT_NE(shown.text().find("could not be stored"), std::string::npos) << shown.text();
        pressIn(sheet, button);
        EXPECT_EQ(isClosed(sheet), button == PSBTN_OK);
        EXPECT_FALSE(model().IsModified());
        DestroyWindow(sheet);
        model().UnregisterForEvent(host, event, DataModelIds::kObserverEvent);
    }
}

/// A page that could not be built says why, and is tried again at OK: either what was changed is
/// told, or the sheet stays open.
TEST_F(SheetRoundTest, APageThatCouldNotBeBuiltIsTriedAgain)
{
    for (const int failures : {1, 2, 3}) {
        SCOPED_TRACE(failures);
        const ShownErrors shown;
        ThrowingServices services(model());
        const auto rig = makeRig(services);
        services.armed = failures;
        const EventCounter counter(model(), kEvents);
        const HWND sheet = open(*rig);
        EXPECT_NE(shown.text().find("could not be watched"), std::string::npos) << shown.text();
        for (int left = failures; left > 1; --left) {
            pressIn(sheet, PSBTN_OK);
            EXPECT_FALSE(isClosed(sheet));
            EXPECT_EQ(counter.seen, Events{});
        }
        pressIn(sheet, PSBTN_OK);
        EXPECT_TRUE(isClosed(sheet));
        EXPECT_EQ(counter.seen, Events{DataModelIds::kEventOk});
        DestroyWindow(sheet);
    }
}

TEST_F(SheetRoundTest, APageThatCouldNotBeBuiltIsThereWhenThePersonComesBack)
{
    const ShownErrors shown;
    ThrowingServices services(model());
    const auto rig = makeRig(services);
    services.armed = 1;
    const HWND sheet = open(*rig);
    EXPECT_EQ(findControl(currentPage(sheet), L"BUTTON", kCollateText), nullptr);
    for (const int page : {1, 0})
        SendMessageW(sheet, PSM_SETCURSEL, static_cast<WPARAM>(page), 0);
    pumpUntilQuiet();
    const bool before = boolean(kCollate);
    SendMessageW(findControl(currentPage(sheet), L"BUTTON", kCollateText), BM_CLICK, 0, 0);
    EXPECT_NE(boolean(kCollate), before);
    const EventCounter counter(model(), kEvents);
    pressIn(sheet, PSBTN_OK);
    EXPECT_EQ(counter.seen, Events{DataModelIds::kEventOk});
    DestroyWindow(sheet);
}

/// The page is there all the same, the sheet as high as without the area.
TEST_F(SheetRoundTest, AnAreaThatFailsLeavesNoPageBlank)
{
    RECT plain{};
    {
        const auto rig = makeRig(model());
        const HWND sheet = open(*rig);
        GetWindowRect(sheet, &plain);
        DestroyWindow(sheet);
    }
    const ShownErrors shown;
    ThrowingServices services(model());
    const auto rig = makeRig(services, kWithArea);
    services.armed = 1;
    const EventCounter counter(model(), kEvents);
    const HWND sheet = open(*rig);
    EXPECT_GT(childrenOf(currentPage(sheet)), 1);
    EXPECT_NE(shown.text().find("could not be watched"), std::string::npos) << shown.text();
    RECT frame{};
    GetWindowRect(sheet, &frame);
    EXPECT_EQ(frame.bottom - frame.top, plain.bottom - plain.top);
    pressIn(sheet, PSBTN_OK);
    EXPECT_TRUE(isClosed(sheet));
    EXPECT_EQ(counter.seen, Events{DataModelIds::kEventOk});
    DestroyWindow(sheet);
}

/// Whichever page is in front, and however the sheet is left.
TEST_F(SheetRoundTest, CancelIsToldOnceAndTakesTheChangesBack)
{
    constexpr struct
    {
        int front;
        bool byTitleBar;
    } kRows[] = {{0, false}, {0, true}, {1, false}, {2, true}};
    for (const auto& row : kRows) {
        SCOPED_TRACE(testing::Message() << row.front << " " << row.byTitleBar);
        const HostSheet host;
        UIManager manager(session().productData(), nullptr, UIMode::PrintingPreferences, 0,
                          Workflow::Standard);
        manager.initialize(host.get(), session().featureServices(), session().strings(), nullptr);
        const EventCounter counter(model(), kEvents);
        const bool before = boolean(kCollate);
        for (const int page : {1, 2})
            host.select(page);
        write(kCollate, !before);
        host.select(row.front);
        if (row.byTitleBar) {
            SendMessageW(host.get(), WM_SYSCOMMAND, SC_CLOSE, 0);
            pumpUntilQuiet();
        } else {
            host.press(PSBTN_CANCEL);
        }
        EXPECT_EQ(counter.seen, Events{DataModelIds::kEventCancelQueried});
        EXPECT_EQ(boolean(kCollate), before);
        EXPECT_FALSE(model().IsModified());
    }
}

} // namespace o7::test

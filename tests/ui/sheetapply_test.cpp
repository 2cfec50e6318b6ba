// Apply of a whole sheet, sixteen pages, and what happens when a collaborator throws.

#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include "eventid.h"
#include "eventnotification.h"
#include "idledriver.h"
#include "iobserver.h"
#include "notificationbundle.h"
#include "orvikexception.h"
#include "sheetrig.h"
#include "tables/productids.h"
#include "uidata.h"
#include "uifixture.h"
#include "uimessagemanager.h"
#include "uirecords.h"
#include "uistringnumbers.h"
#include "uitabmanager.h"
#include "windowtext.h"

namespace o7::test {

namespace {

template <tagFeatureEnum feature, std::uint32_t label>
constexpr UIControlRecord kCheck[] = {{UIControlKind::Check, feature, label}};
constexpr UIMoleculeRecord kChecks[] = {
    {UIMoleculeKind::CheckBox, kCheck<kTonerSaving, O7STR_L_TONER_SAVING>},
    {UIMoleculeKind::CheckBox, kCheck<kCollate, O7STR_L_COLLATE>},
};
constexpr UIColumnRecord kColumns[] = {{7, 200, 0, kChecks}};
// Too low for its content, so it is described but not shown.
constexpr UIContainerRecord kLowPage = {99, O7STR_TAB_LAYOUT, 220, 12, kColumns};

constexpr UIContainerRecord page(std::uint32_t id)
{
    return {id, O7STR_TAB_PAPER, 220, 60, kColumns};
}
constexpr UIContainerRecord kThreePages[] = {page(1), kLowPage, page(2), page(3)};
constexpr UIContainerRecord kSixteenPages[] = {
    page(1), page(2),  page(3),  page(4),  page(5),  page(6),  page(7),  page(8),
    page(9), page(10), page(11), page(12), page(13), page(14), page(15), page(16)};
constexpr UIRootRecord kThree = {DataModelIds::kValueFamily8430, UIMode::PrintingPreferences, 0,
                                 kThreePages};
constexpr UIRootRecord kSixteen = {DataModelIds::kValueFamily8430, UIMode::PrintingPreferences, 0,
                                   kSixteenPages};

/// Counts the events that the model hands on.
class EventCounter : public IObserver
{
public:
    EventCounter(FeatureServices& services, std::initializer_list<DataModelIds::EventEnum> events)
        : m_services(services), m_events(events)
    {
        for (const auto event : m_events)
            services.RegisterForEvent(*this, EventId(event), DataModelIds::kObserverEvent);
    }
    ~EventCounter() override
    {
        for (const auto event : m_events)
            m_services.UnregisterForEvent(*this, EventId(event), DataModelIds::kObserverEvent);
    }
    void ProcessNotification(const INotification& notification, unsigned int) override
    {
        const auto& bundle = dynamic_cast<const NotificationBundle&>(notification);
        for (auto iterator = bundle.GetIterator(); iterator.MoreNotifications();)
            seen.push_back(dynamic_cast<const EventNotification&>(iterator.GetNext())
                               .GetEventId()
                               .GetEventEnum());
    }

    std::vector<int> seen;

private:
    FeatureServices& m_services;
    std::vector<DataModelIds::EventEnum> m_events;
};

IdleDriver::Step show(int index)
{
    return [index](HWND sheet) {
        return sheet && SendMessageW(sheet, PSM_SETCURSEL, static_cast<WPARAM>(index), 0) &&
               IsWindowVisible(currentPage(sheet));
    };
}

IdleDriver::Step press(int button)
{
    return [button](HWND sheet) {
        if (sheet)
            PostMessageW(sheet, PSM_PRESSBUTTON, static_cast<WPARAM>(button), 0);
        return sheet != nullptr;
    };
}

std::string s_shownText;
void rememberShown(const ExceptionDisplay& display)
{
    s_shownText = display.text.ToUtf8();
}

/// Claims nothing and throws on the first command that passes.
class Thrower : public UIMessageHandler
{
public:
    bool handleMessage(const _UIWindowsMessage& message) override
    {
        if (message.message == WM_COMMAND && !thrown) {
            thrown = true;
            throw std::runtime_error("the collaborator failed");
        }
        return false;
    }
    bool thrown = false;
};

} // namespace

class SheetApplyTest : public UIFixture
{
protected:
    INT_PTR run(SheetRig& rig, std::vector<IdleDriver::Step> steps)
    {
        const IdleDriver driver(std::move(steps));
        const INT_PTR result = rig.run();
        EXPECT_EQ(driver.failure(), "");
        return result;
    }
};

TEST_F(SheetApplyTest, OneApplyOfThreeVisitedPagesIsOneEvent)
{
    const UIData data(kThree, UIMode::PrintingPreferences, Workflow::Standard);
    SheetRig rig(session().productData(), model(), session().strings(), data);
    const EventCounter counter(model(), {DataModelIds::kEventOk, DataModelIds::kEventApply});
    std::size_t afterApply = 0;
    run(rig, {show(1), show(2),
              [&](HWND sheet) {
                  // The page that does not fit has left no gap.
                  EXPECT_EQ(TabCtrl_GetItemCount(reinterpret_cast<HWND>(
                                SendMessageW(sheet, PSM_GETTABCONTROL, 0, 0))),
                            3);
                  PropSheet_Changed(sheet, currentPage(sheet));
                  return true;
              },
              press(PSBTN_APPLYNOW),
              [&](HWND) {
                  afterApply = counter.seen.size();
                  return true;
              },
              press(PSBTN_OK)});
    EXPECT_EQ(afterApply, 1U);
    const std::vector<int> expected{DataModelIds::kEventApply, DataModelIds::kEventOk};
    EXPECT_EQ(counter.seen, expected);
}

TEST_F(SheetApplyTest, PagesTellActivationFirstPaintAndCancelOnce)
{
    const UIData data(kThree, UIMode::PrintingPreferences, Workflow::Standard);
    SheetRig rig(session().productData(), model(), session().strings(), data);
    const EventCounter counter(
        model(), {DataModelIds::kEventPageActivated, DataModelIds::kEventFirstPaintDone});
    run(rig, {[](HWND sheet) { return sheet != nullptr; }, show(2), press(PSBTN_CANCEL)});
    const std::vector<int> expected{DataModelIds::kEventPageActivated,
                                    DataModelIds::kEventFirstPaintDone,
                                    DataModelIds::kEventPageActivated};
    EXPECT_EQ(counter.seen, expected);
}

TEST_F(SheetApplyTest, ApplyIsEnabledExactlyWhileSomethingDiffers)
{
    const UIData data(kThree, UIMode::PrintingPreferences, Workflow::Standard);
    SheetRig rig(session().productData(), model(), session().strings(), data);
    constexpr int kApplyId = 0x3021;
    std::vector<bool> enabled;
    const auto look = [&](HWND sheet) {
        enabled.push_back(IsWindowEnabled(GetDlgItem(sheet, kApplyId)) != FALSE);
        return true;
    };
    const auto tick = [](HWND sheet) {
        const HWND box = findControl(sheet, L"BUTTON", L"Collate copies");
        if (box)
            PostMessageW(box, BM_CLICK, 0, 0);
        return box != nullptr;
    };
    run(rig, {look, tick, look, tick, look, press(PSBTN_CANCEL)});
    EXPECT_EQ(enabled, (std::vector<bool>{false, true, false}));
}

TEST_F(SheetApplyTest, TheWarningKeepsTheSheetOpenEachTime)
{
    const UIData data(kThree, UIMode::PrintingPreferences, Workflow::Standard);
    SheetRig rig(session().productData(), model(), session().strings(), data);
    setOption(DataModelIds::kFeatureApplyResult, DataModelIds::kValueApplyRejected);
    const CXString text = session().strings().LoadStringW(35001);
    HWND first = nullptr;
    int warnings = 0;
    const auto acceptWarning = [&](HWND box) {
        if (!box || box == first)
            return false;
        const HWND message = GetDlgItem(box, 0xFFFF);
        warnings += o7::windowText(message).Find(text) >= 0 ? 1 : 0;
        PostMessageW(box, WM_COMMAND, IDOK, 0);
        return true;
    };
    const auto sheetIsBack = [&](HWND sheet) { return sheet == first; };
    run(rig,
        {[&](HWND sheet) { return (first = sheet) != nullptr; }, press(PSBTN_OK), acceptWarning,
         sheetIsBack, press(PSBTN_OK), acceptWarning, sheetIsBack, press(PSBTN_CANCEL)});
    EXPECT_EQ(warnings, 2);
}

TEST_F(SheetApplyTest, SixteenPagesFillTheSheetInOrder)
{
    const UIData data(kSixteen, UIMode::PrintingPreferences, Workflow::Standard);
    SheetRig rig(session().productData(), model(), session().strings(), data);
    int count = 0;
    int first = -1;
    run(rig, {[&](HWND sheet) {
                  const auto tabs =
                      reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETTABCONTROL, 0, 0));
                  count = TabCtrl_GetItemCount(tabs);
                  first = TabCtrl_GetCurSel(tabs);
                  return true;
              },
              show(15), press(PSBTN_CANCEL)});
    EXPECT_EQ(count, 16);
    EXPECT_EQ(first, 0);
}

TEST_F(SheetApplyTest, AThrowingCollaboratorIsShownAndTheSheetLivesOn)
{
    const UIData data(kThree, UIMode::PrintingPreferences, Workflow::Standard);
    SheetRig rig(session().productData(), model(), session().strings(), data);
    Thrower thrower;
    rig.messages().append(UIMessageKind::TabPage, thrower); // asked before the tabs
    const auto former = OrvikException::SetDisplayHook(&rememberShown);
    s_shownText.clear();
    const bool before = boolean(kCollate);
    const auto clickCollate = [](HWND sheet) {
        const HWND box = findControl(sheet, L"BUTTON", L"Collate copies");
        if (box)
            SendMessageW(box, BM_CLICK, 0, 0);
        return box != nullptr;
    };
    run(rig, {clickCollate,
              [&](HWND) {
                  EXPECT_EQ(boolean(kCollate), before);
                  return true;
              },
              clickCollate, press(PSBTN_OK)});
    OrvikException::SetDisplayHook(former);
    EXPECT_TRUE(thrower.thrown);
    EXPECT_NE(s_shownText.find("the collaborator failed"), std::string::npos) << s_shownText;
    EXPECT_NE(s_shownText.find("CPSUIDialogProcedure"), std::string::npos) << s_shownText;
}

} // namespace o7::test

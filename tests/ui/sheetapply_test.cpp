// Apply of a whole sheet, sixteen pages, and what happens when a collaborator throws.

#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include "booleanfeatureref.h"
#include "eventid.h"
#include "eventnotification.h"
#include "idledriver.h"
#include "iobserver.h"
#include "notificationbundle.h"
#include "orvikexception.h"
#include "sheetrig.h"
#include "tables/tablerows.h"
#include "uidata.h"
#include "uifixture.h"
#include "uimessagemanager.h"
#include "uirecords.h"
#include "uistringnumbers.h"
#include "uitabmanager.h"
#include "watchedservices.h"
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
// The fields of this one can refuse what is typed.
constexpr UIMoleculeRecord kFields[] = {spin<kCopies, O7STR_L_COPIES>(),
                                        check<kCollate, O7STR_L_COLLATE>()};
constexpr UIColumnRecord kFieldColumns[] = {{7, 200, 0, kFields}};
constexpr UIContainerRecord kFieldPage = {2, O7STR_TAB_LAYOUT, 220, 90, kFieldColumns};
constexpr int kFieldPageIndex = 1;

constexpr UIContainerRecord page(std::uint32_t id)
{
    return {id, O7STR_TAB_PAPER, 220, 60, kColumns};
}
constexpr UIContainerRecord kThreePages[] = {page(1), kLowPage, kFieldPage, page(3)};
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

constexpr wchar_t kCopiesLabel[] = L"Copies:";

/// Replaces what stands in the box of the copies.
IdleDriver::Step type(const wchar_t* text)
{
    return [=](HWND sheet) {
        const HWND field = sheet ? findListBehind(sheet, kCopiesLabel) : nullptr;
        if (!field)
            return false;
        SetFocus(field);
        SendMessageW(field, EM_SETSEL, 0, -1);
        SendMessageW(field, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
        return true;
    };
}

std::string s_shownText;
void rememberShown(const ExceptionDisplay& display)
{
    s_shownText = display.text.ToUtf8();
}

/// The list of a model in which one feature is required and has no value.
class LackingList : public WatchedNode
{
public:
    LackingList(const Ptr& list, tagFeatureEnum feature, std::string& log)
        : WatchedNode(list, log), m_feature(feature), m_log(log)
    {
    }
    Ptr GetChild(std::size_t index) const override
    {
        class Lacking : public WatchedNode
        {
        public:
            using WatchedNode::WatchedNode;
            bool IsSpecified() const override { return false; }
        };
        Ptr child = WatchedNode::GetChild(index);
        if (child->GetId().GetFeatureEnum() != m_feature)
            return child;
        auto lacking = std::make_shared<Lacking>(child, m_log);
        lacking->changes = [](std::unique_ptr<CapabilitiesNode> found) {
            return std::make_unique<CapabilitiesNode>(CapabilityFlags{.required = true},
                                                      found->GetInterpretedState(),
                                                      InterpretedState());
        };
        return lacking;
    }

private:
    tagFeatureEnum m_feature;
    std::string& m_log;
};

class LackingServices : public ObserverCount
{
public:
    LackingServices(FeatureServices& model, tagFeatureEnum feature)
        : ObserverCount(model),
          m_list(std::make_shared<LackingList>(model.GetFullListOfFeatures().GetNode(), feature,
                                               m_log))
    {
    }
    ListOfFeaturesRef GetFullListOfFeatures() override { return ListOfFeaturesRef(m_list); }

private:
    std::string m_log;
    std::shared_ptr<LackingList> m_list;
};

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

/// Every way through three pages: only the visited ones are counted, a page that refuses starts the
/// count anew, comes to the front, and its field gets the keyboard.
TEST_F(SheetApplyTest, OneRoundOverTheVisitedPagesIsOneEvent)
{
    constexpr struct
    {
        std::vector<int> (*visited)();
        bool refuses;
        int button;
    } kRows[] = {
        {[] { return std::vector<int>{}; }, false, PSBTN_APPLYNOW},
        {[] { return std::vector<int>{}; }, false, PSBTN_OK},
        {[] { return std::vector<int>{2}; }, false, PSBTN_APPLYNOW},
        {[] {
             return std::vector<int>{1, 2};
         },
         false, PSBTN_APPLYNOW},
        {[] {
             return std::vector<int>{1, 2};
         },
         false, PSBTN_OK},
        {[] { return std::vector<int>{1}; }, true, PSBTN_APPLYNOW},
        {[] {
             return std::vector<int>{1, 0};
         },
         true, PSBTN_OK},
        {[] {
             return std::vector<int>{1, 2};
         },
         true, PSBTN_APPLYNOW},
        {[] {
             return std::vector<int>{2, 1, 0};
         },
         true, PSBTN_OK},
    };
    const UIData data(kThree, UIMode::PrintingPreferences, Workflow::Standard);
    int number = 0;
    for (const auto& row : kRows) {
        SCOPED_TRACE(number++);
        SheetRig rig(session().productData(), model(), session().strings(), data);
        const EventCounter counter(model(), {DataModelIds::kEventOk, DataModelIds::kEventApply});
        std::vector<IdleDriver::Step> steps{[&](HWND sheet) {
            // The page that does not fit has left no gap.
            const auto tabs = reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETTABCONTROL, 0, 0));
            EXPECT_EQ(TabCtrl_GetItemCount(tabs), 3);
            return true;
        }};
        for (const int index : row.visited()) {
            steps.push_back(show(index));
            if (row.refuses && index == kFieldPageIndex)
                steps.push_back(type(L"0"));
        }
        HWND sheetWindow = nullptr;
        if (row.refuses) {
            steps.push_back([&](HWND sheet) { return (sheetWindow = sheet) != nullptr; });
            steps.push_back(press(row.button));
            steps.push_back([&](HWND box) {
                return box && box != sheetWindow && PostMessageW(box, WM_COMMAND, IDOK, 0);
            });
            steps.push_back([&](HWND sheet) {
                return sheet == sheetWindow && GetFocus() == findListBehind(sheet, kCopiesLabel);
            });
            steps.push_back([&](HWND sheet) {
                EXPECT_TRUE(counter.seen.empty());
                EXPECT_FALSE(boolean(DataModelIds::kFeatureApplyIsValid));
                EXPECT_TRUE(IsChild(currentPage(sheet), GetFocus()));
                return true;
            });
            steps.push_back(type(L"7"));
        }
        steps.push_back(press(row.button));
        if (row.button == PSBTN_APPLYNOW) {
            steps.push_back([&](HWND) { return !counter.seen.empty(); });
            steps.push_back(press(PSBTN_CANCEL));
        }
        run(rig, std::move(steps));
        const int event =
            row.button == PSBTN_OK ? DataModelIds::kEventOk : DataModelIds::kEventApply;
        EXPECT_EQ(counter.seen, std::vector<int>{event});
    }
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

/// The person is told which, on the page that shows it although nobody has been there yet.
TEST_F(SheetApplyTest, ARequiredSettingWithoutAValueKeepsTheSheetOpen)
{
    const UIData data(kThree, UIMode::PrintingPreferences, Workflow::Standard);
    LackingServices services(model(), kCopies);
    SheetRig rig(session().productData(), services, session().strings(), data);
    const EventCounter counter(model(), {DataModelIds::kEventOk});
    HWND first = nullptr;
    run(rig, {[&](HWND sheet) { return (first = sheet) != nullptr; }, press(PSBTN_OK),
              [&](HWND box) {
                  if (!box || box == first)
                      return false;
                  const CXString name = session().strings().GetStringForFeature(kCopies);
                  EXPECT_EQ(o7::windowText(box), name);
                  EXPECT_GE(o7::windowText(GetDlgItem(box, 0xFFFF)).Find(name), 0);
                  return PostMessageW(box, WM_COMMAND, IDOK, 0) != FALSE;
              },
              [&](HWND sheet) {
                  return sheet == first && GetFocus() == findListBehind(sheet, kCopiesLabel);
              },
              press(PSBTN_CANCEL)});
    EXPECT_TRUE(counter.seen.empty());
}

/// Whatever the cause, and back again.
TEST_F(SheetApplyTest, ApplyIsEnabledExactlyWhileSomethingDiffers)
{
    constexpr int kApplyId = 0x3021;
    const auto tick = [](HWND sheet) {
        const HWND box = findControl(sheet, L"BUTTON", L"Collate copies");
        return box && PostMessageW(box, BM_CLICK, 0, 0);
    };
    const auto arrow = [](int delta) {
        return [=](HWND sheet) {
            const HWND arrows = GetWindow(findListBehind(sheet, kCopiesLabel), GW_HWNDNEXT);
            NMUPDOWN notification{{arrows, 0, UDN_DELTAPOS}, 1, delta};
            notification.hdr.idFrom = static_cast<UINT_PTR>(GetDlgCtrlID(arrows));
            SendMessageW(currentPage(sheet), WM_NOTIFY, notification.hdr.idFrom,
                         reinterpret_cast<LPARAM>(&notification));
            return arrows != nullptr;
        };
    };
    const auto write = [this](bool value) {
        return [=, this](HWND) {
            return model()
                .GetFullListOfFeatures()
                .GetBooleanFeature(FeatureId(kTonerSaving))
                .SetValue(value);
        };
    };
    const bool toner = boolean(kTonerSaving);
    const struct
    {
        const char* cause;
        IdleDriver::Step step;
        bool enabled;
    } kRows[] = {
        {"nothing", [](HWND sheet) { return sheet != nullptr; }, false},
        {"another page", show(kFieldPageIndex), false},
        {"a click", tick, true},
        {"a click back", tick, false},
        {"typing", type(L"3"), true},
        {"typing the old value", type(L"1"), false},
        {"typing what is not allowed", type(L"0"), true},
        {"typing the old value over it", type(L"1"), false},
        {"an arrow", arrow(1), true},
        {"an arrow back", arrow(-1), false},
        {"a write of somebody else", write(!toner), true},
        {"the same undone", write(toner), false},
        {"a click before Apply", tick, true},
        {"Apply", press(PSBTN_APPLYNOW), false},
        {"a click after Apply", tick, true},
    };
    const UIData data(kThree, UIMode::PrintingPreferences, Workflow::Standard);
    SheetRig rig(session().productData(), model(), session().strings(), data);
    std::vector<IdleDriver::Step> steps;
    for (const auto& row : kRows) {
        steps.push_back(row.step);
        steps.push_back([&](HWND sheet) {
            const bool enabled = IsWindowEnabled(GetDlgItem(sheet, kApplyId)) != FALSE;
            EXPECT_EQ(enabled, row.enabled) << row.cause;
            return true;
        });
    }
    steps.push_back(press(PSBTN_CANCEL));
    run(rig, std::move(steps));
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

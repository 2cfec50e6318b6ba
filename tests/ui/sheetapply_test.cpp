// Apply of a whole sheet, sixteen pages, and what happens when a collaborator throws.

#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include "booleanfeatureref.h"
#include "sheetrig.h"
#include "sheetsteps.h"
#include "uidata.h"
#include "uifixture.h"
#include "uimessagemanager.h"
#include "uitabmanager.h"
#include "watchedservices.h"
#include "windowtext.h"

namespace o7::test {

namespace {

// Too low for its content, so it is described but not shown.
constexpr UIContainerRecord kLowPage = {99, O7STR_TAB_LAYOUT, 220, 12, kCheckColumns};
constexpr UIContainerRecord kThreePages[] = {checkPage(1), kLowPage, kFieldPage, checkPage(3)};
constexpr UIContainerRecord kSixteenPages[] = {
    checkPage(1),  checkPage(2),  checkPage(3),  checkPage(4),  checkPage(5),  checkPage(6),
    checkPage(7),  checkPage(8),  checkPage(9),  checkPage(10), checkPage(11), checkPage(12),
    checkPage(13), checkPage(14), checkPage(15), checkPage(16)};
constexpr UIRootRecord kThree = {DataModelIds::kValueFamily8430, UIMode::PrintingPreferences, 0,
                                 kThreePages};
constexpr UIRootRecord kSixteen = {DataModelIds::kValueFamily8430, UIMode::PrintingPreferences, 0,
                                   kSixteenPages};

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
    const CXString advice = session().strings().LoadStringW(35002);
    ASSERT_FALSE(text.IsEmpty() || advice.IsEmpty());
    HWND first = nullptr;
    int warnings = 0;
    const auto acceptWarning = [&](HWND box) {
        if (!box || box == first)
            return false;
        const HWND message = GetDlgItem(box, 0xFFFF);
        const CXString shown = o7::windowText(message);
        warnings += shown.Find(text) >= 0 && shown.Find(advice) > shown.Find(text) ? 1 : 0;
        EXPECT_EQ(o7::windowText(box), session().strings().LoadStringW(35000));
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
    const ShownErrors shown;
    const bool before = boolean(kCollate);
    const auto clickCollate = clickOn(L"Collate copies");
    run(rig, {clickCollate,
              [&](HWND) {
                  EXPECT_EQ(boolean(kCollate), before);
                  return true;
              },
              clickCollate, press(PSBTN_OK)});
    EXPECT_TRUE(thrower.thrown);
    EXPECT_NE(ShownErrors::text().find("the collaborator failed"), std::string::npos)
        << ShownErrors::text();
    EXPECT_NE(ShownErrors::text().find("CPSUIDialogProcedure"), std::string::npos)
        << ShownErrors::text();
}

} // namespace o7::test

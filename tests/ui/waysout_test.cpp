// Ways out of a conflict as the person meets them: behind the mark, with F8, and when OK or Apply
// would accept settings that do not go together. Real mouse and keys.

#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include "idledriver.h"
#include "input.h"
#include "resourceguard.h"
#include "sheetrig.h"
#include "tables/productids.h"
#include "tables/tablerows.h"
#include "textmeasure.h"
#include "uidata.h"
#include "uifixture.h"
#include "uimanager.h"
#include "uirecords.h"
#include "uiregionalsettings.h"
#include "uistringnumbers.h"
#include "uiwaysout.h"
#include "windowtext.h"

namespace o7::test {

namespace {

using Steps = std::vector<IdleDriver::Step>;

constexpr int kTray1 = 5121;
constexpr int kApplyId = 0x3021;

constexpr UIMoleculeRecord kPaperRows[] = {check<kCollate, O7STR_L_COLLATE>(),
                                           combo<kPaperTray, O7STR_L_PAPER_TRAY>()};
constexpr UIMoleculeRecord kJobRows[] = {check<kTonerSaving, O7STR_L_TONER_SAVING>(),
                                         check<kAccounting, O7STR_L_ACCOUNTING>()};
constexpr UIColumnRecord kPaperColumns[] = {left(kPaperRows)};
constexpr UIColumnRecord kJobColumns[] = {left(kJobRows)};
constexpr UIContainerRecord kPages[] = {page(11, O7STR_TAB_PAPER, kPaperColumns),
                                        page(12, O7STR_TAB_JOB, kJobColumns)};
constexpr UIContainerRecord kDialogs[] = {quick(120, kPaperColumns)};
constexpr UIRootRecord kRoot = preferences(DataModelIds::kValueFamily8430, kPages, kDialogs);

IdleDriver::Step until(std::function<bool(HWND)> condition)
{
    return [condition = std::move(condition)](HWND dialog) { return dialog && condition(dialog); };
}

IdleDriver::Step act(std::function<void(HWND)> action)
{
    return until([action = std::move(action)](HWND dialog) {
        action(dialog);
        return true;
    });
}

IdleDriver::Step key(WORD virtualKey)
{
    return act([=](HWND) { strikeKey(virtualKey); });
}

IdleDriver::Step click(const wchar_t* button)
{
    return until([=](HWND dialog) {
        const HWND window = findControl(dialog, L"BUTTON", button);
        if (window)
            strikeClick(window);
        return window != nullptr;
    });
}

bool isSheet(HWND dialog)
{
    return SendMessageW(dialog, PSM_GETTABCONTROL, 0, 0) != 0;
}

/// The box is there and shows such a button.
IdleDriver::Step asked(const wchar_t* button)
{
    return until([=](HWND box) { return findControl(box, L"BUTTON", button) != nullptr; });
}

IdleDriver::Step sheetIsBack()
{
    return until(&isSheet);
}

/// Counts OK and Apply.
class EventCounter : public IObserver
{
public:
    explicit EventCounter(FeatureServices& services) : m_services(services)
    {
        for (const auto event : {DataModelIds::kEventOk, DataModelIds::kEventApply})
            m_services.RegisterForEvent(*this, EventId(event), DataModelIds::kObserverEvent);
    }
    ~EventCounter() override
    {
        for (const auto event : {DataModelIds::kEventOk, DataModelIds::kEventApply})
            m_services.UnregisterForEvent(*this, EventId(event), DataModelIds::kObserverEvent);
    }
    EventCounter(const EventCounter&) = delete;
    EventCounter& operator=(const EventCounter&) = delete;
    void ProcessNotification(const INotification&, unsigned int) override { ++count; }

    int count = 0;

private:
    FeatureServices& m_services;
};

} // namespace

class WaysOutUiTest : public UIFixture
{
protected:
    WaysOutUiTest() : m_data(kRoot, UIMode::PrintingPreferences, Workflow::Standard) {}

    /// A3 does not fit tray 1, which was chosen before.
    void makeTrayConflict()
    {
        setOption(kPaperTray, kTray1);
        setOption(kPaperSize, kPaperA3);
    }
    void makeAccountConflict(bool required = true)
    {
        const auto all = model().GetFullListOfFeatures();
        ASSERT_TRUE(all.GetBooleanFeature(FeatureId(kAccountRequired)).SetValue(required));
        // Accounting follows, until somebody turns it off.
        ASSERT_TRUE(all.GetBooleanFeature(FeatureId(kAccounting)).SetValue(!required));
    }
    bool isInConflict(tagFeatureEnum feature)
    {
        return model()
            .GetFeatureRef(FeatureIdWithContext(feature))
            ->GetCapabilities()
            ->GetInterpretedState()
            .HasCbrBtnMsg();
    }
    CXString conflictText(tagFeatureEnum feature)
    {
        return model()
            .GetFeatureRef(FeatureIdWithContext(feature))
            ->GetCapabilities()
            ->GetInterpretedState()
            .GetCbrBtnMsg();
    }
    std::vector<o7::WayOut> waysOf(tagFeatureEnum feature)
    {
        return UIWaysOut(model(), session().strings(), UIRegionalSettings::current())
            .of(FeatureIdWithContext(feature));
    }
    void runSheet(Steps steps, DWORD flags = 0)
    {
        SheetRig rig(session().productData(), session().featureServices(), session().strings(),
                     m_data);
        const IdleDriver driver(std::move(steps));
        rig.run(flags);
        EXPECT_EQ(driver.failure(), "");
    }
    /// A click on the mark beside the paper tray.
    IdleDriver::Step clickMark()
    {
        return until([this](HWND sheet) {
            const HWND mark = findControl(sheet, L"BUTTON", conflictText(kPaperTray).c_str());
            if (mark)
                strikeClick(mark);
            return mark != nullptr;
        });
    }

    UIData m_data;
};

/// The reason, every way as the class words it, the first one chosen; arrows, Enter and Escape.
TEST_F(WaysOutUiTest, TheMarkOffersThemAndEnterCarriesOneOut)
{
    makeTrayConflict();
    model().CommitAccepted();
    const auto ways = waysOf(kPaperTray);
    ASSERT_GE(ways.size(), 2U);
    const auto before = option(kPaperTray);
    runSheet({
        clickMark(),
        asked(L"Carry Out"),
        act([&](HWND box) {
            EXPECT_EQ(windowText(box), session().strings().GetStringForFeature(kPaperTray));
            EXPECT_EQ(windowText(GetDlgItem(box, 0xFFFF)), conflictText(kPaperTray));
            for (const o7::WayOut& way : ways)
                EXPECT_TRUE(findControl(box, L"BUTTON", way.sentence.c_str()))
                    << way.sentence.ToUtf8();
            EXPECT_EQ(GetFocus(), findControl(box, L"BUTTON", ways[0].sentence.c_str()));
        }),
        key(VK_ESCAPE),
        sheetIsBack(),
        act([&](HWND) { EXPECT_TRUE(isInConflict(kPaperTray)) << "Escape changes nothing"; }),
        act([](HWND) { Sleep(GetDoubleClickTime()); }), // the next click is one of its own
        clickMark(),
        asked(L"Carry Out"),
        key(VK_DOWN),
        until([&](HWND box) {
            return GetFocus() == findControl(box, L"BUTTON", ways[1].sentence.c_str());
        }),
        key(VK_RETURN),
        sheetIsBack(),
        act([&](HWND sheet) {
            EXPECT_FALSE(isInConflict(kPaperTray));
            const auto left = model().PreviewAlternative(ways[1].alternative);
            EXPECT_TRUE(left.empty()) << "the second way, and all of it";
            EXPECT_TRUE(IsWindowEnabled(GetDlgItem(sheet, kApplyId)));
        }),
        key(VK_ESCAPE),
    });
    EXPECT_EQ(option(kPaperTray), before) << "Cancel takes a way out back like any change";
    EXPECT_TRUE(isInConflict(kPaperTray));
}

/// As large as its texts, centred over the sheet, in the direction of the language.
TEST_F(WaysOutUiTest, TheBoxFitsItsTextsInEveryLanguage)
{
    for (const wchar_t* language : {L"en", L"de", L"fr", L"es", L"ja", L"ar"}) {
        SCOPED_TRACE(CXString(language).ToUtf8());
        std::vector<CXString> errors;
        const auto session =
            ProductSession::open(productsFolder() / kProduct, CXString(language), errors);
        ASSERT_TRUE(session);
        auto& services = session->featureServices();
        const auto features = services.GetFullListOfFeatures();
        features.GetOptionFeature(FeatureId(kPaperTray))
            .SetValue(ValueId(static_cast<DataModelIds::tagValueEnum>(kTray1)));
        features.GetOptionFeature(FeatureId(kPaperSize)).SetValue(ValueId(kPaperA3));
        SheetRig rig(session->productData(), services, session->strings(), m_data);
        RECT around{};
        const IdleDriver driver({
            act([&](HWND sheet) {
                GetWindowRect(sheet, &around);
                strikeKey(VK_F8);
            }),
            until([](HWND box) { return !isSheet(box) && GetDlgItem(box, IDOK); }),
            act([&](HWND box) {
                RECT place{};
                GetWindowRect(box, &place);
                EXPECT_NEAR(place.left + place.right, around.left + around.right, 3);
                EXPECT_NEAR(place.top + place.bottom, around.top + around.bottom, 3);
                EXPECT_EQ((GetWindowLongW(box, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0,
                          CXString(language) == L"ar");
                const TextMeasure measure(
                    reinterpret_cast<HFONT>(SendMessageW(box, WM_GETFONT, 0, 0)));
                RECT client{};
                GetClientRect(box, &client);
                RECT units{0, 0, 12, 0};
                MapDialogRect(box, &units);
                int texts = 0;
                for (HWND child = GetWindow(box, GW_CHILD); child;
                     child = GetWindow(child, GW_HWNDNEXT)) {
                    RECT area{};
                    GetWindowRect(child, &area);
                    MapWindowPoints(nullptr, box, reinterpret_cast<POINT*>(&area), 2);
                    EXPECT_TRUE(area.left >= 0 && area.top >= 0 && area.right <= client.right &&
                                area.bottom <= client.bottom);
                    const CXString text = windowText(child);
                    if (text.IsEmpty())
                        continue;
                    const LONG mark =
                        GetDlgCtrlID(child) >= 1000 && GetDlgCtrlID(child) < 1100 ? units.right : 0;
                    const SIZE needed =
                        measure.measureWrapped(text.View(), area.right - area.left - mark);
                    EXPECT_LE(needed.cx + mark, area.right - area.left) << text.ToUtf8();
                    EXPECT_LE(needed.cy, area.bottom - area.top) << text.ToUtf8();
                    ++texts;
                }
                EXPECT_GE(texts, 6);
                strikeKey(VK_ESCAPE);
            }),
            sheetIsBack(),
            key(VK_ESCAPE),
        });
        rig.run();
        EXPECT_EQ(driver.failure(), "");
    }
}

/// F8 stops at the control and offers; F8 in the box goes on to the next one, on another page.
TEST_F(WaysOutUiTest, F8GoesOnFromTheBox)
{
    makeTrayConflict();
    makeAccountConflict();
    const auto titled = [&](tagFeatureEnum feature) {
        return until([this, feature](HWND box) {
            return !isSheet(box) &&
                   windowText(box) == session().strings().GetStringForFeature(feature);
        });
    };
    runSheet({
        key(VK_F8),
        titled(kPaperTray),
        key(VK_F8),
        titled(kAccounting),
        key(VK_RETURN),
        until([](HWND sheet) {
            return isSheet(sheet) && GetFocus() == findControl(sheet, L"BUTTON", L"Use accounting");
        }),
        act([&](HWND) { EXPECT_TRUE(boolean(kAccounting)); }),
        key(VK_F8),
        titled(kPaperTray),
        key(VK_ESCAPE),
        until([](HWND sheet) {
            return isSheet(sheet) && GetFocus() == findListBehind(sheet, L"Paper tray:");
        }),
        key(VK_ESCAPE),
    });
}

/// Going back sends nothing and leads to the first control; keeping is remembered for exactly these
/// conflicts, through Apply and OK; a new one is asked about, and one that comes back.
TEST_F(WaysOutUiTest, OkAndApplyAskOnceForExactlyTheseConflicts)
{
    makeTrayConflict();
    const EventCounter events(model());
    const auto apply =
        act([](HWND sheet) { PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_APPLYNOW, 0); });
    const auto applied = [&](int count) {
        return until([&, count](HWND sheet) { return isSheet(sheet) && events.count == count; });
    };
    runSheet({
        act([](HWND sheet) { SendMessageW(sheet, PSM_SETCURSEL, 1, 0); }),
        apply,
        asked(L"Settle"),
        act([&](HWND box) {
            EXPECT_EQ(events.count, 0) << "asked before anybody is told";
            const CXString text = windowText(GetDlgItem(box, 0xFFFF));
            for (const CXString& sentence : conflictText(kPaperTray).Tokenize(L"\n"))
                EXPECT_GE(text.Find(sentence), 0);
            EXPECT_GE(text.Find(waysOf(kPaperTray).front().sentence), 0);
        }),
        click(L"Go Back"),
        until([](HWND sheet) {
            return isSheet(sheet) && GetFocus() == findListBehind(sheet, L"Paper tray:");
        }),
        act([&](HWND) { EXPECT_EQ(events.count, 0); }),
        apply,
        asked(L"Keep"),
        click(L"Keep"),
        applied(1),
        act([&](HWND) {
            model().GetFullListOfFeatures().GetBooleanFeature(FeatureId(kCollate)).SetValue(false);
        }),
        apply,
        applied(2), // the same conflicts
        act([&](HWND) { makeAccountConflict(); }),
        apply,
        asked(L"Keep"), // a new one
        click(L"Keep"),
        applied(3),
        act([&](HWND) { makeAccountConflict(false); }),
        apply,
        applied(4),
        act([&](HWND) { makeAccountConflict(); }),
        act([](HWND sheet) { PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_OK, 0); }),
        asked(L"Settle"), // it was gone
        key(VK_RETURN),
    });
    EXPECT_EQ(events.count, 5);
    EXPECT_FALSE(isInConflict(kPaperTray));
    EXPECT_FALSE(isInConflict(kAccounting));
    EXPECT_FALSE(model().IsModified()) << "what settled it is accepted";
}

TEST_F(WaysOutUiTest, EscapeGoesBack)
{
    makeTrayConflict();
    const EventCounter events(model());
    runSheet({
        act([](HWND sheet) { PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_OK, 0); }),
        asked(L"Go Back"),
        key(VK_ESCAPE),
        sheetIsBack(),
        key(VK_ESCAPE),
    });
    EXPECT_EQ(events.count, 0);
}

TEST_F(WaysOutUiTest, TheCompactDialogAsksAsWell)
{
    struct Row
    {
        const wchar_t* button;
        bool closes;
        bool conflict;
    };
    for (const Row& row :
         {Row{L"Settle", true, false}, Row{L"Keep", true, true}, Row{L"Go Back", false, true}}) {
        SCOPED_TRACE(CXString(row.button).ToUtf8());
        model().RevertToAccepted();
        makeTrayConflict();
        UIManager manager(session().productData(), nullptr, UIMode::CompactDialog, 0,
                          Workflow::Standard);
        Steps steps{
            act([](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDOK, 0); }),
            asked(row.button),
            click(row.button),
        };
        if (!row.closes) {
            steps.push_back(until([](HWND dialog) {
                const HWND list = findListBehind(dialog, L"Paper tray:");
                return list && GetFocus() == list;
            }));
            steps.push_back(
                act([](HWND dialog) { PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0); }));
        }
        const IdleDriver driver(std::move(steps));
        EXPECT_EQ(manager.runAsDialog(session().featureServices(), session().strings(), nullptr),
                  row.closes);
        EXPECT_EQ(driver.failure(), "");
        EXPECT_EQ(isInConflict(kPaperTray), row.conflict);
    }
}

/// Opened and closed again and again, the box leaves nothing.
TEST_F(WaysOutUiTest, TheBoxLeavesNothing)
{
    makeTrayConflict();
    model().CommitAccepted(); // so that each Cancel comes back to it
    const auto round = [&] {
        runSheet({clickMark(), asked(L"Carry Out"), key(VK_ESCAPE), sheetIsBack(), key(VK_ESCAPE)});
    };
    round();
    const ResourceGuard guard(ResourceGuard::Windows | ResourceGuard::GdiObjects);
    for (int number = 0; number < 3; ++number)
        round();
}

} // namespace o7::test

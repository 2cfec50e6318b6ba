// Areas in the sheet's own window: the room made for them, and everything given back.

#include <windows.h>

#include <prsht.h>

#include <map>

#include "booleanfeatureref.h"
#include "idledriver.h"
#include "input.h"
#include "sheetrig.h"
#include "tables/productids.h"
#include "uidata.h"
#include "uidialogprocedure.h"
#include "uieventprocessor.h"
#include "uifixture.h"
#include "uimessagemanager.h"
#include "uirecords.h"
#include "uisheetwindow.h"
#include "uistringnumbers.h"
#include "uitabmanager.h"
#include "windowtext.h"

namespace o7::test {

namespace {

constexpr int kTabControlId = 12320;

template <tagFeatureEnum feature, std::uint32_t label>
constexpr UIControlRecord kCheck[] = {{UIControlKind::Check, feature, label}};
constexpr UIMoleculeRecord kFirst[] = {
    {UIMoleculeKind::CheckBox, kCheck<kTonerSaving, O7STR_L_TONER_SAVING>}};
constexpr UIMoleculeRecord kSecond[] = {
    {UIMoleculeKind::CheckBox, kCheck<kCollate, O7STR_L_COLLATE>}};
constexpr UIColumnRecord kPageColumns[] = {{7, 200, 0, kFirst}};
constexpr UIContainerRecord kPages[] = {{1, O7STR_TAB_PAPER, 220, 60, kPageColumns},
                                        {2, O7STR_TAB_LAYOUT, 220, 60, kPageColumns}};
constexpr UIColumnRecord kAreaColumns[] = {{7, 60, 0, kFirst}, {70, 100, 0, kSecond}};
constexpr UIContainerRecord kArea[] = {{1, 0, 177, 30, kAreaColumns}};
constexpr UIContainerRecord kTwoAreas[] = {{1, 0, 177, 30, kAreaColumns},
                                           {2, 0, 177, 30, kAreaColumns}};

constexpr UIRootRecord root(UIRecords<UIContainerRecord> offTabs)
{
    return {.family = DataModelIds::kValueFamily8430,
            .mode = UIMode::PrintingPreferences,
            .tabs = kPages,
            .offTabs = offTabs};
}
// A popup tab set is what shares one number.
constexpr auto kSetNumber = static_cast<DialogId>(7);
constexpr UIDialogActionRecord kActions[] = {{UIDialogActionKind::Accept, O7STR_L_TONER_SAVING}};
constexpr UIColumnRecord kSetColumns[] = {{7, 200, 0, kSecond}};
constexpr UIContainerRecord kSet[] = {{7, O7STR_TAB_IMAGE, 220, 60, kPageColumns, kActions},
                                      {7, O7STR_TAB_JOB, 220, 60, kSetColumns}};
constexpr UIRootRecord kWithSet = {.family = DataModelIds::kValueFamily8430,
                                   .mode = UIMode::PrintingPreferences,
                                   .tabs = kPages,
                                   .dialogs = kSet};
constexpr UIRootRecord kWithout = root({});
constexpr UIRootRecord kWithOne = root(kArea);
constexpr UIRootRecord kWithTwo = root(kTwoAreas);

/// A rectangle that can be compared and printed.
struct Place : RECT
{
    Place() : RECT{} {}
    Place(HWND window, HWND around) : RECT{}
    {
        GetWindowRect(window, this);
        MapWindowPoints(nullptr, around, reinterpret_cast<POINT*>(this), 2);
    }
    long height() const { return bottom - top; }
    bool operator==(const Place& other) const { return EqualRect(this, &other) != FALSE; }
};

std::ostream& operator<<(std::ostream& stream, const Place& place)
{
    return stream << place.left << "," << place.top << " - " << place.right << "," << place.bottom;
}

constexpr int kFrame = -1;

/// Where the windows in the sheet stand, by control id; under kFrame the sheet itself.
std::map<int, Place> placesOf(HWND sheet)
{
    std::map<int, Place> places{{kFrame, Place(sheet, nullptr)}};
    for (HWND child = GetWindow(sheet, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        places[GetDlgCtrlID(child)] = Place(child, sheet);
    return places;
}

WNDPROC procedureOf(HWND window)
{
    return reinterpret_cast<WNDPROC>(GetWindowLongPtrW(window, GWLP_WNDPROC));
}

/// Somebody else who subclasses the sheet after us, and counts what he passes on.
WNDPROC s_former = nullptr;
int s_passed = 0;
LRESULT CALLBACK strangersProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    ++s_passed;
    return CallWindowProcW(s_former, window, message, wParam, lParam);
}

} // namespace

class SheetOffTabTest : public UIFixture
{
protected:
    std::unique_ptr<SheetRig> makeRig(const UIRootRecord& root)
    {
        m_data = std::make_unique<UIData>(root, UIMode::PrintingPreferences, Workflow::Standard);
        return std::make_unique<SheetRig>(session().productData(), model(), session().strings(),
                                          *m_data);
    }

    /// A modeless sheet, which can outlive its manager.
    HWND open(SheetRig& rig)
    {
        const auto sheet = reinterpret_cast<HWND>(rig.run(PSH_MODELESS));
        pumpUntilQuiet();
        return sheet;
    }

private:
    std::unique_ptr<UIData> m_data;
};

TEST_F(SheetOffTabTest, RoomIsMadeUnderThePagesAndGivenBack)
{
    auto plainRig = makeRig(kWithout);
    const HWND plain = open(*plainRig);
    const auto before = placesOf(plain);
    const WNDPROC procedure = procedureOf(plain);
    DestroyWindow(plain);
    plainRig.reset();

    for (const UIRootRecord* const root : {&kWithOne, &kWithTwo}) {
        auto rig = makeRig(*root);
        const HWND sheet = open(*rig);
        const auto with = placesOf(sheet);
        EXPECT_NE(procedureOf(sheet), procedure);
        EXPECT_NE(GetPropW(sheet, UIDialogProcedure::kManagerProperty), nullptr);

        const Place tab = with.at(kTabControlId);
        EXPECT_EQ(tab, before.at(kTabControlId));
        const LONG growth = with.at(IDOK).top - before.at(IDOK).top;
        EXPECT_GT(growth, 0);
        EXPECT_EQ(with.at(kFrame).height(), before.at(kFrame).height() + growth);
        for (const auto& [id, place] : before) {
            const bool isLower = id != kFrame && place.top >= tab.bottom;
            EXPECT_TRUE(!isLower || with.at(id).top == place.top + growth) << id;
        }

        // The areas stand between, as wide as the tab control; what is in them is inside them.
        LONG lowest = tab.bottom;
        HWND area = GetNextWindow(currentPage(sheet), GW_HWNDNEXT);
        for (std::size_t index = 0; index < root->offTabs.size(); ++index) {
            const Place place(area, sheet);
            for (HWND child = GetWindow(area, GW_CHILD); child;
                 child = GetWindow(child, GW_HWNDNEXT)) {
                const Place control(child, sheet);
                Place inside;
                EXPECT_TRUE(IntersectRect(&inside, &control, &place) && inside == control);
            }
            EXPECT_EQ(place.left, tab.left);
            EXPECT_EQ(place.right, tab.right);
            EXPECT_GT(place.top, lowest);
            lowest = place.bottom;
            area = GetNextWindow(area, GW_HWNDNEXT);
        }
        EXPECT_LE(lowest, with.at(IDOK).top);
        EXPECT_EQ(area, GetDlgItem(sheet, IDOK)) << "Tab goes from the areas to the buttons";

        // What the person moved stays moved.
        SetWindowPos(sheet, nullptr, 11, 13, 0, 0, SWP_NOSIZE | SWP_NOZORDER);
        rig.reset();
        auto after = placesOf(sheet);
        OffsetRect(&after[kFrame], before.at(kFrame).left - after[kFrame].left,
                   before.at(kFrame).top - after[kFrame].top);
        EXPECT_EQ(after, before);
        EXPECT_EQ(procedureOf(sheet), procedure);
        EXPECT_EQ(GetPropW(sheet, UIDialogProcedure::kManagerProperty), nullptr);
        DestroyWindow(sheet);
    }
}

TEST_F(SheetOffTabTest, AGrownSheetStaysOnItsScreenOrDoesNotGrow)
{
    auto rig = makeRig(kWithout);
    const HWND sheet = open(*rig);
    RECT screen{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &screen, 0);
    const Place start(sheet, nullptr);
    SetWindowPos(sheet, nullptr, start.left, screen.bottom - start.height() - 5, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER);
    const auto low = placesOf(sheet);
    for (const LONG growth : {LONG{30}, screen.bottom - screen.top}) {
        UISheetWindow window;
        ASSERT_TRUE(window.adopt(sheet));
        const bool grows = window.enlarge(growth);
        EXPECT_EQ(grows, growth == 30);
        EXPECT_EQ(Place(sheet, nullptr).bottom, grows ? screen.bottom : screen.bottom - 5);
        window.restore();
        EXPECT_EQ(placesOf(sheet), low);
    }
    DestroyWindow(sheet);
}

TEST_F(SheetOffTabTest, AStrangerInFrontOfOurProcedureKeepsHisChain)
{
    auto rig = makeRig(kWithOne);
    const HWND sheet = open(*rig);
    s_former = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(sheet, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&strangersProcedure)));
    rig.reset();
    EXPECT_EQ(procedureOf(sheet), &strangersProcedure);
    s_passed = 0;
    SetWindowTextW(sheet, L"still there");
    EXPECT_GT(s_passed, 0);
    wchar_t text[20]{};
    EXPECT_EQ(GetWindowTextW(sheet, text, 20), 11) << "the sheet's own procedure is not reached";
    DestroyWindow(sheet);
}

TEST_F(SheetOffTabTest, AnAreaWorksAndASheetThatGoesFirstLeavesNothingToDo)
{
    auto rig = makeRig(kWithOne);
    const HWND sheet = open(*rig);
    const bool before = boolean(kCollate);
    sendClick(findControl(sheet, L"BUTTON", L"Collate copies"));
    EXPECT_TRUE(pumpUntil([&] { return boolean(kCollate) != before; }));
    EXPECT_TRUE(pumpUntil([&] { return IsWindowEnabled(GetDlgItem(sheet, 0x3021)) != FALSE; }))
        << "Apply";

    DestroyWindow(sheet); // before the manager: nothing is left to be restored
    rig.reset();
    EXPECT_FALSE(IsWindow(sheet));
}

/// A popup tab set over a sheet with a page that nobody has visited: its pages find their own tabs,
/// OK keeps what was done, Cancel does not, and neither touches the sheet below.
TEST_F(SheetOffTabTest, APopupTabSetKeepsItsPagesAndItsChangesApart)
{
    auto rig = makeRig(kWithSet);
    const HWND sheet = open(*rig);
    const auto features = model().GetFullListOfFeatures();
    const bool toner = boolean(kTonerSaving);
    ASSERT_TRUE(features.GetBooleanFeature(FeatureId(kTonerSaving))
                    .SetValue(!toner)); // a pending change of the sheet below
    for (const int button : {IDCANCEL, IDOK}) {
        const bool before = boolean(kCollate);
        const IdleDriver driver({
            [&](HWND popup) {
                EXPECT_NE(popup, sheet);
                EXPECT_EQ(o7::windowText(GetDlgItem(popup, IDOK)),
                          session().strings().LoadStringW(O7STR_L_TONER_SAVING));
                return SendMessageW(popup, PSM_SETCURSEL, 1, 0) != 0;
            },
            [](HWND popup) {
                const HWND box = findControl(popup, L"BUTTON", L"Collate copies");
                if (box)
                    sendClick(box);
                return box != nullptr;
            },
            [&](HWND) { return boolean(kCollate) != before; },
            [button](HWND popup) {
                return PostMessageW(popup, WM_COMMAND, static_cast<WPARAM>(button), 0) != FALSE;
            },
        });
        EXPECT_EQ(rig->events().displayPropertySheet(kSetNumber, features, sheet), button == IDOK);
        EXPECT_EQ(driver.failure(), "");
        EXPECT_EQ(boolean(kCollate) != before, button == IDOK);
        EXPECT_EQ(boolean(kTonerSaving), !toner) << "Cancel of a popup is no Cancel of the sheet";
    }
    EXPECT_EQ(rig->messages().handlers(UIMessageKind::TabPage).size(), 1U);
    SendMessageW(sheet, PSM_SETCURSEL, 1, 0);
    EXPECT_NE(findControl(currentPage(sheet), L"BUTTON", L"Save toner"), nullptr);
    EXPECT_FALSE(rig->events().displayPropertySheet(static_cast<DialogId>(8), features, sheet));
    DestroyWindow(sheet);
}

} // namespace o7::test

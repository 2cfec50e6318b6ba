// What a sheet tells around its pages: conflicts on tabs and by key, the defaults of a page, the
// page that was looked at last. Pages of the tests' own over the features of a real product.

#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <array>

#include "idledriver.h"
#include "input.h"
#include "registrykey.h"
#include "resourceguard.h"
#include "sheetrig.h"
#include "tables/productids.h"
#include "tables/tablerows.h"
#include "uidata.h"
#include "uifixture.h"
#include "uihandles.h"
#include "uimanager.h"
#include "uirecords.h"
#include "uistringnumbers.h"
#include "uitab.h"
#include "uitabmanager.h"
#include "uitabmarks.h"

namespace o7::test {

namespace {

using Steps = std::vector<IdleDriver::Step>;

constexpr int kRecycled = 5131; // a paper type
constexpr int kTray2 = 5122;
constexpr int kEnvelope10 = 5267; // a paper size

// "Layout" shows nothing that can be in conflict; "Image" shows the paper type again.
constexpr UIMoleculeRecord kPaperRows[] = {combo<kPaperTray, O7STR_L_PAPER_TRAY>(),
                                           check<kTonerSaving, O7STR_L_TONER_SAVING>(),
                                           combo<kPaperType, O7STR_L_PAPER_TYPE>()};
constexpr UIMoleculeRecord kLayoutRows[] = {check<kPageBorders, O7STR_L_PAGE_BORDERS>(),
                                            check<kCollate, O7STR_L_COLLATE>(),
                                            combo<kOptimiseFor, O7STR_L_OPTIMISE_FOR>()};
constexpr UIMoleculeRecord kImageRows[] = {combo<kPaperSize, O7STR_L_PAPER_SIZE>(),
                                           check<kAccounting, O7STR_L_ACCOUNTING>()};
constexpr UIColumnRecord kPaperColumns[] = {left(kPaperRows)};
constexpr UIColumnRecord kLayoutColumns[] = {left(kLayoutRows)};
constexpr UIColumnRecord kImageColumns[] = {left(kImageRows)};
constexpr UISimpleFeatureRecord kWithoutControl[] = {{kSkipBlankPages}};
constexpr UIContainerRecord kPages[] = {
    page(11, O7STR_TAB_PAPER, kPaperColumns),
    {.id = 12,
     .title = O7STR_TAB_LAYOUT,
     .width = kPageWidth,
     .height = kPageHeight,
     .columns = kLayoutColumns,
     .simpleFeatures = kWithoutControl},
    page(13, O7STR_TAB_IMAGE, kImageColumns),
};
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

IdleDriver::Step key(WORD virtualKey, bool shift = false)
{
    return act([=](HWND) { shift ? strikeKey(virtualKey, {VK_SHIFT}) : strikeKey(virtualKey); });
}

IdleDriver::Step selectPage(WPARAM index)
{
    return act([=](HWND sheet) { SendMessageW(sheet, PSM_SETCURSEL, index, 0); });
}

/// Tab texts as one line.
std::wstring textsOf(HWND tabs)
{
    const auto count = static_cast<WPARAM>(SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0));
    std::wstring texts;
    for (WPARAM index = 0; index < count; ++index) {
        std::array<wchar_t, 64> text{};
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = text.data();
        item.cchTextMax = static_cast<int>(text.size());
        SendMessageW(tabs, TCM_GETITEMW, index, reinterpret_cast<LPARAM>(&item));
        texts += std::wstring(item.pszText) + L"|";
    }
    return texts;
}

HWND tabsOf(HWND sheet)
{
    return reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETTABCONTROL, 0, 0));
}

int activePage(HWND sheet)
{
    return static_cast<int>(SendMessageW(tabsOf(sheet), TCM_GETCURSEL, 0, 0));
}

} // namespace

class SheetGuideTest : public UIFixture
{
protected:
    SheetGuideTest() : m_data(kRoot, UIMode::PrintingPreferences, Workflow::Standard) {}

    /// Paper tray and paper type on the first page, accounting on the third.
    void makeConflicts()
    {
        setOption(kPaperTray, kTray2);
        setOption(kPaperType, kRecycled);
        setOption(kPaperSize, kEnvelope10);
        setBoolean(kAccountRequired, true); // accounting follows, until somebody turns it off
        setBoolean(kAccounting, false);
    }

    void setBoolean(tagFeatureEnum feature, bool value)
    {
        ASSERT_TRUE(
            model().GetFullListOfFeatures().GetBooleanFeature(FeatureId(feature)).SetValue(value));
    }

    std::wstring nameOf(tagFeatureEnum feature)
    {
        return session().strings().GetStringForFeature(feature).c_str();
    }

    void runSheet(Steps steps)
    {
        SheetRig rig(session().productData(), session().featureServices(), session().strings(),
                     m_data);
        rig.tabs().rememberLastPage(m_personalKey, L"Printer\\One");
        const IdleDriver driver(std::move(steps));
        rig.run(PSH_NOAPPLYNOW);
        EXPECT_EQ(driver.failure(), "");
    }

    UIData m_data;
    const wchar_t* m_personalKey = L"";
};

TEST_F(SheetGuideTest, TabsAreMarkedAsLongAsTheirPageHasAConflict)
{
    runSheet({
        until([](HWND sheet) { return textsOf(tabsOf(sheet)) == L"Paper/Output|Layout|Image|"; }),
        act([&](HWND) { makeConflicts(); }),
        until(
            [](HWND sheet) { return textsOf(tabsOf(sheet)) == L"Paper/Output !|Layout|Image !|"; }),
        act([&](HWND) { setBoolean(kAccountRequired, false); }),
        until([](HWND sheet) { return textsOf(tabsOf(sheet)) == L"Paper/Output !|Layout|Image|"; }),
        act([&](HWND) { model().RevertToAccepted(); }),
        until([](HWND sheet) { return textsOf(tabsOf(sheet)) == L"Paper/Output|Layout|Image|"; }),
        key(VK_F8), // goes nowhere
        key(VK_ESCAPE),
    });
}

TEST_F(SheetGuideTest, AMarkShortensItsTitleRatherThanMakeAnotherRow)
{
    const UniqueWindow window(CreateWindowExW(0, WC_TABCONTROLW, L"", TCS_MULTILINE, 0, 0, 900, 200,
                                              nullptr, nullptr, nullptr, nullptr));
    const HWND tabs = window.get();
    const std::vector<CXString> titles = {L"Host", L"Paper and output", L"Layout"};
    for (const CXString& title : titles) {
        TCITEMW item{};
        item.mask = TCIF_TEXT;
        item.pszText = const_cast<wchar_t*>(title.c_str());
        SendMessageW(tabs, TCM_INSERTITEMW, 9, reinterpret_cast<LPARAM>(&item));
    }
    const auto rows = [=] { return SendMessageW(tabs, TCM_GETROWCOUNT, 0, 0); };
    int width = 900;
    const auto narrow = [&] {
        return SetWindowPos(tabs, nullptr, 0, 0, --width, 200, SWP_NOMOVE | SWP_NOZORDER);
    };
    while (rows() == 1 && width > 0)
        narrow();
    width += 2;
    narrow(); // just wide enough
    ASSERT_EQ(rows(), 1);

    UITabMarks marks(tabs, 1, {titles[1], titles[2]});
    marks.show({true, false});
    EXPECT_EQ(rows(), 1);
    const std::wstring shown = textsOf(tabs);
    EXPECT_EQ(shown.find(L"Host|Paper and"), 0U);
    EXPECT_NE(shown.find(L"\u2026 !|Layout|"), std::wstring::npos);
    marks.show({false, false});
    EXPECT_EQ(textsOf(tabs), L"Host|Paper and output|Layout|");
}

TEST_F(SheetGuideTest, F8GoesFromConflictToConflictThroughAllPages)
{
    makeConflicts();
    struct Stop
    {
        bool backwards;
        int page;
        const wchar_t* label;
    };
    constexpr Stop kWay[] = {
        {false, 0, L"Paper tray:"}, {false, 0, L"Paper type:"},   {false, 2, L"Use accounting"},
        {false, 0, L"Paper tray:"}, {true, 2, L"Use accounting"}, {true, 0, L"Paper type:"},
        {true, 0, L"Paper tray:"},
    };
    Steps steps;
    // From the head of the page; the focus of the sheet stands on its first control, which is one.
    steps.push_back(act([](HWND sheet) { SetFocus(tabsOf(sheet)); }));
    for (const Stop& stop : kWay) {
        steps.push_back(key(VK_F8, stop.backwards));
        steps.push_back(until([](HWND box) { return GetDlgItem(box, IDOK) && !tabsOf(box); }));
        steps.push_back(key(VK_ESCAPE)); // the ways out that are offered there
        steps.push_back(until([stop](HWND sheet) {
            const HWND list = findListBehind(sheet, stop.label);
            const HWND wanted = list ? list : findControl(sheet, L"BUTTON", stop.label);
            return activePage(sheet) == stop.page && wanted && GetFocus() == wanted;
        }));
    }
    steps.push_back(key(VK_ESCAPE));
    runSheet(std::move(steps));
}

TEST_F(SheetGuideTest, ThePageSaysWhatIsChangedAndGoesBackToItsDefaultsAlone)
{
    HWND button = nullptr;
    const auto says = [&](const wchar_t* start, std::initializer_list<tagFeatureEnum> features) {
        std::wstring text = start;
        for (const auto feature : features)
            text += (feature == *features.begin() ? L"" : L", ") + nameOf(feature);
        return until([=](HWND sheet) { return findControl(sheet, L"STATIC", text.c_str()); });
    };
    const auto isOffered = [&](bool offered) {
        return until([&, offered](HWND) { return (IsWindowEnabled(button) != FALSE) == offered; });
    };
    setBoolean(kSkipBlankPages, true);
    model().CommitAccepted();
    runSheet({
        selectPage(1),
        until([&](HWND sheet) {
            return (button = findControl(sheet, L"BUTTON", L"Page Defaults")) != nullptr;
        }),
        says(L"Changed from the default: ", {kSkipBlankPages}), // which has no control
        isOffered(true),
        act([&](HWND) {
            setBoolean(kPageBorders, false);
            setBoolean(kTonerSaving, true);
            setBoolean(kCollate, false);
        }),
        says(L"Changed from the default: ", {kTonerSaving, kCollate, kSkipBlankPages}),
        act([](HWND) { sendKey('D', {VK_MENU}); }),
        says(L"Changed from the default: ", {kTonerSaving}),
        isOffered(false),
        act([&](HWND sheet) {
            EXPECT_TRUE(boolean(kCollate));
            EXPECT_FALSE(boolean(kSkipBlankPages));
            EXPECT_NE(GetFocus(), button) << "a greyed button has the keyboard";
            EXPECT_TRUE(IsChild(sheet, GetFocus()));
            makeConflicts();
        }),
        says(L"In conflict (F8 shows the next): ", {kPaperTray, kPaperType, kAccounting}),
        key(VK_ESCAPE),
    });
    EXPECT_TRUE(boolean(kSkipBlankPages)) << "Cancel brings everything back";
    EXPECT_FALSE(boolean(kTonerSaving));
}

TEST_F(SheetGuideTest, ASettingThatIsNotShownIsExplainedBesideTheStatus)
{
    std::wstring reason;
    const auto isExplained = [&](HWND sheet) {
        return findControl(sheet, L"BUTTON", reason.c_str()) != nullptr;
    };
    runSheet({
        selectPage(1),
        act([&](HWND) {
            setOption(DataModelIds::kFeatureControllerFamily, DataModelIds::kValueFamily8432);
            const auto state = model()
                                   .GetFeatureRef(FeatureIdWithContext(kOptimiseFor))
                                   ->GetCapabilities()
                                   ->GetInterpretedState();
            ASSERT_TRUE(state.IsHidden());
            reason = nameOf(kOptimiseFor) + L": " + state.GetReason().c_str();
        }),
        until(isExplained),
        selectPage(0), // which shows no such setting
        selectPage(1),
        until(isExplained),
        act([&](HWND) { // what the device reports is not taken back
            setOption(DataModelIds::kFeatureControllerFamily, DataModelIds::kValueFamily8430);
        }),
        until([&](HWND sheet) { return !isExplained(sheet); }),
        key(VK_ESCAPE),
    });
}

TEST_F(SheetGuideTest, ADialogOverTheSheetHasItsOwnConflicts)
{
    makeConflicts();
    UIManager manager(session().productData(), nullptr, UIMode::CompactDialog, 0,
                      Workflow::Standard);
    const IdleDriver driver({
        key(VK_F8),
        until([](HWND box) { return findControl(box, L"BUTTON", L"Carry Out") != nullptr; }),
        key(VK_ESCAPE),
        until([](HWND dialog) {
            const HWND list = findListBehind(dialog, L"Paper tray:");
            return list && GetFocus() == list;
        }),
        key(VK_ESCAPE),
    });
    manager.runAsDialog(session().featureServices(), session().strings(), nullptr);
    EXPECT_EQ(driver.failure(), "");
}

TEST_F(SheetGuideTest, TheLastPageIsKeptForPrinterAndModeAndByNumber)
{
    constexpr wchar_t kKey[] = L"Software\\Orvik\\SheetGuideTest";
    RegistryKey(HKEY_CURRENT_USER, kKey).DeleteKey();
    const auto opensOn = [&](int page, Steps further = {}) {
        further.insert(further.begin(),
                       until([=](HWND sheet) { return activePage(sheet) == page; }));
        further.push_back(key(VK_ESCAPE));
        runSheet(std::move(further));
    };
    opensOn(0, {selectPage(2)}); // nothing is kept unless it is asked for
    opensOn(0);
    m_personalKey = kKey;
    opensOn(0, {selectPage(2)});
    opensOn(2);
    RegistryKey printer(HKEY_CURRENT_USER, kKey + CXString(L"\\Printer%5COne"));
    EXPECT_EQ(printer.GetLongValue(L"LastPage1", 0), 13);
    printer.SetLongValue(L"LastPage1", 12);
    opensOn(1);
    printer.SetLongValue(L"LastPage1", 99); // a page that an older version had
    opensOn(0);
    RegistryKey(HKEY_CURRENT_USER, kKey).DeleteKey();
}

TEST_F(SheetGuideTest, NothingIsLeftBehind)
{
    makeConflicts();
    model().CommitAccepted(); // so that each Cancel comes back to them
    const auto openAndClose = [&] {
        runSheet({
            key(VK_F8),
            until([](HWND box) { return GetDlgItem(box, IDOK) && !tabsOf(box); }),
            key(VK_ESCAPE),
            until([](HWND sheet) { return tabsOf(sheet) != nullptr; }),
            key(VK_ESCAPE),
        });
    };
    openAndClose();
    const ResourceGuard guard(ResourceGuard::Windows | ResourceGuard::GdiObjects);
    for (int round = 0; round < 3; ++round)
        openAndClose();
    makeConflicts(); // nobody is told any more
}

} // namespace o7::test

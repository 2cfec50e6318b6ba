// Every page, area and dialog of every product stands as it should: nothing runs off its page or
// overlaps, every text is seen whole or has a tip that holds it, Tab goes in the order of reading,
// and no letter is taken twice.
//
// No sheet is opened. Each page gets a hidden dialog window whose font has the size that it would
// have at a resolution; dialog units follow the font, so everything scales as it would there.

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <functional>
#include <memory>
#include <optional>

#include "dialogconversion.h"
#include "entryheight.h"
#include "geometryrules.h"
#include "isolationaware.h"
#include "optionfeatureref.h"
#include "productsession.h"
#include "tables/tablerows.h"
#include "uicolumndata.h"
#include "uicontainerdata.h"
#include "uicontext.h"
#include "uidata.h"
#include "uifixture.h"
#include "uihandles.h"
#include "uilayoutmanager.h"
#include "uimolecule.h"
#include "uimoleculecontainer.h"
#include "uipopupdialog.h"
#include "uiservices.h"

namespace o7::test {

namespace {

namespace fs = std::filesystem;

/// How pages are looked at, besides their language.
struct Look
{
    const wchar_t* language;
    int dpi = 96;
    bool mirrored = false;
    TextLength length = TextLength::AsWritten;
};

// Every language as it is, in all modes. Then each other factor alone, in German, whose texts are
// the longest.
constexpr Look kLooks[] = {
    {L"en"},
    {L"de"},
    {L"fr"},
    {L"es"},
    {L"ja"},
    {L"ar", 96, true},
    {L"de", 120},
    {L"de", 144},
    {L"de", 192},
    {L"de", 96, true},
    {L"de", 96, false, TextLength::Longer},
};

bool isAsUsual(const Look& look)
{
    return look.dpi == 96 && look.length == TextLength::AsWritten;
}

constexpr std::array kModes{UIMode::PrintingPreferences, UIMode::DeviceSettings,
                            UIMode::CompactDialog, UIMode::PrintingDefaults};

/// The molecules of a page without its sheet.
class BarePage : public UIMoleculeContainer
{
public:
    BarePage(ProductSession& session, UIServices& services, const UIContainerData& data)
        : UIMoleculeContainer(session.featureServices(), session.strings(), services,
                              session.featureServices().GetFullListOfFeatures())
    {
        buildFrom(data);
    }
    ~BarePage() override { releaseMolecules(); }
    CXString findMisfit() const { return getLayout().findMisfit(); }
    void fillArea(long width) { getLayout().fillArea(width); }

protected:
    bool createOn(HWND window) override
    {
        getServices().getDialogConversion().initDialogConversions(window);
        return true;
    }
};

/// A dialog template with a font of a size that goes with the resolution.
#pragma pack(push, 2)
struct Template
{
    WORD version = 1;
    WORD signature = 0xFFFF;
    DWORD helpId = 0;
    DWORD exStyle = 0;
    DWORD style = WS_POPUP | DS_SHELLFONT | DS_CONTROL;
    WORD items = 0;
    short x = 0;
    short y = 0;
    short width = 0;
    short height = 0;
    WORD menu = 0;
    WORD windowClass = 0;
    WORD title = 0;
    WORD pointSize = 8;
    WORD weight = FW_NORMAL;
    BYTE italic = 0;
    BYTE charset = DEFAULT_CHARSET;
    wchar_t face[13] = L"MS Shell Dlg";
};
#pragma pack(pop)

/// What a window of the test holds, and how it gets it.
struct Hosted
{
    const UIMoleculeContainer& page;
    std::function<void(HWND)> open;
};

INT_PTR CALLBACK pageProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        const Hosted& hosted = *reinterpret_cast<const Hosted*>(lParam);
        SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(&hosted.page));
        hosted.open(window);
    }
    const auto page =
        reinterpret_cast<const UIMoleculeContainer*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (message == WM_SETCURSOR && page)
        page->offerToMolecules({UIMessageKind::TabPage, window, message, wParam, lParam});
    return message == WM_MEASUREITEM &&
           o7::answerEntryHeight(window, *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
}

UniqueWindow openWindow(const Hosted& hosted, SIZE size, const Look& look)
{
    Template dialog;
    dialog.exStyle = look.mirrored ? WS_EX_LAYOUTRTL : 0;
    dialog.width = static_cast<short>(size.cx);
    dialog.height = static_cast<short>(size.cy);
    dialog.pointSize = static_cast<WORD>(8 * look.dpi / 96);
    const IsolationAware::ActivationScope scope;
    return UniqueWindow(CreateDialogIndirectParamW(
        IsolationAware::moduleInstance(), reinterpret_cast<const DLGTEMPLATE*>(&dialog), nullptr,
        &pageProcedure, reinterpret_cast<LPARAM>(&hosted)));
}

BOOL CALLBACK findTipWindow(HWND window, LPARAM found)
{
    wchar_t name[32] = L"";
    GetClassNameW(window, name, 32);
    auto& [owner, tips] = *reinterpret_cast<std::pair<HWND, HWND>*>(found);
    if (_wcsicmp(name, TOOLTIPS_CLASSW) == 0 && GetWindow(window, GW_OWNER) == owner)
        tips = window;
    return tips == nullptr;
}

/// What the tip of a control says once the mouse is over it.
CXString tipOf(HWND control)
{
    SendMessageW(control, WM_SETCURSOR, reinterpret_cast<WPARAM>(control),
                 MAKELPARAM(HTCLIENT, WM_MOUSEMOVE));
    const HWND page = GetParent(control);
    std::pair<HWND, HWND> found{page, nullptr};
    EnumThreadWindows(GetCurrentThreadId(), &findTipWindow, reinterpret_cast<LPARAM>(&found));
    std::array<wchar_t, 1024> text{};
    TTTOOLINFOW info{};
    info.cbSize = TTTOOLINFOW_V2_SIZE;
    info.uFlags = TTF_IDISHWND;
    info.hwnd = page;
    info.uId = reinterpret_cast<UINT_PTR>(control);
    info.lpszText = text.data();
    SendMessageW(found.second, TTM_GETTEXTW, text.size(), reinterpret_cast<LPARAM>(&info));
    return text.data();
}

class PageGeometryTest : public ::testing::TestWithParam<Look>
{
protected:
    void visitProduct(const fs::path& product);

private:
    void visitInterface(const UIData& description);
    void visitPage(const UIContainerData& data, std::optional<long> areaWidth);
    void visitDialog(const UIContainerData& data);
    /// Opens a window for the content, judges it and closes it again.
    void judge(const Hosted& hosted, const UIContainerData& data, SIZE size);

    std::unique_ptr<ProductSession> m_session;
    std::unique_ptr<UIServices> m_services;
    std::set<wchar_t> m_taken; ///< letters of the sheet itself
    std::string m_where;
    int m_pages = 0;
};

void PageGeometryTest::visitProduct(const fs::path& product)
{
    std::vector<CXString> errors;
    m_session = ProductSession::open(product, GetParam().language, errors, GetParam().length);
    ASSERT_TRUE(m_session) << product.string();
    m_services = std::make_unique<UIServices>(m_session->language());
    m_session->featureServices().SettleBeforeDisplay();
    const auto family = m_session->featureServices()
                            .GetOptionFeatureRef(DataModelIds::kFeatureControllerFamily)
                            .GetValue()
                            .GetValueEnum();
    m_pages = 0;
    for (const UIMode mode : kModes) {
        // The pages of the defaults are those of the preferences but for one: languages matter.
        if (mode == UIMode::PrintingDefaults && !isAsUsual(GetParam()))
            continue;
        m_where = product.filename().string() + " mode " + std::to_string(static_cast<int>(mode));
        visitInterface(UIData(mode, family, Workflow::Standard));
    }
    EXPECT_GT(m_pages, 5) << product.string();
}

void PageGeometryTest::visitInterface(const UIData& description)
{
    m_taken.clear();
    for (const auto& area : description.getOffTabs())
        visitPage(*area, description.getTabs()[0]->getWidth());
    if (GetParam().language == std::wstring(L"en"))
        m_taken.insert(L'A'); // Apply
    for (const auto& page : description.getTabs())
        visitPage(*page, std::nullopt);
    if (description.getMode() == UIMode::CompactDialog) // the same in all modes
        for (const auto& dialog : description.getDialogs())
            visitDialog(*dialog);
}

void PageGeometryTest::visitPage(const UIContainerData& data, std::optional<long> areaWidth)
{
    BarePage page(*m_session, *m_services, data);
    EXPECT_TRUE(page.findMisfit().IsEmpty()) << m_where << ": " << page.findMisfit().ToUtf8();
    SIZE size{data.getWidth(), data.getHeight()};
    if (areaWidth) {
        size = {*areaWidth, data.getHeight() - 2 * UILayoutManager::kMargin};
        page.fillArea(*areaWidth);
    }
    judge({page, [&](HWND window) { page.initialize(window); }}, data, size);
}

void PageGeometryTest::visitDialog(const UIContainerData& data)
{
    UIContext context{m_session->featureServices(), m_session->strings(), m_session->productData()};
    UIPopupDialog dialog(m_session->featureServices(), context, *m_services,
                         m_session->featureServices().GetFullListOfFeatures(), data, false,
                         nullptr);
    m_taken.clear();
    const auto open = [&](HWND window) {
        dialog.handleMessage({UIMessageKind::Dialog, window, WM_INITDIALOG, 0, 0});
    };
    judge({dialog, open}, data, {data.getWidth(), data.getHeight()});
}

void PageGeometryTest::judge(const Hosted& hosted, const UIContainerData& data, SIZE size)
{
    const UniqueWindow owned = openWindow(hosted, size, GetParam());
    const HWND window = owned.get();
    ASSERT_NE(window, nullptr);
    std::vector<LONG> columns;
    for (const auto& column : data.getColumns())
        columns.push_back(
            m_services->getDialogConversion().dialogUnitsToPixels(SIZE{column->getX(), 0}).cx);
    GeometryRules rules(window, columns, &tipOf);
    for (const std::string& fault : rules.findFaults(m_taken))
        ADD_FAILURE() << m_where << ", "
                      << m_session->strings().LoadStringW(data.getTitle()).ToUtf8() << ": "
                      << fault;
    for (const wchar_t letter : rules.mnemonics())
        if (size.cy < data.getHeight()) // an area's letters are taken on all pages
            m_taken.insert(letter);
    ++m_pages;
}

TEST_P(PageGeometryTest, EveryPageIsWhole)
{
    for (const auto& product : fs::directory_iterator(productsFolder()))
        if (fs::exists(product.path() / "package.json"))
            visitProduct(product);
}

std::string nameOf(const ::testing::TestParamInfo<Look>& info)
{
    const Look& look = info.param;
    return CXString(look.language).ToUtf8() + "At" + std::to_string(look.dpi) +
           (look.mirrored ? "Mirrored" : "") + (look.length == TextLength::Longer ? "Longer" : "");
}

INSTANTIATE_TEST_SUITE_P(Looks, PageGeometryTest, ::testing::ValuesIn(kLooks), nameOf);

using LayoutTest = UIFixture;

TEST_F(LayoutTest, AColumnGivesWayStepByStepAndIsThenRefused)
{
    // Labels of two lines above two lists, 31 high each; 23 where they have to keep to one line.
    constexpr std::uint32_t kLongText = 60044;
    static constexpr UIMoleculeRecord kLists[] = {combo<kPaperSize, kLongText>(),
                                                  combo<kPaperTray, kLongText>()};
    static constexpr UIColumnRecord kColumns[] = {{.x = 7, .width = 270, .molecules = kLists}};
    struct Row
    {
        int room;
        long height;
        bool cut;
    };
    constexpr Row kRows[] = {{80, 66, false}, {66, 66, false}, {65, 65, false},
                             {64, 64, false}, {63, 50, true},  {50, 50, true}};
    UIServices services(session().language());
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.room);
        const UIContainerRecord record{
            .id = 1, .width = 300, .height = row.room + 14, .columns = kColumns};
        const UIContainerData data(record, 1);
        BarePage page(session(), services, data);
        const UniqueWindow window =
            openWindow({page, [&](HWND created) { page.initialize(created); }},
                       {record.width, record.height}, {L"en"});
        const UIMolecule& last = *page.getMolecules().back();
        EXPECT_EQ(last.GetPosition().y + last.GetMinimumHeight() - 7, row.height);
        const HWND label = GetWindow(window.get(), GW_CHILD);
        EXPECT_EQ(tipOf(label).View().find(L"Page borders are drawn") == 0, row.cut);
        EXPECT_TRUE(GeometryRules(window.get(), {0}, &tipOf).findFaults({}).empty());
    }
    const UIContainerRecord tooLow{.id = 9, .width = 300, .height = 49 + 14, .columns = kColumns};
    const UIContainerData data(tooLow, 1);
    const std::string misfit = BarePage(session(), services, data).findMisfit().ToUtf8();
    EXPECT_NE(misfit.find("page 9"), std::string::npos) << misfit;
    EXPECT_NE(misfit.find("ComboBox"), std::string::npos) << misfit;
}

/// The rules themselves: each planted fault is found, and nothing else.
TEST(GeometryRulesTest, FindWhatIsPlanted)
{
    struct Row
    {
        const wchar_t* kind;
        const wchar_t* text;
        RECT place;
        const char* found;
    };
    constexpr Row kRows[] = {
        {WC_BUTTONW, L"&Good", {10, 40, 90, 60}, nullptr},
        {WC_BUTTONW, L"&Wide", {10, 40, 210, 60}, "runs off"},
        {WC_BUTTONW, L"&Near", {10, 29, 90, 50}, "overlaps"},
        {WC_BUTTONW, L"", {10, 0, 90, 9}, "by the Tab key"},
        {WC_STATICW, L"A label that is much too long", {10, 40, 90, 52}, "cuts"},
        {WC_BUTTONW, L"&First again", {10, 40, 120, 60}, "takes a letter"},
    };
    for (const Row& row : kRows) {
        SCOPED_TRACE(row.found ? row.found : "nothing");
        const UniqueWindow page(CreateWindowExW(0, WC_STATICW, L"", WS_POPUP, 0, 0, 200, 100,
                                                nullptr, nullptr, nullptr, nullptr));
        const auto place = [&](const Row& what) {
            const RECT& at = what.place;
            CreateWindowExW(0, what.kind, what.text, WS_CHILD | WS_VISIBLE, at.left, at.top,
                            at.right - at.left, at.bottom - at.top, page.get(), nullptr, nullptr,
                            nullptr);
        };
        place({WC_BUTTONW, L"&First", {10, 10, 90, 30}, nullptr});
        place(row);
        const auto faults =
            GeometryRules(page.get(), {0}, [](HWND) { return CXString(); }).findFaults({});
        ASSERT_EQ(faults.size(), row.found ? 1U : 0U);
        if (row.found) {
            EXPECT_NE(faults[0].find(row.found), std::string::npos) << faults[0];
        }
    }
}

} // namespace

} // namespace o7::test

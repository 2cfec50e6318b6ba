// Managers, sheets and pages that go in an order nobody planned, and what the system refuses.

#include <windows.h>

#include <prsht.h>

#include <array>
#include <cstring>

#include "booleanfeatureref.h"
#include "exceptiontabcreationfailure.h"
#include "hostsheet.h"
#include "importpatch.h"
#include "input.h"
#include "observercount.h"
#include "processresources.h"
#include "sheetrig.h"
#include "sheetsteps.h"
#include "uidata.h"
#include "uidialogprocedure.h"
#include "uieventprocessor.h"
#include "uifixture.h"
#include "uimanager.h"
#include "uimessagemanager.h"
#include "uitabmanager.h"

namespace o7::test {

namespace {

constexpr UIContainerRecord kPages[] = {checkPage(1), kFieldPage, checkPage(3)};
constexpr UIContainerRecord kArea[] = {{1, 0, 214, 40, kCheckColumns}};
constexpr UIContainerRecord kHugeArea[] = {{1, 0, 214, 2000, kCheckColumns}};
constexpr auto kSetNumber = static_cast<DialogId>(7);
constexpr UIContainerRecord kSet[] = {{7, O7STR_TAB_IMAGE, 220, 60, kCheckColumns},
                                      {7, O7STR_TAB_JOB, 220, 60, kCheckColumns}};
constexpr UIRootRecord root(UIRecords<UIContainerRecord> areas)
{
    return {.family = DataModelIds::kValueFamily8430,
            .mode = UIMode::PrintingPreferences,
            .tabs = kPages,
            .dialogs = kSet,
            .offTabs = areas};
}
constexpr UIRootRecord kPlain = root({});
constexpr UIRootRecord kWithArea = root(kArea);
constexpr UIRootRecord kWithHugeArea = root(kHugeArea);

/// Counts the pages that are made and destroyed through the library, and refuses the n-th one.
struct PageCalls
{
    PageCalls() : patch("GetProcAddress", reinterpret_cast<void*>(&find))
    {
        realFind = patch.originalAs<Find>();
        made = 0;
        destroyed = 0;
        refused = 0;
        IsolationAware::cleanUp(); // what was looked up before is forgotten
    }
    ~PageCalls() { IsolationAware::cleanUp(); }
    PageCalls(const PageCalls&) = delete;
    PageCalls& operator=(const PageCalls&) = delete;

    static FARPROC WINAPI find(HMODULE library, const char* name)
    {
        const FARPROC found = realFind(library, name);
        if (std::strcmp(name, "CreatePropertySheetPageW") == 0) {
            realCreate = reinterpret_cast<Create>(reinterpret_cast<void*>(found));
            return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&create));
        }
        if (std::strcmp(name, "DestroyPropertySheetPage") == 0) {
            realDestroy = reinterpret_cast<Destroy>(reinterpret_cast<void*>(found));
            return reinterpret_cast<FARPROC>(reinterpret_cast<void*>(&destroy));
        }
        return found;
    }
    static HPROPSHEETPAGE WINAPI create(const PROPSHEETPAGEW* page)
    {
        if (--refused == 0)
            return nullptr;
        ++made;
        return realCreate(page);
    }
    static BOOL WINAPI destroy(HPROPSHEETPAGE page)
    {
        ++destroyed;
        return realDestroy(page);
    }

    using Create = HPROPSHEETPAGE(WINAPI*)(const PROPSHEETPAGEW*);
    using Destroy = BOOL(WINAPI*)(HPROPSHEETPAGE);
    using Find = decltype(&::GetProcAddress);
    static inline Find realFind = nullptr;
    static inline Create realCreate = nullptr;
    static inline Destroy realDestroy = nullptr;
    static inline int made = 0;
    static inline int destroyed = 0;
    static inline int refused = 0; ///< counts down
    const IsolationAware::Session session;
    ImportPatch patch;
};

int s_allocationsLeft = 0;
decltype(&::GlobalAlloc) s_allocate = nullptr;
HGLOBAL WINAPI allocateSome(UINT flags, SIZE_T size)
{
    return --s_allocationsLeft < 0 ? nullptr : s_allocate(flags, size);
}

int s_pins = 0;
decltype(&::GetModuleHandleExW) s_getModule = nullptr;
BOOL WINAPI countPins(DWORD flags, LPCWSTR name, HMODULE* module)
{
    if (!(flags & GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT))
        ++s_pins;
    return s_getModule(flags, name, module);
}

decltype(&::CreateWindowExW) s_createWindow = nullptr;
HWND WINAPI refuseCheckBoxes(DWORD exStyle, LPCWSTR className, LPCWSTR text, DWORD style, int x,
                             int y, int width, int height, HWND parent, HMENU menu,
                             HINSTANCE instance, void* param)
{
    const bool isCheckBox = HIWORD(reinterpret_cast<ULONG_PTR>(className)) != 0 &&
                            _wcsicmp(className, L"BUTTON") == 0 &&
                            (style & BS_TYPEMASK) != BS_GROUPBOX &&
                            (style & BS_TYPEMASK) != BS_OWNERDRAW;
    return isCheckBox ? nullptr
                      : s_createWindow(exStyle, className, text, style, x, y, width, height, parent,
                                       menu, instance, param);
}

std::wstring s_boxText;
int WINAPI rememberBox(HWND, LPCWSTR text, LPCWSTR, UINT)
{
    s_boxText += text;
    return IDOK;
}

/// In front of the procedure that a window has.
WNDPROC s_former = nullptr;
LRESULT CALLBACK stranger(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return CallWindowProcW(s_former, window, message, wParam, lParam);
}
int s_pagesAccepted = 0;
LRESULT CALLBACK refusesPages(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == PSM_ADDPAGE && --s_pagesAccepted < 0)
        return FALSE;
    return CallWindowProcW(s_former, window, message, wParam, lParam);
}
void standBefore(HWND window, WNDPROC procedure)
{
    s_former = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(procedure)));
}

class DoesNotSettle : public ObserverCount
{
public:
    using ObserverCount::ObserverCount;
    void SettleBeforeDisplay() override { throw std::runtime_error("does not settle"); }
};

/// A sheet's window: what a change of its frame would change.
struct Frame
{
    explicit Frame(HWND sheet)
    {
        RECT client{};
        RECT window{};
        GetClientRect(sheet, &client);
        GetWindowRect(sheet, &window);
        POINT origin{};
        ClientToScreen(sheet, &origin);
        values = {client.right,
                  client.bottom,
                  window.right - window.left,
                  window.bottom - window.top,
                  origin.x - window.left,
                  origin.y - window.top,
                  GetWindowLongW(sheet, GWL_EXSTYLE)};
    }
    bool operator==(const Frame&) const = default;
    friend std::ostream& operator<<(std::ostream& stream, const Frame& frame)
    {
        for (const LONG value : frame.values)
            stream << value << " ";
        return stream;
    }
    std::array<LONG, 7> values{};
};

} // namespace

class SheetLifetimeTest : public UIFixture
{
protected:
    std::unique_ptr<SheetRig> makeRig(const UIRootRecord& root = kPlain)
    {
        m_data.push_back(
            std::make_unique<UIData>(root, UIMode::PrintingPreferences, Workflow::Standard));
        return std::make_unique<SheetRig>(session().productData(), model(), session().strings(),
                                          *m_data.back());
    }
    HWND open(SheetRig& rig)
    {
        const auto sheet = reinterpret_cast<HWND>(rig.run(PSH_MODELESS));
        pumpUntilQuiet();
        return sheet;
    }
    std::unique_ptr<UIManager> makeManager(void* module = nullptr)
    {
        return std::make_unique<UIManager>(session().productData(), module,
                                           UIMode::PrintingPreferences, 0, Workflow::Standard);
    }
    UITabManager::Descriptions pagesOf(const UIRootRecord& root)
    {
        m_data.push_back(
            std::make_unique<UIData>(root, UIMode::PrintingPreferences, Workflow::Standard));
        UITabManager::Descriptions pages;
        for (const auto& page : m_data.back()->getTabs())
            pages.push_back(page.get());
        return pages;
    }
    Frame frameWithout()
    {
        const auto rig = makeRig();
        const HWND sheet = open(*rig);
        const Frame frame(sheet);
        DestroyWindow(sheet);
        return frame;
    }

    /// As hosts do, this one has the library too, whatever is cleaned up.
    void SetUp() override
    {
        UIFixture::SetUp();
        const IsolationAware::ActivationScope scope;
        m_library.reset(LoadLibraryW(L"comctl32.dll"));
    }

    o7::UniqueModule m_library;
    const IsolationAware::Session m_session;
    std::vector<std::unique_ptr<UIData>> m_data;
};

TEST_F(SheetLifetimeTest, AManagerThatGoesFirstGivesTheSheetBackWhole)
{
    const Frame plain = frameWithout();
    for (const UIRootRecord* description : {&kPlain, &kWithArea}) {
        std::vector<std::size_t> objects;
        for (int round = 0; round < 3; ++round) {
            auto rig = makeRig(*description);
            const HWND sheet = open(*rig);
            rig.reset();
            EXPECT_EQ(Frame(sheet), plain);
            DestroyWindow(sheet);
            pumpUntilQuiet();
            objects.push_back(gdiObjectsOfThisProcess().size());
        }
        EXPECT_EQ(objects[1], objects[2]);
    }
}

TEST_F(SheetLifetimeTest, ASheetThatIsNotEnlargedIsLeftAsItIs)
{
    const Frame plain = frameWithout();
    const auto rig = makeRig(kWithHugeArea);
    const HWND sheet = open(*rig);
    SendMessageW(sheet, PSM_SETCURSEL, 1, 0);
    EXPECT_EQ(Frame(sheet), plain);
    DestroyWindow(sheet);
}

/// Whoever of the two goes first, the other one's areas work on.
TEST_F(SheetLifetimeTest, TwoManagersHaveTheirAreasOnOneSheet)
{
    const Frame plain = frameWithout();
    const auto clickIn = [&](HWND sheet, int areas) {
        int found = 0;
        for (HWND area = GetWindow(sheet, GW_CHILD); area; area = GetWindow(area, GW_HWNDNEXT)) {
            if (!GetPropW(area, UIDialogProcedure::kManagerProperty))
                continue;
            ++found;
            const bool before = boolean(kCollate);
            SendMessageW(findControl(area, L"BUTTON", L"Collate copies"), BM_CLICK, 0, 0);
            EXPECT_NE(boolean(kCollate), before);
        }
        EXPECT_EQ(found, areas);
    };
    for (const bool firstGoesFirst : {false, true}) {
        SCOPED_TRACE(firstGoesFirst);
        std::array<std::unique_ptr<SheetRig>, 2> rigs{makeRig(kWithArea), makeRig(kWithArea)};
        const HWND sheet = open(*rigs[0]);
        UITabManager& second = rigs[1]->tabs();
        UITabManager::Descriptions areas;
        for (const auto& area : m_data.back()->getOffTabs())
            areas.push_back(area.get());
        second.buildOffTabs(areas);
        second.createPagesForSheetWindow(pagesOf(kPlain), sheet, nullptr);
        rigs[1]->messages().append(UIMessageKind::TabPage, second);
        SendMessageW(sheet, PSM_SETCURSEL, 3, 0);
        pumpUntilQuiet();
        clickIn(sheet, 2);
        rigs[firstGoesFirst ? 0 : 1].reset();
        clickIn(sheet, 1);
        rigs[firstGoesFirst ? 1 : 0].reset();
        clickIn(sheet, 0);
        EXPECT_EQ(Frame(sheet), plain);
        DestroyWindow(sheet);
    }
}

/// A stranger has come in front of ours meanwhile; the next manager finds a working sheet.
TEST_F(SheetLifetimeTest, AManagerComesBackBehindAStranger)
{
    auto rig = makeRig(kWithArea);
    const HWND sheet = open(*rig);
    standBefore(sheet, &stranger);
    rig.reset();
    rig = makeRig(kWithArea);
    UITabManager::Descriptions areas;
    for (const auto& area : m_data.back()->getOffTabs())
        areas.push_back(area.get());
    rig->tabs().buildOffTabs(areas);
    rig->tabs().createPagesForSheetWindow(pagesOf(kPlain), sheet, nullptr);
    rig->messages().append(UIMessageKind::TabPage, rig->tabs());
    SendMessageW(sheet, PSM_SETCURSEL, 3, 0);
    SetWindowTextW(sheet, L"still there");
    EXPECT_EQ(GetWindowTextLengthW(sheet), 11);
    EXPECT_NE(findControl(currentPage(sheet), L"BUTTON", L"Collate copies"), nullptr);
    DestroyWindow(sheet);
}

TEST_F(SheetLifetimeTest, ASheetThatEndsAsUsualDoesNotPinTheModule)
{
    const ImportPatch patch("GetModuleHandleExW", reinterpret_cast<void*>(&countPins));
    ASSERT_TRUE(patch.isInPlace());
    s_getModule = patch.originalAs<decltype(&::GetModuleHandleExW)>();
    auto rig = makeRig(kWithArea);
    const HWND sheet = open(*rig);
    standBefore(sheet, &stranger);
    s_pins = 0;
    DestroyWindow(sheet);
    rig.reset();
    EXPECT_EQ(s_pins, 0);
}

TEST_F(SheetLifetimeTest, PagesThatAHostRefusesAreTakenOutAgain)
{
    for (const int accepted : {0, 1, 2}) {
        SCOPED_TRACE(accepted);
        const HostSheet host;
        const WNDPROC before =
            reinterpret_cast<WNDPROC>(GetWindowLongPtrW(host.get(), GWLP_WNDPROC));
        s_pagesAccepted = accepted;
        standBefore(host.get(), &refusesPages);
        {
            const auto manager = makeManager();
            EXPECT_THROW(manager->initialize(host.get(), session().featureServices(),
                                             session().strings(), nullptr),
                         ExceptionTabCreationFailure);
        }
        EXPECT_EQ(host.tabs(), 1);
        SetWindowLongPtrW(host.get(), GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(before));
    }
    const HostSheet host;
    DoesNotSettle services(model());
    EXPECT_THROW(makeManager()->initialize(host.get(), services, session().strings(), nullptr),
                 std::runtime_error);
    EXPECT_EQ(host.tabs(), 1);
}

TEST_F(SheetLifetimeTest, NoPageHandleIsLeftBehindWhenSomethingFails)
{
    const PageCalls calls;
    ASSERT_TRUE(calls.patch.isInPlace());
    std::array<HPROPSHEETPAGE, 3> handles{};
    for (const int refused : {1, 2, 3}) { // by the library
        PageCalls::refused = refused;
        const auto rig = makeRig();
        EXPECT_THROW(
            rig->tabs().createPagesForPropertySheet(pagesOf(kPlain), handles.data(), 3, nullptr),
            ExceptionTabCreationFailure);
        EXPECT_EQ(PageCalls::made, PageCalls::destroyed);
    }
    for (const int copies : {0, 1, 2}) { // memory for the template
        const ImportPatch patch("GlobalAlloc", reinterpret_cast<void*>(&allocateSome));
        ASSERT_TRUE(patch.isInPlace());
        s_allocate = patch.originalAs<decltype(&::GlobalAlloc)>();
        s_allocationsLeft = copies;
        const auto rig = makeRig();
        EXPECT_THROW(
            rig->tabs().createPagesForPropertySheet(pagesOf(kPlain), handles.data(), 3, nullptr),
            ExceptionTabCreationFailure);
        EXPECT_EQ(PageCalls::made, PageCalls::destroyed);
    }
    DoesNotSettle services(model());
    EXPECT_THROW(makeManager()->runAsPropertySheet(services, session().strings(), nullptr),
                 std::runtime_error);
    EXPECT_GT(PageCalls::made, 3);
    EXPECT_EQ(PageCalls::made, PageCalls::destroyed);
}

TEST_F(SheetLifetimeTest, AModuleThatIsNotOursDoesNotBecomeOurs)
{
    HMODULE const other = GetModuleHandleW(L"kernel32.dll");
    const IdleDriver driver(
        {[](HWND sheet) { return GetWindow(currentPage(sheet), GW_CHILD); }, press(PSBTN_CANCEL)});
    EXPECT_FALSE(makeManager(other)->runAsPropertySheet(session().featureServices(),
                                                        session().strings(), nullptr));
    EXPECT_EQ(driver.failure(), "");
}

/// The person chooses a page that was never visited, and one that was.
TEST_F(SheetLifetimeTest, APageFindsNobodyAfterItsManagerWent)
{
    const ShownErrors shown;
    for (const bool oneWasVisited : {true, false}) {
        const HostSheet host;
        {
            const auto manager = makeManager();
            manager->initialize(host.get(), session().featureServices(), session().strings(),
                                nullptr);
            if (oneWasVisited)
                host.select(1);
        }
        // What was freed shall be somebody else's.
        std::vector<std::unique_ptr<char[]>> others;
        for (std::size_t size = 16; size < 2000; ++size) {
            others.push_back(std::make_unique<char[]>(size));
            std::memset(others.back().get(), 0x5A, size);
        }
        for (const int page : {2, 1, 0}) {
            host.select(page);
            EXPECT_EQ(SendMessageW(host.get(), PSM_HWNDTOINDEX,
                                   reinterpret_cast<WPARAM>(currentPage(host.get())), 0),
                      page);
            EXPECT_EQ(GetWindow(currentPage(host.get()), GW_CHILD), nullptr);
        }
    }
    EXPECT_EQ(shown.text(), "");
}

TEST_F(SheetLifetimeTest, APopupSetThatFailsLeavesTheSheetBelowWorking)
{
    const auto rig = makeRig();
    const HWND sheet = open(*rig);
    {
        const PageCalls calls;
        PageCalls::refused = 2;
        EXPECT_THROW(
            rig->events().displayPropertySheet(kSetNumber, model().GetFullListOfFeatures(), sheet),
            ExceptionTabCreationFailure);
        EXPECT_EQ(PageCalls::made, PageCalls::destroyed);
    }
    EXPECT_EQ(rig->messages().handlers(UIMessageKind::TabPage).size(), 1U);
    const bool before = boolean(kCollate);
    SendMessageW(findControl(sheet, L"BUTTON", L"Collate copies"), BM_CLICK, 0, 0);
    EXPECT_NE(boolean(kCollate), before);
    const EventCounter counter(model(), {DataModelIds::kEventOk});
    SendMessageW(sheet, PSM_PRESSBUTTON, PSBTN_OK, 0);
    EXPECT_EQ(counter.seen, std::vector<int>{DataModelIds::kEventOk});
    DestroyWindow(sheet);
}

/// A gap would look as if there were no such setting.
TEST_F(SheetLifetimeTest, ControlsThatCouldNotBeMadeAreNamed)
{
    const ImportPatch windows("CreateWindowExW", reinterpret_cast<void*>(&refuseCheckBoxes));
    const ImportPatch boxes("MessageBoxW", reinterpret_cast<void*>(&rememberBox));
    ASSERT_TRUE(windows.isInPlace() && boxes.isInPlace());
    s_createWindow = windows.originalAs<decltype(&::CreateWindowExW)>();
    s_boxText.clear();
    const auto rig = makeRig();
    const HWND sheet = open(*rig);
    for (const auto feature : {kTonerSaving, kCollate}) {
        const std::wstring name = session().strings().GetStringForFeature(feature).c_str();
        EXPECT_NE(s_boxText.find(name), std::wstring::npos) << CXString(s_boxText).ToUtf8();
    }
    DestroyWindow(sheet);
}

/// Messages that bring no record where one belongs, to everything that is ours.
TEST_F(SheetLifetimeTest, AMessageWithoutItsRecordReachesNobody)
{
    const ShownErrors shown;
    const auto rig = makeRig(kWithArea);
    const HWND sheet = open(*rig);
    std::vector<HWND> windows{currentPage(sheet)};
    for (HWND area = GetWindow(sheet, GW_CHILD); area; area = GetWindow(area, GW_HWNDNEXT))
        if (GetPropW(area, UIDialogProcedure::kManagerProperty))
            windows.push_back(area);
    ASSERT_EQ(windows.size(), 2U);
    for (const HWND window : windows)
        for (const UINT message : {UINT{WM_NOTIFY}, UINT{WM_MEASUREITEM}, UINT{WM_DRAWITEM},
                                   UINT{WM_DELETEITEM}, UINT{WM_COMPAREITEM}})
            EXPECT_EQ(SendMessageW(window, message, 0, 0), 0) << message;
    EXPECT_EQ(shown.text(), "");
    DestroyWindow(sheet);
}

/// What the page has painted before the model hears of its first painting.
TEST_F(SheetLifetimeTest, TheFirstPaintIsToldWhenItHasBeen)
{
    class PaintWatch : public UIMessageHandler
    {
    public:
        bool handleMessage(const _UIWindowsMessage& message) override
        {
            painted = painted || message.message == WM_PAINT;
            return false;
        }
        bool painted = false;
    };
    class EventWatch : public IObserver
    {
    public:
        explicit EventWatch(const PaintWatch& paint) : m_paint(paint) {}
        void ProcessNotification(const INotification&, unsigned int) override
        {
            EXPECT_TRUE(m_paint.painted);
            ++told;
        }
        int told = 0;

    private:
        const PaintWatch& m_paint;
    };
    const auto rig = makeRig();
    PaintWatch paint;
    EventWatch event(paint);
    rig->messages().append(UIMessageKind::TabPage, paint);
    const EventId id(DataModelIds::kEventFirstPaintDone);
    model().RegisterForEvent(event, id, DataModelIds::kObserverEvent);
    const HWND sheet = open(*rig);
    SendMessageW(sheet, PSM_SETCURSEL, 1, 0);
    pumpUntilQuiet();
    EXPECT_EQ(event.told, 1);
    DestroyWindow(sheet);
    model().UnregisterForEvent(event, id, DataModelIds::kObserverEvent);
}

} // namespace o7::test

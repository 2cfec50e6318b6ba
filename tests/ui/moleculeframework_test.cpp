// What all molecules do alike, and what their pages do with them.

#include <windows.h>

#include <functional>
#include <sstream>

#include "idledriver.h"
#include "importpatch.h"
#include "input.h"
#include "moleculedialog.h"
#include "observercount.h"
#include "resourceguard.h"
#include "tables/productids.h"
#include "uidata.h"
#include "uifixture.h"
#include "uihandles.h"
#include "uimolecule.h"
#include "uistringnumbers.h"

namespace o7::test {

namespace {

constexpr tagFeatureEnum kSpecialPages{3165};
constexpr tagValueEnum kTwoSided{5141};

template <tagFeatureEnum Feature, std::uint32_t Label>
constexpr UIControlRecord kCheck[] = {{UIControlKind::Check, Feature, Label}};
constexpr UIControlRecord kCombo[] = {{UIControlKind::Text, kSides, O7STR_L_SIDES},
                                      {UIControlKind::Combo, kSides}};
constexpr UIMoleculeRecord kBooklets{.kind = UIMoleculeKind::CheckBox,
                                     .controls = kCheck<o7::kBooklet, O7STR_L_BOOKLET>};
constexpr UIMoleculeRecord kCollates{.kind = UIMoleculeKind::CheckBox,
                                     .controls = kCheck<o7::kCollate, O7STR_L_COLLATE>};
constexpr UIMoleculeRecord kJobSides{.kind = UIMoleculeKind::ComboBox, .controls = kCombo};
constexpr UIMoleculeRecord kOwnSides{
    .kind = UIMoleculeKind::ComboBox, .controls = kCombo, .ownFeatureList = true};
constexpr UIMoleculeRecord kOfNoKind{.kind = UIMoleculeKind{99}};

constexpr UIMoleculeRecord kThree[] = {kBooklets, kOfNoKind, kJobSides, kCollates};
constexpr UIMoleculeRecord kBoth[] = {kJobSides, kOwnSides};
template <auto& Molecules> constexpr UIColumnRecord kColumn[] = {{7, 150, 0, Molecules}};
template <auto& Molecules>
constexpr UIContainerRecord kDialog = {1, O7STR_TAB_PAPER, 164, 90, kColumn<Molecules>};

const int s_tracing = _putenv("O7_TRACE=1"); // looked for at the first line of the trace

/// The system makes one push button less: the first that is asked for.
bool s_failed = false;
HWND WINAPI createAllButOne(DWORD exStyle, const wchar_t* className, const wchar_t* text,
                            DWORD style, int x, int y, int width, int height, HWND parent,
                            HMENU menu, HINSTANCE instance, void* parameter)
{
    if (!s_failed && wcscmp(className, L"BUTTON") == 0) {
        s_failed = true;
        SetLastError(ERROR_NOT_ENOUGH_MEMORY);
        return nullptr;
    }
    // By its address: the program's own way to it is the patched one.
    static const auto create = reinterpret_cast<decltype(&CreateWindowExW)>(reinterpret_cast<void*>(
        GetProcAddress(GetModuleHandleW(L"user32.dll"), "CreateWindowExW")));
    return create(exStyle, className, text, style, x, y, width, height, parent, menu, instance,
                  parameter);
}

/// All texts in a box, one behind the other.
std::wstring textsIn(HWND box)
{
    std::wstring texts;
    EnumChildWindows(
        box,
        [](HWND child, LPARAM all) {
            wchar_t text[1024] = L"";
            GetWindowTextW(child, text, 1024);
            reinterpret_cast<std::wstring*>(all)->append(text).append(1, L'\n');
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&texts));
    return texts;
}

/// In place of a message box.
int WINAPI noMessage(HWND, const wchar_t*, const wchar_t*, UINT)
{
    return IDOK;
}

} // namespace

class MoleculeFrameworkTest : public UIFixture
{
protected:
    MoleculeDialog open(const UIContainerRecord& record, const ListOfFeaturesRef& features = {})
    {
        return MoleculeDialog(session().productData(), model(), session().strings(), record,
                              features);
    }
    void setBooklet(bool on)
    {
        ASSERT_TRUE(
            model().GetFullListOfFeatures().GetBooleanFeature(FeatureId(kBooklet)).SetValue(on));
    }
};

TEST_F(MoleculeFrameworkTest, APageLeavesNobodyRegisteredAndLoadingWritesNothing)
{
    setBooklet(true); // much is grey
    model().CommitAccepted();
    for (const UIMode mode : {UIMode::PrintingPreferences, UIMode::DeviceSettings}) {
        const UIData data(mode, DataModelIds::kValueFamily8430, Workflow::Standard);
        for (const auto& tab : data.getTabs()) {
            ObserverCount services(model());
            {
                const MoleculeDialog dialog(session().productData(), services, session().strings(),
                                            tab->getRecord());
                EXPECT_GT(services.registered, 0);
                for (UIMolecule* molecule : dialog.molecules()) {
                    molecule->ConnectToDataModel(); // a second time is harmless
                    molecule->Refresh();
                }
                for (UIMolecule* molecule : dialog.molecules())
                    molecule->DisconnectFromDataModel();
                EXPECT_EQ(services.registered, 0) << "page " << tab->getId();
                for (UIMolecule* molecule : dialog.molecules())
                    molecule->ConnectToDataModel();
            }
            EXPECT_EQ(services.registered, 0) << "page " << tab->getId();
            EXPECT_EQ(services.transactions, 0) << "page " << tab->getId();
            EXPECT_FALSE(model().IsModified()) << "page " << tab->getId();
        }
    }
}

TEST_F(MoleculeFrameworkTest, NoStateIsSilent)
{
    setBooklet(true);
    setOption(DataModelIds::kFeatureControllerFamily, DataModelIds::kValueFamily8432); // hides some
    int disabled = 0;
    int hidden = 0;
    const UIData data(UIMode::PrintingPreferences, DataModelIds::kValueFamily8430,
                      Workflow::Standard);
    for (const auto& tab : data.getTabs()) {
        const MoleculeDialog dialog = open(tab->getRecord());
        std::wistringstream lines(dialog.dump());
        for (std::wstring line; std::getline(lines, line);) {
            const bool isDisabled = line.find(L"[disabled") != std::wstring::npos;
            const bool isHidden = line.find(L"[hidden") != std::wstring::npos;
            disabled += isDisabled;
            hidden += isHidden;
            EXPECT_EQ(line.find(L"] because \"") != std::wstring::npos || !(isDisabled || isHidden),
                      true)
                << CXString(line).ToUtf8();
        }
        for (UIMolecule* molecule : dialog.molecules()) {
            if (!molecule->InfoAnchor() || molecule->GetInfoText().IsEmpty())
                continue;
            EXPECT_TRUE(molecule->Focus());
            EXPECT_TRUE(molecule->OwnsControl(GetFocus()) && IsWindowVisible(GetFocus()))
                << CXString(molecule->GetDumpDisplayString(false)).ToUtf8();
        }
    }
    EXPECT_GT(disabled, 5);
    EXPECT_GT(hidden, 0);
}

TEST_F(MoleculeFrameworkTest, AMarkTellsItsReasonAndMayGoWhileItDoes)
{
    const MoleculeDialog dialog = open(kDialog<kThree>);
    const HWND sides = dialog.molecules()[1]->InfoAnchor();
    for (const WORD key : {WORD{VK_SPACE}, WORD{VK_RETURN}}) {
        setBooklet(true);
        const HWND mark = GetWindow(sides, GW_HWNDNEXT);
        ASSERT_FALSE(IsWindowEnabled(sides));
        std::wstring told;
        const test::IdleDriver driver({
            [&](HWND box) { return box != dialog.window() && !(told = textsIn(box)).empty(); },
            [&](HWND) {
                setBooklet(false);
                return true;
            },
            [](HWND box) { return PostMessageW(box, WM_COMMAND, IDCANCEL, 0) != FALSE; },
        });
        SetFocus(mark);
        sendKey(key);
        EXPECT_EQ(driver.failure(), "");
        EXPECT_NE(told.find(L"Booklet"), std::wstring::npos) << CXString(told).ToUtf8();
        EXPECT_FALSE(IsWindow(mark));
        EXPECT_TRUE(IsWindowEnabled(sides));
        EXPECT_TRUE(IsChild(dialog.window(), GetFocus()));
    }
}

TEST_F(MoleculeFrameworkTest, ColoursPalettesAndThemesAreAnsweredForOwnControls)
{
    const MoleculeDialog dialog = open(kDialog<kThree>);
    UIMolecule& sides = *dialog.molecules()[1];
    const HWND own = sides.InfoAnchor();
    const HWND foreign = dialog.molecules()[0]->InfoAnchor();
    const o7::WindowDc dc(own);
    LRESULT result = 0;
    const auto send = [&](UIMessageKind kind, UINT message, HWND window) {
        const _UIWindowsMessage packed{kind,
                                       dialog.window(),
                                       message,
                                       message == WM_PALETTECHANGED
                                           ? reinterpret_cast<WPARAM>(window)
                                           : reinterpret_cast<WPARAM>(dc.get()),
                                       reinterpret_cast<LPARAM>(window),
                                       0};
        const bool claimed = sides.ProcessCommonMessage(packed);
        result = packed.result;
        return claimed;
    };
    const auto isDirty = [&] {
        const bool dirty = GetUpdateRect(dialog.window(), nullptr, FALSE) != FALSE;
        ValidateRect(dialog.window(), nullptr);
        return dirty;
    };
    for (int round = 0; round < 2; ++round) {
        ASSERT_TRUE(send(UIMessageKind::TabPage, WM_CTLCOLORSTATIC, own));
        LOGBRUSH brush{};
        ASSERT_TRUE(GetObjectW(reinterpret_cast<HBRUSH>(result), sizeof brush, &brush));
        EXPECT_EQ(brush.lbColor, GetSysColor(COLOR_WINDOW));
        const LRESULT kept = result;
        send(UIMessageKind::TabPage, WM_CTLCOLORSTATIC, own);
        EXPECT_EQ(result, kept);
        EXPECT_FALSE(send(UIMessageKind::TabPage, WM_CTLCOLORSTATIC, foreign));
        EXPECT_FALSE(send(UIMessageKind::Dialog, WM_CTLCOLORSTATIC, own));
        // Every molecule has to hear of these.
        EXPECT_FALSE(send(UIMessageKind::TabPage, WM_SYSCOLORCHANGE, nullptr));
        EXPECT_FALSE(send(UIMessageKind::TabPage, WM_THEMECHANGED, nullptr));
    }
    isDirty();
    EXPECT_TRUE(send(UIMessageKind::TabPage, WM_QUERYNEWPALETTE, nullptr));
    EXPECT_EQ(result, 1);
    EXPECT_TRUE(isDirty());
    send(UIMessageKind::TabPage, WM_PALETTECHANGED, own);
    EXPECT_FALSE(isDirty()) << "it was the page's own doing";
    send(UIMessageKind::TabPage, WM_PALETTECHANGED, GetDesktopWindow());
    EXPECT_TRUE(isDirty());
}

TEST_F(MoleculeFrameworkTest, AnUnknownKindAndAFailedControlLeaveTheRestOfThePage)
{
    open(kDialog<kThree>); // what the system makes once
    const ResourceGuard guard(ResourceGuard::Windows | ResourceGuard::GdiObjects);
    s_failed = false;
    ::testing::internal::CaptureStderr();
    {
        const ImportPatch patch("CreateWindowExW", reinterpret_cast<void*>(&createAllButOne));
        const ImportPatch box("MessageBoxW", reinterpret_cast<void*>(&noMessage));
        ASSERT_TRUE(patch.isInPlace() && box.isInPlace());
        const MoleculeDialog dialog = open(kDialog<kThree>);
        ASSERT_EQ(dialog.molecules().size(), 3U);
        const std::string traced = ::testing::internal::GetCapturedStderr();
        EXPECT_NE(traced.find("kind 99"), std::string::npos) << traced;
        EXPECT_NE(traced.find("3018"), std::string::npos) << traced;
        // The rest works, and a command without a window is nobody's.
        const bool before = boolean(kCollate);
        SendMessageW(dialog.window(), WM_COMMAND, MAKEWPARAM(5, BN_CLICKED), 0);
        setBooklet(true);
        EXPECT_FALSE(IsWindowEnabled(dialog.molecules()[1]->InfoAnchor()));
        setBooklet(false);
        sendClick(dialog.molecules()[2]->InfoAnchor());
        EXPECT_EQ(boolean(kCollate), !before);
        EXPECT_FALSE(dialog.dump().empty());
    }
}

TEST_F(MoleculeFrameworkTest, AnOwnListIsWrittenAndHeardInsteadOfTheJobs)
{
    auto pages = model().GetFullListOfFeatures().GetListOfValues(FeatureId(kSpecialPages));
    pages.CreateListOfFeatures();
    const ListOfFeaturesRef page = pages.CreateListOfFeatures();
    ASSERT_TRUE(page.IsSupported());
    auto ownSides = page.GetOptionFeature(FeatureId(kSides));
    const int job = option(kSides);
    ASSERT_NE(ownSides.GetValue().GetValueEnum(), kTwoSided);
    {
        const MoleculeDialog dialog = open(kDialog<kBoth>, page);
        const HWND own = dialog.molecules()[1]->InfoAnchor();
        const auto shown = [&] { return static_cast<int>(SendMessageW(own, CB_GETCURSEL, 0, 0)); };
        const int before = shown();
        SetFocus(own);
        sendKey(VK_DOWN);
        EXPECT_NE(shown(), before);
        EXPECT_NE(ownSides.GetValue().GetValueEnum(), job);
        EXPECT_EQ(option(kSides), job);
        ownSides.RestoreToDefaultValue();
        EXPECT_EQ(shown(), before) << "told of the list's change";
        setOption(kSides, kTwoSided);
        EXPECT_EQ(shown(), before) << "the job's setting is another one";
        EXPECT_TRUE(dialog.molecules()[1]->GetMoleculeFeatures() == page);
    }
    // With the item gone there is nothing to show, and nothing else is written for it.
    pages.DeleteAllItems();
    const MoleculeDialog dialog = open(kDialog<kBoth>, page);
    EXPECT_FALSE(ownSides.SetValue(ValueId(kTwoSided)));
    EXPECT_FALSE(dialog.dump().empty());
}

TEST_F(MoleculeFrameworkTest, ALanguageReadFromTheRightIsLaidOutThatWay)
{
    std::vector<CXString> errors;
    const auto arabic = o7::ProductSession::open(productsFolder() / kProduct, L"ar", errors);
    ASSERT_TRUE(arabic);
    const MoleculeDialog dialog(arabic->productData(), arabic->featureServices(), arabic->strings(),
                                kDialog<kThree>);
    for (const HWND window :
         {dialog.window(), dialog.child(0), dialog.molecules()[1]->InfoAnchor()})
        EXPECT_TRUE(GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_LAYOUTRTL);
    sendClick(dialog.child(0));
    dialog.molecules()[1]->Focus(); // its mark, by now
    bool mirrored = false;
    const test::IdleDriver driver({
        [&](HWND box) { return box && box != dialog.window(); },
        [&](HWND box) {
            mirrored = (GetWindowLongW(box, GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
            return PostMessageW(box, WM_COMMAND, IDCANCEL, 0) != FALSE;
        },
    });
    sendKey(VK_SPACE);
    EXPECT_EQ(driver.failure(), "");
    EXPECT_TRUE(mirrored);
}

} // namespace o7::test

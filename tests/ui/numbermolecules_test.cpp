// Spin, length, slider, edit and range by real input: what is typed, what the model gets of it and
// what is shown afterwards.

#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <cstring>
#include <tuple>

#include "fieldinput.h"
#include "idledriver.h"
#include "input.h"
#include "packagefixture.h"
#include "sheetrig.h"
#include "tables/tablerows.h"
#include "uidata.h"
#include "uimolecule.h"
#include "windowtext.h"

namespace o7::test {

namespace {

constexpr tagFeatureEnum kLimiter{3001};
constexpr tagFeatureEnum kMargin{3121};
constexpr tagFeatureEnum kStrip{3123};
constexpr tagFeatureEnum kLightness{3180};
constexpr tagFeatureEnum kPercent{3107};
constexpr tagFeatureEnum kJobName{3245};
constexpr tagFeatureEnum kPin{3240};
constexpr tagFeatureEnum kSwitch{3008};
constexpr tagFeatureEnum kPages{3137};
constexpr tagFeatureEnum kDensity{3223};

// 10.3 mm is shown as 10: whoever wrote back what is shown would change it.
constexpr std::string_view kPackage = R"({
 "formatVersion": 1,
 "product": { "id": "n", "modelName": "N", "uniqueId": "N", "controllerFamily": 8430,
              "languages": ["en"] },
 "features": [
  { "enum": 3001, "name": "odrv-limiter", "kind": "option", "default": "free", "options": [
    { "enum": 6000, "name": "free" }, { "enum": 6001, "name": "grey" },
    { "enum": 6002, "name": "empty" }, { "enum": 6003, "name": "gone" } ] },
  { "enum": 3047, "name": "odrv-units", "kind": "option", "default": "mm", "options": [
    { "enum": 5230, "name": "mm" }, { "enum": 5231, "name": "in" } ] },
  { "enum": 3007, "name": "odrv-copies", "kind": "integer", "default": 1,
    "ranges": [ { "min": 1, "max": 99 }, { "min": 200, "max": 999 } ] },
  { "enum": 3121, "name": "odrv-margin", "kind": "dimension", "unit": "mm", "default": 10.3,
    "range": { "min": 0, "max": 98.4 } },
  { "enum": 3123, "name": "odrv-strip", "kind": "integer", "unit": "tenth-mm", "default": 1503,
    "range": { "min": 100, "max": 2000 } },
  { "enum": 3180, "name": "odrv-lightness", "kind": "integer", "default": 0,
    "range": { "min": -100, "max": 100 } },
  { "enum": 3107, "name": "odrv-percent", "kind": "integer", "default": 100,
    "range": { "min": 25, "max": 400 } },
  { "enum": 3245, "name": "odrv-job-name", "kind": "string", "maxLength": 8, "default": "job" },
  { "enum": 3240, "name": "odrv-pin", "kind": "string", "maxLength": 4, "default": "12" },
  { "enum": 3008, "name": "odrv-switch", "kind": "boolean", "default": true },
  { "enum": 3137, "name": "odrv-pages", "kind": "range", "default": [2, 5],
    "range": { "min": 1, "max": 500 } },
  { "enum": 3223, "name": "odrv-density", "kind": "integer", "default": 50,
    "range": { "min": 0, "max": 100 } } ],
 "constraints": [ %CONSTRAINTS% ]
})";

constexpr UIEditRecord kDigits{.limit = 10, .digitsOnly = true, .password = true};
constexpr UIControlRecord kPinControls[] = {
    {.kind = UIControlKind::Text, .feature = kPin, .label = O7STR_L_FOLD},
    {.kind = UIControlKind::Edit, .feature = kPin, .extra = &kDigits}};
// A spin behind a check box that says whether the feature is specified.
constexpr UIControlRecord kOptionalControls[] = {
    {.kind = UIControlKind::Check, .feature = kDensity, .label = O7STR_L_BOOKLET},
    {.kind = UIControlKind::Spin, .feature = kDensity}};

constexpr UIMoleculeRecord kLeftMolecules[] = {
    spin<kCopies, O7STR_L_COLLATE>(), length<kMargin, O7STR_L_SIDES>(),
    length<kStrip, O7STR_L_PUNCH>(),
    slider<kLightness, O7STR_L_QUALITY, O7STR_L_FOLD, O7STR_L_STAPLE>()};
constexpr UIMoleculeRecord kRightMolecules[] = {
    number<kPercent, O7STR_L_SCALING>(),
    edit<kJobName, O7STR_L_JOB_TYPE>(),
    {.kind = UIMoleculeKind::Edit, .controls = kPinControls},
    range<kSwitch, kPages, O7STR_L_COVERS, O7STR_L_PAPER_SIZE, O7STR_L_PAPER_TYPE>(),
    {.kind = UIMoleculeKind::Spin, .controls = kOptionalControls}};
constexpr UIColumnRecord kColumns[] = {left(kLeftMolecules), right(kRightMolecules)};
constexpr UIContainerRecord kPage = page(1, O7STR_TAB_PAPER, kColumns);
constexpr UIMoleculeRecord kOtherMolecules[] = {spin<kDensity, O7STR_L_FOLD>()};
constexpr UIColumnRecord kOtherColumns[] = {left(kOtherMolecules)};
constexpr UIContainerRecord kSheetPages[] = {kPage, page(2, O7STR_TAB_LAYOUT, kOtherColumns)};
constexpr UIRootRecord kSheet = {DataModelIds::kValueFamily8430, UIMode::PrintingPreferences, 0,
                                 kSheetPages};

// Boxes and sliders of the page in Tab order.
enum Box
{
    Copies,
    Margin,
    Strip,
    Slider,
    Percent,
    JobName,
    Pin,
    From,
    To,
    Optional
};

/// Every feature can be disabled, cleared and hidden by the limiter.
std::string constraints()
{
    std::string text;
    for (const auto& [value, effect] :
         {std::pair{L"grey", L"disable"}, {L"empty", L"clear"}, {L"gone", L"hide"}})
        for (const int feature : {3007, 3121, 3123, 3180, 3107, 3245, 3240, 3137, 3223})
            text += CXString::Formatted(LR"({"id":"%s%d","when":[{"feature":3001,"is":["%s"]}],)"
                                        LR"("effect":{"feature":%d,"kind":"%s"},"reason":60007},)",
                                        effect, feature, value, feature, effect)
                        .ToUtf8();
    text.pop_back();
    return text;
}

} // namespace

class NumberMoleculesTest : public PackageFixture
{
protected:
    void SetUp() override
    {
        std::string text(kPackage);
        const std::string mark = "%CONSTRAINTS%";
        text.replace(text.find(mark), mark.size(), constraints());
        load(text);
    }

    std::unique_ptr<MoleculeDialog> open() { return PackageFixture::open(kPage); }
    std::string allValues()
    {
        std::string text;
        for (const auto feature : {kCopies, kMargin, kStrip, kLightness, kPercent, kJobName, kPin,
                                   kSwitch, kPages, kDensity})
            text += value(feature) + " ";
        return text;
    }
};

TEST_F(NumberMoleculesTest, TypedTextsBecomeValuesOrComeBack)
{
    struct Row
    {
        Box box;
        const wchar_t* typed;
        tagFeatureEnum feature;
        const char* value;   ///< in the model while the text stands there
        const char* settled; ///< in the box when it has been left
        bool told;           ///< a tip says what happened
    };
    const Row rows[] = {
        // clang-format off
        { Copies,  L"12",                   kCopies,    "12",    "12",   false },
        { Copies,  L"007",                  kCopies,    "7",     "7",    false },
        { Copies,  L"\u0663\u0664",         kCopies,    "34",    "34",   false },
        { Copies,  L"\uFF11\uFF12",         kCopies,    "12",    "12",   false },
        { Copies,  L"0",                    kCopies,    "1",     "1",    true  },
        { Copies,  L"150",                  kCopies,    "1",     "200",  true  },
        { Copies,  L"-5",                   kCopies,    "1",     "1",    true  },
        { Copies,  L"99999999999999999999", kCopies,    "1",     "999",  true  },
        { Copies,  L"5x",                   kCopies,    "1",     "1",    true  },
        { Copies,  L"1.5",                  kCopies,    "1",     "1",    true  },
        { Copies,  L"",                     kCopies,    "1",     "1",    true  },
        { Margin,  L"1,5",                  kMargin,    "1.50",  "1.5",  false },
        { Margin,  L"2 cm",                 kMargin,    "20.00", "20",   false },
        { Margin,  L"1 in",                 kMargin,    "25.40", "25.4", false },
        { Margin,  L"1 ft",                 kMargin,    "10.30", "10.3", true  },
        { Margin,  L"100",                  kMargin,    "10.30", "98.4", true  },
        { Strip,   L"15.27",                kStrip,     "153",   "15.3", false },
        { Strip,   L"9",                    kStrip,     "1503",  "10",   true  },
        { Percent, L"400",                  kPercent,   "400",   "400",  false },
        { Percent, L"401",                  kPercent,   "100",   "400",  true  },
        { JobName, L"Plan B",               kJobName,   "Plan B", "Plan B", false },
        { Pin,     L"\u0661\u0662",         kPin,       "12",    "12",   false },
        { Pin,     L"1a",                   kPin,       "12",    "12",   true  },
        { To,      L"9",                    kPages,     "2-9",   "9",    false },
        { From,    L"7",                    kPages,     "2-5",   "5",    true  },
        { To,      L"501",                  kPages,     "2-5",   "500",  true  },
        // clang-format on
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(CXString(row.typed).ToUtf8());
        m_model->RevertToAccepted();
        const auto dialog = open();
        const HWND box = boxOf(dialog->window(), row.box);
        enter(box, row.typed);
        EXPECT_EQ(value(row.feature), row.value);
        UIMolecule* owner = nullptr;
        for (UIMolecule* molecule : dialog->molecules())
            if (molecule->OwnsControl(box))
                owner = molecule;
        ASSERT_TRUE(owner);
        EXPECT_EQ(owner->HasPendingInput(), row.told);
        focus(boxOf(dialog->window(), Slider));
        EXPECT_EQ(!shownTip().empty(), row.told) << shownTip();
        EXPECT_EQ(textOf(box), row.settled);
        EXPECT_FALSE(owner->HasPendingInput());
    }
    EXPECT_EQ(m_services->registered, 0);
}

TEST_F(NumberMoleculesTest, KeysWheelAndMouseMoveByTheStep)
{
    struct Row
    {
        Box box;
        const wchar_t* typed; ///< null: what stands there
        std::vector<WORD> keys;
        tagFeatureEnum feature;
        const char* value;
        const char* shown;
    };
    const Row rows[] = {
        {Copies, nullptr, {VK_UP}, kCopies, "2", "2"},
        {Copies, nullptr, {VK_DOWN}, kCopies, "1", "1"},
        {Copies, L"99", {VK_UP, VK_UP}, kCopies, "201", "201"},
        {Copies, L"999", {VK_UP}, kCopies, "999", "999"},
        {Copies, L"5000", {VK_DOWN}, kCopies, "998", "998"}, // from the nearest
        {Copies, L"abc", {VK_UP}, kCopies, "1", "abc"},      // from nothing
        {Copies, nullptr, {'4', '2'}, kCopies, "42", "42"},
        {Margin, nullptr, {VK_UP}, kMargin, "11.00", "11"},
        {Strip, L"15,5", {VK_DOWN}, kStrip, "150", "15"},
        {Percent, nullptr, {VK_UP}, kPercent, "100", "100"}, // no arrows
        {Slider, nullptr, {VK_RIGHT, VK_RIGHT}, kLightness, "2", "2"},
        {Slider, nullptr, {VK_HOME}, kLightness, "-100", "-100"},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.value);
        m_model->RevertToAccepted();
        const auto dialog = open();
        const HWND box = boxOf(dialog->window(), row.box);
        focus(box);
        if (row.typed)
            enter(box, row.typed);
        for (const WORD key : row.keys)
            sendKey(key);
        EXPECT_EQ(value(row.feature), row.value);
        EXPECT_EQ(textOf(box), row.shown);
    }
    m_model->RevertToAccepted();
    const auto dialog = open();
    const HWND arrows = GetWindow(boxOf(dialog->window(), Copies), GW_HWNDNEXT);
    RECT area{};
    GetWindowRect(arrows, &area);
    sendClick((area.left + area.right) / 2, area.top + (area.bottom - area.top) / 4);
    EXPECT_EQ(value(kCopies), "2");
    sendMouse(MOUSEEVENTF_WHEEL, 0, WHEEL_DELTA); // over the arrows, which the box has
    EXPECT_EQ(value(kCopies), "3");
    const HWND slider = boxOf(dialog->window(), Slider);
    sendClick(slider); // the middle of the track, where the thumb is
    EXPECT_EQ(value(kLightness), "0");
    sendMouse(MOUSEEVENTF_LEFTDOWN);
    sendMouse(MOUSEEVENTF_MOVE, 20);
    EXPECT_NE(textOf(slider), "0");
    EXPECT_EQ(value(kLightness), "0") << "written while it is dragged";
    sendMouse(MOUSEEVENTF_LEFTUP);
    EXPECT_EQ(value(kLightness), textOf(slider));
}

TEST_F(NumberMoleculesTest, ModelsValuesAndStatesAreShownAndNothingIsWrittenBack)
{
    const std::string before = allValues();
    const auto dialog = open();
    const auto shown = [&] {
        std::string text;
        for (int box = Copies; box <= Optional; ++box)
            text += textOf(boxOf(dialog->window(), box)) + " ";
        return text;
    };
    const auto count = [&](BOOL(WINAPI * has)(HWND)) {
        int boxes = 0;
        for (int box = Copies; box <= Optional; ++box)
            boxes += has(boxOf(dialog->window(), box)) ? 1 : 0;
        return boxes;
    };
    constexpr int kAll = Optional + 1;
    EXPECT_EQ(shown(), "1 10.3 150.3 0 100 job 12 2 5 50 ");
    for (UIMolecule* molecule : dialog->molecules()) {
        molecule->LeavePage();
        molecule->Refresh();
    }
    setOption(kLimiter, 6001);
    EXPECT_EQ(count(&IsWindowEnabled), 0);
    EXPECT_EQ(shown(), "1 10.3 150.3 0 100 job 12 2 5 50 ");
    setOption(kLimiter, 6002);
    EXPECT_EQ(shown(), "   -100       ");
    EXPECT_EQ(count(&IsWindowEnabled), 0);
    setOption(kLimiter, 6003);
    EXPECT_EQ(count(&IsWindowVisible), 0);
    setOption(kLimiter, 6000);
    EXPECT_EQ(count(&IsWindowVisible), kAll);
    EXPECT_EQ(count(&IsWindowEnabled), kAll);
    EXPECT_EQ(shown(), "1 10.3 150.3 0 100 job 12 2 5 50 ");
    setOption(kMeasurementUnits, 5231);
    EXPECT_EQ(shown(), "1 0.41 5.92 0 100 job 12 2 5 50 ");
    enter(boxOf(dialog->window(), Margin), L"0.4");
    enter(boxOf(dialog->window(), Margin), L"0.41"); // what stood there is what was there
    wchar_t separator[4] = L"";
    GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, separator, 4);
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, L",");
    SendMessageW(dialog->window(), WM_SETTINGCHANGE, 0, 0);
    SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, separator);
    EXPECT_EQ(shown(), "1 0,41 5,92 0 100 job 12 2 5 50 ");
    SendMessageW(dialog->window(), WM_SETTINGCHANGE, 0, 0);
    setOption(kMeasurementUnits, 5230);
    EXPECT_EQ(value(kMargin), "10.30");
    set(kMargin, Dimension(10.3, Dimension::UnitsEnum::Millimetre));
    EXPECT_EQ(allValues(), before);
    const int written = m_services->transactions;

    set(kCopies, 7);
    set(kLightness, -20);
    set(kJobName, CXString(L"other"));
    set(kPages, RangeOfInteger(3, 4));
    EXPECT_EQ(shown(), "7 10.3 150.3 -20 100 other 12 3 4 50 ");
    set(kSwitch, false);
    EXPECT_EQ(count(&IsWindowEnabled), kAll - 2);
    EXPECT_EQ(m_services->transactions, written);
    EXPECT_NE(dialog->dump().find(L" = \"7\" [enabled]\n    - 1 to 99, 200 to 999\n"),
              std::wstring::npos);
}

TEST_F(NumberMoleculesTest, CheckBoxesTurnTheirFieldsOnAndOff)
{
    const auto dialog = open();
    for (const auto& [box, feature, off] :
         {std::tuple{From, kSwitch, "no"}, std::tuple{Optional, kDensity, "none"}}) {
        const HWND field = boxOf(dialog->window(), box);
        const std::string on = value(feature);
        HWND check = field;
        wchar_t name[16] = L"";
        while (_wcsicmp(name, L"BUTTON") != 0) {
            check = GetWindow(check, GW_HWNDPREV);
            GetClassNameW(check, name, 16);
        }
        sendClick(check);
        EXPECT_EQ(value(feature), off);
        EXPECT_FALSE(IsWindowEnabled(field));
        sendClick(check);
        EXPECT_EQ(value(feature), on);
        EXPECT_TRUE(IsWindowEnabled(field));
    }
}

TEST_F(NumberMoleculesTest, APastedTextComesWholeAndIsJudged)
{
    const auto dialog = open();
    const HWND box = boxOf(dialog->window(), JobName);
    const auto paste = [&](const wchar_t* text) {
        const std::size_t size = (wcslen(text) + 1) * sizeof(wchar_t);
        ASSERT_TRUE(OpenClipboard(dialog->window()));
        EmptyClipboard();
        const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
        std::memcpy(GlobalLock(memory), text, size);
        GlobalUnlock(memory);
        SetClipboardData(CF_UNICODETEXT, memory);
        CloseClipboard();
        focus(box);
        SendMessageW(box, EM_SETSEL, 0, -1);
        sendKey('V', {VK_CONTROL});
    };
    paste(L"exactly8");
    EXPECT_EQ(value(kJobName), "exactly8");
    focus(boxOf(dialog->window(), Percent));
    paste(L"longer than eight");
    EXPECT_EQ(value(kJobName), "exactly8");
    EXPECT_EQ(textOf(box), "longer than eight");
    focus(boxOf(dialog->window(), Percent));
    EXPECT_EQ(textOf(box), "exactly8");
    EXPECT_EQ(shownTip(), "No more than 8 characters fit here.\nThe value stays “exactly8”.");
    enter(box, L"12345678");
    sendKey('9'); // does not go in, and says so
    EXPECT_EQ(textOf(box), "12345678");
    EXPECT_EQ(shownTip(), "No more than 8 characters fit here.");
    sendKey(VK_BACK);
    EXPECT_EQ(shownTip(), "");
}

// OK with a text that is no number, its page not in front: from the button, and by Enter.
TEST_F(NumberMoleculesTest, OkIsRefusedAndLeadsToTheField)
{
    const UIData data(kSheet, UIMode::PrintingPreferences, Workflow::Standard);
    SheetRig rig(session().productData(), *m_services, session().strings(), data);
    HWND sheet = nullptr;
    HWND box = nullptr;
    std::string said;
    const auto answerBox = [&](HWND dialog) {
        if (!dialog || dialog == sheet)
            return false;
        EXPECT_EQ(o7::windowText(dialog).ToUtf8(), "Copies");
        said = o7::windowText(GetDlgItem(dialog, 0xFFFF)).ToUtf8();
        PostMessageW(dialog, WM_COMMAND, IDOK, 0);
        return true;
    };
    const auto isInField = [&](HWND dialog) {
        DWORD first = 0;
        DWORD last = 0;
        SendMessageW(box, EM_GETSEL, reinterpret_cast<WPARAM>(&first),
                     reinterpret_cast<LPARAM>(&last));
        return dialog == sheet && IsWindowVisible(box) && GetFocus() == box && first == 0 &&
               last == 4;
    };
    const IdleDriver driver({
        [&](HWND dialog) {
            sheet = dialog;
            box = sheet ? boxOf(currentPage(sheet), Copies) : nullptr;
            if (box)
                enter(box, L"many");
            return box != nullptr;
        },
        [&](HWND) { return PropSheet_SetCurSel(sheet, nullptr, 1) != FALSE; },
        [&](HWND) {
            EXPECT_FALSE(IsWindowVisible(box));
            PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_OK, 0);
            return true;
        },
        answerBox,
        isInField,
        [&](HWND) {
            EXPECT_EQ(textOf(box), "many");
            EXPECT_NE(said.find("“many” is not a number.\nAllowed: 1 to 99"), std::string::npos)
                << said;
            EXPECT_EQ(said.find("stays"), std::string::npos) << "the text still stands there";
            PostMessageW(box, WM_KEYDOWN, VK_RETURN, 1);
            return true;
        },
        answerBox,
        isInField,
        [&](HWND) {
            EXPECT_EQ(value(kCopies), "1");
            enter(box, L"12");
            PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_OK, 0);
            return true;
        },
    });
    rig.run();
    EXPECT_EQ(driver.failure(), "");
    EXPECT_EQ(value(kCopies), "12");
    EXPECT_FALSE(m_model->IsModified());
}
} // namespace o7::test

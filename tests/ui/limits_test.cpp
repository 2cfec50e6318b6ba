// What limits a setting: its mark, its text, its tip, and what becomes of a value that the model
// does not take.

#include <windows.h>

#include <commctrl.h>

#include "fieldinput.h"
#include "input.h"
#include "packagefixture.h"
#include "tables/tablerows.h"
#include "uimolecule.h"
#include "windowtext.h"

namespace o7::test {

namespace {

constexpr tagFeatureEnum kLimiter{3001};
constexpr tagFeatureEnum kLightness{3180};
constexpr tagFeatureEnum kJobName{3245};
constexpr tagFeatureEnum kFixed{3107};
constexpr tagFeatureEnum kFixedText{3246};

enum Limit
{
    Free = 6000,
    Clashes,
    Noted,
    Grey,
    Narrow,  ///< copies up to 200, lightness without -3 to 3
    Refused, ///< no number, and not every text
};

constexpr std::string_view kPackage = R"({
 "formatVersion": 1,
 "product": { "id": "l", "modelName": "L", "uniqueId": "L", "controllerFamily": 8430,
              "languages": ["en"] },
 "features": [
  { "enum": 3001, "name": "odrv-limiter", "kind": "option", "default": "free", "options": [
    { "enum": 6000, "name": "free" }, { "enum": 6001, "name": "clashes" },
    { "enum": 6002, "name": "noted" }, { "enum": 6003, "name": "grey" },
    { "enum": 6004, "name": "narrow" }, { "enum": 6005, "name": "refused" } ] },
  { "enum": 3007, "name": "odrv-copies", "kind": "integer", "default": 10,
    "range": { "min": 1, "max": 999 } },
  { "enum": 3180, "name": "odrv-lightness", "kind": "integer", "default": 0,
    "range": { "min": -100, "max": 100 } },
  { "enum": 3245, "name": "odrv-job-name", "kind": "string", "maxLength": 8, "default": "job" },
  { "enum": 3107, "name": "odrv-fixed", "kind": "integer", "default": 100,
    "range": { "min": 25, "max": 400 }, "flags": ["readOnly"] },
  { "enum": 3246, "name": "odrv-fixed-text", "kind": "string", "maxLength": 8, "default": "text",
    "flags": ["readOnly"] } ],
 "constraints": [
  { "id": "clash", "when": [ { "feature": 3001, "is": ["clashes"] } ],
    "effect": { "feature": 3007, "kind": "conflict" }, "reason": 60007 },
  { "id": "note", "when": [ { "feature": 3001, "is": ["noted"] } ],
    "effect": { "feature": 3007, "kind": "info" }, "reason": 60007 },
  { "id": "grey", "when": [ { "feature": 3001, "is": ["grey"] } ],
    "effect": { "feature": 3007, "kind": "disable" }, "reason": 60007 },
  { "id": "low", "when": [ { "feature": 3001, "is": ["narrow"] } ],
    "effect": { "feature": 3007, "compare": "greater", "value": 200, "kind": "disable" },
    "reason": 60007 },
  { "id": "hole", "when": [ { "feature": 3001, "is": ["narrow"] } ],
    "effect": { "feature": 3180, "between": [1, 3], "kind": "disable" }, "reason": 60007 },
  { "id": "dark", "when": [ { "feature": 3001, "is": ["narrow"] } ],
    "effect": { "feature": 3180, "compare": "greater", "value": 50, "kind": "disable" },
    "reason": 60007 },
  { "id": "none", "when": [ { "feature": 3001, "is": ["refused"] } ],
    "effect": { "feature": 3007, "compare": "greater", "value": 0, "kind": "disable" },
    "reason": 60007 },
  { "id": "no-light", "when": [ { "feature": 3001, "is": ["refused"] } ],
    "effect": { "feature": 3180, "compare": "greater", "value": -1000, "kind": "disable" },
    "reason": 60007 },
  { "id": "word", "when": [ { "feature": 3001, "is": ["refused"] } ],
    "effect": { "feature": 3245, "options": ["nonsense"], "kind": "disable" },
    "reason": 60007 } ]
})";

constexpr UIMoleculeRecord kMolecules[] = {
    spin<kCopies, O7STR_L_COLLATE>(),
    slider<kLightness, O7STR_L_QUALITY, O7STR_L_FOLD, O7STR_L_STAPLE>(),
    edit<kJobName, O7STR_L_JOB_TYPE>(), number<kFixed, O7STR_L_SCALING>(),
    edit<kFixedText, O7STR_L_FOLD>()};
constexpr UIColumnRecord kColumns[] = {left(kMolecules)};
constexpr UIContainerRecord kPage = page(1, O7STR_TAB_PAPER, kColumns);

// Boxes of the page in Tab order.
enum Box
{
    Copies,
    Lightness,
    JobName,
    Fixed,
    FixedText
};

/// The sign of the molecule; null without one.
HWND signOf(const UIMolecule& molecule, HWND page)
{
    for (HWND child = GetWindow(page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const LONG_PTR style = GetWindowLongPtrW(child, GWL_STYLE);
        wchar_t name[16] = L"";
        GetClassNameW(child, name, 16);
        if (_wcsicmp(name, L"BUTTON") == 0 && (style & BS_TYPEMASK) == BS_OWNERDRAW &&
            molecule.OwnsControl(child))
            return child;
    }
    return nullptr;
}

/// The tip for the area of a control that is greyed; empty without one.
std::string areaTipOf(HWND page, HWND control)
{
    struct Search
    {
        HWND page;
        HWND control;
        std::string found;
    } search{page, control, {}};
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            auto& wanted = *reinterpret_cast<Search*>(parameter);
            wchar_t name[32] = L"";
            GetClassNameW(window, name, 32);
            if (_wcsicmp(name, TOOLTIPS_CLASSW) != 0)
                return TRUE;
            wchar_t text[512] = L"";
            TTTOOLINFOW info{};
            info.cbSize = TTTOOLINFOW_V2_SIZE;
            info.hwnd = wanted.page;
            info.uId = reinterpret_cast<UINT_PTR>(wanted.control) | 1;
            info.lpszText = text;
            SendMessageW(window, TTM_GETTEXTW, 512, reinterpret_cast<LPARAM>(&info));
            if (text[0])
                wanted.found = CXString(text).ToUtf8();
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.found;
}

} // namespace

class LimitsTest : public PackageFixture
{
protected:
    void SetUp() override { load(kPackage); }
    void limit(Limit value) { setOption(kLimiter, value); }
};

TEST_F(LimitsTest, EveryLimitHasItsMarkItsTextAndItsTip)
{
    const auto dialog = open(kPage);
    const HWND box = boxOf(dialog->window(), Copies);
    UIMolecule& molecule = *ownerOf(*dialog, box);
    const struct
    {
        Limit limit;
        bool marked;
        bool clashes;
        bool enabled;
    } rows[] = {
        {Free, false, false, true}, {Clashes, true, true, true}, {Noted, true, false, true},
        {Grey, true, false, false}, {Narrow, true, false, true}, {Free, false, false, true},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.limit);
        limit(row.limit);
        const auto state = m_model->GetFeatureRef(FeatureIdWithContext{FeatureId(kCopies)})
                               ->GetCapabilities()
                               ->GetInterpretedState();
        const std::string text =
            (row.clashes ? state.GetCbrBtnMsg() : state.GetInfoBtnMsg()).ToUtf8();
        EXPECT_EQ(text.empty(), !row.marked);
        EXPECT_EQ(molecule.GetInfoText().ToUtf8(), text);
        EXPECT_EQ(molecule.HasConflictMessage(), row.clashes);
        EXPECT_EQ(molecule.HasInfoMessage(), row.marked && !row.clashes);
        const HWND sign = signOf(molecule, dialog->window());
        ASSERT_EQ(sign != nullptr, row.marked);
        EXPECT_EQ(sign ? o7::windowText(sign).ToUtf8() : "", text) << "what is spoken";
        EXPECT_EQ(IsWindowEnabled(box) != FALSE, row.enabled);
        EXPECT_EQ(areaTipOf(dialog->window(), box), row.enabled ? "" : text);
    }
}

TEST_F(LimitsTest, WhatIsOnlyForReadingCanBeReadAndCopied)
{
    const auto dialog = open(kPage);
    for (const auto& [field, feature] : {std::pair{Fixed, kFixed}, {FixedText, kFixedText}}) {
        const HWND box = boxOf(dialog->window(), field);
        const std::string before = value(feature);
        EXPECT_TRUE(IsWindowEnabled(box)) << "to be selected and copied";
        EXPECT_TRUE(GetWindowLongPtrW(box, GWL_STYLE) & ES_READONLY);
        focus(box);
        sendKey('7');
        EXPECT_EQ(textOf(box), before);
        EXPECT_EQ(value(feature), before);
        EXPECT_EQ(ownerOf(*dialog, box)->GetInfoText(),
                  session().strings().LoadStringW(O7STR_M_READ_ONLY));
    }
}

// The model takes no number at all, and not this word; what stood there before has to come back.
TEST_F(LimitsTest, AValueThatTheModelRefusesIsNotShownAsItsOwn)
{
    const auto dialog = open(kPage);
    limit(Refused);
    const struct
    {
        Box box;
        const wchar_t* typed;
        tagFeatureEnum feature;
        const char* before;
    } rows[] = {{Copies, L"20", kCopies, "10"}, {JobName, L"nonsense", kJobName, "job"}};
    for (const auto& row : rows) {
        const HWND box = boxOf(dialog->window(), row.box);
        const std::string reason = ownerOf(*dialog, box)->GetInfoText().ToUtf8();
        enter(box, row.typed);
        EXPECT_EQ(value(row.feature), row.before);
        EXPECT_TRUE(ownerOf(*dialog, box)->HasPendingInput());
        focus(boxOf(dialog->window(), Lightness));
        EXPECT_EQ(textOf(box), row.before);
        EXPECT_NE(shownTip().find("cannot be set at present"), std::string::npos) << shownTip();
        EXPECT_NE(shownTip().find(reason), std::string::npos) << shownTip();
    }
    const HWND slider = boxOf(dialog->window(), Lightness);
    focus(slider);
    sendKey(VK_RIGHT);
    EXPECT_EQ(value(kLightness), "0");
    EXPECT_EQ(textOf(slider), "0");
}

TEST_F(LimitsTest, ArrowsAndSlidersKeepToWhatCanBeChosenNow)
{
    const auto dialog = open(kPage);
    const HWND box = boxOf(dialog->window(), Copies);
    const HWND arrows = GetWindow(box, GW_HWNDNEXT);
    const HWND slider = boxOf(dialog->window(), Lightness);
    const auto mostOf = [&] {
        int least = 0;
        int most = 0;
        SendMessageW(arrows, UDM_GETRANGE32, reinterpret_cast<WPARAM>(&least),
                     reinterpret_cast<LPARAM>(&most));
        return std::pair(most, static_cast<int>(SendMessageW(slider, TBM_GETRANGEMAX, 0, 0)));
    };
    EXPECT_EQ(mostOf(), (std::pair{999, 100}));
    set(kCopies, 199);
    limit(Narrow);
    EXPECT_EQ(mostOf(), (std::pair{200, 50}));
    focus(box);
    for (int press = 0; press < 3; ++press)
        sendKey(VK_UP);
    EXPECT_EQ(value(kCopies), "200");
    EXPECT_EQ(textOf(box), "200");
    enter(box, L"1500"); // what the product does not have at all becomes the nearest
    focus(slider);
    EXPECT_EQ(value(kCopies), "200");
    EXPECT_NE(shownTip().find("1 to 200"), std::string::npos) << shownTip();
    sendKey(VK_RIGHT);
    EXPECT_EQ(value(kLightness), "4") << "over what is ruled out";
    sendKey(VK_LEFT);
    EXPECT_EQ(value(kLightness), "0");
    sendKey(VK_END);
    EXPECT_EQ(value(kLightness), "50");
    limit(Free);
    EXPECT_EQ(mostOf(), (std::pair{999, 100}));
}
} // namespace o7::test

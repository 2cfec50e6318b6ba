// Fields that depend on each other, on other settings and on the person's own: ranges, what another
// setting rules out, switches, separators and units.

#include <windows.h>

#include "fieldinput.h"
#include "input.h"
#include "packagefixture.h"
#include "setofsettingids.h"
#include "tables/tablerows.h"
#include "uimolecule.h"

namespace o7::test {

namespace {

constexpr tagFeatureEnum kLimiter{3001};
constexpr tagFeatureEnum kSwitch{3008};
constexpr tagFeatureEnum kPages{3137};
constexpr tagFeatureEnum kPercent{3107};
constexpr tagFeatureEnum kPlain{3108};
constexpr tagFeatureEnum kJobName{3245};
constexpr tagFeatureEnum kChoice{3301};
constexpr tagFeatureEnum kDevice{3302};
constexpr tagFeatureEnum kNeeded{3303};
constexpr tagFeatureEnum kPapers{3105};
constexpr tagFeatureEnum kWidth{3103};

enum Limit
{
    Free = 6000,
    Low, ///< copies up to 200
    CopiesGone,
    SwitchGrey,
    SwitchEmpty,
    SwitchGone,
    SwitchClashes
};

constexpr std::string_view kPackage = R"({
 "formatVersion": 1,
 "product": { "id": "t", "modelName": "T", "uniqueId": "T", "controllerFamily": 8430,
              "languages": ["en"] },
 "features": [
  { "enum": 3001, "name": "odrv-limiter", "kind": "option", "default": "free", "options": [
    { "enum": 6000, "name": "free" }, { "enum": 6001, "name": "low" },
    { "enum": 6002, "name": "copies-gone" }, { "enum": 6003, "name": "switch-grey" },
    { "enum": 6004, "name": "switch-empty" }, { "enum": 6005, "name": "switch-gone" },
    { "enum": 6006, "name": "switch-clashes" } ] },
  { "enum": 3047, "name": "odrv-units", "kind": "option", "default": "mm", "options": [
    { "enum": 5230, "name": "mm" }, { "enum": 5231, "name": "in" } ] },
  { "enum": 3007, "name": "odrv-copies", "kind": "integer", "default": 10,
    "range": { "min": 1, "max": 999 } },
  { "enum": 3107, "name": "odrv-percent", "kind": "integer", "default": 100,
    "range": { "min": 25, "max": 400 } },
  { "enum": 3108, "name": "odrv-plain", "kind": "integer", "range": { "min": 5, "max": 20 } },
  { "enum": 3008, "name": "odrv-switch", "kind": "boolean", "default": true },
  { "enum": 3137, "name": "odrv-pages", "kind": "range", "default": [2, 5],
    "range": { "min": 1, "max": 500 } },
  { "enum": 3245, "name": "odrv-job-name", "kind": "string", "maxLength": 8, "default": "job" },
  { "enum": 3301, "name": "odrv-choice", "kind": "option", "default": "a", "options": [
    { "enum": 6200, "name": "a" }, { "enum": 6201, "name": "b" }, { "enum": 6202, "name": "c" },
    { "enum": 6203, "name": "d" } ] },
  { "enum": 3302, "name": "odrv-device", "kind": "boolean", "default": false,
    "flags": ["stateOnly"] },
  { "enum": 3303, "name": "odrv-needed", "kind": "boolean", "default": false,
    "flags": ["required"] },
  { "enum": 3105, "name": "odrv-papers", "kind": "values", "maxItems": 3, "item": {
    "kind": "list", "features": [
     { "enum": 3103, "name": "odrv-width", "kind": "dimension", "unit": "mm", "default": 254,
       "range": { "min": 90, "max": 320 } } ] } } ],
 "constraints": [
  { "id": "low", "when": [ { "feature": 3001, "is": ["low"] } ],
    "effect": { "feature": 3007, "compare": "greater", "value": 200, "kind": "disable" },
    "reason": 60007 },
  { "id": "gone", "when": [ { "feature": 3001, "is": ["copies-gone"] } ],
    "effect": { "feature": 3007, "kind": "hide" }, "reason": 60007 },
  { "id": "grey", "when": [ { "feature": 3001, "is": ["switch-grey"] } ],
    "effect": { "feature": 3008, "kind": "disable" }, "reason": 60007 },
  { "id": "empty", "when": [ { "feature": 3001, "is": ["switch-empty"] } ],
    "effect": { "feature": 3008, "kind": "clear" }, "reason": 60007 },
  { "id": "no-switch", "when": [ { "feature": 3001, "is": ["switch-gone"] } ],
    "effect": { "feature": 3008, "kind": "hide" }, "reason": 60007 },
  { "id": "clash", "when": [ { "feature": 3001, "is": ["switch-clashes"] } ],
    "effect": { "feature": 3008, "kind": "conflict" }, "reason": 60007 } ]
})";

constexpr UIControlRecord kDeviceCheck[] = {{UIControlKind::Check, kDevice, O7STR_L_BOOKLET}};
constexpr UICheckRecord kThreeStates{.threeState = true};
constexpr UIControlRecord kNeededCheck[] = {{.kind = UIControlKind::Check,
                                             .feature = kNeeded,
                                             .label = O7STR_L_JOB_TYPE,
                                             .extra = &kThreeStates}};
constexpr UIMoleculeRecord kLeftMolecules[] = {
    spin<kCopies, O7STR_L_COLLATE>(), number<kPercent, O7STR_L_SCALING>(),
    edit<kJobName, O7STR_L_JOB_TYPE>(), spin<kPlain, O7STR_L_FOLD>()};
constexpr UIMoleculeRecord kRightMolecules[] = {
    range<kSwitch, kPages, O7STR_L_COVERS, O7STR_L_PAPER_SIZE, O7STR_L_PAPER_TYPE>(),
    combo<kChoice, O7STR_L_STAPLE>(),
    {.kind = UIMoleculeKind::CheckBox, .controls = kDeviceCheck},
    {.kind = UIMoleculeKind::CheckBox, .controls = kNeededCheck}};
constexpr UIColumnRecord kColumns[] = {left(kLeftMolecules), right(kRightMolecules)};
constexpr UIContainerRecord kPage = page(1, O7STR_TAB_PAPER, kColumns);

constexpr UIMoleculeRecord ofTheList(UIMoleculeRecord record)
{
    record.ownFeatureList = true;
    return record;
}
constexpr UIMoleculeRecord kListMolecules[] = {ofTheList(length<kWidth, O7STR_L_SIDES>())};
constexpr UIColumnRecord kListColumns[] = {left(kListMolecules)};
constexpr UIContainerRecord kListPage = page(1, O7STR_TAB_PAPER, kListColumns);

// Boxes of the page in Tab order.
enum Box
{
    Copies,
    Percent,
    JobName,
    Plain,
    From,
    To
};

/// The first of a class in Tab order.
HWND controlOf(HWND page, const wchar_t* className)
{
    for (HWND child = GetWindow(page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        wchar_t name[32] = L"";
        GetClassNameW(child, name, 32);
        if (_wcsicmp(name, className) == 0)
            return child;
    }
    return nullptr;
}

bool isShown(HWND window)
{
    return IsWindowVisible(window) != FALSE;
}

/// The person's decimal separator for the time of a scope, as the system's settings have it.
class Separator
{
public:
    explicit Separator(const wchar_t* separator)
    {
        GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, m_former, 4);
        SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, separator);
    }
    ~Separator() { SetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, m_former); }
    Separator(const Separator&) = delete;
    Separator& operator=(const Separator&) = delete;

private:
    wchar_t m_former[4] = L"";
};

} // namespace

class TypedFieldsTest : public PackageFixture
{
protected:
    void SetUp() override { load(kPackage); }
    void limit(Limit value) { setOption(kLimiter, value); }
    bool isPending(const MoleculeDialog& dialog, HWND box)
    {
        return ownerOf(dialog, box)->HasPendingInput();
    }
};

// 7 for the beginning of pages 2 to 5 is right as soon as the end is, so it waits for that.
TEST_F(TypedFieldsTest, TheBeginningOfARangeWaitsForItsEnd)
{
    const struct
    {
        std::vector<WORD> keys; ///< typed from the beginning on
        const char* from;
        const char* to;
        const char* value;
        bool told; ///< after the person has left both
        const char* settled;
    } rows[] = {
        {{'7'}, "7", "5", "2-5", true, "5-5"},
        {{'7', VK_TAB}, "7", "5", "2-5", true, "5-5"},
        {{'7', VK_TAB, '9'}, "7", "9", "7-9", false, "7-9"},
        {{'7', VK_TAB, '5', '0'}, "7", "50", "7-50", false, "7-50"},
        {{'7', VK_TAB, '6'}, "7", "6", "2-5", true, "7-7"},
        {{VK_TAB, '1'}, "2", "1", "2-5", true, "2-2"},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.keys.size());
        m_model->RevertToAccepted();
        const auto dialog = open(kPage);
        const HWND from = boxOf(dialog->window(), From);
        const HWND to = boxOf(dialog->window(), To);
        focus(from);
        for (const WORD key : row.keys)
            sendKey(key);
        EXPECT_EQ(textOf(from), row.from);
        EXPECT_EQ(textOf(to), row.to);
        EXPECT_EQ(value(kPages), row.value);
        EXPECT_EQ(shownTip(), "");
        focus(boxOf(dialog->window(), Percent));
        EXPECT_EQ(!shownTip().empty(), row.told) << shownTip();
        EXPECT_EQ(value(kPages), row.settled);
        EXPECT_EQ(textOf(from) + "-" + textOf(to), row.settled);
        EXPECT_FALSE(isPending(*dialog, from));
    }
}

TEST_F(TypedFieldsTest, WhatAnotherSettingRulesOutBringsTheOldValueBackAndSaysWhy)
{
    const auto dialog = open(kPage);
    const HWND box = boxOf(dialog->window(), Copies);
    limit(Low);
    const std::string reason = ownerOf(*dialog, box)->GetInfoText().ToUtf8();
    ASSERT_NE(reason, "");
    enter(box, L"250"); // by way of 2 and 25, which can be taken
    EXPECT_EQ(value(kCopies), "10");
    EXPECT_EQ(textOf(box), "250");
    focus(boxOf(dialog->window(), Percent));
    EXPECT_EQ(textOf(box), "10");
    EXPECT_NE(shownTip().find(reason), std::string::npos) << shownTip();
    EXPECT_NE(shownTip().find("stays 10."), std::string::npos) << shownTip();
}

TEST_F(TypedFieldsTest, ATextThatWaitsIsNotKeptInAFieldThatNobodySees)
{
    const auto dialog = open(kPage);
    const HWND box = boxOf(dialog->window(), Copies);
    enter(box, L"many");
    ASSERT_TRUE(isPending(*dialog, box));
    limit(CopiesGone);
    EXPECT_FALSE(isShown(box));
    EXPECT_FALSE(isPending(*dialog, box));
    EXPECT_TRUE(ownerOf(*dialog, box)->Validate()) << "OK";
    limit(Free);
    EXPECT_EQ(textOf(box), "10");
}

TEST_F(TypedFieldsTest, SeparatorsMeanTheSameInEveryFieldAndAreHeardOf)
{
    const auto dialog = open(kPage);
    for (const auto& [separator, isTaken] : {std::pair{L",", false}, {L".", true}, {L",", false}}) {
        const Separator usual(separator);
        SendMessageW(dialog->window(), WM_SETTINGCHANGE, 0, 0);
        for (const auto& [field, feature, taken] : {std::tuple{Copies, kCopies, "200"},
                                                    {Percent, kPercent, "200"},
                                                    {To, kPages, "2-200"}}) {
            SCOPED_TRACE(field);
            m_model->RevertToAccepted();
            pumpMessages();
            const std::string before = value(feature);
            enter(boxOf(dialog->window(), field), L"200.000");
            EXPECT_EQ(value(feature), isTaken ? taken : before);
            focus(controlOf(dialog->window(), L"COMBOBOX"));
        }
    }
    SendMessageW(dialog->window(), WM_SETTINGCHANGE, 0, 0);
}

TEST_F(TypedFieldsTest, ArrowsInAnEmptyBoxBeginWithItsNearestValue)
{
    const auto dialog = open(kPage);
    for (const WORD key : {WORD{VK_UP}, WORD{VK_DOWN}}) {
        const HWND box = boxOf(dialog->window(), Plain);
        ASSERT_EQ(textOf(box), "");
        focus(box);
        sendKey(key);
        EXPECT_EQ(value(kPlain), "5");
        EXPECT_EQ(textOf(box), "5");
        m_model->RevertToAccepted();
        pumpMessages();
    }
    const HWND emptied = boxOf(dialog->window(), Copies);
    enter(emptied, L"");
    sendKey(VK_UP);
    EXPECT_EQ(textOf(emptied), "10");
}

TEST_F(TypedFieldsTest, ASwitchShowsTheStateOfItsOwnFeature)
{
    const auto dialog = open(kPage);
    const HWND from = boxOf(dialog->window(), From);
    UIMolecule& molecule = *ownerOf(*dialog, from);
    const HWND check = controlOf(dialog->window(), L"BUTTON");
    ASSERT_EQ(ownerOf(*dialog, check), &molecule);
    const struct
    {
        Limit limit;
        bool enabled;
        bool shown;
        int check;
        bool clashes;
    } rows[] = {
        {Free, true, true, BST_CHECKED, false},
        {SwitchGrey, false, true, BST_CHECKED, false},
        {SwitchEmpty, false, true, BST_UNCHECKED, false},
        {SwitchGone, true, false, BST_CHECKED, false},
        {SwitchClashes, true, true, BST_CHECKED, true},
        {Free, true, true, BST_CHECKED, false},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.limit);
        limit(row.limit);
        EXPECT_EQ(IsWindowEnabled(check) != FALSE, row.enabled);
        EXPECT_EQ(isShown(check), row.shown);
        EXPECT_EQ(SendMessageW(check, BM_GETCHECK, 0, 0), row.check);
        EXPECT_EQ(IsWindowEnabled(from) != FALSE, row.check == BST_CHECKED);
        EXPECT_EQ(molecule.HasConflictMessage(), row.clashes);
        EXPECT_EQ(molecule.GetInfoText().IsEmpty(), row.limit == Free);
    }
}

TEST_F(TypedFieldsTest, TheFocusLeavesFieldsThatTheModelTurnsOff)
{
    const auto dialog = open(kPage);
    focus(boxOf(dialog->window(), To));
    set(kSwitch, false);
    EXPECT_FALSE(IsWindowEnabled(boxOf(dialog->window(), To)));
    EXPECT_EQ(GetFocus(), controlOf(dialog->window(), L"BUTTON")) << "the switch";
}

TEST_F(TypedFieldsTest, AnOpenListWritesWhenItCloses)
{
    const auto dialog = open(kPage);
    const HWND list = controlOf(dialog->window(), L"COMBOBOX");
    focus(list);
    const int written = m_services->transactions;
    sendKey(VK_DOWN, {VK_MENU});
    ASSERT_TRUE(SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0));
    sendKey(VK_DOWN);
    sendKey(VK_DOWN);
    EXPECT_EQ(value(kChoice), "a");
    sendKey(VK_ESCAPE);
    EXPECT_EQ(value(kChoice), "a");
    EXPECT_EQ(SendMessageW(list, CB_GETCURSEL, 0, 0), 0);
    EXPECT_EQ(m_services->transactions, written);
    sendKey(VK_DOWN, {VK_MENU});
    sendKey(VK_DOWN);
    sendKey(VK_RETURN);
    EXPECT_EQ(value(kChoice), "b");
    sendKey(VK_DOWN); // closed
    EXPECT_EQ(value(kChoice), "c");
}

TEST_F(TypedFieldsTest, WhatTheDeviceTellsCannotBeClicked)
{
    const auto dialog = open(kPage);
    const HWND check = findControl(dialog->window(), L"BUTTON", L"Booklet");
    ASSERT_TRUE(check);
    EXPECT_FALSE(IsWindowEnabled(check));
    EXPECT_EQ(ownerOf(*dialog, check)->GetInfoText(),
              session().strings().LoadStringW(O7STR_M_READ_ONLY));
}

TEST_F(TypedFieldsTest, WhatHasToBeSpecifiedHasNoThirdState)
{
    const auto dialog = open(kPage);
    const HWND check = dialog->molecules().back()->InfoAnchor();
    ASSERT_EQ(ownerOf(*dialog, check)->GetBoundFeature().GetFeatureEnum(), kNeeded);
    for (const char* expected : {"yes", "no", "yes"}) {
        sendClick(check);
        EXPECT_EQ(value(kNeeded), expected);
    }
}

// The unit in which a length is shown is no setting of its page.
TEST_F(TypedFieldsTest, ALengthFollowsTheUnitsAndDoesNotCountThemAsItsOwn)
{
    const auto item =
        m_model->GetFullListOfFeatures().GetListOfValues(FeatureId(kPapers)).CreateListOfFeatures();
    const auto dialog = open(kListPage, item);
    const HWND box = boxOf(dialog->window(), 0);
    EXPECT_EQ(textOf(box), "254");
    setOption(o7::kMeasurementUnits, 5231);
    EXPECT_EQ(textOf(box), "10.00");
    SetOfSettingIds settings;
    dialog->molecules().front()->CollectSettings(settings);
    EXPECT_FALSE(settings.Contains(FeatureIdWithContext{FeatureId(o7::kMeasurementUnits)}));
}
} // namespace o7::test

// Combo box, open list, radio buttons: one feature in all of them at once, worked by real input.

#include <gtest/gtest.h>

#include <windows.h>

#include <commctrl.h>

#include <array>
#include <string>

#include "datamodelfactory.h"
#include "idledriver.h"
#include "input.h"
#include "itemrecord.h"
#include "productstringloader.h"
#include "resourceguard.h"
#include "sheetrig.h"
#include "uidata.h"
#include "uidump.h"
#include "uifixture.h"
#include "uirecords.h"
#include "uiresourceids.h"
#include "uitab.h"
#include "uitabmanager.h"
#include "watchedservices.h"
#include "windowtext.h"

namespace o7::test {

namespace {

constexpr auto kMedia = static_cast<DataModelIds::tagFeatureEnum>(100);
constexpr auto kChoice = static_cast<DataModelIds::tagFeatureEnum>(101);

constexpr std::string_view kPackage = R"({
 "formatVersion": 1,
 "product": { "id": "test", "modelName": "Test 1", "uniqueId": "TST1",
              "controllerFamily": 8430, "languages": ["en"] },
 "features": [
  { "enum": 100, "name": "odrv-media", "kind": "option", "default": "plain",
    "options": [ { "enum": 6000, "name": "plain" }, { "enum": 6001, "name": "film" },
                 { "enum": 6002, "name": "gloss" }, { "enum": 6003, "name": "card" },
                 { "enum": 6004, "name": "foil" }, { "enum": 6005, "name": "gel" },
                 { "enum": 6006, "name": "wax" } ] },
  { "enum": 101, "name": "odrv-choice", "kind": "option", "default": "a",
    "flags": ["userDefinedValues"], "maxLength": 20,
    "options": [ { "enum": 5001, "name": "unspecified" }, { "enum": 6010, "name": "a" },
                 { "enum": 6011, "name": "b" }, { "enum": 6012, "name": "c" } ] } ],
 "constraints": [
  { "id": "1", "when": [ { "feature": 100, "is": ["film"] } ], "reason": 60001,
    "effect": { "feature": 101, "options": ["b"], "kind": "disable" } },
  { "id": "2", "when": [ { "feature": 100, "is": ["gloss"] } ], "reason": 60002,
    "effect": { "feature": 101, "options": ["c"], "kind": "hide" } },
  { "id": "3", "when": [ { "feature": 100, "is": ["card"] } ], "reason": 60003,
    "effect": { "feature": 101, "kind": "disable" } },
  { "id": "4", "when": [ { "feature": 100, "is": ["foil"] } ], "reason": 60004,
    "effect": { "feature": 101, "kind": "clear" } },
  { "id": "5", "when": [ { "feature": 100, "is": ["gel"] } ], "reason": 60005,
    "effect": { "feature": 101, "kind": "hide" } },
  { "id": "6", "when": [ { "feature": 100, "is": ["wax"] } ], "reason": 60006,
    "effect": { "feature": 101, "options": ["a"], "kind": "conflict" } } ]
})";

/// The options are called A, B, C and U; every other text is its number.
class Texts : public ProductStringLoader
{
public:
    Texts() : ProductStringLoader(8430, CXString(), CXString(L"en")) {}
    CXString LoadStringW(unsigned id) const override
    {
        constexpr unsigned kValues = 40000;
        constexpr std::pair<unsigned, const wchar_t*> kNames[] = {{kValues + 5001, L"U"},
                                                                  {kValues + 6010, L"A"},
                                                                  {kValues + 6011, L"B"},
                                                                  {kValues + 6012, L"C"},
                                                                  {31000, L"&Heading:"}};
        for (const auto& [number, name] : kNames)
            if (number == id)
                return CXString(name);
        return CXString::Formatted(L"#%u", id);
    }
};

constexpr UIComboRecord kRemove{.disabledOptions = UIDisabledOptions::Remove};
constexpr UIControlRecord kCombo[] = {{.kind = UIControlKind::Combo, .feature = kChoice}};
constexpr UIControlRecord kShortCombo[] = {
    {.kind = UIControlKind::Combo, .feature = kChoice, .extra = &kRemove}};
constexpr UIControlRecord kList[] = {{.kind = UIControlKind::List, .feature = kChoice}};
constexpr UIControlRecord kPickRadio[] = {{.kind = UIControlKind::Text, .label = 31000},
                                          {.kind = UIControlKind::Radio, .feature = kChoice}};
template <int Value>
constexpr UIRadioRecord kOf{.value = static_cast<DataModelIds::tagValueEnum>(Value)};
template <int Value>
constexpr UIControlRecord kRadio = {
    .kind = UIControlKind::Radio, .feature = kChoice, .extra = &kOf<Value>};
// The product does not have 6019.
constexpr UIControlRecord kRadios[] = {kRadio<5001>, kRadio<6010>, kRadio<6011>, kRadio<6019>,
                                       kRadio<6012>};
template <int Value, int Picture>
constexpr UIRadioRecord kPictureOf{.value = static_cast<DataModelIds::tagValueEnum>(Value),
                                   .image = Picture,
                                   .selectedImage = Picture + 1};
template <int Value, int Picture>
constexpr UIControlRecord kPicture = {
    .kind = UIControlKind::RadioImage, .feature = kChoice, .extra = &kPictureOf<Value, Picture>};
constexpr UIControlRecord kPictures[] = {
    kPicture<5001, O7_BITMAP_ADD>, kPicture<6010, O7_BITMAP_REMOVE>,
    kPicture<6011, O7_BITMAP_MOVE_UP>, kPicture<6012, O7_BITMAP_MOVE_DOWN>};
constexpr UIMoleculeRecord kLeft[] = {{UIMoleculeKind::ComboBox, kCombo},
                                      {UIMoleculeKind::ComboBox, kShortCombo},
                                      {UIMoleculeKind::PickOne, kList}};
constexpr UIMoleculeRecord kRight[] = {{UIMoleculeKind::PickOneRadio, kPickRadio},
                                       {UIMoleculeKind::RadioButtons, kRadios},
                                       {UIMoleculeKind::RadioButtons, kPictures}};
constexpr UIColumnRecord kColumns[] = {{7, 140, 0, kLeft}, {155, 140, 0, kRight}};
constexpr UIContainerRecord kPages[] = {{1, 31001, 302, 200, kColumns}};
constexpr UIRootRecord kRoot = {DataModelIds::kValueFamily8430, UIMode::PrintingPreferences, 0,
                                kPages};

enum Kind
{
    Combo,
    ShortCombo,
    List,
    PickRadio,
    Radio,
    Picture,
    kKinds
};

/// The windows of one molecule: a list, or the buttons of a group.
std::vector<HWND> windowsOf(HWND page, int kind)
{
    std::vector<HWND> found;
    int combos = 0;
    int groups = 0;
    for (HWND child = GetWindow(page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        wchar_t name[16]{};
        GetClassNameW(child, name, 16);
        const LONG style = GetWindowLongW(child, GWL_STYLE);
        const std::wstring_view type(name);
        int owner = -1;
        if (type == L"ComboBox")
            owner = combos++;
        else if (type == L"ListBox")
            owner = List;
        else if (type == L"Button" && (style & BS_TYPEMASK) == BS_RADIOBUTTON)
            owner = PickRadio - 1 + (groups += (style & WS_GROUP) != 0);
        if (owner == kind)
            found.push_back(child);
    }
    return found;
}

std::string entry(const std::wstring& text, bool grey, bool chosen)
{
    return std::string(chosen ? "*" : "") + (grey ? "-" : "") + CXString(text).ToUtf8() + " ";
}

/// What is seen of a molecule: "U *A -B C " for A chosen and B grey, with "off " before it when all
/// of it is grey; "hidden" when there is nothing.
std::string seen(HWND page, int kind)
{
    std::string text;
    bool on = false;
    for (const HWND window : windowsOf(page, kind)) {
        if (!IsWindowVisible(window))
            continue;
        const bool enabled = IsWindowEnabled(window) != FALSE;
        on |= enabled;
        if (kind >= PickRadio) {
            text += entry(windowText(window).c_str(), !enabled,
                          SendMessageW(window, BM_GETCHECK, 0, 0) == BST_CHECKED);
            continue;
        }
        const bool combo = kind != List;
        const auto count = SendMessageW(window, combo ? CB_GETCOUNT : LB_GETCOUNT, 0, 0);
        const auto chosen = SendMessageW(window, combo ? CB_GETCURSEL : LB_GETCURSEL, 0, 0);
        for (LRESULT index = 0; index < count; ++index) {
            const auto at = static_cast<WPARAM>(index);
            std::array<wchar_t, 64> name{};
            SendMessageW(window, combo ? CB_GETLBTEXT : LB_GETTEXT, at,
                         reinterpret_cast<LPARAM>(name.data()));
            const auto* record = reinterpret_cast<const ItemRecord*>(
                SendMessageW(window, combo ? CB_GETITEMDATA : LB_GETITEMDATA, at, 0));
            text += entry(name.data(), record->unavailable || !enabled, index == chosen);
        }
    }
    return text.empty() ? "hidden" : on ? text : "off " + text;
}

/// Chooses an option by the mouse; a combo box is dropped for it.
void choose(HWND page, int kind, wchar_t letter)
{
    for (HWND window : windowsOf(page, kind)) {
        if (kind >= PickRadio) {
            if (windowText(window).c_str()[0] == letter)
                sendClick(window);
            continue;
        }
        if (kind != List) {
            SetFocus(window);
            SendMessageW(window, CB_SHOWDROPDOWN, TRUE, 0);
            COMBOBOXINFO info{};
            info.cbSize = sizeof info;
            GetComboBoxInfo(window, &info);
            window = info.hwndList;
        }
        const std::wstring text(1, letter);
        const LRESULT index = SendMessageW(window, LB_FINDSTRING, static_cast<WPARAM>(-1),
                                           reinterpret_cast<LPARAM>(text.c_str()));
        RECT place{};
        SendMessageW(window, LB_GETITEMRECT, static_cast<WPARAM>(index),
                     reinterpret_cast<LPARAM>(&place));
        MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&place), 2);
        sendClick(place.left + 5, (place.top + place.bottom) / 2);
    }
}

/// What the page's tool tip says over the area of a control; empty for nothing.
std::wstring areaTipOf(HWND page, HWND control)
{
    struct Search
    {
        TTTOOLINFOW tool;
        std::array<wchar_t, 256> text;
    } search{};
    search.tool.cbSize = sizeof search.tool;
    search.tool.hwnd = page;
    search.tool.uId = reinterpret_cast<UINT_PTR>(control) | 1; // not the tip of the window itself
    search.tool.lpszText = search.text.data();
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM parameter) -> BOOL {
            wchar_t name[32]{};
            GetClassNameW(window, name, 32);
            if (std::wstring_view(name) == TOOLTIPS_CLASSW &&
                !reinterpret_cast<Search*>(parameter)->text[0])
                SendMessageW(window, TTM_GETTEXTW, 256,
                             reinterpret_cast<LPARAM>(&reinterpret_cast<Search*>(parameter)->tool));
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&search));
    return search.text.data();
}

class ChoicesTest : public ::testing::Test
{
protected:
    ChoicesTest()
    {
        std::vector<PackageError> errors;
        m_package = ParseProductPackage(kPackage, "test/package.json", errors);
        for (const PackageError& error : errors)
            throw std::runtime_error(error.ToString());
        m_model = CreateDataModel(*m_package, m_texts);
        m_services = std::make_unique<WatchedServices>(*m_model, FeatureId(kChoice));
    }

    int value() { return choice().GetValue().GetValueEnum(); }
    OptionFeatureRef choice()
    {
        return m_model->GetOptionFeatureRef(FeatureIdWithContext(FeatureId(kChoice)));
    }
    void set(DataModelIds::tagFeatureEnum feature, int value)
    {
        EXPECT_TRUE(m_model->GetOptionFeatureRef(FeatureIdWithContext(FeatureId(feature)))
                        .SetValue(ValueId(static_cast<DataModelIds::tagValueEnum>(value))));
    }
    void expectSeen(HWND page, const std::string& wanted, const char* when)
    {
        for (int kind = Combo; kind < kKinds; ++kind)
            EXPECT_EQ(seen(page, kind), wanted) << when << ", kind " << kind;
    }
    /// A button that cannot be pressed says why to the mouse. Pictures say what they mean, too.
    static void expectTips(HWND page)
    {
        for (int kind = PickRadio; kind < kKinds; ++kind)
            for (const HWND button : windowsOf(page, kind)) {
                if (!IsWindowVisible(button))
                    continue;
                const std::wstring tip = areaTipOf(page, button);
                EXPECT_EQ(tip.empty(), IsWindowEnabled(button) != FALSE) << kind;
                EXPECT_TRUE(tip.empty() || kind != Picture ||
                            tip.starts_with(windowText(button).c_str()));
            }
    }
    std::string dumped(SheetRig& rig) const
    {
        std::wstring text;
        {
            const UIDump collector(text);
            rig.tabs().dump();
        }
        return CXString(text).ToUtf8();
    }

    /// Opens the sheet, runs the body on its page, and closes the sheet.
    void onPage(const std::function<void(HWND page, SheetRig& rig)>& body)
    {
        ProductData product(CXString(), m_package->GetProductInfo());
        const UIData data(kRoot, UIMode::PrintingPreferences, Workflow::Standard);
        SheetRig rig(product, *m_services, m_texts, data);
        const std::size_t before = m_services->observers();
        const IdleDriver driver({[&](HWND sheet) {
            if (!sheet)
                return false;
            body(currentPage(sheet), rig);
            EXPECT_EQ(m_services->observers(), before + kKinds);
            PostMessageW(sheet, WM_COMMAND, IDCANCEL, 0);
            return true;
        }});
        rig.run(PSH_NOAPPLYNOW);
        EXPECT_EQ(driver.failure(), "");
        EXPECT_EQ(m_services->observers(), before);
    }

    Texts m_texts;
    std::unique_ptr<ProductPackage> m_package;
    std::unique_ptr<IDataModel> m_model;
    std::unique_ptr<WatchedServices> m_services;
};

TEST_F(ChoicesTest, WhatIsChosenIsWrittenAndWhatTheModelHasIsShown)
{
    onPage([&](HWND page, SheetRig&) {
        expectSeen(page, "U *A B C ", "at first");
        EXPECT_EQ(m_services->log, "") << "loading wrote";
        for (int kind = Combo; kind < kKinds; ++kind) {
            SCOPED_TRACE(kind);
            m_services->log.clear();
            choose(page, kind, L'C');
            EXPECT_EQ(m_services->log, "open write =6012 commit ");
            EXPECT_EQ(value(), 6012);
            expectSeen(page, "U A B *C ", "chosen");

            m_services->log.clear();
            choose(page, kind, L'U');
            EXPECT_EQ(m_services->log, "open write =5001 commit ");
            EXPECT_FALSE(choice().IsSpecified());
            expectSeen(page, "*U A B C ", "unspecified");

            m_services->node().refuses = [](const FeatureValue&) { return true; };
            choose(page, kind, L'B');
            m_services->node().refuses = nullptr;
            expectSeen(page, "*U A B C ", "refused");

            set(kChoice, 6010);
            expectSeen(page, "U *A B C ", "changed by the model");
        }
    });
}

struct StateRow
{
    int media;
    int choice;
    const char* seen;      ///< in all of them
    const char* shortened; ///< in the list that removes what is disabled
    const char* dump;      ///< part of what a snapshot says
};

const StateRow kStates[] = {
    {6001, 6010, "U *A -B C ", "U *A C ", "- \"B\" [disabled] because \"#60001\""},
    {6002, 6010, "U *A B ", "U *A B ", "- \"C\" [hidden] because \"#60002\""},
    {6002, 6010, "U *A B ", "U *A B ", "[enabled] because \"#60002\""},
    {6003, 6010, "off -U *-A -B -C ", "off *-A -B -C ", "[disabled] because \"#60003\""},
    {6004, 6010, "off -U -A -B -C ", "off -A -B -C ", "[disabled, cleared] because \"#60004\""},
    {6005, 6010, "hidden", "hidden", "[hidden] because \"#60005\""},
    {6006, 6010, "U *A B C ", "U *A B C ", "- \"A\" [conflict] because \"#60006\""},
    // The present value stays to be seen.
    {6001, 6011, "U A *-B C ", "U A *-B C ", "- \"B\" [disabled] because \"#60001\""},
    {6002, 6012, "U A B *-C ", "U A B *-C ", "- \"C\" [hidden] because \"#60002\""},
};

TEST_F(ChoicesTest, EveryStateIsShownAndToldAndGoesAwayAgain)
{
    onPage([&](HWND page, SheetRig& rig) {
        for (const StateRow& row : kStates) {
            const std::string trace =
                "media " + std::to_string(row.media) + ", choice " + std::to_string(row.choice);
            SCOPED_TRACE(trace);
            set(kMedia, 6000);
            set(kChoice, row.choice);
            m_services->log.clear();
            set(kMedia, row.media);
            for (int kind = Combo; kind < kKinds; ++kind)
                EXPECT_EQ(seen(page, kind), kind == ShortCombo ? row.shortened : row.seen) << kind;
            const std::string snapshot = dumped(rig);
            EXPECT_NE(snapshot.find(row.dump), std::string::npos) << snapshot;
            EXPECT_EQ(m_services->log, "") << "showing a state wrote";
            expectTips(page);
            // Not even the choice of another option brings back what was removed or hidden.
            if (row.choice != 6010) {
                set(kChoice, 6010);
                EXPECT_EQ(seen(page, ShortCombo), kStates[row.media - 6001].shortened);
            }
        }
        set(kMedia, 6000);
        set(kChoice, 6010);
        expectSeen(page, "U *A B C ", "at last");
    });
}

TEST_F(ChoicesTest, TheEntryForNoValueWritesNothing)
{
    m_services->node().changes = [](std::unique_ptr<CapabilitiesNode> capabilities) {
        const auto& known = dynamic_cast<const OptionCapability&>(*capabilities);
        std::vector<OptionWithState> options;
        for (std::size_t index = 0; index < known.GetNumberOfValues(); ++index)
            options.push_back(known.GetOptionWithState(index));
        options.emplace_back(
            ValueId(DataModelIds::kNoValue, FeatureId(kChoice), CXString(L"n"), CXString(L"N")),
            InterpretedState());
        return std::make_unique<OptionCapability>(known, std::move(options), false);
    };
    onPage([&](HWND page, SheetRig&) {
        for (int kind = Combo; kind < Radio; ++kind) { // the last one has no record for it
            m_services->log.clear();
            choose(page, kind, L'N');
            EXPECT_EQ(m_services->log, "open commit ") << kind;
            EXPECT_EQ(seen(page, kind), "U *A B C N ") << kind;
        }
    });
}

TEST_F(ChoicesTest, APictureChangesWithTheChoiceAndNothingIsLeftBehind)
{
    const auto pictureOf = [](HWND button) {
        return SendMessageW(button, BM_GETIMAGE, IMAGE_ICON, 0);
    };
    onPage([&](HWND page, SheetRig&) {
        const HWND button = windowsOf(page, Picture)[2];
        const LRESULT before = pictureOf(button);
        EXPECT_NE(before, 0);
        sendClick(button);
        const LRESULT chosen = pictureOf(button);
        EXPECT_NE(chosen, before);
        set(kChoice, 6010);
        EXPECT_NE(pictureOf(button), chosen);
    });
    const ResourceGuard guard(ResourceGuard::Windows | ResourceGuard::GdiObjects);
    onPage([](HWND, SheetRig&) {});
}

TEST_F(ChoicesTest, AValueThatExistsByItsNameIsShownAndKept)
{
    choice().SetValue(CXString(L"Mine"));
    onPage([&](HWND page, SheetRig&) {
        for (int kind = Combo; kind < Radio; ++kind) {
            choose(page, kind, L'A');
            EXPECT_EQ(value(), 6010) << kind;
            EXPECT_EQ(seen(page, kind), "U *A B C Mine ") << kind;
            choose(page, kind, L'M');
            EXPECT_EQ(choice().GetValue().GetValueName(), CXString(L"Mine")) << kind;
            EXPECT_EQ(seen(page, kind), "U A B C *Mine ") << kind;
            EXPECT_EQ(seen(page, Radio), "U A B C ");
        }
    });
}

TEST_F(ChoicesTest, RadioButtonsAreOneStopOfTabAndArrowsPassOverWhatIsGrey)
{
    set(kMedia, 6001); // B is grey
    onPage([&](HWND page, SheetRig&) {
        for (const int kind : {PickRadio, Radio}) {
            const std::vector<HWND> buttons = windowsOf(page, kind);
            set(kChoice, 6010);
            SetFocus(buttons[1]);
            if (kind == PickRadio) { // the letter of the heading leads to what is chosen
                SetFocus(windowsOf(page, Combo).front());
                sendKey('H', {VK_MENU});
                EXPECT_EQ(GetFocus(), buttons[1]);
            }
            sendKey(VK_DOWN);
            EXPECT_EQ(value(), 6012) << kind;
            EXPECT_EQ(GetFocus(), buttons[3]) << kind;
            sendKey(VK_DOWN); // round to the first, not on to the next group
            EXPECT_EQ(value(), 5001) << kind;
            sendKey(VK_UP);
            EXPECT_EQ(value(), 6012) << kind;

            // What is chosen and cannot be any more leaves the stop to another.
            set(kMedia, 6000);
            set(kChoice, 6011);
            set(kMedia, 6001);
            int stops = 0;
            for (const HWND button : buttons)
                stops += (GetWindowLongW(button, GWL_STYLE) & WS_TABSTOP) != 0;
            EXPECT_EQ(stops, 1) << kind;
            EXPECT_TRUE(GetWindowLongW(buttons[0], GWL_STYLE) & WS_TABSTOP) << kind;
            EXPECT_TRUE(IsWindowEnabled(GetFocus())) << kind;
        }
    });
}

} // namespace

} // namespace o7::test

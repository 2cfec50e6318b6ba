// The sheet as a person meets it: real mouse and keyboard input on the product's own pages.

#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include "idledriver.h"
#include "input.h"
#include "resourceguard.h"
#include "sheetrig.h"
#include "tables/productids.h"
#include "uidata.h"
#include "uifixture.h"
#include "uimanager.h"
#include "uistringnumbers.h"
#include "uitab.h"
#include "uitabmanager.h"

namespace o7::test {

namespace {

constexpr int kLayoutPage = 1;
using Steps = std::vector<IdleDriver::Step>;

/// Brings a page to the front and waits until it is there.
IdleDriver::Step selectPage(int index)
{
    return [index, asked = false](HWND sheet) mutable {
        if (!sheet)
            return false;
        if (!asked)
            SendMessageW(sheet, PSM_SETCURSEL, static_cast<WPARAM>(index), 0);
        asked = true;
        return IsWindowVisible(currentPage(sheet)) != FALSE;
    };
}

/// Clicks a control once with the mouse.
IdleDriver::Step click(const wchar_t* className, const wchar_t* text)
{
    return [=](HWND dialog) {
        const HWND control = dialog ? findControl(dialog, className, text) : nullptr;
        if (control)
            sendClick(control);
        return control != nullptr;
    };
}

IdleDriver::Step key(WORD virtualKey, std::initializer_list<WORD> held = {})
{
    return [virtualKey, keys = std::vector<WORD>(held)](HWND) {
        keys.empty() ? sendKey(virtualKey) : sendKey(virtualKey, {keys.front()});
        return true;
    };
}

IdleDriver::Step until(const std::function<bool(HWND)>& condition)
{
    return [=](HWND dialog) { return dialog && condition(dialog); };
}

} // namespace

class SheetTest : public UIFixture
{
protected:
    /// Opens the product's sheet and walks through the steps.
    bool runSheet(Steps steps)
    {
        UIManager manager(session().productData(), nullptr, UIMode::PrintingPreferences, 0,
                          Workflow::Standard);
        m_manager = &manager;
        bool accepted = false;
        std::string failure;
        {
            const IdleDriver driver(std::move(steps));
            accepted = manager.runAsPropertySheet(session().featureServices(), session().strings(),
                                                  nullptr);
            failure = driver.failure();
        }
        EXPECT_EQ(failure, "");
        m_manager = nullptr;
        return accepted;
    }

    std::wstring dumped() const { return m_manager->dumpText().c_str(); }

    UIManager* m_manager = nullptr;
};

TEST_F(SheetTest, AClickChangesTheFeatureGreysAnotherAndSaysWhyAndOkKeepsIt)
{
    ASSERT_FALSE(boolean(kBooklet));
    std::wstring shown;
    const bool accepted = runSheet({
        selectPage(kLayoutPage),
        click(L"BUTTON", L"Booklet"),
        until([&](HWND) { return boolean(kBooklet); }),
        until([&](HWND sheet) {
            shown = dumped();
            return !IsWindowEnabled(findListBehind(sheet, L"Pages per sheet:"));
        }),
        // The mark beside it carries the reason, for the eye, the keyboard and a screen reader.
        until([](HWND sheet) {
            return findControl(sheet, L"BUTTON",
                               L"Pages per sheet is set by Booklet, which prints two pages on each "
                               L"side of the sheet.") != nullptr;
        }),
        click(L"BUTTON", L"OK"),
    });
    EXPECT_TRUE(accepted);
    EXPECT_TRUE(boolean(kBooklet));
    const std::wstring label = session().strings().LoadStringW(O7STR_L_PAGES_PER_SHEET).c_str();
    const auto line = shown.find(L"list \"" + label + L"\"");
    ASSERT_NE(line, std::wstring::npos) << CXString(shown).ToUtf8();
    const std::wstring text = shown.substr(line, shown.find(L'\n', line) - line);
    EXPECT_NE(text.find(L"[disabled] because \""), std::wstring::npos) << CXString(text).ToUtf8();
    EXPECT_NE(text.find(L"Booklet"), std::wstring::npos) << CXString(text).ToUtf8();

    runSheet({
        selectPage(kLayoutPage),
        until([](HWND sheet) {
            const HWND box = findControl(sheet, L"BUTTON", L"Booklet");
            return SendMessageW(box, BM_GETCHECK, 0, 0) == BST_CHECKED;
        }),
        click(L"BUTTON", L"Cancel"),
    });
}

TEST_F(SheetTest, CancelAndEscapeDropWhatWasChosenByKeyboard)
{
    const int before = option(kSides);
    for (const bool byEscape : {false, true}) {
        const bool accepted = runSheet({
            until([](HWND sheet) {
                const HWND list = findListBehind(sheet, L"Sides:");
                if (list)
                    SetFocus(list);
                return list != nullptr;
            }),
            key(VK_DOWN),
            until([&](HWND) { return option(kSides) != before; }),
            byEscape ? key(VK_ESCAPE) : click(L"BUTTON", L"Cancel"),
        });
        EXPECT_FALSE(accepted) << byEscape;
        EXPECT_EQ(option(kSides), before) << byEscape;
    }
}

TEST_F(SheetTest, AMnemonicReachesItsList)
{
    HWND focused = nullptr;
    HWND wanted = nullptr;
    runSheet({
        until([&](HWND sheet) { return (wanted = findListBehind(sheet, L"Sides:")) != nullptr; }),
        [&](HWND) {
            const std::wstring label = session().strings().LoadStringW(O7STR_L_SIDES).c_str();
            const wchar_t letter = label.at(label.find(L'&') + 1);
            sendKey(static_cast<WORD>(towupper(letter)), {VK_MENU});
            return true;
        },
        until([&](HWND) { return (focused = GetFocus()) == wanted; }),
        key(VK_ESCAPE),
    });
    EXPECT_EQ(focused, wanted);
}

/// Gives a list the keyboard and drops it.
IdleDriver::Step drop(const wchar_t* label)
{
    return [=](HWND sheet) {
        const HWND list = sheet ? findListBehind(sheet, label) : nullptr;
        if (!list)
            return false;
        SetFocus(list);
        SendMessageW(list, CB_SHOWDROPDOWN, TRUE, 0);
        return true;
    };
}

/// Moves the mouse to the middle of an entry of the open list.
IdleDriver::Step pointAt(const wchar_t* label, int entry)
{
    return [=](HWND sheet) {
        COMBOBOXINFO info{};
        info.cbSize = sizeof info;
        GetComboBoxInfo(findListBehind(sheet, label), &info);
        RECT place{};
        SendMessageW(info.hwndList, LB_GETITEMRECT, static_cast<WPARAM>(entry),
                     reinterpret_cast<LPARAM>(&place));
        MapWindowPoints(info.hwndList, nullptr, reinterpret_cast<POINT*>(&place), 2);
        SetCursorPos((place.left + place.right) / 2, (place.top + place.bottom) / 2);
        pumpUntilQuiet();
        return true;
    };
}

bool isTipShown()
{
    bool shown = false;
    EnumThreadWindows(
        GetCurrentThreadId(),
        [](HWND window, LPARAM found) -> BOOL {
            wchar_t name[32]{};
            GetClassNameW(window, name, 32);
            const bool isTip = std::wstring(name) == TOOLTIPS_CLASSW && IsWindowVisible(window);
            *reinterpret_cast<bool*>(found) |= isTip;
            return TRUE;
        },
        reinterpret_cast<LPARAM>(&shown));
    return shown;
}

TEST_F(SheetTest, AnOpenListExplainsWhatItDoesNotOffer)
{
    constexpr int kEnvelopeDl = 5116;
    constexpr int kEnvelope = 5136;
    constexpr int kHeavyweight = 5132;
    setOption(kPaperType, kHeavyweight); // what nobody chose would follow the size
    setOption(kPaperSize, kEnvelopeDl);
    const int before = option(kPaperType);
    ASSERT_NE(before, kEnvelope);
    runSheet({
        drop(L"Paper type:"),
        pointAt(L"Paper type:", 1),
        until([](HWND) { return isTipShown(); }),
        key(VK_ESCAPE),
        until([&](HWND) { return !isTipShown() && option(kPaperType) == before; }),
        drop(L"Paper type:"),
        key(VK_DOWN), // there is only one that goes with an envelope
        until([&](HWND) { return isTipShown() && option(kPaperType) == before; }),
        key(VK_ESCAPE), // nothing was chosen yet
        until([&](HWND) { return !isTipShown() && option(kPaperType) == before; }),
        drop(L"Paper type:"),
        key(VK_DOWN),
        until([](HWND) { return isTipShown(); }),
        key(VK_RETURN),
        until([&](HWND) { return !isTipShown() && option(kPaperType) == kEnvelope; }),
        key(VK_ESCAPE),
    });
}

TEST_F(SheetTest, WhatAListShowsAfterTheMouseWentOverItIsWhatWasTaken)
{
    const int before = option(kSides);
    constexpr int kLast = 2;
    int shown = -1;
    for (const WORD ending : {WORD{VK_ESCAPE}, WORD{VK_RETURN}}) {
        runSheet({
            drop(L"Sides:"),
            pointAt(L"Sides:", kLast),
            key(ending),
            until([&](HWND sheet) {
                const HWND list = findListBehind(sheet, L"Sides:");
                shown = static_cast<int>(SendMessageW(list, CB_GETCURSEL, 0, 0));
                return SendMessageW(list, CB_GETDROPPEDSTATE, 0, 0) == FALSE;
            }),
            [&](HWND) {
                EXPECT_EQ(ending == VK_RETURN, shown == kLast);
                EXPECT_EQ(ending == VK_RETURN, option(kSides) != before);
                return true;
            },
            key(VK_ESCAPE),
        });
    }
}

TEST_F(SheetTest, OpeningAndClosingLeavesNothingBehind)
{
    const auto visitAll = [&] {
        runSheet({selectPage(0), selectPage(1), selectPage(2), selectPage(3), selectPage(4),
                  key(VK_ESCAPE)});
    };
    visitAll(); // what the system makes once and keeps
    const ResourceGuard guard(ResourceGuard::Windows | ResourceGuard::GdiObjects |
                              ResourceGuard::Threads);
    for (int round = 0; round < 3; ++round)
        visitAll();
}

TEST_F(SheetTest, PairsOfFamilyAndModeWithoutADescriptionEndCleanly)
{
    constexpr struct
    {
        int family;
        int mode;
    } kEmpty[] = {{8429, 1}, {1, 1}, {8430, 0}, {8430, 5}};
    for (const auto& row : kEmpty) {
        const UIData data(static_cast<UIMode>(row.mode),
                          static_cast<DataModelIds::tagValueEnum>(row.family), Workflow::Standard);
        EXPECT_TRUE(data.isEmpty()) << row.family << " " << row.mode;
        SheetRig rig(session().productData(), session().featureServices(), session().strings(),
                     data);
        HPROPSHEETPAGE pages[16]{};
        EXPECT_EQ(rig.tabs().createPagesForPropertySheet({}, pages, 16, nullptr), 0U);
    }
    UIManager manager(session().productData(), nullptr, static_cast<UIMode>(9), 0,
                      Workflow::Standard);
    EXPECT_FALSE(
        manager.runAsPropertySheet(session().featureServices(), session().strings(), nullptr));
}

TEST_F(SheetTest, RunAsDialogShowsNothingOutsideItsMode)
{
    for (const int mode : {1, 2, 4}) {
        UIManager manager(session().productData(), nullptr, static_cast<UIMode>(mode), 0,
                          Workflow::Standard);
        EXPECT_FALSE(
            manager.runAsDialog(session().featureServices(), session().strings(), nullptr));
    }
}

} // namespace o7::test

// Popup dialogs: shown by number, inside a transaction that OK commits and Cancel rolls back.

#include "idledriver.h"
#include "listoffeaturesref.h"
#include "resourceguard.h"
#include "sheetrig.h"
#include "tables/productids.h"
#include "uidata.h"
#include "uieventprocessor.h"
#include "uifixture.h"
#include "uimanager.h"
#include "uimessagemanager.h"

namespace o7::test {

namespace {

/// Chooses the second entry of the list behind the label, as a click would.
IdleDriver::Step chooseSecond(const wchar_t* label)
{
    return [label](HWND dialog) {
        const HWND list = dialog ? findListBehind(dialog, label) : nullptr;
        if (!list)
            return false;
        SendMessageW(list, CB_SETCURSEL, 1, 0);
        SendMessageW(dialog, WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), CBN_SELCHANGE),
                     reinterpret_cast<LPARAM>(list));
        return true;
    };
}

IdleDriver::Step press(int button)
{
    return [button](HWND dialog) {
        if (dialog)
            PostMessageW(dialog, WM_COMMAND, static_cast<WPARAM>(button), 0);
        return dialog != nullptr;
    };
}

} // namespace

class PopupDialogTest : public UIFixture
{
};

TEST_F(PopupDialogTest, OkCommitsAndCancelRollsBack)
{
    const int before = option(kSides);
    for (const int button : {IDCANCEL, IDOK}) {
        UIManager manager(session().productData(), nullptr, UIMode::CompactDialog, 0,
                          Workflow::Standard);
        int inside = 0;
        bool accepted = false;
        {
            const IdleDriver driver({chooseSecond(L"Sides:"),
                                     [&](HWND) {
                                         inside = option(kSides);
                                         return true;
                                     },
                                     press(button)});
            accepted =
                manager.runAsDialog(session().featureServices(), session().strings(), nullptr);
            EXPECT_EQ(driver.failure(), "");
        }
        EXPECT_NE(inside, before);
        EXPECT_EQ(accepted, button == IDOK);
        EXPECT_EQ(option(kSides) != before, button == IDOK);
    }
}

TEST_F(PopupDialogTest, AnUnknownNumberIsAnsweredQuietlyAndAKnownOneLeavesNothing)
{
    const UIData data(UIMode::PrintingPreferences, DataModelIds::kValueFamily8430,
                      Workflow::Standard);
    SheetRig rig(session().productData(), model(), session().strings(), data);
    const auto features = model().GetFullListOfFeatures();
    EXPECT_FALSE(rig.events().displayDialog(static_cast<DialogId>(7), features, nullptr));

    const auto openAndCancel = [&] {
        const IdleDriver driver({press(IDCANCEL)});
        EXPECT_FALSE(rig.events().displayDialog(DialogId::QuickSettings, features, nullptr));
        EXPECT_EQ(driver.failure(), "");
        EXPECT_TRUE(rig.messages().handlers(UIMessageKind::Dialog).empty());
    };
    openAndCancel();
    const ResourceGuard guard(ResourceGuard::Windows | ResourceGuard::GdiObjects);
    for (int round = 0; round < 3; ++round)
        openAndCancel();
}

} // namespace o7::test

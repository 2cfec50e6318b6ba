// The check box with what may stand around it, by real input.

#include <windows.h>

#include "input.h"
#include "moleculedialog.h"
#include "tables/tablerows.h"
#include "transactionref.h"
#include "uicheckboxmolecule.h"
#include "uifixture.h"
#include "uistringnumbers.h"

namespace o7::test {

namespace {

constexpr tagFeatureEnum kUnknownFeature{4999};

constexpr UICheckRecord kTwoValues{DataModelIds::kValueJobTrackerOn, kJobTrackingOff};
constexpr UICheckRecord kThreeStates{.threeState = true};
constexpr UICheckRecord kToggledByText{.secondTextToggles = true};
// Pictures of pictures.rc.
constexpr UIOptionRecord kPictures[] = {{UIOptionRecord::valueOf(true), 0, 501},
                                        {UIOptionRecord::valueOf(false), 0, 502}};
constexpr UIImageRecord kPicture{.minimumHeight = 30, .valueImages = kPictures};

constexpr UIControlRecord kLabel{UIControlKind::Text, kCollate, O7STR_L_JOB_TYPE};
constexpr UIControlRecord kSecondText{UIControlKind::Text, kCollate, O7STR_T_JOB_TYPE};
constexpr UIControlRecord kButton{UIControlKind::BitmapButton};
constexpr UIControlRecord kImage{
    .kind = UIControlKind::Image, .feature = kCollate, .extra = &kPicture};
constexpr UIControlRecord check(tagFeatureEnum feature, UIExtraRecord extra = {})
{
    return {UIControlKind::Check, feature, O7STR_L_COLLATE, 0, extra};
}

constexpr UIControlRecord kBooleanCheck[] = {check(kCollate)};
constexpr UIControlRecord kOptionCheck[] = {check(DataModelIds::kFeatureJobTracker, &kTwoValues)};
constexpr UIControlRecord kUnknownCheck[] = {check(kUnknownFeature)};
constexpr UIControlRecord kThreeStateCheck[] = {check(kCollate, &kThreeStates)};
constexpr UIControlRecord kRaised[] = {check(kCollate), kButton};
constexpr UIControlRecord kPictured[] = {check(kCollate), kImage};
constexpr UIControlRecord kLabelled[] = {kLabel, check(kCollate)};
constexpr UIControlRecord kToggling[] = {check(kCollate, &kToggledByText), kSecondText};
constexpr UIControlRecord kBorders[] = {check(o7::kPageBorders)};
constexpr UIControlRecord kBooklet[] = {check(o7::kBooklet)};

template <auto& Controls>
constexpr UIMoleculeRecord kMolecule[] = {{.kind = UIMoleculeKind::CheckBox, .controls = Controls}};
template <auto& Controls, int Width>
constexpr UIColumnRecord kColumn[] = {{7, Width, 0, kMolecule<Controls>}};
template <auto& Controls, int Width = 180>
constexpr UIContainerRecord kDialog = {1, O7STR_TAB_PAPER, Width + 14, 60,
                                       kColumn<Controls, Width>};
constexpr UIMoleculeRecord kBookletAndStaple[] = {
    {.kind = UIMoleculeKind::CheckBox, .controls = kBooklet}, combo<o7::kStaple, O7STR_L_STAPLE>()};
constexpr UIColumnRecord kBookletColumn[] = {{7, 180, 0, kBookletAndStaple}};
constexpr UIContainerRecord kBookletDialog = {1, O7STR_TAB_PAPER, 194, 60, kBookletColumn};

int checkOf(HWND box)
{
    return static_cast<int>(SendMessageW(box, BM_GETCHECK, 0, 0));
}

LONG heightOf(HWND window)
{
    RECT area{};
    GetWindowRect(window, &area);
    return area.bottom - area.top;
}

} // namespace

class UICheckBoxMoleculeTest : public UIFixture
{
protected:
    MoleculeDialog open(const UIContainerRecord& record)
    {
        return MoleculeDialog(session().productData(), model(), session().strings(), record);
    }
    BooleanFeatureRef collate()
    {
        return model().GetFullListOfFeatures().GetBooleanFeature(FeatureId(kCollate));
    }
    void setPagesPerSheet(std::size_t index)
    {
        auto feature = model().GetOptionFeatureRef(kPagesPerSheet);
        ASSERT_TRUE(feature.SetValue(
            feature.GetOptionCapabilities()->GetOptionWithState(index).GetValueId()));
    }
};

TEST_F(UICheckBoxMoleculeTest, AClickIsWrittenAndTheModelShown)
{
    const auto tracks = [&] {
        return option(DataModelIds::kFeatureJobTracker) == DataModelIds::kValueJobTrackerOn;
    };
    const struct
    {
        const UIContainerRecord& dialog;
        std::function<bool()> read;
        std::function<void(bool)> write;
    } bindings[] = {
        {kDialog<kBooleanCheck>, [&] { return boolean(kCollate); },
         [&](bool on) { collate().SetValue(on); }},
        {kDialog<kOptionCheck>, tracks,
         [&](bool on) {
             setOption(DataModelIds::kFeatureJobTracker,
                       on ? DataModelIds::kValueJobTrackerOn : o7::kJobTrackingOff);
         }},
    };
    for (const auto& binding : bindings) {
        const bool before = binding.read();
        const MoleculeDialog dialog = open(binding.dialog);
        const HWND box = dialog.child(0);
        EXPECT_EQ(checkOf(box), before);
        sendClick(box);
        EXPECT_EQ(binding.read(), !before);
        EXPECT_EQ(checkOf(box), !before);
        sendKey(VK_SPACE);
        EXPECT_EQ(binding.read(), before);
        binding.write(!before);
        EXPECT_EQ(checkOf(box), !before);
    }
}

// A dialog keeps what is chosen in it in a transaction of its own until its OK.
TEST_F(UICheckBoxMoleculeTest, AClickIsTakenInAtOnceInsideTheTransactionOfADialog)
{
    const MoleculeDialog dialog = open(kBookletDialog);
    const std::wstring before = dialog.dump();
    const auto transaction = model().OpenTransaction();
    sendClick(dialog.child(0));
    ASSERT_TRUE(boolean(o7::kBooklet));
    const std::wstring inside = dialog.dump();
    EXPECT_NE(inside, before);
    transaction->Close(true);
    EXPECT_EQ(dialog.dump(), inside) << "what was shown only when the dialog had closed";
}

TEST_F(UICheckBoxMoleculeTest, WhatCannotBeReadIsIndeterminateAndStaysEditable)
{
    const MoleculeDialog dialog = open(kDialog<kUnknownCheck>);
    const HWND box = dialog.child(0);
    for (int round = 0; round < 2; ++round) {
        EXPECT_EQ(checkOf(box), BST_INDETERMINATE);
        EXPECT_TRUE(IsWindowEnabled(box));
        sendClick(box);
    }
}

TEST_F(UICheckBoxMoleculeTest, TheThirdStateLeavesTheFeatureUnspecified)
{
    collate().SetValue(true);
    const MoleculeDialog dialog = open(kDialog<kThreeStateCheck>);
    const HWND box = dialog.child(0);
    sendClick(box);
    EXPECT_EQ(checkOf(box), BST_INDETERMINATE);
    EXPECT_FALSE(collate().IsSpecified());
    sendClick(box);
    EXPECT_EQ(checkOf(box), BST_UNCHECKED);
    EXPECT_TRUE(collate().IsSpecified());
    EXPECT_FALSE(boolean(kCollate));
}

TEST_F(UICheckBoxMoleculeTest, TheSecondTextTogglesWithOneClickAndWithTwo)
{
    const bool before = boolean(kCollate);
    const MoleculeDialog dialog = open(kDialog<kToggling, 300>);
    const HWND text = dialog.child(1);
    sendClick(text);
    EXPECT_EQ(boolean(kCollate), !before);
    sendClick(text); // the system makes a double click of it
    EXPECT_EQ(boolean(kCollate), before);
    EXPECT_EQ(GetFocus(), dialog.child(0));
}

TEST_F(UICheckBoxMoleculeTest, TheHeightIsTheLargestThatAnythingAsksFor)
{
    // Without its texts measured a molecule has the heights that its record asks for.
    const std::pair<const UIContainerRecord&, long> heights[] = {
        {kDialog<kBooleanCheck>, 10},
        {kDialog<kRaised>, 19},
        {kDialog<kPictured>, 30},
        {kDialog<kLabelled>, 10 + 9},
    };
    for (const auto& [record, height] : heights)
        EXPECT_EQ(open(record).molecules().front()->GetMinimumHeight(), height);

    const LONG oneLine = heightOf(open(kDialog<kBooleanCheck>).child(0));
    const MoleculeDialog narrow = open(kDialog<kBooleanCheck, 50>);
    EXPECT_GT(heightOf(narrow.child(0)), oneLine) << "a long text takes a second line";
    EXPECT_TRUE(GetWindowLongW(narrow.child(0), GWL_STYLE) & BS_MULTILINE);
}

TEST_F(UICheckBoxMoleculeTest, APictureMirrorsTheSetting)
{
    collate().SetValue(true);
    const MoleculeDialog dialog = open(kDialog<kPictured>);
    const auto shows = [&](const wchar_t* number) {
        EXPECT_NE(GetPropW(dialog.child(1), L"pIpic"), nullptr);
        return dialog.dump().find(number) != std::wstring::npos;
    };
    EXPECT_TRUE(shows(L"501"));
    sendClick(dialog.child(0));
    EXPECT_TRUE(shows(L"502"));
    collate().SetValue(true);
    EXPECT_TRUE(shows(L"501"));
}

TEST_F(UICheckBoxMoleculeTest, AClearedOneShowsUncheckedAndItsMarkTakesTheFocus)
{
    setPagesPerSheet(1);
    const MoleculeDialog dialog = open(kDialog<kBorders>);
    const HWND box = dialog.child(0);
    sendClick(box);
    ASSERT_TRUE(boolean(kPageBorders));
    ASSERT_EQ(GetFocus(), box);

    setPagesPerSheet(0); // one page on a sheet has no borders
    EXPECT_FALSE(IsWindowEnabled(box));
    EXPECT_EQ(checkOf(box), BST_UNCHECKED);
    EXPECT_EQ(GetFocus(), dialog.child(1)) << "the mark, which says why";
    EXPECT_NE(dialog.dump().find(L"[disabled, cleared] because \"Page borders"),
              std::wstring::npos);

    setPagesPerSheet(1);
    EXPECT_TRUE(IsWindowEnabled(box));
    EXPECT_EQ(checkOf(box), BST_CHECKED) << "the stored value again";
    EXPECT_EQ(dialog.child(1), nullptr) << "nothing left to explain";

    UIMolecule& molecule = *dialog.molecules().front();
    molecule.SetForceDisabled(true);
    setPagesPerSheet(0);
    setPagesPerSheet(1);
    EXPECT_FALSE(IsWindowEnabled(box));
    EXPECT_EQ(molecule.GetInfoText(), session().strings().LoadStringW(O7STR_M_NOT_HERE));
    molecule.SetForceDisabled(false);
    EXPECT_TRUE(IsWindowEnabled(box));

    molecule.SetShownOnPage(false);
    EXPECT_FALSE(IsWindowVisible(box));
}

} // namespace o7::test

#include "testproduct.h"

#include "eventnotification.h"

#include <gtest/gtest.h>

namespace {

using test::Product;
constexpr auto kAssert = FeatureRef::kAssertIfUnsupported;
constexpr auto kQuiet = FeatureRef::kDoNotAssertIfUnsupported;

TEST(Features, EveryKindReadsItsDefaultAndTakesAValue)
{
    const Product product;
    auto all = product.All();

    auto option = all.GetOptionFeature(test::kMedia);
    EXPECT_EQ(option.GetValue().GetDisplayString(), L"Plain");
    EXPECT_EQ(option.GetValue().GetAsCpssString(), L"odrv-media=plain");
    EXPECT_EQ(option.SetValue(CXString(L"film")).GetValueEnum(), test::kFilm);
    EXPECT_EQ(option.SetValue(CXString(L"my own")).GetValueName(), L"my own");
    EXPECT_EQ(option.GetValue().GetDisplayString(), L"my own");
    EXPECT_EQ(option.GetOptionCapabilities()->GetNumberOfValues(), 3U) << "with the user's own";
    EXPECT_EQ(option.GetDefaultValue().GetValueEnum(), test::kPlain);

    auto integer = all.GetIntegerFeature(test::kCopies);
    EXPECT_EQ(product.Number(test::kCopies), 1);
    EXPECT_TRUE(integer.SetValue(200));
    Dimension none;
    EXPECT_FALSE(integer.GetDimensionValue(none, kAssert)) << "it counts no length";
    EXPECT_EQ(integer.GetRangeCapabilities()->GetNumberOfValues(), 2U);
    EXPECT_EQ(integer.GetRangeCapabilities()->GetLargestAndSmallestRangeValues(),
              RangeOfInteger(1, 999));

    bool on = false;
    EXPECT_TRUE(all.GetBooleanFeature(test::kCollate).GetValue(on, kAssert));
    EXPECT_TRUE(on);

    CXString text;
    EXPECT_TRUE(all.GetStringFeature(test::kModel).GetValue(text, kAssert));
    EXPECT_EQ(text, L"T1");

    int low = 0;
    int high = 0;
    EXPECT_TRUE(all.GetRangeFeature(test::kPages).GetValue(low, high, kAssert));
    EXPECT_EQ(RangeOfInteger(low, high), RangeOfInteger(2, 5));

    auto width = all.GetDimensionFeature(test::kWidth);
    Dimension length;
    EXPECT_TRUE(width.SetValue(Dimension(8.5, Dimension::UnitsEnum::Inch)));
    EXPECT_TRUE(width.GetValue(length, kAssert));
    EXPECT_EQ(length.GetStringValue(Dimension::UnitsEnum::TenthOfMillimetre, 0), L"2159");

    int depth = 0;
    EXPECT_TRUE(all.GetResolutionFeature(test::kResolution).GetValue(low, high, depth, kAssert));
    EXPECT_EQ(high, 1200);
}

TEST(Features, RefuseWhatDoesNotFit)
{
    const Product product;
    auto all = product.All();
    EXPECT_FALSE(all.GetOptionFeature(test::kSides).SetValue(test::kFilm)) << "no such option";
    EXPECT_FALSE(all.GetIntegerFeature(test::kCopies).SetValue(150)) << "between two ranges";
    EXPECT_FALSE(all.GetStringFeature(test::kName).SetValue(L"nine char")) << "too long";
    EXPECT_FALSE(all.GetRangeFeature(test::kPages).SetValue(5, 2)) << "backwards";
    EXPECT_FALSE(all.GetRangeFeature(test::kPages).SetValue(1, 501)) << "out of range";
    EXPECT_FALSE(all.GetDimensionFeature(test::kWidth)
                     .SetValue(Dimension(98, Dimension::UnitsEnum::Millimetre)));
    EXPECT_FALSE(all.GetStringFeature(test::kModel).SetValue(L"T2")) << "read-only";
    EXPECT_FALSE(all.GetIntegerFeature(test::kCollate).SetValue(1)) << "of another kind";
    EXPECT_FALSE(product.model->IsModified());
}

TEST(Features, UnspecifiedIsAValueOfItsOwn)
{
    const Product product;
    auto all = product.All();
    auto staple = all.GetOptionFeature(test::kStaple);
    EXPECT_FALSE(staple.IsSpecified()) << "no default";
    EXPECT_EQ(staple.GetValue().GetValueEnum(), DataModelIds::kValueUnspecified);
    EXPECT_TRUE(staple.SetValue(test::kOneStaple));
    EXPECT_TRUE(staple.IsSpecified());
    EXPECT_TRUE(staple.SetValue(DataModelIds::kValueUnspecified));
    EXPECT_FALSE(staple.IsSpecified());

    auto collate = all.GetBooleanFeature(test::kCollate);
    bool on = false;
    EXPECT_TRUE(collate.SetIsSpecified(false));
    EXPECT_FALSE(collate.GetValue(on, kAssert)) << "a check box shows this as indeterminate";
    EXPECT_TRUE(collate.SetIsSpecified(true));
    EXPECT_TRUE(collate.GetValue(on, kAssert) && on) << "the last value is back";

    auto sides = all.GetOptionFeature(test::kSides);
    EXPECT_FALSE(sides.SetIsSpecified(false)) << "required";
    EXPECT_TRUE(sides.GetCapabilities()->GetUnspecifiedInterpretedState().IsDisabled());
    EXPECT_FALSE(staple.GetCapabilities()->GetUnspecifiedInterpretedState().IsDisabled());
}

TEST(Features, UnsupportedOnesAnswerFalseAndFailNowhere)
{
    ListOfFeaturesRef nothing;
    ListOfFeaturesRef orphan;
    {
        const Product product;
        orphan = product.All();
        const auto all = product.All();
        bool on = false;
        ValueId value;
        EXPECT_FALSE(all.GetBooleanFeature(test::kAbsent).GetValue(on, kAssert));
        EXPECT_FALSE(all.GetOptionFeature(test::kAbsent).GetValue(value, kQuiet));
        EXPECT_EQ(all.GetOptionFeature(test::kAbsent).GetValue().GetValueEnum(),
                  DataModelIds::kNoValue);
        EXPECT_EQ(all.GetOptionFeature(test::kAbsent).GetOptionCapabilities()->GetNumberOfValues(),
                  0U);
        EXPECT_FALSE(product.model->TestFeature(test::kAbsent));
        EXPECT_FALSE(product.model->GetListOfFeaturesByGroup(test::kAbsent).IsSupported());
    }
    for (const auto& list : {nothing, orphan}) {
        EXPECT_FALSE(list.IsSupported());
        EXPECT_FALSE(list.GetBooleanFeature(test::kCollate).SetValue(false));
        EXPECT_FALSE(list.GetFeature(test::kCollate)->IsSpecified());
    }
}

TEST(Features, AreFoundByNumberNameAndContext)
{
    const Product product;
    const FeatureIdWithContext nested(FeatureIdWithContext{test::kColour},
                                      FeatureId(test::kSaturation));
    const FeatureIdWithContext byName(FeatureIdWithContext(FeatureId(L"odrv-colour")),
                                      FeatureId(L"odrv-saturation"));
    for (const auto& id : {nested, byName}) {
        const auto ref = product.model->GetFeatureRef(id);
        EXPECT_EQ(ref->GetKind(), o7::FeatureKind::Integer);
        EXPECT_EQ(ref->GetFeatureIdWithContextRef().Dump(true),
                  L"odrv-colour(110)/odrv-saturation(111)");
    }
    EXPECT_EQ(product.model->GetListOfFeaturesFor(nested),
              product.model->GetListOfFeaturesByGroup(test::kColour));
    EXPECT_EQ(product.model->GetListOfFeaturesFor(FeatureIdWithContext()), product.All());
    EXPECT_EQ(product.model->GetListOfFeaturesFor(test::kMedia), product.All());
    // The same number means another feature inside the list.
    EXPECT_EQ(product.All().GetListOfFeatures(test::kColour).GetFeature(test::kMedia)->GetKind(),
              o7::FeatureKind::Boolean);
}

TEST(Features, AcceptedSettingsComeBackOnCancel)
{
    const Product product;
    auto& sink = product.model->GetNotificationSink();
    const auto send = [&](DataModelIds::EventEnum event) {
        sink.SendNotification(EventNotification(EventId(event)));
    };
    product.Set(test::kMedia, test::kFilm);
    EXPECT_TRUE(product.model->IsModified());
    send(DataModelIds::kEventApply);
    EXPECT_FALSE(product.model->IsModified());
    product.Set(test::kMedia, test::kPlain);
    product.Set(test::kStaple, test::kOneStaple);
    send(DataModelIds::kEventCancelQueried);
    EXPECT_EQ(product.Get(test::kMedia), test::kFilm);
    EXPECT_EQ(product.Get(test::kStaple), DataModelIds::kValueUnspecified);

    product.All().GetIntegerFeature(test::kPrivate).SetValue(3);
    EXPECT_FALSE(product.model->IsModified()) << "private to the UI";
    EXPECT_TRUE(product.All().RestoreToDefaultValue());
    EXPECT_EQ(product.Get(test::kMedia), test::kPlain);
}

} // namespace

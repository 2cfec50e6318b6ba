#include "testproduct.h"

#include "constraintmkii.h"
#include "iconstraintsintegrator.h"

#include <gtest/gtest.h>

namespace {

using test::Product;

ListOfValuesRef SpecialPages(const Product& product)
{
    return product.All().GetListOfValues(test::kSpecialPages);
}

TEST(Lists, ItemsHaveValuesOfTheirOwn)
{
    const Product product;
    auto pages = SpecialPages(product);
    auto first = pages.CreateListOfFeatures();
    auto second = pages.CreateListOfFeatures();
    EXPECT_TRUE(first.GetIntegerFeature(test::kCopies).SetValue(9));
    EXPECT_EQ(test::Number(second, test::kCopies), 1);
    EXPECT_FALSE(pages.CreateOptionFeature().IsSupported()) << "items are lists";
    EXPECT_TRUE(pages.CreateListOfFeatures().IsSupported());
    EXPECT_FALSE(pages.CreateListOfFeatures().IsSupported()) << "full";

    const auto ref = first.GetFeature(test::kCopies);
    const FeatureIdWithContext id = ref->GetFeatureIdWithContextRef();
    EXPECT_EQ(id.Dump(false), L"odrv-special-pages[0]/odrv-copies");
    EXPECT_EQ(*product.model->GetFeatureRef(id), *ref) << "found again by its id";
    EXPECT_EQ(product.model->GetListOfFeaturesFor(id), first);
    EXPECT_EQ(first.GetAppropriateFeatureForDefaults(id), FeatureIdWithContext(test::kCopies));

    EXPECT_TRUE(pages.DeleteItem(0));
    EXPECT_EQ(pages.GetNumItems(), 2U);
    EXPECT_FALSE(ref->IsSupported()) << "its item is gone";
    EXPECT_EQ(pages.GetListOfFeatures(0), second);
    EXPECT_FALSE(pages.DeleteSpecificItems({0, 2})) << "all or none";
    EXPECT_EQ(pages.GetNumItems(), 2U);
    EXPECT_TRUE(pages.DeleteSpecificItems({1, 0, 1}));
    EXPECT_EQ(pages.GetNumItems(), 0U);
}

TEST(Lists, ConstraintsInsideAnItemLookOutwards)
{
    const Product product;
    auto page = SpecialPages(product).CreateListOfFeatures();
    auto sides = page.GetOptionFeature(test::kSides);
    product.Set(test::kMedia, test::kFilm);
    EXPECT_FALSE(sides.SetValue(test::kTwoSided));
    EXPECT_EQ(sides.GetCapabilities()->GetInterpretedState().GetInfoBtnMsg(),
              L"2-sided (Sides) not with Media: Film");
    // An item that comes later sees the present state, one that is gone costs nothing.
    auto later = SpecialPages(product).CreateListOfFeatures();
    EXPECT_FALSE(later.GetOptionFeature(test::kSides).SetValue(test::kTwoSided));
    SpecialPages(product).DeleteAllItems();
    const auto before = product.model->GetEvaluationCount();
    product.Set(test::kMedia, test::kPlain);
    EXPECT_EQ(product.model->GetEvaluationCount(), before + 1);
}

TEST(Lists, ARollbackBringsItemsBackAndTakesNewOnesAway)
{
    const Product product;
    auto pages = SpecialPages(product);
    for (const int copies : {3, 4})
        pages.CreateListOfFeatures().GetIntegerFeature(test::kCopies).SetValue(copies);
    const auto kept = pages.GetListOfFeatures(0).GetIntegerFeature(test::kCopies);
    test::Recorder recorder;
    const SettingsInstanceId all(DataModelIds::kSettingsCurrent);
    product.model->RegisterObserver(recorder, all, test::kSpecialPages,
                                    DataModelIds::kObserverFeature);
    ListOfFeaturesRef added;
    {
        const auto transaction = product.model->OpenTransaction();
        pages.DeleteItem(0);
        added = pages.CreateListOfFeatures();
        product.Set(test::kMedia, test::kFilm);
        added.GetIntegerFeature(test::kCopies).SetValue(7);
        EXPECT_FALSE(kept.IsSupported());
    }
    EXPECT_EQ(recorder.bundles.size(), 1U);
    EXPECT_NE(recorder.bundles[0].find("odrv-special-pages value"), std::string::npos);
    EXPECT_FALSE(added.IsSupported());
    ASSERT_EQ(pages.GetNumItems(), 2U);
    int copies = 0;
    EXPECT_TRUE(kept.GetValue(copies, FeatureRef::kAssertIfUnsupported)) << "in its old place";
    EXPECT_EQ(copies, 3);
    EXPECT_TRUE(
        pages.GetListOfFeatures(0).GetOptionFeature(test::kSides).SetValue(test::kTwoSided));
    product.model->UnregisterObserver(recorder, all, test::kSpecialPages,
                                      DataModelIds::kObserverFeature);
}

TEST(Lists, AConstraintAddedToAnItemGoesAndComesWithIt)
{
    const Product product;
    auto pages = SpecialPages(product);
    test::Recorder recorder;
    const SettingsInstanceId all(DataModelIds::kSettingsCurrent);
    product.model->RegisterObserver(recorder, all, FeatureIdWithContext(),
                                    DataModelIds::kObserverFeature);
    auto page = pages.CreateListOfFeatures();
    const FeatureIdWithContext sides(page.GetFeatureIdWithContextRef(), FeatureId(test::kSides));
    const auto isLimited = [&] {
        return !page.GetOptionFeature(test::kSides).SetValue(test::kTwoSided);
    };
    EXPECT_TRUE(product.model->GetConstraintsIntegrator().AddConstraint(
        ConstraintMkII(Condition(test::kBooklet, DataModelIds::kInclude, ValSet{true}),
                       Condition(sides, DataModelIds::kInclude, ValSet{test::kTwoSided}))));
    auto booklet = product.All().GetBooleanFeature(test::kBooklet);
    {
        const auto transaction = product.model->OpenTransaction();
        pages.DeleteAllItems();
        booklet.SetValue(true);
        pages.CreateListOfFeatures();
    }
    EXPECT_FALSE(isLimited());
    page.GetOptionFeature(test::kSides).SetValue(test::kOneSided);
    booklet.SetValue(true);
    EXPECT_TRUE(isLimited());
    pages.DeleteAllItems();
    page = ListOfFeaturesRef();
    recorder.bundles.clear();
    booklet.SetValue(false);
    EXPECT_EQ(recorder.bundles, std::vector<std::string>{"odrv-booklet value"});
    booklet.SetValue(true);
    product.model->UnregisterObserver(recorder, all, FeatureIdWithContext(),
                                      DataModelIds::kObserverFeature);
}

TEST(Lists, CopyTakesOverWhatBothHave)
{
    const Product product;
    const Product other;
    other.Set(test::kMedia, test::kFilm);
    other.All().GetIntegerFeature(test::kCopies).SetValue(300);
    SpecialPages(other).CreateListOfFeatures().GetIntegerFeature(test::kCopies).SetValue(8);
    other.All().GetListOfValues(test::kTexts).CreateOptionFeature().SetValue(test::kFilm);
    EXPECT_TRUE(product.All().CopyFrom(other.All()));
    EXPECT_EQ(product.Get(test::kMedia), test::kFilm);
    EXPECT_EQ(SpecialPages(product).GetNumItems(), 1U);
    const auto text = product.All().GetListOfValues(test::kTexts).GetOptionFeature(0);
    EXPECT_EQ(text.GetValue().GetValueEnum(), test::kFilm);

    // Into the very list that is being copied from, and from an item to the top.
    auto page = SpecialPages(product).GetListOfFeatures(0);
    EXPECT_TRUE(product.All().CopyFrom(product.All()));
    EXPECT_EQ(SpecialPages(product).GetNumItems(), 1U);
    EXPECT_TRUE(product.All().CopyFrom(SpecialPages(product).GetListOfFeatures(0)));
    EXPECT_EQ(product.Number(test::kCopies), 8);
    EXPECT_FALSE(page.CopyFrom(ListOfFeaturesRef()));
}

TEST(Lists, CancelBringsDeletedItemsBack)
{
    const Product product;
    auto pages = SpecialPages(product);
    pages.CreateListOfFeatures().GetIntegerFeature(test::kCopies).SetValue(5);
    product.model->CommitAccepted();
    pages.GetListOfFeatures(0).GetIntegerFeature(test::kCopies).SetValue(6);
    pages.CreateListOfFeatures();
    EXPECT_TRUE(product.model->IsModified());
    product.model->RevertToAccepted();
    EXPECT_FALSE(product.model->IsModified());
    ASSERT_EQ(pages.GetNumItems(), 1U);
    EXPECT_EQ(test::Number(pages.GetListOfFeatures(0), test::kCopies), 5);
    EXPECT_TRUE(product.All().RestoreToDefaultValue());
    EXPECT_EQ(pages.GetNumItems(), 0U);
}

TEST(Lists, TellWhatTravelsInAJobTicket)
{
    const Product product;
    const auto capabilities = product.All().GetListOfFeaturesCapabilities();
    EXPECT_TRUE(capabilities->IsSavedInOjtf(FeatureId(test::kMedia)));
    EXPECT_FALSE(capabilities->IsSavedInOjtf(FeatureId(test::kPrivate)));
    EXPECT_FALSE(capabilities->IsLoadedFromOjtf(FeatureId(test::kModel))) << "read-only";
}

} // namespace

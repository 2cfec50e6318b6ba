// A small product with a feature of every kind, its texts, and an observer that writes down what it
// is told.
#pragma once

#include "datamodelfactory.h"
#include "iobserver.h"

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace test {

// Numbers of the test product.
inline constexpr auto kMedia = static_cast<DataModelIds::tagFeatureEnum>(100);
inline constexpr auto kSides = static_cast<DataModelIds::tagFeatureEnum>(101);
inline constexpr auto kStaple = static_cast<DataModelIds::tagFeatureEnum>(102);
inline constexpr auto kCopies = static_cast<DataModelIds::tagFeatureEnum>(103);
inline constexpr auto kCollate = static_cast<DataModelIds::tagFeatureEnum>(104);
inline constexpr auto kName = static_cast<DataModelIds::tagFeatureEnum>(105);
inline constexpr auto kPages = static_cast<DataModelIds::tagFeatureEnum>(106);
inline constexpr auto kWidth = static_cast<DataModelIds::tagFeatureEnum>(107);
inline constexpr auto kResolution = static_cast<DataModelIds::tagFeatureEnum>(108);
inline constexpr auto kColour = static_cast<DataModelIds::tagFeatureEnum>(110);
inline constexpr auto kSaturation = static_cast<DataModelIds::tagFeatureEnum>(111);
inline constexpr auto kSpecialPages = static_cast<DataModelIds::tagFeatureEnum>(120);
inline constexpr auto kTexts = static_cast<DataModelIds::tagFeatureEnum>(121);
inline constexpr auto kBooklet = static_cast<DataModelIds::tagFeatureEnum>(130);
inline constexpr auto kModel = static_cast<DataModelIds::tagFeatureEnum>(131);
inline constexpr auto kPrivate = static_cast<DataModelIds::tagFeatureEnum>(132);
inline constexpr auto kAbsent = static_cast<DataModelIds::tagFeatureEnum>(999);

inline constexpr auto kPlain = static_cast<DataModelIds::tagValueEnum>(6001);
inline constexpr auto kFilm = static_cast<DataModelIds::tagValueEnum>(6002);
inline constexpr auto kOneSided = static_cast<DataModelIds::tagValueEnum>(6011);
inline constexpr auto kTwoSided = static_cast<DataModelIds::tagValueEnum>(6012);
inline constexpr auto kNoStaple = static_cast<DataModelIds::tagValueEnum>(6021);
inline constexpr auto kOneStaple = static_cast<DataModelIds::tagValueEnum>(6022);

/// Text N is "<name>" where the product's tests know one, else "#N".
class Strings : public IStringSource
{
public:
    Strings();
    CXString LoadStringW(unsigned id) const override;

    std::map<unsigned, const wchar_t*> texts;
};

/// The whole package; constraints can be replaced.
std::string PackageText(std::string_view constraints = {});

/// The value of an integer in that list; -1 without one.
int Number(const ListOfFeaturesRef& list, DataModelIds::tagFeatureEnum feature);

/// The text of a whole package, where constraints alone are not enough.
struct Whole
{
    std::string_view text;
};

struct Product
{
    explicit Product(std::string_view constraints = {});
    explicit Product(const Whole& whole);

    Strings strings;
    std::unique_ptr<o7::ProductPackage> package;
    std::unique_ptr<IDataModel> model;

    ListOfFeaturesRef All() const { return model->GetFullListOfFeatures(); }
    bool Set(DataModelIds::tagFeatureEnum feature, DataModelIds::tagValueEnum value) const
    {
        return All().GetOptionFeature(feature).SetValue(value);
    }
    DataModelIds::tagValueEnum Get(DataModelIds::tagFeatureEnum feature) const
    {
        return All().GetOptionFeature(feature).GetValue().GetValueEnum();
    }
    int Number(DataModelIds::tagFeatureEnum feature) const { return test::Number(All(), feature); }
    InterpretedState State(DataModelIds::tagFeatureEnum feature) const
    {
        return All().GetFeature(feature)->GetCapabilities()->GetInterpretedState();
    }
    InterpretedState OptionState(DataModelIds::tagFeatureEnum feature, std::size_t index) const
    {
        return All()
            .GetOptionFeature(feature)
            .GetOptionCapabilities()
            ->GetOptionWithState(index)
            .GetInterpretedState();
    }
};

/// Writes down each bundle as "<feature> <value|state>" joined by commas, events as "event <n>".
class Recorder : public IObserver
{
public:
    void ProcessNotification(const INotification& notification, unsigned int kind) override;

    std::vector<std::string> bundles;
    unsigned int lastKind = 0;
    std::function<void()> reaction; ///< Called after each bundle was written down.
};

std::string Narrow(const CXString& text);

/// The letters of a state: d disabled, c cleared, h hidden, i info, x conflict.
std::string Letters(const InterpretedState& state);

} // namespace test

#include "everyproduct.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

namespace test {

using o7::FeatureKind;

std::vector<std::string> ProductNames()
{
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(O7_PRODUCTS_DIR)) {
        if (std::filesystem::exists(entry.path() / "package.json"))
            names.push_back(entry.path().filename().string());
    }
    std::sort(names.begin(), names.end());
    return names;
}

std::string NameOfProduct(const testing::TestParamInfo<std::string>& product)
{
    std::string name = product.param;
    std::replace(name.begin(), name.end(), '-', '_');
    return name;
}

void EveryProduct::SetUp()
{
    const auto file = std::filesystem::path(O7_PRODUCTS_DIR) / GetParam() / "package.json";
    std::ifstream stream(file, std::ios::binary);
    json = nlohmann::json::parse(stream);
    std::vector<o7::PackageError> errors;
    package = o7::LoadProductPackage(file, errors);
    ASSERT_TRUE(package) << errors.front().ToString();
    model = o7::CreateDataModel(*package, strings);
    all = model->GetFullListOfFeatures();
    CollectLeaves(*all.GetNode());
}

void EveryProduct::CollectLeaves(const IFeatureNode& list)
{
    for (std::size_t i = 0; i < list.GetNumChildren(); ++i) {
        const auto child = list.GetChild(i);
        const bool isList = child->GetKind() == FeatureKind::ListOfFeatures ||
                            child->GetKind() == FeatureKind::ListOfValues;
        (child->GetKind() == FeatureKind::ListOfValues ? lists
         : isList                                      ? groups
                                                       : leaves)
            .push_back(child);
        if (isList)
            CollectLeaves(*child);
    }
}

void EveryProduct::CollectAgain()
{
    leaves.clear();
    lists.clear();
    groups.clear();
    CollectLeaves(*all.GetNode());
}

/// The values worth trying: every option, both booleans, the ends of ranges.
std::vector<o7::FeatureValue> ValuesOf(const IFeatureNode& feature)
{
    std::vector<o7::FeatureValue> values;
    const auto capabilities = feature.GetCapabilities();
    if (const auto* options = dynamic_cast<const OptionCapability*>(capabilities.get())) {
        for (std::size_t i = 0; i < options->GetNumberOfValues(); ++i)
            values.emplace_back(options->GetOptionWithState(i).GetValueId());
    } else if (const auto* range = dynamic_cast<const RangeCapability*>(capabilities.get())) {
        const RangeOfInteger ends = range->GetLargestAndSmallestRangeValues();
        for (const int value :
             {ends.GetLowerBound(), ends.GetLowerBound() + 1,
              (ends.GetLowerBound() + ends.GetUpperBound()) / 2, ends.GetUpperBound()})
            values.emplace_back(value);
    } else if (const auto* lengths =
                   dynamic_cast<const RangeOfDimensionCapability*>(capabilities.get())) {
        Dimension low;
        Dimension high;
        if (lengths->GetRangeValues(low, high)) {
            const auto middle = (low.GetCount() + high.GetCount()) / 2;
            values = {low, Dimension::FromCount(middle, low.GetUnits()), high};
        }
    } else if (feature.GetKind() == FeatureKind::Boolean) {
        values = {false, true};
    } else if (feature.GetKind() == FeatureKind::String) {
        values = {CXString(), CXString(L"1234")};
    }
    return values;
}

} // namespace test

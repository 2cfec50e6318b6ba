#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "datamodelfactory.h"
#include "numberstrings.h"
#include "productfeatures.h"
#include "testpackage.h"

namespace o7::test {

/// A model of the small printer.
class TestModel
{
public:
    /// @param package  the text of one, for what the small printer does not have.
    explicit TestModel(std::string_view package = kTestPackage)
    {
        std::vector<PackageError> errors;
        m_package = ParseProductPackage(package, "test/package.json", errors);
        for (const PackageError& error : errors) {
            throw std::runtime_error(error.ToString());
        }
        m_model = CreateDataModel(*m_package, m_strings);
    }

    IDataModel& operator*() const { return *m_model; }
    IDataModel* operator->() const { return m_model.get(); }

    int option(DataModelIds::tagFeatureEnum feature) const
    {
        return features().GetOptionFeature(FeatureId(feature)).GetValue().GetValueEnum();
    }
    bool choose(DataModelIds::tagFeatureEnum feature, int value) const
    {
        return features()
            .GetOptionFeature(FeatureId(feature))
            .SetValue(ValueId(static_cast<DataModelIds::tagValueEnum>(value)));
    }
    bool flag(DataModelIds::tagFeatureEnum feature) const
    {
        bool value = false;
        EXPECT_TRUE(features().GetBooleanFeature(FeatureId(feature)).GetValue(value, kAssert));
        return value;
    }
    bool setFlag(DataModelIds::tagFeatureEnum feature, bool value) const
    {
        return features().GetBooleanFeature(FeatureId(feature)).SetValue(value);
    }
    int number(DataModelIds::tagFeatureEnum feature) const
    {
        int value = 0;
        EXPECT_TRUE(features().GetIntegerFeature(FeatureId(feature)).GetValue(value, kAssert));
        return value;
    }

private:
    ListOfFeaturesRef features() const { return m_model->GetFullListOfFeatures(); }

    static constexpr auto kAssert = FeatureRef::kAssertIfUnsupported;

    NumberStrings m_strings;
    std::unique_ptr<ProductPackage> m_package;
    std::unique_ptr<IDataModel> m_model;
};

inline constexpr auto kSkipBlankPages = static_cast<DataModelIds::tagFeatureEnum>(3021);
inline constexpr auto kDuplexUnit = static_cast<DataModelIds::tagFeatureEnum>(3046);

} // namespace o7::test

// What the tests of every product share: a model of each, the values worth trying, and dice.
#pragma once

#include "testproduct.h"

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include <cstddef>
#include <random>
#include <string>
#include <vector>

namespace test {

/// The folders of the products, sorted.
std::vector<std::string> ProductNames();

/// A product's folder as the name of a test.
std::string NameOfProduct(const testing::TestParamInfo<std::string>& product);

/// Every product that is there, in a model of its own.
class EveryProduct : public testing::TestWithParam<std::string>
{
protected:
    void SetUp() override;

    void CollectLeaves(const IFeatureNode& list);
    void CollectAgain();

    test::Strings strings;
    nlohmann::json json;
    std::unique_ptr<o7::ProductPackage> package;
    std::unique_ptr<IDataModel> model;
    ListOfFeaturesRef all;
    std::vector<IFeatureNode::Ptr> leaves;
    std::vector<IFeatureNode::Ptr> lists;
    std::vector<IFeatureNode::Ptr> groups;
};

/// The values worth trying: every option, both booleans, the ends of ranges.
std::vector<o7::FeatureValue> ValuesOf(const IFeatureNode& feature);

class Dice
{
public:
    /// The same throws on every platform.
    std::size_t operator()(std::size_t sides) { return m_engine() % sides; }

private:
    std::mt19937 m_engine{20261121};
};

} // namespace test

#pragma once

#include "featurefactory.h"
#include "iconstraintsintegrator.h"

#include <vector>

/// Width and height features of a medium, and the range of sizes a constraint speaks of.
struct MediaSizeRange
{
    ConstrainableFeature width;
    ConstrainableFeature height;
    Dimension smallestWidth;
    Dimension largestWidth;
    Dimension smallestHeight;
    Dimension largestHeight;
};

/// Builds the constraints that molecules add most often. Each function answers false when a feature
/// does not exist in this product; constraints before the failing one stay added.
class IConstraintHelper
{
public:
    IConstraintHelper() = delete;

    /// While `cause` has its value, `feature` must have none of `values`, and the other way round
    /// for each of them.
    static bool AddConstraintInvalidCombinationByVector(IConstraintsIntegrator& integrator,
                                                        const FeatureFactory& cause,
                                                        const ConstrainableFeature& feature,
                                                        const std::vector<ValueFactory>& values,
                                                        const ConstraintMkIIOptions& options = {})
    {
        const Condition first(cause.GetFeature(), DataModelIds::kInclude, ValSet{cause.GetValue()});
        const Condition second(feature, DataModelIds::kInclude, ValSet(values));
        return integrator.AddConstraint(ConstraintMkII(first, second, options)) &&
               integrator.AddConstraint(ConstraintMkII(second, first, options));
    }

    /// While the medium's size lies in the range (bounds included), `feature` must not have the
    /// value.
    static bool AddConstraintMediaSizeRangeInvalidCombination(
        IConstraintsIntegrator& integrator, const MediaSizeRange& size,
        const FeatureFactory& feature, const ConstraintMkIIOptions& options = {})
    {
        return integrator.AddConstraint(
            {{size.width, DataModelIds::kGreaterOrEqual, ValSet{size.smallestWidth}},
             {size.width, DataModelIds::kLessOrEqual, ValSet{size.largestWidth}},
             {size.height, DataModelIds::kGreaterOrEqual, ValSet{size.smallestHeight}},
             {size.height, DataModelIds::kLessOrEqual, ValSet{size.largestHeight}}},
            {feature.GetFeature(), DataModelIds::kInclude, ValSet{feature.GetValue()}}, options);
    }

    /// While the medium's size lies outside the range, `feature` must not have the value.
    static bool AddConstraintMediaSizeRangeInvalidCombination2(
        IConstraintsIntegrator& integrator, const MediaSizeRange& size,
        const FeatureFactory& feature, const ConstraintMkIIOptions& options = {})
    {
        const Condition outside[] = {
            {size.width, DataModelIds::kLess, ValSet{size.smallestWidth}},
            {size.width, DataModelIds::kGreater, ValSet{size.largestWidth}},
            {size.height, DataModelIds::kLess, ValSet{size.smallestHeight}},
            {size.height, DataModelIds::kGreater, ValSet{size.largestHeight}},
        };
        const Condition forbidden(feature.GetFeature(), DataModelIds::kInclude,
                                  ValSet{feature.GetValue()});
        for (const Condition& condition : outside) {
            if (!integrator.AddConstraint(ConstraintMkII(condition, forbidden, options)))
                return false;
        }
        return true;
    }
};

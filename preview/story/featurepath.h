#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "ifeaturenode.h"

namespace o7::story {

/// The feature that a path names, from the list of features `top`: "feature", "list/feature", or
/// "list[2]/feature" for the second item of a list of values. Null when there is none.
IFeatureNode::Ptr findFeature(const IFeatureNode& top, std::string_view path);

/// Every such path that exists now.
std::vector<std::string> featureNames(const IFeatureNode& top);

} // namespace o7::story

#include "featurepath.h"

#include <algorithm>
#include <charconv>

namespace o7::story {
namespace {

/// Lists in lists in lists: no product goes deeper, and a path is not followed for ever.
constexpr int kDeepest = 8;

IFeatureNode::Ptr supported(const IFeatureNode::Ptr& node)
{
    return node && node->GetKind() != FeatureKind::Unsupported ? node : nullptr;
}

/// The item that "[2]" stands for.
IFeatureNode::Ptr itemOf(const IFeatureNode& list, std::string_view index)
{
    std::size_t number = 0;
    const char* const end = index.data() + index.size() - 1;
    const auto [last, error] = std::from_chars(index.data() + 1, end, number);
    const bool read = error == std::errc() && last == end && index.back() == ']' && number > 0;
    return read ? supported(list.GetChild(number - 1)) : nullptr;
}

IFeatureNode::Ptr step(const IFeatureNode& list, std::string_view part)
{
    const std::size_t bracket = std::min(part.find('['), part.size());
    auto found =
        supported(list.FindFeature(FeatureId(CXString::FromUtf8(part.substr(0, bracket)))));
    return found && bracket < part.size() ? itemOf(*found, part.substr(bracket)) : found;
}

void addNames(std::vector<std::string>& names, const IFeatureNode& list, const std::string& prefix,
              int depth)
{
    for (std::size_t i = 0; i < list.GetNumChildren(); ++i) {
        const auto child = list.GetChild(i);
        const bool isItem = list.GetKind() == FeatureKind::ListOfValues;
        const std::string name =
            isItem ? prefix + "[" + std::to_string(i + 1) + "]"
                   : prefix + child->GetId().GetFeatureId().GetFeatureLeafName().ToUtf8();
        names.push_back(name);
        if (depth < kDeepest) {
            const bool more = child->GetKind() == FeatureKind::ListOfFeatures;
            addNames(names, *child, more ? name + "/" : name, depth + 1);
        }
    }
}

} // namespace

IFeatureNode::Ptr findFeature(const IFeatureNode& top, std::string_view path)
{
    std::size_t slash = std::min(path.find('/'), path.size());
    auto found = step(top, path.substr(0, slash));
    while (found && slash < path.size()) {
        path.remove_prefix(slash + 1);
        slash = std::min(path.find('/'), path.size());
        found = step(*found, path.substr(0, slash));
    }
    return found;
}

std::vector<std::string> featureNames(const IFeatureNode& top)
{
    std::vector<std::string> names;
    addNames(names, top, {}, 0);
    return names;
}

} // namespace o7::story

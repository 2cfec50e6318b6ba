#include "circlesearch.h"

#include <algorithm>
#include <set>
#include <vector>

namespace o7 {
namespace {

/// One rule that changes what others read.
struct Influence
{
    std::string name;
    const std::vector<ConditionDescription>* when;
    FeatureEnum target;
};

std::vector<Influence> InfluencesOf(const ListDescription& list)
{
    std::vector<Influence> influences;
    for (const ConstraintDescription& constraint : list.constraints) {
        if (constraint.kind == EffectKind::Clear || constraint.kind == EffectKind::Force)
            influences.push_back({constraint.id, &constraint.when, constraint.target});
    }
    for (const FeatureDescription& feature : list.features) {
        for (const AdaptingDefault& row : feature.defaults)
            influences.push_back(
                {"default of " + feature.name.ToUtf8(), &row.when, feature.number});
    }
    return influences;
}

/// Depth-first search from influence to influence.
class CircleSearch
{
public:
    explicit CircleSearch(const ListDescription& list) : m_influences(InfluencesOf(list)) {}

    std::string Run()
    {
        for (const Influence& influence : m_influences) {
            if (Visit(influence))
                return m_circle;
        }
        return {};
    }

private:
    bool Visit(const Influence& influence)
    {
        const auto onPath = std::find(m_path.begin(), m_path.end(), &influence);
        if (onPath != m_path.end()) {
            for (auto step = onPath; step != m_path.end(); ++step)
                m_circle += (*step)->name + " -> ";
            m_circle += influence.name;
            return true;
        }
        if (!m_done.insert(&influence).second)
            return false;
        m_path.push_back(&influence);
        for (const Influence& next : m_influences) {
            if (Reads(next, influence.target) && Visit(next))
                return true;
        }
        m_path.pop_back();
        return false;
    }

    static bool Reads(const Influence& influence, FeatureEnum feature)
    {
        return std::any_of(influence.when->begin(), influence.when->end(),
                           [&](const auto& condition) { return condition.feature == feature; });
    }

    std::vector<Influence> m_influences;
    std::vector<const Influence*> m_path;
    std::set<const Influence*> m_done;
    std::string m_circle;
};

} // namespace

std::string FindConstraintCircle(const ListDescription& list)
{
    return CircleSearch(list).Run();
}

} // namespace o7

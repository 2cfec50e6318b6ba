#include "changelog.h"

#include "featurenode.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace o7 {

ChangeLog::ChangeLog()
{
    m_levels.emplace_back();
    m_levels.back().id = m_nextId++;
}

void ChangeLog::Note(FeatureNode& feature, unsigned bits)
{
    if (m_muted)
        return;
    Level& level = m_levels.back();
    if (feature.dirtyLevel == level.id) {
        level.changes[feature.dirtyIndex].bits |= bits;
        return;
    }
    feature.dirtyLevel = level.id;
    feature.dirtyIndex = static_cast<std::uint32_t>(level.changes.size());
    level.changes.push_back({&feature, bits});
}

std::uint64_t ChangeLog::Open()
{
    m_levels.push_back(std::exchange(m_spare, {}));
    m_levels.back().id = m_nextId++;
    return m_levels.back().id;
}

bool ChangeLog::IsOpen(std::uint64_t id) const
{
    return std::any_of(std::next(m_levels.begin()), m_levels.end(),
                       [&](const Level& level) { return level.id == id; });
}

std::vector<Change> ChangeLog::Pop(bool keep)
{
    Level level = std::move(m_levels.back());
    m_levels.pop_back();
    if (keep && IsAnyOpen()) {
        auto& below = m_levels.back().undo;
        below.insert(below.end(), std::make_move_iterator(level.undo.begin()),
                     std::make_move_iterator(level.undo.end()));
    }
    level.undo.clear();
    m_spare.undo = std::move(level.undo);
    return std::move(level.changes);
}

void ChangeLog::Recycle(std::vector<Change> changes)
{
    changes.clear();
    m_spare.changes = std::move(changes);
}

std::vector<Change> ChangeLog::TakeBase()
{
    Level& base = m_levels.front();
    // A new id makes the marks in the features void.
    base.id = m_nextId++;
    return std::exchange(base.changes, {});
}

void ChangeLog::ReturnToBase(std::vector<Change> changes)
{
    Level& base = m_levels.front();
    base.id = m_nextId++;
    changes.insert(changes.end(), base.changes.begin(), base.changes.end());
    base.changes = std::move(changes);
}

} // namespace o7

#include "changelog.h"

#include "featurenode.h"
#include "room.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace o7 {

namespace {

std::size_t CountFeatures(const FeatureNode& feature)
{
    std::size_t count = 1;
    for (const auto& child : feature.Children())
        count += CountFeatures(*child);
    return count;
}

} // namespace

ChangeLog::ChangeLog()
{
    m_levels.emplace_back();
    m_levels.back().id = m_nextId++;
}

void ChangeLog::Note(FeatureNode& feature, unsigned bits)
{
    if (!m_muted)
        NoteIn(m_levels.back(), feature, bits);
}

void ChangeLog::NoteIn(Level& level, FeatureNode& feature, unsigned bits)
{
    if (feature.dirtyLevel == level.id) {
        level.changes[feature.dirtyIndex].bits |= bits;
        return;
    }
    // A mark without an entry behind it would be written through later.
    level.changes.push_back({&feature, bits});
    feature.dirtyLevel = level.id;
    feature.dirtyIndex = static_cast<std::uint32_t>(level.changes.size() - 1);
}

void ChangeLog::MarkIn(const Level& level)
{
    for (std::size_t i = 0; i < level.changes.size(); ++i) {
        level.changes[i].feature->dirtyLevel = level.id;
        level.changes[i].feature->dirtyIndex = static_cast<std::uint32_t>(i);
    }
}

void ChangeLog::Expect(const FeatureNode& feature)
{
    const std::size_t features = m_features + CountFeatures(feature);
    for (Level& level : m_levels)
        MakeRoom(level.changes, level.changes.size() + features);
    MakeRoom(m_buried, features);
    m_features = features;
}

void ChangeLog::Bury(std::shared_ptr<FeatureNode> item)
{
    m_buried.push_back(std::move(item));
}

void ChangeLog::Exhume(const std::shared_ptr<FeatureNode>& item)
{
    std::erase(m_buried, item);
}

void ChangeLog::ReleaseBuried()
{
    for (const auto& item : m_buried)
        m_features -= CountFeatures(*item);
    m_buried.clear();
}

std::uint64_t ChangeLog::Open()
{
    Level level = std::exchange(m_spare, {});
    MakeRoom(level.changes, m_features);
    m_levels.push_back(std::move(level));
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
    Level& inner = m_levels.back();
    Level& below = m_levels[m_levels.size() - 2];
    if (keep && m_levels.size() > 2) {
        MakeRoom(below.undo, below.undo.size() + inner.undo.size());
        below.undo.insert(below.undo.end(), std::make_move_iterator(inner.undo.begin()),
                          std::make_move_iterator(inner.undo.end()));
    }
    Level level = std::move(inner);
    m_levels.pop_back();
    // What both had noted is marked as the inner one's.
    MarkIn(below);
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
    if (base.changes.empty())
        return {};
    std::vector<Change> fresh = std::exchange(m_spare.changes, {});
    MakeRoom(fresh, m_features);
    // A new id makes the marks in the features void.
    base.id = m_nextId++;
    return std::exchange(base.changes, std::move(fresh));
}

void ChangeLog::ReturnToBase(const std::vector<Change>& changes)
{
    for (const Change& change : changes)
        NoteIn(m_levels.front(), *change.feature, change.bits);
}

} // namespace o7

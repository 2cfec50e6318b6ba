#pragma once

#include "featureidwithcontext.h"

#include <algorithm>
#include <vector>

/// A set of features, each with its context: what a page answers when asked which settings it
/// shows. Keeps the order of insertion; a feature that is there already is not inserted again.
class SetOfSettingIds
{
public:
    /// Returns false when the setting was in the set already.
    bool InsertSetting(const FeatureIdWithContext& setting)
    {
        if (Contains(setting))
            return false;
        m_settings.push_back(setting);
        return true;
    }

    bool Contains(const FeatureIdWithContext& setting) const
    {
        return std::find(m_settings.begin(), m_settings.end(), setting) != m_settings.end();
    }

    /// Removes `list` itself and every setting inside it; returns how many went.
    std::size_t RemoveEachThatStartsWith(const FeatureIdWithContext& list)
    {
        return std::erase_if(m_settings, [&](const FeatureIdWithContext& setting) {
            return setting.StartsWith(list);
        });
    }

    std::size_t GetSize() const { return m_settings.size(); }
    bool IsEmpty() const { return m_settings.empty(); }
    auto begin() const { return m_settings.begin(); }
    auto end() const { return m_settings.end(); }

private:
    std::vector<FeatureIdWithContext> m_settings;
};

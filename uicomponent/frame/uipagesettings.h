#pragma once

#include <cstddef>
#include <optional>
#include <vector>

#include "cxstring.h"
#include "featureidwithcontext.h"
#include "ifeaturenode.h"

class FeatureServices;
class ProductStringLoader;
class SetOfSettingIds;

/// The settings of one page, whether or not the page was ever opened: what differs from the
/// defaults, what is hidden and why.
class UIPageSettings
{
public:
    /// @param settings  what the page collects. The services are borrowed.
    UIPageSettings(FeatureServices& featureServices, const SetOfSettingIds& settings);

    /// How many settings of the page come before this one; nothing when it is not among them.
    std::optional<std::size_t> find(const FeatureIdWithContext& feature) const;
    std::size_t size() const { return m_settings.size(); }

    /// Appends what has another value than its default and can be changed, in the order of the
    /// page; what is in the list already stays there once.
    void addChanged(std::vector<FeatureIdWithContext>& changed) const;
    bool isChanged() const;
    /// Gives everything its default value, as one transaction.
    void restoreDefaults() const;

    /// One line for each setting that the model hides: its name and the reason.
    CXString hiddenReasons(const ProductStringLoader& strings) const;

private:
    struct Setting
    {
        FeatureIdWithContext id;
        IFeatureNode::Ptr node;
    };

    FeatureServices& m_featureServices;
    std::vector<Setting> m_settings;
};

#pragma once

#include <cstddef>
#include <vector>

#include "cxstring.h"
#include "featureidwithcontext.h"
#include "uistatusmolecule.h"

class FeatureServices;
class ProductStringLoader;
class UIPageSettings;

/// Puts into words how the settings of a sheet stand: conflicts first, else what differs from the
/// defaults; and why the page that is shown leaves settings out.
class UISheetStatus
{
public:
    using Features = std::vector<FeatureIdWithContext>;

    /// Both are borrowed.
    UISheetStatus(FeatureServices& featureServices, const ProductStringLoader& strings)
        : m_featureServices(featureServices), m_strings(strings)
    {
    }

    /// @param conflicts  in the order in which they are named
    /// @param active     index of the page that is shown
    UIStatusMolecule::Status describe(const Features& conflicts,
                                      const std::vector<UIPageSettings>& pages,
                                      std::size_t active) const;

private:
    CXString withNames(unsigned text, const Features& features) const;
    CXString reasonsOf(const Features& conflicts) const;

    FeatureServices& m_featureServices;
    const ProductStringLoader& m_strings;
};

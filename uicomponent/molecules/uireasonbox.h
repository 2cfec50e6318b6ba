#pragma once

#include <windows.h>

#include "featureidwithcontext.h"
#include "uiinfobuttoncontrol.h"
#include "uimoleculesite.h"

/// The box that a mark opens where there is a way out: the reason, and the ways to choose from.
/// Carries out what the person chooses.
class UIReasonBox
{
public:
    /// @param feature  what the mark is about; of no feature there are no ways out
    /// @param page     walks on to the next conflict when F8 is pressed in the box
    UIReasonBox(const UIMoleculeSite& site, const FeatureIdWithContext& feature, HWND page)
        : m_site(site), m_feature(feature), m_page(page)
    {
    }

    /// Shows the box, modal, and does what was chosen. @return false, and nothing shown, when there
    /// is no way out.
    bool show(const UIInfoButtonControl::Reason& reason) const;

private:
    UIMoleculeSite m_site;
    FeatureIdWithContext m_feature;
    HWND m_page;
};

#include "uisheetstatus.h"

#include "featureservices.h"
#include "productstringloader.h"
#include "uipagesettings.h"
#include "uistringnumbers.h"

UIStatusMolecule::Status UISheetStatus::describe(const Features& conflicts,
                                                 const std::vector<UIPageSettings>& pages,
                                                 std::size_t active) const
{
    UIStatusMolecule::Status status;
    status.reasons = pages[active].hiddenReasons(m_strings);
    status.inConflict = !conflicts.empty();
    if (status.inConflict) {
        const CXString gap(status.reasons.IsEmpty() ? L"" : L"\n");
        status.text = withNames(O7STR_S_IN_CONFLICT, conflicts);
        status.reasons = reasonsOf(conflicts) + gap + status.reasons;
        status.reasonsTitle = m_strings.LoadStringW(O7STR_S_CONFLICTS_TITLE);
        return status;
    }
    status.reasonsTitle = m_strings.LoadStringW(O7STR_S_HIDDEN_TITLE);
    Features changed;
    for (const UIPageSettings& page : pages)
        page.addChanged(changed);
    status.text = changed.empty() ? m_strings.LoadStringW(O7STR_S_ALL_DEFAULT)
                                  : withNames(O7STR_S_CHANGED, changed);
    return status;
}

/// The text with the names of the settings in place of its %s.
CXString UISheetStatus::withNames(unsigned text, const Features& features) const
{
    CXString names;
    for (const FeatureIdWithContext& feature : features) {
        if (!names.IsEmpty())
            names += m_strings.LoadStringW(O7STR_S_SEPARATOR);
        names += m_strings.GetStringForFeature(feature.GetFeatureEnum());
    }
    return CXString::Formatted(m_strings.LoadStringW(text).c_str(), names.c_str());
}

CXString UISheetStatus::reasonsOf(const Features& conflicts) const
{
    CXString reasons;
    for (const FeatureIdWithContext& id : conflicts) {
        if (!reasons.IsEmpty())
            reasons += L"\n";
        const auto feature = m_featureServices.GetFeatureRef(id);
        reasons += feature->GetCapabilities()->GetInterpretedState().GetCbrBtnMsg();
    }
    return reasons;
}

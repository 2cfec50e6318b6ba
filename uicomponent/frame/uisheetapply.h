#pragma once

#include <windows.h>

#include <vector>

#include "uiconflictquestion.h"
#include "uimode.h"

class FeatureIdWithContext;
class FeatureServices;
class ProductStringLoader;
class UIApplyButton;
class UIEventProcessor;
class UIServices;
class UISheetAreas;
class UISheetGuide;
struct _UIWindowsMessage;

/// OK and Apply of a whole sheet. Windows tells each page that was visited; this counts them and
/// turns the last one into one event for the data model: 21002 for OK, 21004 for Apply. A page that
/// refuses, and a required setting without a value, keep the sheet open. The count starts anew
/// after each refusal and after each round that was completed, and when a page is asked that has
/// answered already: then somebody else has refused. Settings in conflict are asked about once,
/// when all pages have agreed and before the event.
class UISheetApply
{
public:
    /// Everything is borrowed and must outlive the object. @param mode  goes with the event.
    UISheetApply(FeatureServices& featureServices, const ProductStringLoader& strings,
                 const UIServices& services, UIEventProcessor& eventProcessor, UIMode& mode,
                 const UISheetAreas& areas, UISheetGuide& guide, UIApplyButton& button);

    /// A page has answered PSN_APPLY, and its answer stands in its message result. May change that
    /// to keep the sheet open.
    void pageAnswered(const _UIWindowsMessage& message);
    /// An open page loses its window.
    void pageGoes(HWND page);

private:
    void beginRound();
    bool isAcceptable(const _UIWindowsMessage& message) const;
    void tellMissing(HWND page, const FeatureIdWithContext& feature) const;
    void reject();
    void tellRefused() const;
    bool isAgreed(const _UIWindowsMessage& message);
    void complete(const _UIWindowsMessage& message);
    bool warn(HWND page) const;

    FeatureServices& m_featureServices;
    const ProductStringLoader& m_strings;
    const UIServices& m_services;
    UIEventProcessor& m_eventProcessor;
    UIMode& m_mode;
    const UISheetAreas& m_areas;
    UISheetGuide& m_guide;
    UIApplyButton& m_button;
    UIConflictQuestion m_question;
    std::vector<HWND> m_answered; ///< in this round
};

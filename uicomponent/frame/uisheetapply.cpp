#include "uisheetapply.h"

#include <prsht.h>

#include <algorithm>

#include "booleanfeatureref.h"
#include "featureservices.h"
#include "optionfeatureref.h"
#include "productstringloader.h"
#include "uiapplybutton.h"
#include "uidatavalidator.h"
#include "uieventprocessor.h"
#include "uiservices.h"
#include "uisheetareas.h"
#include "uisheetguide.h"
#include "uistringnumbers.h"
#include "uiwindowsmessage.h"

namespace {

// String resources of the warning that keeps the sheet open.
constexpr unsigned kWarningCaption = 35000;
constexpr unsigned kWarningText = 35001;
constexpr unsigned kWarningAdvice = 35002;

} // namespace

UISheetApply::UISheetApply(FeatureServices& featureServices, const ProductStringLoader& strings,
                           const UIServices& services, UIEventProcessor& eventProcessor,
                           UIMode& mode, const UISheetAreas& areas, UISheetGuide& guide,
                           UIApplyButton& button)
    : m_featureServices(featureServices),
      m_strings(strings),
      m_services(services),
      m_eventProcessor(eventProcessor),
      m_mode(mode),
      m_areas(areas),
      m_guide(guide),
      m_button(button),
      m_question(featureServices, strings, services, mode)
{
}

void UISheetApply::pageAnswered(const _UIWindowsMessage& message)
{
    if (std::find(m_answered.begin(), m_answered.end(), message.window) != m_answered.end())
        beginRound();
    const LONG_PTR result = GetWindowLongPtrW(message.window, DWLP_MSGRESULT);
    if (result == PSNRET_INVALID || !isAcceptable(message)) {
        reject();
    } else if (result == PSNRET_NOERROR) {
        m_answered.push_back(message.window);
        if (!m_eventProcessor.incrementNotificationCount())
            return;
        beginRound();
        complete(message);
    }
}

void UISheetApply::beginRound()
{
    m_answered.clear();
    m_eventProcessor.resetNotificationCount();
}

void UISheetApply::pageGoes(HWND page)
{
    m_eventProcessor.decrementVisitedTabCount(std::erase(m_answered, page) != 0);
}

/// What no page can tell alone.
bool UISheetApply::isAcceptable(const _UIWindowsMessage& message) const
{
    UIDataValidator validator(m_featureServices, m_eventProcessor);
    // Whoever sets defaults for everybody leaves names and numbers to each person.
    validator.setScope([this](const FeatureIdWithContext& feature) {
        return m_mode != UIMode::PrintingDefaults && m_guide.shows(feature);
    });
    const bool isComplete = validator.validate(*reinterpret_cast<const NMHDR*>(message.lParam));
    if (isComplete && m_areas.validate())
        return true;
    if (!isComplete)
        tellMissing(message.window, validator.getMissing());
    // The fault may lie on another page, which is in front now. Set last: changing pages asked this
    // one for its leave.
    SetWindowLongPtrW(message.window, DWLP_MSGRESULT, PSNRET_INVALID_NOCHANGEPAGE);
    return false;
}

void UISheetApply::tellMissing(HWND page, const FeatureIdWithContext& feature) const
{
    m_guide.goTo(feature);
    const CXString name = m_strings.GetStringForFeature(feature.GetFeatureEnum());
    const CXString text =
        CXString::Formatted(m_strings.LoadStringW(O7STR_M_VALUE_MISSING).c_str(), name.c_str());
    m_services.showMessage(GetAncestor(page, GA_ROOT), text, name, MB_ICONWARNING);
}

void UISheetApply::reject()
{
    beginRound();
    tellRefused();
}

void UISheetApply::tellRefused() const
{
    m_featureServices.GetFullListOfFeatures()
        .GetBooleanFeature(FeatureId(DataModelIds::kFeatureApplyIsValid))
        .SetValue(false);
}

bool UISheetApply::isAgreed(const _UIWindowsMessage& message)
{
    const auto answer =
        m_question.ask(GetAncestor(message.window, GA_ROOT), m_guide.conflictsInOrder());
    if (answer == UIConflictQuestion::Answer::GoOn ||
        (answer == UIConflictQuestion::Answer::Settled && isAcceptable(message)))
        return true;
    tellRefused();
    if (answer == UIConflictQuestion::Answer::GoBack)
        m_guide.goTo(m_question.getFirst());
    return false;
}

void UISheetApply::complete(const _UIWindowsMessage& message)
{
    if (!isAgreed(message)) {
        SetWindowLongPtrW(message.window, DWLP_MSGRESULT, PSNRET_INVALID_NOCHANGEPAGE);
        return;
    }
    const bool closing = reinterpret_cast<const PSHNOTIFY*>(message.lParam)->lParam != 0;
    m_eventProcessor.notifyDataModel(closing ? DataModelIds::kEventOk : DataModelIds::kEventApply,
                                     &m_mode);
    m_button.applied();
    if (warn(message.window))
        SetWindowLongPtrW(message.window, DWLP_MSGRESULT, PSNRET_INVALID);
}

bool UISheetApply::warn(HWND page) const
{
    ValueId value;
    const auto feature = m_featureServices.GetFullListOfFeatures().GetOptionFeature(
        FeatureId(DataModelIds::kFeatureApplyResult));
    if (!feature.GetValue(value, FeatureRef::kDoNotAssertIfUnsupported) ||
        value.GetValueEnum() != DataModelIds::kValueApplyRejected)
        return false;
    const CXString text =
        m_strings.LoadStringW(kWarningText) + L"\n\n" + m_strings.LoadStringW(kWarningAdvice);
    m_services.showMessage(GetAncestor(page, GA_ROOT), text, m_strings.LoadStringW(kWarningCaption),
                           MB_ICONWARNING);
    return true;
}

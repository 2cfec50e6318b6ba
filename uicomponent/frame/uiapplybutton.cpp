#include "uiapplybutton.h"

#include <prsht.h>

#include <utility>

#include "cxstring.h"
#include "featureservices.h"

namespace {

// Together with the id of no feature, which stands for the full list: the values of everything.
constexpr auto kValues = DataModelIds::kSettingsValue;

} // namespace

UIApplyButton::UIApplyButton(FeatureServices& featureServices,
                             std::function<bool()> hasPendingInput)
    : m_featureServices(featureServices), m_hasPendingInput(std::move(hasPendingInput))
{
}

UIApplyButton::~UIApplyButton()
{
    if (m_isWatching)
        m_featureServices.UnregisterObserver(*this, SettingsInstanceId(kValues),
                                             FeatureIdWithContext(),
                                             DataModelIds::kObserverFeature);
}

void UIApplyButton::pageInitialized(HWND page)
{
    if (m_page)
        return;
    if (!m_isWatching)
        m_featureServices.RegisterObserver(*this, SettingsInstanceId(kValues),
                                           FeatureIdWithContext(), DataModelIds::kObserverFeature);
    m_isWatching = true;
    m_page = page;
    postQuestion(); // the host may have opened the pages with settings that differ already
}

void UIApplyButton::pageGoes(HWND page, HWND other)
{
    if (page != m_page)
        return;
    m_page = other;
    m_isPosted = false; // what was posted to the page has gone with it
    if (other)
        postQuestion();
}

void UIApplyButton::ProcessNotification(const INotification&, unsigned int)
{
    postQuestion();
}

void UIApplyButton::postQuestion()
{
    if (!m_isPosted && m_page)
        m_isPosted = PostMessageW(m_page, kModelChanged, 0, 0) != FALSE;
}

void UIApplyButton::modelChanged()
{
    m_isPosted = false;
    m_isModelModified = m_featureServices.IsModified();
    update();
}

void UIApplyButton::update()
{
    const bool isModified = m_isModelModified || m_hasPendingInput();
    if (!m_page || isModified == m_isShown)
        return;
    m_isShown = isModified;
    SendMessageW(GetParent(m_page), isModified ? PSM_CHANGED : PSM_UNCHANGED,
                 reinterpret_cast<WPARAM>(m_page), 0);
}

void UIApplyButton::applied()
{
    m_isModelModified = m_featureServices.IsModified();
    if (!m_isModelModified)
        m_isShown = false;
}

CXString UIApplyButton::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIApplyButton : IObserver");
}

#include "uifeaturemolecule.h"

#include "capabilitiesnode.h"
#include "datamodelids.h"
#include "featurechangenotification.h"
#include "featureref.h"
#include "featureservices.h"
#include "notificationbundle.h"
#include "setofsettingids.h"
#include "uitooltips.h"

UIFeatureMolecule::~UIFeatureMolecule() = default;

void UIFeatureMolecule::ConnectToDataModel()
{
    if (!IsBound() || m_connected)
        return;
    const SettingsInstanceId current(DataModelIds::kSettingsCurrent);
    FeatureServices& services = GetSite().featureServices;
    services.RegisterObserver(*this, current, GetBoundFeature(), DataModelIds::kObserverFeature);
    for (const auto& feature : m_furtherFeatures)
        services.RegisterObserver(*this, current, feature, DataModelIds::kObserverFeature);
    m_connected = true;
    LoadValue();
    LoadState();
}

void UIFeatureMolecule::DisconnectFromDataModel()
{
    if (!IsBound() || !m_connected)
        return;
    m_connected = false;
    const SettingsInstanceId current(DataModelIds::kSettingsCurrent);
    FeatureServices& services = GetSite().featureServices;
    services.UnregisterObserver(*this, current, GetBoundFeature(), DataModelIds::kObserverFeature);
    for (const auto& feature : m_furtherFeatures)
        services.UnregisterObserver(*this, current, feature, DataModelIds::kObserverFeature);
}

void UIFeatureMolecule::AddFurtherFeature(const FeatureIdWithContext& feature)
{
    m_furtherFeatures.push_back(feature);
}

void UIFeatureMolecule::Refresh()
{
    if (!m_connected)
        return;
    LoadValue();
    LoadState();
}

void UIFeatureMolecule::CollectSettings(SetOfSettingIds& settings) const
{
    if (IsBound())
        settings.InsertSetting(GetBoundFeature());
    for (const auto& feature : m_furtherFeatures)
        settings.InsertSetting(feature);
}

void UIFeatureMolecule::ProcessNotification(const INotification& notification, unsigned int)
{
    const auto* bundle = dynamic_cast<const NotificationBundle*>(&notification);
    if (!bundle)
        return;
    for (auto iterator = bundle->GetIterator(); iterator.MoreNotifications();)
        ProcessChange(iterator.GetNext());
}

void UIFeatureMolecule::ProcessChange(const INotification& notification)
{
    const auto* change = dynamic_cast<const FeatureChangeNotification*>(&notification);
    if (!change)
        return;
    const auto instance = change->GetSettingsInstanceId().GetSettingsEnum();
    if (instance == DataModelIds::kSettingsValue)
        LoadValue();
    else if (instance == DataModelIds::kSettingsConstraintState &&
             change->GetFeatureChangeId().GetFeatureChangeEnum() ==
                 DataModelIds::kFeatureConstraintStateChanged)
        LoadState();
}

CXString UIFeatureMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIFeatureMolecule:UIMolecule");
}

void UIFeatureMolecule::LoadState()
{
    const auto feature = GetSite().featureServices.GetFeatureRef(GetBoundFeature());
    const auto capabilities = feature ? feature->GetCapabilities() : nullptr;
    if (!capabilities)
        return; // a feature that cannot be read keeps the state it shows
    m_state = capabilities->GetInterpretedState();
    m_enabled = !m_state.IsDisabled() && !capabilities->IsReadOnly() && !IsForceDisabled();
    ShowState(m_state, m_enabled);
    UpdateInfoButton(GetBoundFeature(), m_state);
    ShowReasonTip();

    const bool shown = !m_state.IsHidden() && IsShownOnPage() && !IsHiddenBySetting();
    if (shown != m_shown) {
        m_shown = shown;
        Show(shown);
    }
}

// A greyed control tells under the pointer why it is grey; an enabled one leaves that to its mark.
void UIFeatureMolecule::ShowReasonTip()
{
    const CXString reason = m_enabled ? CXString() : GetInfoText();
    if (!GetToolTips() || !InfoAnchor() || reason == m_reasonTip)
        return;
    m_reasonTip = reason;
    GetToolTips()->setAreaTip(InfoAnchor(), reason);
}

CXString UIFeatureMolecule::StateText() const
{
    if (!m_shown)
        return CXString(L"hidden");
    if (m_enabled)
        return CXString(L"enabled");
    return CXString(m_state.IsCleared() ? L"disabled, cleared" : L"disabled");
}

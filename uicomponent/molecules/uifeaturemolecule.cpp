#include "uifeaturemolecule.h"

#include "datamodelids.h"
#include "featurechangenotification.h"
#include "featureservices.h"
#include "notificationbundle.h"
#include "setofsettingids.h"
#include "transactionref.h"
#include "uitooltips.h"

#include <utility>

UIFeatureMolecule::~UIFeatureMolecule() = default;

void UIFeatureMolecule::ConnectToDataModel()
{
    if (!IsBound() || m_connected)
        return;
    const SettingsInstanceId current(DataModelIds::kSettingsCurrent);
    ForObserved([&](const FeatureIdWithContext& feature) {
        GetSite().featureServices.RegisterObserver(*this, current, feature,
                                                   DataModelIds::kObserverFeature);
    });
    m_connected = true;
    LoadValue();
    LoadState();
    m_fresh = true;
}

void UIFeatureMolecule::DisconnectFromDataModel()
{
    if (!IsBound() || !m_connected)
        return;
    m_connected = false;
    const SettingsInstanceId current(DataModelIds::kSettingsCurrent);
    ForObserved([&](const FeatureIdWithContext& feature) {
        GetSite().featureServices.UnregisterObserver(*this, current, feature,
                                                     DataModelIds::kObserverFeature);
    });
}

template <class Do> void UIFeatureMolecule::ForObserved(const Do& act) const
{
    act(GetBoundFeature());
    for (const auto* features : {&m_furtherFeatures, &m_observedOnly})
        for (const auto& feature : *features)
            act(feature);
}

void UIFeatureMolecule::ObserveFeature(const FeatureIdWithContext& feature)
{
    m_observedOnly.push_back(feature);
}

void UIFeatureMolecule::AddFurtherFeature(const FeatureIdWithContext& feature)
{
    m_furtherFeatures.push_back(InFeatureList(feature));
}

bool UIFeatureMolecule::WriteAndReadBack(const std::function<bool()>& write)
{
    const auto transaction = GetSite().featureServices.OpenTransaction();
    const bool taken = write();
    if (taken)
        LoadValue();
    transaction->Close(true);
    return taken;
}

void UIFeatureMolecule::Refresh()
{
    if (!m_connected || std::exchange(m_fresh, false))
        return;
    LoadValue();
    LoadState();
}

void UIFeatureMolecule::SetShownOnPage(bool shown)
{
    UIMolecule::SetShownOnPage(shown);
    if (m_connected)
        LoadState();
}

void UIFeatureMolecule::SetForceDisabled(bool disabled)
{
    UIMolecule::SetForceDisabled(disabled);
    if (m_connected)
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
        KeepFocusWhile([this] { LoadValue(); });
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
    auto state = ReadState();
    if (!state)
        return; // a feature that cannot be read keeps the state it shows
    m_state = *std::move(state);
    m_enabled = !m_state.IsDisabled();
    const bool shown = !m_state.IsHidden() && IsShownOnPage() && !IsHiddenBySetting();
    KeepFocusWhile([this, shown] {
        ShowState(m_state, m_enabled);
        UpdateInfoButton(GetBoundFeature(), m_state);
        ShowReasonTip();
        ShowOrHide(shown);
    });
}

// Windows takes the focus from a window that it disables, and then nobody has it.
template <class Load> void UIFeatureMolecule::KeepFocusWhile(const Load& load)
{
    const HWND focus = GetFocus();
    const bool isOurs = GetPage() && OwnsControl(focus);
    load();
    if (isOurs && IsWindow(focus) &&
        !(IsWindowEnabled(focus) && GetWindowLongPtrW(focus, GWL_STYLE) & WS_VISIBLE))
        HandOnFocus();
}

// Of a control that the model hides its mark stays: a gap in the page without a word about it would
// leave the person guessing.
void UIFeatureMolecule::ShowOrHide(bool shown)
{
    if (shown != m_shown) {
        m_shown = shown;
        Show(shown);
    }
    if (!shown)
        ShowInfoButton(IsShownOnPage() && !IsHiddenBySetting());
}

void UIFeatureMolecule::HandOnFocus()
{
    if (!Focus())
        SendMessageW(GetPage(), WM_NEXTDLGCTL, 0, FALSE);
}

// A greyed control tells under the pointer why it is grey; an enabled one leaves that to its mark.
void UIFeatureMolecule::ShowReasonTip()
{
    const CXString reason = m_enabled ? CXString() : GetShownInfoText();
    if (!GetToolTips() || !InfoAnchor() || reason == m_reasonTip)
        return;
    m_reasonTip = reason;
    GetToolTips()->setAreaTip(InfoAnchor(), reason);
}

CXString UIFeatureMolecule::StateText() const
{
    if (!m_shown)
        return CXString(L"hidden");
    CXString text(m_enabled ? L"enabled" : L"disabled");
    if (!m_enabled && m_state.IsCleared())
        text += L", cleared";
    if (HasConflictMessage())
        text += L", conflict";
    return text;
}

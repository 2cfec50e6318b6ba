#include "uimolecule.h"

#include "capabilitiesnode.h"
#include "dialogconversion.h"
#include "featureservices.h"
#include "productstringloader.h"
#include "setofsettingids.h"
#include "uidump.h"
#include "uiinfobuttoncontrol.h"
#include "uimoleculedata.h"
#include "uipagelook.h"
#include "uireasonbox.h"
#include "uiservices.h"
#include "uistringnumbers.h"
#include "uitooltips.h"

namespace {

constexpr long kInfoButtonSize = 10; // dialog units

// The messages that ProcessCommonMessage and the controls of a molecule may answer to.
constexpr UINT kCommonMessages[] = {
    WM_COMMAND,        WM_NOTIFY,          WM_DRAWITEM,       WM_MEASUREITEM,  WM_SYSCOLORCHANGE,
    WM_CTLCOLORSTATIC, WM_QUERYNEWPALETTE, WM_PALETTECHANGED, WM_THEMECHANGED,
};

UIMolecule::InfoStyle infoStyleFor(const InterpretedState& state)
{
    if (state.HasCbrBtnMsg())
        return UIMolecule::InfoStyle::Conflict;
    return state.HasInfoBtnMsg() || !state.GetReason().IsEmpty()
               ? UIMolecule::InfoStyle::Information
               : UIMolecule::InfoStyle::None;
}

CXString infoTextFor(const InterpretedState& state)
{
    if (state.HasCbrBtnMsg())
        return state.GetCbrBtnMsg();
    return state.HasInfoBtnMsg() ? state.GetInfoBtnMsg() : state.GetReason();
}

} // namespace

UIMolecule::UIMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : m_data(data), m_site(site)
{
    if (data.hasOwnFeatureList())
        m_ownFeatures = site.features;
}

UIMolecule::~UIMolecule() = default;

bool UIMolecule::HandleMessage(const _UIWindowsMessage&)
{
    return false;
}

void UIMolecule::Refresh()
{
}

bool UIMolecule::IsHiddenBySetting() const
{
    return false;
}

void UIMolecule::SetPosition(POINT position)
{
    const POINT delta{position.x - m_position.x, position.y - m_position.y};
    m_position = position;
    if (m_infoButton)
        m_infoButton->move(delta, false);
    MoveControls(delta);
}

void UIMolecule::MoveControls(POINT)
{
}

void UIMolecule::SetMinimumExtent(SIZE extent)
{
    m_minimumExtent = extent;
}

void UIMolecule::SetPositionAndWidth(POINT position, long width)
{
    m_position = position;
    m_width = width;
}

void UIMolecule::SetShownOnPage(bool shown)
{
    m_shownOnPage = shown;
}

void UIMolecule::SetToolTips(UIToolTips* toolTips)
{
    m_toolTips = toolTips;
}

void UIMolecule::SetForceDisabled(bool disabled)
{
    m_forceDisabled = disabled;
}

bool UIMolecule::ProcessCommonMessage(const _UIWindowsMessage& message)
{
    switch (message.message) {
    case WM_COMMAND:
    case WM_DRAWITEM:
        return m_infoButton && m_infoButton->handleMessage(message);
    case WM_CTLCOLORSTATIC:
        return ColourControl(message);
    case WM_QUERYNEWPALETTE:
        InvalidateRect(message.window, nullptr, TRUE);
        message.result = 1;
        return true;
    case WM_PALETTECHANGED: {
        const HWND changer = reinterpret_cast<HWND>(message.wParam);
        if (changer != message.window && !IsChild(message.window, changer))
            InvalidateRect(message.window, nullptr, TRUE);
        return false;
    }
    case WM_SYSCOLORCHANGE:
        if (m_look)
            m_look->coloursChanged();
        LookChanged();
        return false; // the other molecules have to know as well
    case WM_THEMECHANGED:
        if (m_look)
            m_look->themeChanged();
        LookChanged();
        return false;
    default:
        return false;
    }
}

// A themed page is painted in the window colour, so its texts stand on that. A dialog and a page of
// the classic look are not. A field that is not for writing shows that by the ground of dialogs.
bool UIMolecule::ColourControl(const _UIWindowsMessage& message) const
{
    const auto control = reinterpret_cast<HWND>(message.lParam);
    if (message.kind != UIMessageKind::TabPage || !m_look || !m_look->isThemed() ||
        !OwnsControl(control))
        return false;
    const auto dc = reinterpret_cast<HDC>(message.wParam);
    const bool isField = SendMessageW(control, WM_GETDLGCODE, 0, 0) & DLGC_HASSETSEL;
    SetTextColor(dc, GetSysColor(COLOR_WINDOWTEXT));
    SetBkColor(dc, GetSysColor(isField ? COLOR_3DFACE : COLOR_WINDOW));
    message.result = reinterpret_cast<LRESULT>(isField ? GetSysColorBrush(COLOR_3DFACE)
                                                       : m_look->getWindowBrush());
    return true;
}

bool UIMolecule::Validate()
{
    return true;
}

void UIMolecule::LeavePage()
{
}
void UIMolecule::ConnectToDataModel()
{
}
void UIMolecule::DisconnectFromDataModel()
{
}

int UIMolecule::GetFeatureState() const
{
    return IsBound() && m_data.hasFeatureState() ? 1 : 2;
}

void UIMolecule::ShowInfoButton(bool shown)
{
    if (m_infoButton)
        m_infoButton->setShow(shown);
}

void UIMolecule::LookChanged()
{
}
void UIMolecule::CollectSettings(SetOfSettingIds&) const
{
}

void UIMolecule::UpdateInfoButton(const FeatureIdWithContext& feature,
                                  const InterpretedState& state)
{
    m_infoStyle = infoStyleFor(state);
    m_infoText = infoTextFor(state);
    if (m_infoStyle == InfoStyle::None) {
        const bool hadFocus = m_infoButton && GetFocus() == m_infoButton->getHwnd();
        m_infoButton.reset(); // takes its tip with it
        if (hadFocus)
            Focus(); // back to what it explained
        return;
    }
    if (!m_infoButton)
        CreateInfoButton(feature);
    if (m_infoButton)
        m_infoButton->setMessage(static_cast<std::uint32_t>(m_infoStyle), m_infoText,
                                 GetInfoTitle(feature));
}

void UIMolecule::CreateInfoButton(const FeatureIdWithContext& feature)
{
    const HWND anchor = InfoAnchor();
    if (!m_page || !anchor)
        return;
    const DialogConversion& conversion = m_site.services.getDialogConversion();
    const SIZE size = conversion.dialogUnitsToPixels(SIZE{kInfoButtonSize, kInfoButtonSize});
    const LONG right = m_position.x + m_width;
    const RECT lane = conversion.dialogUnitsToPixels(RECT{0, 0, right - kInfoButtonSize, 0});
    // The anchor's real height counts: a closed list is as high as its font wants it.
    RECT beside{};
    GetWindowRect(anchor, &beside);
    MapWindowPoints(nullptr, m_page, reinterpret_cast<POINT*>(&beside), 2);
    m_infoButton = std::make_unique<UIInfoButtonControl>(
        m_page, m_infoButtonId, m_site.services,
        POINT{lane.right, (beside.top + beside.bottom - size.cy) / 2}, size, m_toolTips);
    // Created late, it would be the last in the Tab order; it belongs behind its control.
    SetWindowPos(m_infoButton->getHwnd(), anchor, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE | SWP_NOREDRAW);
    m_infoButton->setExplainer([box = UIReasonBox(m_site, feature, m_page)](const auto& reason) {
        return box.show(reason);
    });
}

void UIMolecule::OfferWaysOut() const
{
    if (m_infoButton && m_infoStyle == InfoStyle::Conflict)
        m_infoButton->offerWaysOut();
}

void UIMolecule::SetPage(UIPageWindow& page)
{
    m_page = page.window;
    m_look = page.look;
    m_infoButtonId = page.takeId();
}

CXString UIMolecule::LoadText(unsigned number) const
{
    return number ? DecorateText(m_site.strings.LoadStringW(number)) : CXString();
}

void UIMolecule::SetControlIds(int first, int end)
{
    m_firstId = first;
    m_endId = end;
}

bool UIMolecule::OwnsControl(HWND window) const
{
    while (window && GetParent(window) != m_page)
        window = GetParent(window);
    const int id = window ? GetDlgCtrlID(window) : 0;
    return id >= m_firstId && id < m_endId;
}

bool UIMolecule::LacksControl() const
{
    return IsBound() && m_page && !InfoAnchor();
}

FeatureIdWithContext UIMolecule::InFeatureList(const FeatureIdWithContext& feature) const
{
    if (!m_data.hasOwnFeatureList() || feature.GetContextPtr())
        return feature;
    if (!m_ownFeatures.IsSupported())
        return {}; // rather bound to nothing than to the job's setting of the same number
    const FeatureIdWithContext& list = m_ownFeatures.GetFeatureIdWithContextRef();
    const bool isJob = list.GetFeatureEnum() == DataModelIds::kNoFeature;
    return isJob ? feature : FeatureIdWithContext(list, feature.GetFeatureId());
}

void UIMolecule::SetBoundFeature(const FeatureIdWithContext& feature)
{
    m_feature = InFeatureList(feature);
}

std::optional<InterpretedState> UIMolecule::ReadState() const
{
    const auto feature = IsBound() ? m_site.featureServices.GetFeatureRef(m_feature) : nullptr;
    const auto capabilities = feature ? feature->GetCapabilities() : nullptr;
    if (!capabilities)
        return std::nullopt;
    InterpretedState state = capabilities->GetInterpretedState();
    const bool readOnly = IsOnlyShown(*capabilities);
    if (!state.IsDisabled() && (readOnly || m_forceDisabled))
        state.Disable(LoadText(readOnly ? O7STR_M_READ_ONLY : O7STR_M_NOT_HERE));
    CompleteState(*capabilities, state);
    return state;
}

bool UIMolecule::IsOnlyShown(const CapabilitiesNode& capabilities)
{
    return capabilities.IsReadOnly() || capabilities.IsStateOnlyFeature();
}

void UIMolecule::CompleteState(const CapabilitiesNode&, InterpretedState&) const
{
}

ListOfFeaturesRef UIMolecule::GetMoleculeFeatures()
{
    if (m_data.hasOwnFeatureList())
        return m_ownFeatures;
    return m_site.featureServices.GetListOfFeaturesFor(m_feature);
}

long UIMolecule::GetIndent() const
{
    return 0;
}

SIZE UIMolecule::GetExtraExtent() const
{
    return {};
}

bool UIMolecule::HasInfoMessage() const
{
    return m_infoStyle == InfoStyle::Information;
}

bool UIMolecule::HasConflictMessage() const
{
    return m_infoStyle == InfoStyle::Conflict;
}

CXString UIMolecule::GetInfoText() const
{
    const auto state = ReadState();
    return state ? infoTextFor(*state) : CXString();
}

CXString UIMolecule::DecorateText(const CXString& text) const
{
    return text;
}

void UIMolecule::CollectWantedMessages(UIMessageMask& mask) const
{
    for (const UINT message : kCommonMessages)
        mask.add(message);
}

void UIMolecule::DumpControls() const
{
}
void UIMolecule::Inner(std::vector<UIMolecule*>&)
{
}
void UIMolecule::Show(bool shown)
{
    ShowInfoButton(shown);
}

CXString UIMolecule::GetInfoTitle(const FeatureIdWithContext& feature) const
{
    return m_site.strings.GetStringForFeature(feature.GetFeatureEnum());
}

HWND UIMolecule::InfoAnchor() const
{
    return nullptr;
}

bool UIMolecule::HasPendingInput() const
{
    return false;
}

bool UIMolecule::Focus()
{
    HWND target = InfoAnchor();
    // Not IsWindowVisible: the page itself may be about to be shown.
    if (!target || !IsWindowEnabled(target) || !(GetWindowLongPtrW(target, GWL_STYLE) & WS_VISIBLE))
        target = m_infoButton ? m_infoButton->getHwnd() : nullptr;
    if (!m_page || !target)
        return false;
    // The way of the dialog manager: it moves the default button and the focus cues along.
    SendMessageW(m_page, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target), TRUE);
    return GetFocus() == target;
}

void UIMolecule::FitTexts(const UITextRuler&, long)
{
}

void UIMolecule::SetLabelWidth(long width)
{
    const long own = GetData().getLabelWidth();
    m_labelWidth = own > 0 ? own : width;
}

long UIMolecule::GetWantedLabelWidth(const UITextRuler&) const
{
    return 0;
}

void UIMolecule::ProcessNotification(const INotification&, unsigned int)
{
}

CXString UIMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIMolecule : IObserver");
}

CXString UIMolecule::GetDumpDisplayString(bool detailed) const
{
    if (!detailed)
        return GetObserverClassNameHeirarchy() + L" of " +
               m_feature.GetFeatureId().GetFeatureLeafName();
    std::wstring text;
    {
        const UIDump collector(text);
        DumpControls();
    }
    return CXString(std::wstring_view(text));
}

bool UIMolecule::IsBound() const
{
    return m_feature.GetFeatureId().GetFeatureEnum() != DataModelIds::kNoFeature;
}

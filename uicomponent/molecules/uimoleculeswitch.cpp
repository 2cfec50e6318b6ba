#include "uimoleculeswitch.h"

#include "capabilitiesnode.h"
#include "featureref.h"
#include "featureservices.h"
#include "productstringloader.h"
#include "transactionref.h"
#include "uicheckboxcontrol.h"
#include "uimoleculedump.h"
#include "uistringnumbers.h"
#include "uitextruler.h"
#include "uivaluewriter.h"

namespace {

// Dialog units.
constexpr long kMarkWidth = 12; // the check mark and its gap
constexpr long kAroundLines = 2;

} // namespace

UIMoleculeSwitch::UIMoleculeSwitch(const UIMoleculeSite& site) : m_site(site)
{
}

UIMoleculeSwitch::~UIMoleculeSwitch() = default;

void UIMoleculeSwitch::Set(const FeatureIdWithContext& feature, const CXString& text)
{
    m_feature = feature;
    m_text = text;
    m_exists = true;
}

void UIMoleculeSwitch::SetMoleculeFeature(const FeatureIdWithContext& feature)
{
    m_ownFeature = !(m_feature == feature);
}

void UIMoleculeSwitch::Fit(const UITextRuler& ruler, long width)
{
    m_lines = m_exists ? ruler.LinesOf(m_text, width - kMarkWidth) : 1;
}

long UIMoleculeSwitch::GetHeight() const
{
    return m_lines * UITextRuler::kLineHeight + kAroundLines;
}

long UIMoleculeSwitch::GetWantedWidth(const UITextRuler& ruler) const
{
    return m_exists ? ruler.WidthOf(m_text) + kMarkWidth : 0;
}

void UIMoleculeSwitch::Create(UIPageWindow& page, POINT place, long width)
{
    if (!m_exists)
        return;
    m_check =
        std::make_unique<UICheckBoxControl>(page.window, page.takeId(), m_site.services, page.font,
                                            place, SIZE{width, GetHeight()}, false);
    if (m_lines > 1)
        m_check->setMultiline();
    m_check->setLabelText(m_text);
}

void UIMoleculeSwitch::Move(POINT delta)
{
    if (m_check)
        m_check->move(delta, false);
}

void UIMoleculeSwitch::Show(bool shown)
{
    m_shown = shown;
    if (m_check)
        m_check->setShow(m_shown && !m_hidden);
}

// A switch of its own goes by its own feature alone: what it switches may be disabled just because
// it is off.
void UIMoleculeSwitch::ShowState(bool enabled, bool forceDisabled)
{
    const InterpretedState own = OwnState();
    m_cleared = own.IsDisabled() && own.IsCleared();
    m_hidden = own.IsHidden();
    Show(m_shown);
    if (m_check)
        m_check->setEnable(m_ownFeature ? !forceDisabled && !own.IsDisabled()
                                        : enabled && CanBeTurned());
}

/// What has to be specified cannot be turned off.
bool UIMoleculeSwitch::CanBeTurned() const
{
    const auto feature = m_site.featureServices.GetFeatureRef(m_feature);
    const auto capabilities = feature->GetCapabilities();
    return !capabilities || !capabilities->IsRequired() || !feature->IsSpecified();
}

InterpretedState UIMoleculeSwitch::OwnState() const
{
    const auto capabilities =
        HasOwnFeature() ? m_site.featureServices.GetFeatureRef(m_feature)->GetCapabilities()
                        : nullptr;
    if (!capabilities)
        return {};
    InterpretedState state = capabilities->GetInterpretedState();
    if (!state.IsDisabled() && (capabilities->IsReadOnly() || capabilities->IsStateOnlyFeature()))
        state.Disable(m_site.strings.LoadStringW(O7STR_M_READ_ONLY));
    return state;
}

void UIMoleculeSwitch::AddReason(InterpretedState& state) const
{
    const InterpretedState own = OwnState();
    if (own.HasCbrBtnMsg())
        state.AddConflict(own.GetCbrBtnMsg());
    if (own.HasInfoBtnMsg())
        state.AddInfo(own.GetInfoBtnMsg());
    if (own.IsDisabled() || own.IsHidden())
        state.AddInfo(own.GetReason());
}

bool UIMoleculeSwitch::Read() const
{
    if (!m_ownFeature)
        return m_site.featureServices.GetFeatureRef(m_feature)->IsSpecified();
    bool on = false;
    m_site.featureServices.GetListOfFeaturesFor(m_feature).GetBooleanFeature(m_feature).GetValue(
        on, FeatureRef::kDoNotAssertIfUnsupported);
    return on;
}

void UIMoleculeSwitch::Load()
{
    if (!m_exists)
        return;
    m_on = !m_cleared && Read();
    if (m_check)
        m_check->setCheck(m_on ? BST_CHECKED : BST_UNCHECKED);
}

bool UIMoleculeSwitch::HandleMessage(const _UIWindowsMessage& message)
{
    if (!m_check || message.message != WM_COMMAND || HIWORD(message.wParam) != BN_CLICKED ||
        reinterpret_cast<HWND>(message.lParam) != m_check->getHwnd())
        return false;
    const bool on = m_check->getCheck() == BST_CHECKED;
    const auto transaction = m_site.featureServices.OpenTransaction();
    if (m_ownFeature)
        m_site.valueWriter.SetBoolean(m_feature, on);
    else
        m_site.valueWriter.SetIsSpecified(m_feature, on);
    Load(); // the model may have refused the write
    transaction->Close(true);
    return true;
}

bool UIMoleculeSwitch::Focus() const
{
    const HWND check = m_check ? m_check->getHwnd() : nullptr;
    if (!check || !IsWindowEnabled(check))
        return false;
    SendMessageW(GetParent(check), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(check), TRUE);
    return GetFocus() == check;
}

void UIMoleculeSwitch::Dump() const
{
    if (m_exists)
        o7::dumpControl(L"check", m_text, CXString(m_on ? L"checked" : L"unchecked"), CXString(),
                        CXString());
}

#include "uitypedfield.h"

#include <prsht.h>

#include <utility>

#include "productstringloader.h"
#include "uieditcontrol.h"
#include "uiservices.h"
#include "uistringnumbers.h"
#include "uitooltips.h"
#include "windowtext.h"

namespace {

constexpr UINT kTipMilliseconds = 8000;
// A notification of the box to its own molecule, beyond those of the system.
constexpr WORD kPlaceTip = 0x7002;

// Controls of the page itself. What stands below these numbers (OK, Cancel and Help of a dialog)
// judges the page as a whole.
bool isControlOf(HWND page, HWND window)
{
    return window && GetParent(window) == page && GetDlgCtrlID(window) >= UIPageWindow::kFirstId;
}

} // namespace

UITypedField::UITypedField() = default;

UITypedField::~UITypedField()
{
    HideTip();
}

void UITypedField::CreateBox(UIPageWindow& page, const Surroundings& surroundings, const Box& box)
{
    m_page = page.window;
    m_site = &surroundings.site;
    m_toolTips = surroundings.toolTips;
    m_feature = surroundings.feature;
    m_reason = surroundings.reason;
    m_edit = std::make_unique<UIEditControl>(page.window, page.takeId(), m_site->services,
                                             page.font, box.location, box.size,
                                             box.style | ES_AUTOHSCROLL, true, box.textLimit);
    m_edit->setAccessibleName(o7::spokenName(surroundings.label));
}

void UITypedField::Move(POINT delta)
{
    if (m_edit)
        m_edit->move(delta, false);
}

void UITypedField::Enable(bool enabled)
{
    if (!m_edit)
        return;
    if (!enabled)
        DropPending();
    m_edit->setEnable(enabled);
}

void UITypedField::SetReadOnly(bool readOnly)
{
    const bool is = m_edit && GetWindowLongPtrW(m_edit->getHwnd(), GWL_STYLE) & ES_READONLY;
    if (m_edit && is != readOnly)
        SendMessageW(m_edit->getHwnd(), EM_SETREADONLY, readOnly, 0);
}

void UITypedField::Show(bool shown)
{
    // Nobody can correct what nobody sees.
    if (!shown)
        DropPending();
    if (m_edit)
        m_edit->setShow(shown);
}

HWND UITypedField::GetHwnd() const
{
    return m_edit ? m_edit->getHwnd() : nullptr;
}

CXString UITypedField::GetText() const
{
    return m_edit ? m_edit->getText() : CXString();
}

CXString UITypedField::String(unsigned number) const
{
    return m_site->strings.LoadStringW(number);
}

void UITypedField::CollectWantedMessages(UIMessageMask& mask)
{
    mask.add(WM_TIMER);         // for the tips
    mask.add(WM_SETTINGCHANGE); // for the separators
}

bool UITypedField::HandleMessage(const _UIWindowsMessage& message)
{
    if (!m_edit)
        return false;
    if (message.message == WM_TIMER && m_tipShown &&
        message.wParam == static_cast<WPARAM>(m_edit->getId())) {
        HideTip();
        return true;
    }
    if (message.message != WM_COMMAND || reinterpret_cast<HWND>(message.lParam) != GetHwnd())
        return false;
    switch (HIWORD(message.wParam)) {
    case EN_CHANGE:
        if (!m_filling)
            Typed();
        return true;
    case EN_SETFOCUS:
        if (!m_pending)
            Keep();
        return true;
    case EN_KILLFOCUS:
        Left(GetFocus());
        return true;
    case kPlaceTip:
        PlaceTip();
        return true;
    default:
        return false;
    }
}

void UITypedField::Typed()
{
    const CXString text = GetText();
    if (text == m_lastText)
        return; // a key that found no room is told as a change as well
    m_lastText = text;
    HideTip();
    Retake();
}

void UITypedField::Retake()
{
    m_verdict = Take(GetText());
    m_pending = !m_verdict.taken;
}

void UITypedField::Left(HWND next)
{
    if (!isControlOf(m_page, next) || (m_pending && m_verdict.waits && IsSibling(next)))
        return;
    Settle();
}

void UITypedField::Keep()
{
    KeepAsOrigin();
    ShowText(PresentText());
}

void UITypedField::Settle()
{
    if (m_pending)
        Retake();
    if (!m_pending) {
        Keep();
        return;
    }
    CXString said = m_verdict.fault;
    const bool corrected = !m_verdict.correction.IsEmpty() && Take(m_verdict.correction).taken;
    DropPending();
    KeepAsOrigin();
    said +=
        Consequence(corrected ? O7STR_M_CHANGED_TO : O7STR_M_VALUE_STAYS, PresentTextInSentence());
    ShowTip(said);
}

void UITypedField::DropPending()
{
    HideTip();
    m_pending = false;
    ShowText(PresentText());
}

CXString UITypedField::Consequence(unsigned number, const CXString& value) const
{
    return value.IsEmpty() ? CXString()
                           : L"\n" + CXString::Formatted(String(number).c_str(), value.c_str());
}

CXString UITypedField::RefusedSentence() const
{
    CXString sentence = String(O7STR_M_REFUSED);
    const CXString reason = m_reason ? m_reason() : CXString();
    if (!reason.IsEmpty())
        sentence += L"\n" + reason;
    return sentence;
}

// The text stays in the box, so nothing is said of the value behind it.
bool UITypedField::Refuse()
{
    if (m_pending)
        Retake();
    if (!m_pending || !m_edit)
        return true;
    BringPageToFront();
    m_site->services.showMessage(
        GetAncestor(m_page, GA_ROOT), m_verdict.fault,
        m_site->strings.GetStringForFeature(m_feature.GetFeatureId().GetFeatureEnum()),
        MB_OK | MB_ICONWARNING);
    SendMessageW(m_page, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetHwnd()), TRUE);
    m_edit->selectAll();
    return false;
}

// Every page of a sheet is asked on Apply, whichever is in front. A dialog's one always is.
void UITypedField::BringPageToFront() const
{
    if (IsWindowVisible(m_page))
        return;
    const HWND sheet = GetParent(m_page);
    const LRESULT index = SendMessageW(sheet, PSM_HWNDTOINDEX, reinterpret_cast<WPARAM>(m_page), 0);
    if (index >= 0)
        SendMessageW(sheet, PSM_SETCURSEL, static_cast<WPARAM>(index), 0);
}

void UITypedField::ShowText(const CXString& text)
{
    if (!m_edit)
        return;
    const bool wasFilling = std::exchange(m_filling, true);
    m_edit->setText(text);
    m_lastText = text;
    m_filling = wasFilling;
}

void UITypedField::ShowTip(const CXString& text)
{
    if (!m_toolTips || !m_edit)
        return;
    m_tipToShow = text;
    PostMessageW(m_page, WM_COMMAND, MAKEWPARAM(m_edit->getId(), kPlaceTip),
                 reinterpret_cast<LPARAM>(GetHwnd()));
}

void UITypedField::PlaceTip()
{
    const CXString text = std::exchange(m_tipToShow, CXString());
    if (text.IsEmpty() || !IsWindowVisible(GetHwnd()))
        return;
    RECT place{};
    GetWindowRect(GetHwnd(), &place);
    m_toolTips->showBeside(GetHwnd(), place, text);
    NotifyWinEvent(EVENT_SYSTEM_ALERT, m_toolTips->getHwnd(), OBJID_CLIENT, CHILDID_SELF);
    m_tipShown =
        SetTimer(m_page, static_cast<UINT_PTR>(m_edit->getId()), kTipMilliseconds, nullptr) != 0;
}

void UITypedField::HideTip()
{
    m_tipToShow = CXString();
    if (!std::exchange(m_tipShown, false))
        return;
    KillTimer(m_page, static_cast<UINT_PTR>(m_edit->getId()));
    m_toolTips->hidePlaced(GetHwnd());
}

#include "uisheetwindow.h"

#include <algorithm>

#include "tipplacement.h"
#include "uidialogprocedure.h"
#include "uimessagemanager.h"

namespace {

constexpr int kTabControlId = 12320; // the same in every version of the common controls
/// Name of the window property that holds the first UISheetWindow of the chain.
constexpr wchar_t kChainProperty[] = L"O7UISheetWindows";
constexpr UINT kKeepsOrder = SWP_NOZORDER | SWP_NOACTIVATE;

RECT placeIn(HWND parent, HWND child)
{
    RECT place{};
    GetWindowRect(child, &place);
    MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

/// The title bar's question mark: pages of ours explain themselves otherwise.
bool setHelpButton(HWND sheet, bool present) noexcept
{
    const LONG_PTR style = GetWindowLongPtrW(sheet, GWL_EXSTYLE);
    const bool had = (style & WS_EX_CONTEXTHELP) != 0;
    if (had != present)
        SetWindowLongPtrW(sheet, GWL_EXSTYLE, style ^ WS_EX_CONTEXTHELP);
    return had;
}

void removeProperties(HWND sheet) noexcept
{
    RemovePropW(sheet, kChainProperty);
    RemovePropW(sheet, UIDialogProcedure::kManagerProperty);
}

/// For as long as a foreign procedure may call ours, its code must not go away. Not given back:
/// nobody tells when the last such call has returned.
void keepModuleLoaded() noexcept
{
    HMODULE module = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<LPCWSTR>(&UIDialogProcedure::offTabDialogProcedure),
                       &module);
}

} // namespace

bool UISheetWindow::adopt(HWND sheet)
{
    const HWND tabControl = GetDlgItem(sheet, kTabControlId);
    if (!tabControl)
        return false;
    m_sheet = sheet;
    m_tabControl = placeIn(sheet, tabControl);
    findLowerWindows();
    return true;
}

void UISheetWindow::findLowerWindows()
{
    m_lowerWindows.clear();
    for (HWND child = GetWindow(m_sheet, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        if (placeIn(m_sheet, child).top >= m_tabControl.bottom)
            m_lowerWindows.push_back(child);
}

HWND UISheetWindow::getTabPredecessor() const
{
    if (m_lowerWindows.empty())
        return HWND_BOTTOM;
    const HWND before = GetWindow(m_lowerWindows.front(), GW_HWNDPREV);
    return before ? before : HWND_TOP;
}

bool UISheetWindow::enlarge(long height)
{
    RECT frame{};
    GetWindowRect(m_sheet, &frame);
    const RECT area = o7::workAreaOf(m_sheet);
    if (frame.bottom - frame.top + height > area.bottom - area.top)
        return false;
    m_growth = height;
    m_shift = std::clamp<long>(frame.bottom + height - area.bottom, 0,
                               std::max<long>(frame.top - area.top, 0));
    resizeSheet(m_growth, m_shift);
    moveLowerWindows(m_growth);
    m_tookHelpButton = setHelpButton(m_sheet, false);
    return true;
}

void UISheetWindow::resizeSheet(long growth, long shift) const noexcept
{
    RECT frame{};
    if (growth != 0 && GetWindowRect(m_sheet, &frame))
        SetWindowPos(m_sheet, nullptr, frame.left, frame.top - shift, frame.right - frame.left,
                     frame.bottom - frame.top + growth, kKeepsOrder);
}

void UISheetWindow::moveLowerWindows(long distance) const noexcept
{
    if (distance == 0)
        return;
    for (const HWND window : m_lowerWindows) {
        if (GetParent(window) != m_sheet) // a host may have taken it away
            continue;
        const RECT place = placeIn(m_sheet, window);
        SetWindowPos(window, nullptr, place.left, place.top + distance, 0, 0,
                     SWP_NOSIZE | kKeepsOrder);
    }
    // A sheet that is shown already may keep stale pixels where it has grown.
    RECT below{};
    if (IsWindowVisible(m_sheet) && GetClientRect(m_sheet, &below)) {
        below.top = m_tabControl.bottom;
        RedrawWindow(m_sheet, &below, nullptr, RDW_INVALIDATE | RDW_ERASE | RDW_ALLCHILDREN);
    }
}

bool UISheetWindow::storeFirst(UISheetWindow& first) const noexcept
{
    return SetPropW(m_sheet, kChainProperty, &first) &&
           SetPropW(m_sheet, UIDialogProcedure::kManagerProperty, first.m_manager);
}

bool UISheetWindow::subclass(UIMessageManager& manager)
{
    m_before = static_cast<UISheetWindow*>(GetPropW(m_sheet, kChainProperty));
    m_manager = &manager;
    // Without its properties our procedure would swallow every message, so they come first.
    if (!storeFirst(*this)) {
        if (!m_before || !storeFirst(*m_before))
            removeProperties(m_sheet);
        m_manager = nullptr;
        m_before = nullptr;
        return false;
    }
    if (!m_before)
        takeProcedure();
    return true;
}

void UISheetWindow::takeProcedure()
{
    // Ours may stand in the chain of procedures still, behind a stranger's.
    m_keptProcedure =
        reinterpret_cast<WNDPROC>(RemovePropW(m_sheet, UIDialogProcedure::kKeptProcedureProperty));
    if (!m_keptProcedure)
        m_keptProcedure = reinterpret_cast<WNDPROC>(SetWindowLongPtrW(
            m_sheet, GWLP_WNDPROC,
            reinterpret_cast<LONG_PTR>(&UIDialogProcedure::offTabDialogProcedure)));
}

LRESULT UISheetWindow::passOn(const _UIWindowsMessage& message)
{
    const UISheetWindow* const before = m_before;
    const WNDPROC kept = m_keptProcedure;
    if (message.message == WM_NCDESTROY) {
        m_isGoing = true;
        leaveChain();
        m_sheet = nullptr;
    }
    if (before)
        return before->m_manager->handleMessage(message) ? message.result : 0;
    return CallWindowProcW(kept, message.window, message.message, message.wParam, message.lParam);
}

void UISheetWindow::leaveChain() noexcept
{
    if (!m_manager)
        return;
    auto* const first = static_cast<UISheetWindow*>(GetPropW(m_sheet, kChainProperty));
    auto* after = first;
    while (after && after != this && after->m_before != this)
        after = after->m_before;
    if (after && after != this) {
        after->m_before = m_before;
        after->m_keptProcedure = m_keptProcedure;
    } else if (m_before) {
        storeFirst(*m_before);
    } else {
        removeProperties(m_sheet);
        if (!m_isGoing)
            giveProcedureBack();
    }
    m_manager = nullptr;
    m_before = nullptr;
    m_keptProcedure = nullptr;
}

void UISheetWindow::giveProcedureBack() const noexcept
{
    if (GetWindowLongPtrW(m_sheet, GWLP_WNDPROC) ==
        reinterpret_cast<LONG_PTR>(&UIDialogProcedure::offTabDialogProcedure)) {
        SetWindowLongPtrW(m_sheet, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_keptProcedure));
    } else {
        SetPropW(m_sheet, UIDialogProcedure::kKeptProcedureProperty,
                 reinterpret_cast<HANDLE>(m_keptProcedure));
        keepModuleLoaded();
    }
}

void UISheetWindow::restore() noexcept
{
    if (m_sheet && IsWindow(m_sheet)) {
        moveLowerWindows(-m_growth);
        resizeSheet(-m_growth, -m_shift);
        if (m_tookHelpButton)
            setHelpButton(m_sheet, true);
        leaveChain();
    }
    m_sheet = nullptr;
}

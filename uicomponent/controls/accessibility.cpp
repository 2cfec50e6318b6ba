#include "accessibility.h"

#include <iterator>
#include <utility>

namespace o7 {

ComScope::ComScope() noexcept
    : m_result(::CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED | COINIT_DISABLE_OLE1DDE))
{
}

ComScope::~ComScope()
{
    if (SUCCEEDED(m_result)) {
        ::CoUninitialize();
    }
}

Accessibility::Accessibility(HWND window) noexcept : m_window(window)
{
    if (::GetWindowLongPtrW(window, GWLP_USERDATA) == 0) {
        subclassWindow(window);
    }
}

Accessibility::~Accessibility()
{
    clear();
    restoreProcedure();
}

void Accessibility::setName(const CXString& name) noexcept
{
    if (m_name == name) {
        return;
    }
    m_name = name;
    if (m_service) {
        annotate();
        ::NotifyWinEvent(EVENT_OBJECT_NAMECHANGE, m_window, OBJID_CLIENT, CHILDID_SELF);
    }
}

void Accessibility::setRole(LONG role, LONG state) noexcept
{
    m_role = role;
    m_state = state;
    if (m_service) {
        annotate();
    }
}

void Accessibility::setUnavailableParts(std::vector<LONG> parts) noexcept
{
    if (parts == m_unavailable) {
        return;
    }
    clearParts();
    m_unavailable = std::move(parts);
    annotateParts();
}

void Accessibility::annotateParts() noexcept
{
    for (const LONG part : m_unavailable) {
        annotateNumber(PROPID_ACC_STATE, STATE_SYSTEM_UNAVAILABLE | STATE_SYSTEM_SELECTABLE, part);
    }
}

void Accessibility::clearParts() noexcept
{
    if (!m_service || !m_service->properties) {
        return;
    }
    for (const LONG part : m_unavailable) {
        m_service->properties->ClearHwndProps(m_window, static_cast<DWORD>(OBJID_CLIENT),
                                              static_cast<DWORD>(part), &PROPID_ACC_STATE, 1);
    }
}

void Accessibility::handleMessage(UINT message) noexcept
{
    switch (message) {
    case WM_GETOBJECT:
        if (!m_service) {
            annotate();
        }
        break;
    case WM_ENABLE:
    case WM_SETFOCUS:
    case WM_KILLFOCUS:
        if (m_service && m_state != 0) {
            annotateNumber(PROPID_ACC_STATE, currentState());
        }
        break;
    case WM_DESTROY: // the last moment at which the window can be named
        clear();
        break;
    default:
        break;
    }
}

LRESULT Accessibility::subclassWindowProcedure(HWND window, UINT message, WPARAM wParam,
                                               LPARAM lParam)
{
    handleMessage(message);
    return callSavedProcedure(window, message, wParam, lParam);
}

void Accessibility::annotate() noexcept
{
    if (!m_service) {
        m_service.emplace();
        ::CoCreateInstance(CLSID_AccPropServices, nullptr, CLSCTX_INPROC_SERVER,
                           IID_IAccPropServices,
                           reinterpret_cast<void**>(m_service->properties.GetAddressOf()));
    }
    if (!m_service->properties) {
        return;
    }
    if (!m_name.IsEmpty()) {
        m_service->properties->SetHwndPropStr(m_window, static_cast<DWORD>(OBJID_CLIENT),
                                              CHILDID_SELF, PROPID_ACC_NAME, m_name.c_str());
    }
    if (m_role != 0) {
        annotateNumber(PROPID_ACC_ROLE, m_role);
    }
    if (m_state != 0) {
        annotateNumber(PROPID_ACC_STATE, currentState());
    }
    annotateParts();
}

void Accessibility::annotateNumber(const MSAAPROPID& property, LONG value, LONG part) noexcept
{
    if (!m_service || !m_service->properties) {
        return;
    }
    VARIANT number{};
    number.vt = VT_I4;
    number.lVal = value;
    m_service->properties->SetHwndProp(m_window, static_cast<DWORD>(OBJID_CLIENT),
                                       static_cast<DWORD>(part), property, number);
}

LONG Accessibility::currentState() const noexcept
{
    return m_state | (::GetFocus() == m_window ? STATE_SYSTEM_FOCUSED : 0) |
           (::IsWindowEnabled(m_window) != FALSE ? 0 : STATE_SYSTEM_UNAVAILABLE);
}

void Accessibility::clear() noexcept
{
    clearParts();
    if (m_service && m_service->properties) {
        const MSAAPROPID properties[] = {PROPID_ACC_NAME, PROPID_ACC_ROLE, PROPID_ACC_STATE};
        m_service->properties->ClearHwndProps(m_window, static_cast<DWORD>(OBJID_CLIENT),
                                              CHILDID_SELF, properties,
                                              static_cast<int>(std::size(properties)));
    }
    m_service.reset();
}

} // namespace o7

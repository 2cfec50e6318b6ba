#pragma once

#include "cxstring.h"
#include "subclassedwindow.h"

#include <windows.h>

#include <oleacc.h>
#include <wrl/client.h>

#include <optional>
#include <vector>

namespace o7 {

/// COM on this thread for a scope (CoInitializeEx, CoUninitialize). A thread that the host has set
/// up in another way is used as it is.
class ComScope
{
public:
    ComScope() noexcept;
    ~ComScope();
    ComScope(const ComScope&) = delete;
    ComScope& operator=(const ComScope&) = delete;

private:
    HRESULT m_result;
};

/// What a window tells screen readers beyond what the system finds out by itself: name, role and
/// state, through IAccPropServices. Nothing is done until somebody asks (WM_GETOBJECT); from then
/// on the annotations follow every change, until the window goes. Every failure is silent: the
/// window then has what the system makes of it.
///
/// A window that one of our controls stands before already lets that control hand its messages on
/// (SubclassedWindow does); before any other, this object stands itself.
class Accessibility : private SubclassedWindow<Accessibility>
{
public:
    /// @param window  borrowed; may be destroyed first
    explicit Accessibility(HWND window) noexcept;
    ~Accessibility();

    /// Empty: the system's own name.
    void setName(const CXString& name) noexcept;
    /// ROLE_SYSTEM_..., and STATE_SYSTEM_... bits to which focus and disabled are added; 0: the
    /// system's own.
    void setRole(LONG role, LONG state) noexcept;
    /// The parts of the window, such as entries of a list, that cannot be chosen; from 1 on.
    void setUnavailableParts(std::vector<LONG> parts) noexcept;

    /// Has to see the window's messages before they are passed on.
    void handleMessage(UINT message) noexcept;

private:
    friend SubclassedWindow<Accessibility>;
    static constexpr const wchar_t* kProcedureName = L"Accessibility::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"accessibility";

    /// COM is held as long as the service is, so that its library stays.
    struct Service
    {
        ComScope com;
        Microsoft::WRL::ComPtr<IAccPropServices> properties;
    };

    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void forgetWindow() noexcept { m_window = nullptr; }
    void annotate() noexcept;
    void annotateNumber(const MSAAPROPID& property, LONG value, LONG part = CHILDID_SELF) noexcept;
    void annotateParts() noexcept;
    void clearParts() noexcept;
    LONG currentState() const noexcept;
    void clear() noexcept;

    HWND m_window;
    CXString m_name;
    LONG m_role = 0;
    LONG m_state = 0;
    std::vector<LONG> m_unavailable;
    std::optional<Service> m_service; ///< once somebody has asked
};

} // namespace o7

#include "themescope.h"

#include "resource.h"

namespace o7 {
namespace {

HANDLE createContext()
{
    ACTCTXW description{};
    description.cbSize = sizeof description;
    description.dwFlags = ACTCTX_FLAG_HMODULE_VALID | ACTCTX_FLAG_RESOURCE_NAME_VALID;
    description.hModule = GetModuleHandleW(nullptr);
    description.lpResourceName = MAKEINTRESOURCEW(IDR_COMMON_CONTROLS);
    return CreateActCtxW(&description);
}

} // namespace

ThemeScope::ThemeScope() : m_context(createContext())
{
    if (m_context != INVALID_HANDLE_VALUE) {
        ActivateActCtx(m_context, &m_cookie);
    }
}

ThemeScope::~ThemeScope()
{
    const DWORD lastError = GetLastError();
    if (m_cookie) {
        DeactivateActCtx(0, m_cookie);
    }
    if (m_context != INVALID_HANDLE_VALUE) {
        ReleaseActCtx(m_context);
    }
    SetLastError(lastError);
}

} // namespace o7

#pragma once

#include <windows.h>

namespace o7 {

/// Activates version 6 of the common controls for the calling thread while it lives, as programs
/// with such a manifest have it all the time. The preview itself has none (see o7preview.manifest);
/// it borrows the theme only for windows that stand for those of somebody else's program. When the
/// system has no such version, the windows come without a theme.
class ThemeScope
{
public:
    ThemeScope();
    ThemeScope(const ThemeScope&) = delete;
    ThemeScope& operator=(const ThemeScope&) = delete;
    ~ThemeScope();

private:
    HANDLE m_context;
    ULONG_PTR m_cookie = 0;
};

} // namespace o7

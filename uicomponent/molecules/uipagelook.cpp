#include "uipagelook.h"

#include "operatingsystem.h"

HBRUSH UIPageLook::getWindowBrush()
{
    if (!m_windowBrush)
        m_windowBrush.reset(CreateSolidBrush(GetSysColor(COLOR_WINDOW)));
    return m_windowBrush.get();
}

void UIPageLook::themeChanged()
{
    m_themed = OperatingSystem::IsUiThemeEnabled();
}

#include "uiregionalsettings.h"

#include <windows.h>

UIRegionalSettings UIRegionalSettings::current()
{
    UIRegionalSettings settings;
    wchar_t separator[4] = L"";
    if (GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_SDECIMAL, separator, 4) > 0 &&
        separator[0])
        settings.decimalSeparator = separator[0];
    DWORD measure = 0;
    if (GetLocaleInfoEx(LOCALE_NAME_USER_DEFAULT, LOCALE_IMEASURE | LOCALE_RETURN_NUMBER,
                        reinterpret_cast<wchar_t*>(&measure), sizeof measure / sizeof(wchar_t)) > 0)
        settings.metric = measure == 0;
    return settings;
}

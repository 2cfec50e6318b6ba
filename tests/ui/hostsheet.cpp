#include "hostsheet.h"

#include <commctrl.h>

#include "input.h"

namespace o7::test {

namespace {

INT_PTR CALLBACK hostPage(HWND, UINT, WPARAM, LPARAM)
{
    return 0;
}

} // namespace

HostSheet::HostSheet(long width, long height) : m_template(IsolationAware::moduleInstance())
{
    m_template.setSize(width, height);
    PROPSHEETPAGEW page{};
    page.dwSize = sizeof page;
    page.dwFlags = PSP_DLGINDIRECT | PSP_USETITLE;
    page.pResource = m_template.get();
    page.pszTitle = L"Host";
    page.pfnDlgProc = &hostPage;
    HPROPSHEETPAGE handle = IsolationAware::createPropertySheetPage(page);
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    header.dwFlags = PSH_MODELESS;
    header.pszCaption = L"Host";
    header.nPages = 1;
    header.phpage = &handle;
    m_sheet.reset(reinterpret_cast<HWND>(IsolationAware::propertySheet(header)));
    pumpUntilQuiet();
}

int HostSheet::tabs() const
{
    const auto control = reinterpret_cast<HWND>(SendMessageW(get(), PSM_GETTABCONTROL, 0, 0));
    return TabCtrl_GetItemCount(control);
}

void HostSheet::select(int index) const
{
    SendMessageW(get(), PSM_SETCURSEL, static_cast<WPARAM>(index), 0);
    pumpUntilQuiet();
}

void HostSheet::press(int button) const
{
    SendMessageW(get(), PSM_PRESSBUTTON, static_cast<WPARAM>(button), 0);
    pumpUntilQuiet();
}

} // namespace o7::test

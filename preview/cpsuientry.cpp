#include "cpsuientry.h"

#include <stdexcept>
#include <utility>

#include "operatingsystem.h"
#include "themescope.h"

namespace o7 {
namespace {

using ShowSheet = LONG(WINAPI*)(HWND, PFNPROPSHEETUI, LPARAM, LPDWORD);

} // namespace

CpsuiEntry::CpsuiEntry(std::wstring caption, AddPages addPages)
    : m_caption(std::move(caption)), m_addPages(std::move(addPages))
{
}

void CpsuiEntry::run(HWND owner)
{
    const ThemeScope theme; // the sheet stands for one in a program that has the theme
    const SystemLibrary library = OperatingSystem::LoadSystemLibrary(L"compstui.dll");
    const auto showSheet = library.function<ShowSheet>("CommonPropertySheetUIW");
    if (!showSheet) {
        throw std::runtime_error("This system has no common property sheet (compstui.dll).");
    }
    DWORD result = 0;
    const LONG shown = showSheet(owner, onReason, reinterpret_cast<LPARAM>(this), &result);
    if (m_failure) {
        std::rethrow_exception(std::exchange(m_failure, nullptr));
    }
    if (shown < 0 && shown != ERR_CPSUI_NO_PROPSHEETPAGE) { // no page: nothing to show, no fault
        throw std::runtime_error("The common property sheet refused with code " +
                                 std::to_string(shown) + ".");
    }
}

LONG CALLBACK CpsuiEntry::onReason(PPROPSHEETUI_INFO info, LPARAM parameter) noexcept
{
    auto& self = *reinterpret_cast<CpsuiEntry*>(info->lParamInit);
    switch (info->Reason) {
    case PROPSHEETUI_REASON_INIT:
        info->Result = CPSUI_CANCEL;
        return self.addPages(*info);
    case PROPSHEETUI_REASON_GET_INFO_HEADER:
        return self.fillHeader(*reinterpret_cast<PROPSHEETUI_INFO_HEADER*>(parameter));
    case PROPSHEETUI_REASON_SET_RESULT:
        info->Result = reinterpret_cast<const SETRESULT_INFO*>(parameter)->Result;
        return 1;
    default:
        return 1;
    }
}

LONG CpsuiEntry::addPages(PROPSHEETUI_INFO& info) noexcept
{
    try {
        m_addPages(info.hComPropSheet, info.pfnComPropSheet);
        return 1;
    } catch (...) {
        m_failure = std::current_exception(); // none may cross the print system; run() rethrows
        return -1;
    }
}

LONG CpsuiEntry::fillHeader(PROPSHEETUI_INFO_HEADER& header)
{
    header.Flags = PSUIHDRF_NOAPPLYNOW | PSUIHDRF_EXACT_PTITLE;
    header.pTitle = m_caption.data();
    header.hInst = GetModuleHandleW(nullptr);
    return 1;
}

} // namespace o7

#pragma once

#include <windows.h>

#include <prsht.h>

#include <compstui.h>

#include <exception>
#include <functional>
#include <string>

namespace o7 {

/// Shows pages through the print system's own common property sheet (`CommonPropertySheetUIW` of
/// compstui.dll), the way a driver's plug-in is asked for them.
class CpsuiEntry
{
public:
    /// Adds the pages: handle of the sheet and the print system's callback.
    using AddPages = std::function<void(HANDLE, PFNCOMPROPSHEET)>;

    CpsuiEntry(std::wstring caption, AddPages addPages);

    /// Modal. Rethrows what `addPages` threw; throws std::runtime_error when the print system's
    /// library is missing or refuses. Whether OK was pressed is not told here, as not every
    /// system's sheet tells it.
    void run(HWND owner);

private:
    static LONG CALLBACK onReason(PPROPSHEETUI_INFO info, LPARAM parameter) noexcept;
    LONG addPages(PROPSHEETUI_INFO& info) noexcept;
    LONG fillHeader(PROPSHEETUI_INFO_HEADER& header);

    std::wstring m_caption;
    AddPages m_addPages;
    std::exception_ptr m_failure;
};

} // namespace o7

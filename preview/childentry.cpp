#include "childentry.h"

#include <prsht.h>

#include <memory>
#include <stdexcept>
#include <type_traits>
#include <utility>

#include "resource.h"
#include "themescope.h"

namespace o7 {
namespace {

struct WindowDestroyer
{
    void operator()(HWND window) const { DestroyWindow(window); }
};

using Window = std::unique_ptr<std::remove_pointer_t<HWND>, WindowDestroyer>;

/// Version 6 of the common controls is another library than the one that a program without a
/// manifest is linked to, and a sheet must come from the same one as the pages added to it.
/// Loaded by name alone, as only that is looked up in the active context; never unloaded.
INT_PTR showPropertySheet(const PROPSHEETHEADERW& header)
{
    using Show = INT_PTR(WINAPI*)(LPCPROPSHEETHEADERW);
    HMODULE library = LoadLibraryW(L"comctl32.dll");
    const auto show = library ? reinterpret_cast<Show>(reinterpret_cast<void (*)()>(
                                    GetProcAddress(library, "PropertySheetW")))
                              : nullptr;
    return show ? show(&header) : -1;
}

/// A modeless sheet says that OK or Cancel was pressed by having no current page any more.
bool isFinished(HWND sheet)
{
    return SendMessageW(sheet, PSM_GETCURRENTPAGEHWND, 0, 0) == 0;
}

} // namespace

ChildEntry::ChildEntry(std::wstring caption, std::wstring about)
    : m_caption(std::move(caption)), m_about(std::move(about))
{
}

void ChildEntry::run(const AddPages& addPages)
{
    const Window sheet(openSheet());
    addPages(sheet.get());
    MSG message;
    while (!isFinished(sheet.get()) && GetMessageW(&message, nullptr, 0, 0) > 0) {
        if (!SendMessageW(sheet.get(), PSM_ISDIALOGMESSAGE, 0,
                          reinterpret_cast<LPARAM>(&message))) {
            TranslateMessage(&message);
            DispatchMessageW(&message);
        }
    }
}

HWND ChildEntry::openSheet()
{
    PROPSHEETPAGEW page{};
    page.dwSize = sizeof page;
    page.hInstance = GetModuleHandleW(nullptr);
    page.pszTemplate = MAKEINTRESOURCEW(IDD_ABOUT_PRODUCT);
    page.pfnDlgProc = aboutPageProcedure;
    page.lParam = reinterpret_cast<LPARAM>(m_about.c_str());

    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    header.dwFlags = PSH_MODELESS | PSH_PROPSHEETPAGE;
    header.hInstance = GetModuleHandleW(nullptr);
    header.pszCaption = m_caption.c_str();
    header.nPages = 1;
    header.ppsp = &page;
    const ThemeScope theme; // ends with this function: the added pages bring their own
    const INT_PTR sheet = showPropertySheet(header);
    if (sheet <= 0) {
        throw std::runtime_error("The property sheet for the pages could not be opened.");
    }
    return reinterpret_cast<HWND>(sheet);
}

INT_PTR CALLBACK ChildEntry::aboutPageProcedure(HWND page, UINT message, WPARAM, LPARAM lParam)
{
    if (message == WM_INITDIALOG) {
        const auto& description = *reinterpret_cast<const PROPSHEETPAGEW*>(lParam);
        SetDlgItemTextW(page, IDC_ABOUT_TEXT, reinterpret_cast<const wchar_t*>(description.lParam));
        return TRUE;
    }
    return FALSE;
}

} // namespace o7

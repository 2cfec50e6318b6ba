#include "uidialogprocedure.h"

#include <prsht.h>

#include <algorithm>
#include <iterator>
#include <optional>

#include "entryheight.h"
#include "uiguard.h"
#include "uimessagemanager.h"

namespace {

constexpr wchar_t kSource[] = L"uidialogprocedure";
// In place of a template's address this stands for a page that has none, and so no record either.
constexpr ULONG_PTR kNoResource = 0xFFFF;

void storePointer(HWND window, void* pointer)
{
    SetWindowLongPtrW(window, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(pointer));
}

UIMessageManager* managerOfPage(LPARAM pageStructure)
{
    if (pageStructure == 0)
        return nullptr;
    const auto& page = *reinterpret_cast<const PROPSHEETPAGEW*>(pageStructure);
    if (reinterpret_cast<ULONG_PTR>(page.pResource) == kNoResource)
        return nullptr;
    return reinterpret_cast<const UIPageRecord*>(page.lParam)->messageManager;
}

_UIWindowsMessage pack(UIMessageKind kind, HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    return {kind, window, message, wParam, lParam, 0};
}

/// The system tells top-level windows alone of these changes; the controls of a page or dialog,
/// some of which keep colours and measures, hear of them from it.
void tellControls(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message != WM_SYSCOLORCHANGE && message != WM_SETTINGCHANGE)
        return;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        SendMessageW(child, message, wParam, lParam);
}

/// What a page or dialog answers when nobody on it has anything to say.
INT_PTR answerOf(HWND window, UINT message, LPARAM lParam)
{
    return message == WM_MEASUREITEM &&
           o7::answerEntryHeight(window, *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
}

INT_PTR routePage(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
        storePointer(window, managerOfPage(lParam));
    const auto packed = pack(UIMessageKind::TabPage, window, message, wParam, lParam);
    if (UIDialogProcedure::lacksRecord(packed))
        return 0;
    tellControls(window, message, wParam, lParam);
    const auto* manager =
        reinterpret_cast<UIMessageManager*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (manager && manager->handleMessage(packed))
        return packed.result;
    return answerOf(window, message, lParam);
}

INT_PTR routeDialog(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_INITDIALOG)
        storePointer(window, reinterpret_cast<void*>(lParam));
    const auto packed = pack(UIMessageKind::Dialog, window, message, wParam, lParam);
    if (UIDialogProcedure::lacksRecord(packed))
        return 0;
    tellControls(window, message, wParam, lParam);
    const auto* record =
        reinterpret_cast<const UIDialogRecord*>(GetWindowLongPtrW(window, GWLP_USERDATA));
    if (!record || !record->messageManager || !record->messageManager->handleMessage(packed))
        return answerOf(window, message, lParam);
    if (message == WM_CTLCOLORSTATIC)
        return packed.result; // a brush goes back directly
    SetWindowLongPtrW(window, DWLP_MSGRESULT, packed.result);
    return 1;
}

/// What a page answers when something was thrown: it refuses an Apply, so that the sheet stays open
/// and what has not been told is not lost.
INT_PTR answerOfFailed(HWND window, UINT message, LPARAM lParam)
{
    if (message != WM_NOTIFY || reinterpret_cast<const NMHDR*>(lParam)->code != PSN_APPLY)
        return 0;
    SetWindowLongPtrW(window, DWLP_MSGRESULT, PSNRET_INVALID);
    return TRUE;
}

/// For a sheet that has outlived us while somebody else stood before our procedure.
LRESULT passOnToKept(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto kept =
        reinterpret_cast<WNDPROC>(GetPropW(window, UIDialogProcedure::kKeptProcedureProperty));
    if (!kept)
        return 0;
    if (message == WM_NCDESTROY)
        RemovePropW(window, UIDialogProcedure::kKeptProcedureProperty);
    return CallWindowProcW(kept, window, message, wParam, lParam);
}

LRESULT routeOffTab(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto* manager =
        static_cast<const UIMessageManager*>(GetPropW(window, UIDialogProcedure::kManagerProperty));
    if (!manager)
        return passOnToKept(window, message, wParam, lParam);
    const auto packed = pack(UIMessageKind::OffTab, window, message, wParam, lParam);
    return manager->handleMessage(packed) ? packed.result : 0;
}

} // namespace

bool UIDialogProcedure::lacksRecord(const _UIWindowsMessage& message) noexcept
{
    constexpr UINT kWithRecord[] = {WM_NOTIFY, WM_MEASUREITEM, WM_DRAWITEM, WM_DELETEITEM,
                                    WM_COMPAREITEM};
    return message.lParam == 0 && std::find(std::begin(kWithRecord), std::end(kWithRecord),
                                            message.message) != std::end(kWithRecord);
}

INT_PTR CALLBACK UIDialogProcedure::cpsuiDialogProcedure(HWND window, UINT message, WPARAM wParam,
                                                         LPARAM lParam) noexcept
{
    using Answer = std::optional<INT_PTR>;
    const Answer answer = o7::guarded<Answer>(L"CPSUIDialogProcedure", kSource, [=] {
        return Answer(routePage(window, message, wParam, lParam));
    });
    return answer ? *answer : answerOfFailed(window, message, lParam);
}

INT_PTR CALLBACK UIDialogProcedure::dialogProcedure(HWND window, UINT message, WPARAM wParam,
                                                    LPARAM lParam) noexcept
{
    return o7::guarded<INT_PTR>(L"DialogProcedure", kSource,
                                [=] { return routeDialog(window, message, wParam, lParam); });
}

LRESULT CALLBACK UIDialogProcedure::offTabDialogProcedure(HWND window, UINT message, WPARAM wParam,
                                                          LPARAM lParam) noexcept
{
    return o7::guarded<LRESULT>(L"OffTabDialogProcedure", kSource,
                                [=] { return routeOffTab(window, message, wParam, lParam); });
}

#include "editorsession.h"

#include <commctrl.h>
#include <prsht.h>

#include <stdexcept>
#include <utility>

#include "input.h"
#include "windowpicture.h"

namespace o7::inapp {
namespace {

/// Controls of the system's dialogs about printing.
constexpr int kPropertiesButton = 0x0401;
constexpr int kPaperList = 0x0471;

// Pixels on the screen.
constexpr SIZE kEditorSize{860, 620};
constexpr POINT kSheetOffset{200, 90};

bool isSheet(HWND window)
{
    return hasClass(window, L"#32770") &&
           findChild(window, [](HWND child) { return hasClass(child, WC_TABCONTROLW); }) != nullptr;
}

bool isPrintDialog(HWND window)
{
    return hasClass(window, L"#32770") && GetDlgItem(window, kPropertiesButton) != nullptr &&
           !isSheet(window);
}

bool isSetUp(HWND window)
{
    return isPrintDialog(window) && GetDlgItem(window, kPaperList) != nullptr;
}

void pick(HWND list, const std::wstring& entry)
{
    const AppCombo combo(list);
    combo.choose(combo.find(entry));
    if (combo.chosen() != entry) {
        throw std::runtime_error("A list did not take the choice made in it.");
    }
}

} // namespace

EditorSession::EditorSession(const std::filesystem::path& strings, std::filesystem::path shots)
    : m_shots(std::move(shots)),
      m_strings(LoadLibraryExW(strings.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE))
{
    if (m_strings == nullptr) {
        throw std::runtime_error("The texts " + strings.string() + " cannot be loaded.");
    }
    m_window = waitForWindow(process(), "The text editor",
                             [](HWND window) { return hasClass(window, L"Notepad"); });
    MoveWindow(m_window, 0, 0, kEditorSize.cx, kEditorSize.cy, TRUE);
    SetForegroundWindow(m_window);
    test::pumpUntilQuiet(200);
}

EditorSession::~EditorSession()
{
    FreeLibrary(m_strings);
}

void EditorSession::openPrintDialog()
{
    test::sendKey('P', {VK_CONTROL});
    m_dialog = waitForWindow(process(), "The print dialog", isPrintDialog);
}

void EditorSession::openSetUp()
{
    test::sendKey('F', {VK_MENU});
    test::pumpUntilQuiet(200);
    test::sendKey('R'); // "Printer Setup…" of the menu
    m_dialog = waitForWindow(process(), "The program's own set-up", isSetUp);
    test::pumpUntilQuiet(200);
}

void EditorSession::closeDialog(int button)
{
    test::sendClick(GetDlgItem(m_dialog, button));
    waitUntilGone(m_dialog, "The dialog");
    test::pumpUntilQuiet(200);
}

void EditorSession::openProperties()
{
    test::sendClick(GetDlgItem(m_dialog, kPropertiesButton));
    m_sheet = waitForWindow(process(), "Our sheet", isSheet);
    arrange();
    test::pumpUntilQuiet(300);
}

void EditorSession::closeProperties(int button)
{
    test::sendClick(GetDlgItem(m_sheet, button));
    waitUntilGone(m_sheet, "Our sheet");
    test::pumpUntilQuiet(200);
}

std::wstring EditorSession::chosen(UINT entry)
{
    return AppCombo(listOf(entry)).chosen();
}

void EditorSession::choose(UINT entry)
{
    pick(listOf(entry), text(entry));
}

std::wstring EditorSession::chosenPaper() const
{
    return AppCombo(GetDlgItem(m_dialog, kPaperList)).chosen();
}

void EditorSession::choosePaper(UINT entry) const
{
    pick(GetDlgItem(m_dialog, kPaperList), text(entry));
}

std::wstring EditorSession::text(UINT number) const
{
    const wchar_t* text = nullptr;
    const int length = LoadStringW(m_strings, number, reinterpret_cast<LPWSTR>(&text), 0);
    if (length <= 0) {
        throw std::runtime_error("The product has no text " + std::to_string(number) + ".");
    }
    return {text, static_cast<std::size_t>(length)};
}

void EditorSession::shoot(const std::string& name)
{
    if (m_shots.empty()) {
        return;
    }
    test::pumpUntilQuiet(300);
    const std::string number = std::to_string(++m_shotCount);
    WindowPicture(m_window).savePng(m_shots / ("in-app-" + number + "-" + name + ".png"));
}

void EditorSession::end()
{
    PostMessageW(m_window, WM_CLOSE, 0, 0);
    m_editor.waitForEnd();
}

/// As a person would drag the sheet to see the dialog behind it.
void EditorSession::arrange() const
{
    RECT dialog{};
    RECT sheet{};
    GetWindowRect(m_dialog, &dialog);
    GetWindowRect(m_sheet, &sheet);
    OffsetRect(&sheet, dialog.left + kSheetOffset.x - sheet.left,
               dialog.top + kSheetOffset.y - sheet.top);
    SetWindowPos(m_sheet, nullptr, sheet.left, sheet.top, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

/// Turns the pages until the list is in sight.
HWND EditorSession::listOf(UINT entry) const
{
    const std::wstring wanted = text(entry);
    const auto holds = [&wanted](HWND window) {
        return hasClass(window, L"ComboBox") && IsWindowVisible(window) &&
               AppCombo(window).find(wanted) >= 0;
    };
    const auto tabs = reinterpret_cast<HWND>(SendMessageW(m_sheet, PSM_GETTABCONTROL, 0, 0));
    const auto pages = SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0);
    for (LRESULT page = 0; page < pages; ++page) {
        if (HWND found = findChild(m_sheet, holds)) {
            return found;
        }
        test::sendKey(VK_TAB, {VK_CONTROL});
        test::pumpUntilQuiet(200);
    }
    throw std::runtime_error("No page of our sheet has a list with text " + std::to_string(entry) +
                             ".");
}

} // namespace o7::inapp

// Uses a printer as a person would, from the system's text editor: Print, Properties, a change, OK;
// Properties again, another change, Cancel; Properties a third time. Ends 0 only when the change
// made with OK was kept and the one made with Cancel was not.
//
//   o7drive STRINGS [--shots DIR]
//
// STRINGS is the product's module of texts in the language of the desktop: the list that is changed
// is known by its entries.

#include <windows.h>

#include <commctrl.h>
#include <objbase.h>
#include <prsht.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>

#include "appwindows.h"
#include "editorprocess.h"
#include "input.h"
#include "windowpicture.h"

namespace {

namespace fs = std::filesystem;
using namespace o7::inapp;

/// Texts of the values of the feature "sides" in the product's string module.
constexpr UINT kOneSidedText = 45140;
constexpr UINT kLongEdgeText = 45141;
constexpr UINT kShortEdgeText = 45142;
/// The Properties button of the system's print dialog.
constexpr int kPropertiesButton = 0x0401;

// Pixels on the screen.
constexpr SIZE kEditorSize{860, 620};
constexpr POINT kSheetOffset{200, 90};

std::wstring loadText(HMODULE strings, UINT number)
{
    const wchar_t* text = nullptr;
    const int length = LoadStringW(strings, number, reinterpret_cast<LPWSTR>(&text), 0);
    if (length <= 0) {
        throw std::runtime_error("The product has no text " + std::to_string(number) + ".");
    }
    return {text, static_cast<std::size_t>(length)};
}

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

/// The editor with its print dialog and, now and then, our sheet.
class Session
{
public:
    Session(const fs::path& strings, fs::path shots)
        : m_shots(std::move(shots)),
          m_strings(LoadLibraryExW(strings.c_str(), nullptr, LOAD_LIBRARY_AS_DATAFILE))
    {
        if (m_strings == nullptr) {
            throw std::runtime_error("The texts " + strings.string() + " cannot be loaded.");
        }
        const DWORD process = m_editor.process();
        HWND window = waitForWindow(process, "The text editor",
                                    [](HWND w) { return hasClass(w, L"Notepad"); });
        MoveWindow(window, 0, 0, kEditorSize.cx, kEditorSize.cy, TRUE);
        SetForegroundWindow(window);
        m_window = window;
        o7::test::pumpUntilQuiet(200);
        o7::test::sendKey('P', {VK_CONTROL});
        m_printDialog = waitForWindow(process, "The print dialog", isPrintDialog);
        shoot("print-dialog");
    }
    ~Session() { FreeLibrary(m_strings); }
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;

    void openProperties()
    {
        o7::test::sendClick(GetDlgItem(m_printDialog, kPropertiesButton));
        m_sheet = waitForWindow(m_editor.process(), "Our sheet", isSheet);
        arrange();
        o7::test::pumpUntilQuiet(300);
        m_combo = findOnPages(text(kLongEdgeText));
    }

    std::wstring chosen() const { return AppCombo(m_combo).chosen(); }
    std::wstring text(UINT number) const { return loadText(m_strings, number); }

    void choose(UINT number)
    {
        const AppCombo combo(m_combo);
        combo.choose(combo.find(text(number)));
        if (chosen() != text(number)) {
            throw std::runtime_error("The list did not take the choice made in it.");
        }
    }

    /// Presses OK or Cancel of the sheet.
    void close(int button)
    {
        o7::test::sendClick(GetDlgItem(m_sheet, button));
        waitUntilGone(m_sheet, "Our sheet");
        o7::test::pumpUntilQuiet(200);
    }

    /// Leaves the program the way a person does.
    void end()
    {
        o7::test::sendClick(GetDlgItem(m_printDialog, IDCANCEL));
        waitUntilGone(m_printDialog, "The print dialog");
        PostMessageW(m_window, WM_CLOSE, 0, 0);
        m_editor.waitForEnd();
    }

    /// What lies over the editor's window, the editor included.
    void shoot(const std::string& name)
    {
        if (m_shots.empty()) {
            return;
        }
        o7::test::pumpUntilQuiet(300);
        const std::string number = std::to_string(++m_shotCount);
        o7::WindowPicture(m_window).savePng(m_shots / ("in-app-" + number + "-" + name + ".png"));
    }

private:
    /// As a person would drag the sheet to see the print dialog behind it.
    void arrange()
    {
        RECT dialog{};
        RECT sheet{};
        GetWindowRect(m_printDialog, &dialog);
        GetWindowRect(m_sheet, &sheet);
        OffsetRect(&sheet, dialog.left + kSheetOffset.x - sheet.left,
                   dialog.top + kSheetOffset.y - sheet.top);
        SetWindowPos(m_sheet, nullptr, sheet.left, sheet.top, 0, 0,
                     SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
    }

    /// The visible list with an entry of this text, on whichever page it is.
    HWND findOnPages(const std::wstring& entry)
    {
        const auto holds = [&entry](HWND window) {
            return hasClass(window, L"ComboBox") && IsWindowVisible(window) &&
                   AppCombo(window).find(entry) >= 0;
        };
        const auto tabs = reinterpret_cast<HWND>(SendMessageW(m_sheet, PSM_GETTABCONTROL, 0, 0));
        const auto pages = SendMessageW(tabs, TCM_GETITEMCOUNT, 0, 0);
        for (LRESULT page = 0; page < pages; ++page) {
            if (HWND found = findChild(m_sheet, holds)) {
                return found;
            }
            o7::test::sendKey(VK_TAB, {VK_CONTROL});
            o7::test::pumpUntilQuiet(200);
        }
        throw std::runtime_error("No page of our sheet has a list of sides.");
    }

    fs::path m_shots;
    int m_shotCount = 0;
    EditorProcess m_editor;
    HMODULE m_strings;
    HWND m_window = nullptr;
    HWND m_printDialog = nullptr;
    HWND m_sheet = nullptr;
    HWND m_combo = nullptr;
};

void expect(const std::wstring& found, const std::wstring& wanted, const char* when)
{
    std::printf("%s: %ls\n", when, found.c_str());
    if (found != wanted) {
        throw std::runtime_error(std::string(when) +
                                 " the sheet shows another value than it must.");
    }
}

void drive(const fs::path& strings, const fs::path& shots)
{
    Session session(strings, shots);
    session.openProperties();
    expect(session.chosen(), session.text(kOneSidedText), "At the first opening");
    session.choose(kLongEdgeText);
    session.shoot("changed");
    session.close(IDOK);

    session.openProperties();
    session.shoot("after-ok");
    expect(session.chosen(), session.text(kLongEdgeText), "After a change and OK");
    session.choose(kShortEdgeText);
    session.close(IDCANCEL);

    session.openProperties();
    session.shoot("after-cancel");
    expect(session.chosen(), session.text(kLongEdgeText), "After another change and Cancel");
    session.close(IDCANCEL);
    session.end();
}

} // namespace

int wmain(int count, wchar_t** words)
{
    try {
        const bool withShots = count == 4 && std::wstring(words[2]) == L"--shots";
        if (count != 2 && !withShots) {
            throw std::invalid_argument("usage: o7drive STRINGS [--shots DIR]");
        }
        if (FAILED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {
            throw std::runtime_error("COM cannot be used.");
        }
        drive(words[1], withShots ? fs::path(words[3]) : fs::path());
        std::puts("The change made with OK was kept, the one made with Cancel was not.");
        return 0;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "o7drive: %s\n", error.what());
        return 1;
    }
}

// Every text of every page, in every language, is seen whole in the place it has: opens the sheets
// and dialogs of all products and measures what the controls hold in the font they have.

#include <windows.h>

#include <commctrl.h>
#include <prsht.h>

#include <algorithm>
#include <array>
#include <set>

#include "idledriver.h"
#include "uifixture.h"
#include "uimanager.h"
#include "windowtext.h"

namespace o7::test {

namespace {

namespace fs = std::filesystem;

constexpr std::array kSheetModes{UIMode::PrintingPreferences, UIMode::DeviceSettings,
                                 UIMode::PrintingDefaults};

/// What a box or a frame needs beside its text, in pixels.
constexpr LONG kCheckMark = 17;
constexpr LONG kFrameEnds = 16;
constexpr LONG kDrawnWider = 50; // one part of that many

bool hasButtonType(HWND button, LONG type)
{
    return (GetWindowLongW(button, GWL_STYLE) & BS_TYPEMASK) == type;
}

class TextFitTest : public ::testing::Test
{
protected:
    /// Opens everything one product shows in one language.
    void visit(const fs::path& product, const std::wstring& language);

private:
    void visitSheet(UIMode mode);
    void visitDialog();
    void visitPages(HWND sheet);
    void measureControls(HWND page);
    void measure(HWND control);
    void measureEntries(HWND list);
    void expectRoom(HWND control, const std::wstring& text, LONG width, LONG height, UINT format);

    std::unique_ptr<ProductSession> m_session;
    std::set<std::wstring> m_seen; ///< Texts and rooms that need no second look.
    std::string m_where;
};

void TextFitTest::visit(const fs::path& product, const std::wstring& language)
{
    std::vector<CXString> errors;
    m_session = ProductSession::open(product, CXString(language), errors);
    ASSERT_TRUE(m_session) << product.string();
    m_where = product.filename().string() + " " + CXString(language).ToUtf8();
    m_seen.clear();
    for (const UIMode mode : kSheetModes)
        visitSheet(mode);
    visitDialog();
    // A product in another language shows at least a page's worth of texts.
    EXPECT_GT(m_seen.size(), 20U) << m_where;
}

void TextFitTest::visitSheet(UIMode mode)
{
    UIManager manager(m_session->productData(), nullptr, mode, 0, Workflow::Standard);
    const IdleDriver driver({[&](HWND sheet) {
        if (!sheet)
            return false;
        visitPages(sheet);
        PropSheet_PressButton(sheet, PSBTN_CANCEL);
        return true;
    }});
    manager.runAsPropertySheet(m_session->featureServices(), m_session->strings(), nullptr);
}

void TextFitTest::visitDialog()
{
    UIManager manager(m_session->productData(), nullptr, UIMode::CompactDialog, 0,
                      Workflow::Standard);
    const IdleDriver driver({[&](HWND dialog) {
        if (!dialog)
            return false;
        measureControls(dialog);
        PostMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
        return true;
    }});
    manager.runAsDialog(m_session->featureServices(), m_session->strings(), nullptr);
}

void TextFitTest::visitPages(HWND sheet)
{
    const HWND tabs = PropSheet_GetTabControl(sheet);
    for (int page = 0; page < TabCtrl_GetItemCount(tabs); ++page) {
        SendMessageW(sheet, PSM_SETCURSEL, static_cast<WPARAM>(page), 0);
        measureControls(currentPage(sheet));
    }
    EXPECT_EQ(TabCtrl_GetRowCount(tabs), 1) << m_where << ": the tabs do not fit one row";
}

void TextFitTest::measureControls(HWND page)
{
    ASSERT_NE(page, nullptr) << m_where;
    for (HWND child = GetWindow(page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        if ((GetWindowLongW(child, GWL_STYLE) & WS_VISIBLE) == 0)
            continue;
        measure(child);
        measureControls(child);
    }
}

void TextFitTest::measure(HWND control)
{
    wchar_t name[32] = L"";
    GetClassNameW(control, name, 32);
    RECT room{};
    GetClientRect(control, &room);
    const std::wstring text = o7::windowText(control).c_str();
    if (_wcsicmp(name, L"STATIC") == 0)
        expectRoom(control, text, room.right, room.bottom, DT_WORDBREAK);
    else if (_wcsicmp(name, L"COMBOBOX") == 0)
        measureEntries(control);
    else if (_wcsicmp(name, L"BUTTON") != 0 || hasButtonType(control, BS_OWNERDRAW))
        return; // The marks beside controls have texts that are read out, not drawn.
    else if (hasButtonType(control, BS_GROUPBOX))
        expectRoom(control, text, room.right - kFrameEnds, room.bottom, DT_SINGLELINE);
    else if (hasButtonType(control, BS_PUSHBUTTON) || hasButtonType(control, BS_DEFPUSHBUTTON))
        expectRoom(control, text, room.right - 2, room.bottom, DT_SINGLELINE);
    else
        expectRoom(control, text, room.right - kCheckMark, room.bottom, DT_SINGLELINE);
}

void TextFitTest::measureEntries(HWND list)
{
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    ASSERT_TRUE(GetComboBoxInfo(list, &info));
    const LONG width = info.rcItem.right - info.rcItem.left - 2 * GetSystemMetrics(SM_CXEDGE);
    const auto count = static_cast<int>(SendMessageW(list, CB_GETCOUNT, 0, 0));
    for (int entry = 0; entry < count; ++entry) {
        const auto index = static_cast<WPARAM>(entry);
        std::wstring text(static_cast<std::size_t>(SendMessageW(list, CB_GETLBTEXTLEN, index, 0)),
                          L'\0');
        SendMessageW(list, CB_GETLBTEXT, index, reinterpret_cast<LPARAM>(text.data()));
        expectRoom(list, text, width, info.rcItem.bottom, DT_SINGLELINE | DT_NOPREFIX);
    }
}

void TextFitTest::expectRoom(HWND control, const std::wstring& text, LONG width, LONG height,
                             UINT format)
{
    // Some displays draw a little wider than they measure.
    width -= width / kDrawnWider;
    if (text.empty() || !m_seen.insert(text + L'|' + std::to_wstring(width)).second)
        return;
    const HDC dc = GetDC(control);
    const HGDIOBJ former =
        SelectObject(dc, reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    RECT needed{0, 0, width, 0};
    DrawTextW(dc, text.c_str(), -1, &needed, DT_CALCRECT | format);
    SelectObject(dc, former);
    ReleaseDC(control, dc);
    EXPECT_TRUE(needed.right <= width && needed.bottom <= height)
        << m_where << ": \"" << CXString(text).ToUtf8() << "\" needs " << needed.right << " by "
        << needed.bottom << " of " << width << " by " << height << " pixels";
}

TEST_F(TextFitTest, NoTextIsCutOff)
{
    for (const auto& product : fs::directory_iterator(productsFolder())) {
        for (const auto& file : fs::directory_iterator(product)) {
            const std::wstring name = file.path().stem().wstring();
            if (file.path().extension() == L".dll" && name.rfind(L"strings-", 0) == 0)
                visit(product, name.substr(8));
        }
    }
}

} // namespace

} // namespace o7::test

#include "dialogconversion.h"

#include <gtest/gtest.h>

#include <cstring>
#include <cwchar>
#include <utility>
#include <vector>

#include <windows.h>

namespace {

// A dialog without controls, in the given font.
class EmptyDialog
{
public:
    EmptyDialog(const wchar_t* font, WORD points)
    {
        // Template header, no menu, standard class, no title, then point size and font name.
        const DLGTEMPLATE header{WS_POPUP | DS_SETFONT, 0, 0, 0, 0, 100, 100};
        std::vector<WORD> words(sizeof header / sizeof(WORD));
        std::memcpy(words.data(), &header, sizeof header);
        words.insert(words.end(), {0, 0, 0, points});
        words.insert(words.end(), font, font + std::wcslen(font) + 1);
        m_window = CreateDialogIndirectParamW(
            GetModuleHandleW(nullptr), reinterpret_cast<const DLGTEMPLATE*>(words.data()), nullptr,
            [](HWND, UINT, WPARAM, LPARAM) -> INT_PTR { return FALSE; }, 0);
    }
    ~EmptyDialog() { DestroyWindow(m_window); }
    EmptyDialog(const EmptyDialog&) = delete;
    EmptyDialog& operator=(const EmptyDialog&) = delete;

    HWND get() const { return m_window; }

private:
    HWND m_window = nullptr;
};

bool operator==(const RECT& a, const RECT& b)
{
    return EqualRect(&a, &b) != FALSE;
}

TEST(DialogConversion, GivesWhatTheDialogGives)
{
    const std::pair<const wchar_t*, WORD> fonts[] = {
        {L"MS Shell Dlg", WORD{8}}, {L"Tahoma", WORD{9}}, {L"Arial", WORD{14}}};
    for (const auto& [font, points] : fonts) {
        const EmptyDialog dialog(font, points);
        ASSERT_NE(dialog.get(), nullptr);
        DialogConversion conversion;
        ASSERT_TRUE(conversion.initDialogConversions(dialog.get()));
        for (int i = -300; i <= 700; i += 7) {
            const RECT units = {i, i + 1, 2 * i, 3 * i};
            RECT expected = units;
            ASSERT_TRUE(MapDialogRect(dialog.get(), &expected));
            const RECT pixels = conversion.dialogUnitsToPixels(units);
            ASSERT_TRUE(pixels == expected) << i;
            // A dialog unit has more than one pixel, so the way back finds the very unit.
            ASSERT_TRUE(conversion.pixelsToDialogUnits(pixels) == units) << i;
            const SIZE size = conversion.dialogUnitsToPixels(SIZE{i, i + 1});
            ASSERT_TRUE(size.cx == expected.left && size.cy == expected.top) << i;
            const SIZE back = conversion.pixelsToDialogUnits(size);
            ASSERT_TRUE(back.cx == i && back.cy == i + 1) << i;
        }
    }
}

TEST(DialogConversion, WithoutADialogTheFormerUnitsHold)
{
    DialogConversion conversion;
    EXPECT_EQ(conversion.getBaseUnitX(), LOWORD(GetDialogBaseUnits()));
    EXPECT_EQ(conversion.getBaseUnitY(), HIWORD(GetDialogBaseUnits()));
    {
        const EmptyDialog dialog(L"Arial", 20);
        ASSERT_TRUE(conversion.initDialogConversions(dialog.get()));
    }
    const int former = conversion.getBaseUnitX();
    EXPECT_FALSE(conversion.initDialogConversions(nullptr));
    EXPECT_FALSE(conversion.initDialogConversions(GetDesktopWindow()));
    EXPECT_EQ(conversion.getBaseUnitX(), former);
}

} // namespace

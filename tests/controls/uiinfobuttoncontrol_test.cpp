// The sign beside a limited control, in the colours of the system.

#include "uiinfobuttoncontrol.h"

#include "importpatch.h"
#include "testpage.h"
#include "uihandles.h"
#include "uiwindowsmessage.h"

#include <gtest/gtest.h>

#include <set>

namespace {

using o7::test::TestPage;

bool s_isHighContrast = false;

BOOL WINAPI answer(UINT what, UINT, void* value, UINT)
{
    if (what != SPI_GETHIGHCONTRAST) {
        return FALSE;
    }
    static_cast<HIGHCONTRASTW*>(value)->dwFlags = s_isHighContrast ? HCF_HIGHCONTRASTON : 0;
    return TRUE;
}

std::set<COLORREF> coloursOf(TestPage& page, UIInfoButtonControl& sign)
{
    constexpr int kSide = 20;
    const HDC screen = ::GetDC(nullptr);
    const o7::UniqueMemoryDc dc(::CreateCompatibleDC(screen));
    const o7::UniqueBitmap picture(::CreateCompatibleBitmap(screen, kSide, kSide));
    ::ReleaseDC(nullptr, screen);
    const HGDIOBJ former = ::SelectObject(dc.get(), picture.get());
    DRAWITEMSTRUCT item{};
    item.CtlType = ODT_BUTTON;
    item.hwndItem = sign.getHwnd();
    item.hDC = dc.get();
    item.rcItem = {0, 0, kSide, kSide};
    sign.handleMessage(
        {UIMessageKind::TabPage, page.page(), WM_DRAWITEM, 0, reinterpret_cast<LPARAM>(&item)});
    std::set<COLORREF> colours;
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            colours.insert(::GetPixel(dc.get(), x, y));
        }
    }
    ::SelectObject(dc.get(), former);
    return colours;
}

TEST(UIInfoButton, InHighContrastTheSignsHaveTheColoursOfTexts)
{
    TestPage page;
    const o7::test::ImportPatch patch("SystemParametersInfoW", reinterpret_cast<void*>(&answer));
    ASSERT_TRUE(patch.isInPlace());
    UIInfoButtonControl sign(page.page(), 5, page.services(), {0, 0}, {20, 20}, nullptr);
    for (const auto style : {UIInfoButtonControl::kInformation, UIInfoButtonControl::kConflict}) {
        sign.setMessage(style, L"reason", L"title");
        s_isHighContrast = false;
        EXPECT_GT(coloursOf(page, sign).size(), 4U) << "a picture";
        s_isHighContrast = true;
        const auto colours = coloursOf(page, sign);
        EXPECT_LE(colours.size(), 3U) << "ground, text and the inside of the sign";
        EXPECT_TRUE(colours.count(::GetSysColor(COLOR_WINDOWTEXT)));
    }
}

} // namespace

// Pictures from memory, and bitmaps with a transparent colour, looked at pixel by pixel.

#include "uiimageutility.h"

#include "cxstring.h"
#include "pixels.h"
#include "samplepictures.h"
#include "uiresourceids.h"

#include "isolationaware.h"

#include <gtest/gtest.h>

#include <cstring>
#include <span>

namespace {

using o7::test::Canvas;

constexpr COLORREF kGround = RGB(70, 80, 90);
constexpr COLORREF kRed = RGB(255, 0, 0);
constexpr COLORREF kBlue = RGB(0, 0, 255);

UIImageUtility::Picture pictureOf(std::span<const std::uint8_t> data)
{
    const HGLOBAL memory = ::GlobalAlloc(GMEM_MOVEABLE, data.size());
    {
        const o7::GlobalMemoryLock lock(memory);
        std::memcpy(lock.get(), data.data(), data.size());
    }
    return UIImageUtility::XLoadPicture(memory, TRUE);
}

TEST(UIImageUtility, DrawsWhatIsTransparentOnlyWhereThereIsSomething)
{
    const auto picture = pictureOf(o7::test::kHalfTransparent);
    ASSERT_TRUE(picture);
    const Canvas canvas(20, 4, kGround);
    EXPECT_TRUE(UIImageUtility::XStretchDrawPicture(canvas.dc(), 2, 1, 16, 2, picture.Get(), TRUE));
    EXPECT_EQ(kGround, canvas.at(1, 1)) << "outside";
    EXPECT_EQ(kGround, canvas.at(4, 2)) << "transparent";
    EXPECT_EQ(kBlue, canvas.at(16, 2));
    EXPECT_EQ(kGround, canvas.at(16, 3)) << "outside";
}

TEST(UIImageUtility, DrawsInNaturalSizeAndLeavesTheDcAsItWas)
{
    const auto picture = pictureOf(o7::test::kTwoColours);
    ASSERT_TRUE(picture);
    const Canvas canvas(20, 4, kGround);
    ::SetStretchBltMode(canvas.dc(), COLORONCOLOR);
    EXPECT_TRUE(UIImageUtility::XDrawPicture(canvas.dc(), 3, 1, picture.Get(), FALSE));
    EXPECT_EQ(kGround, canvas.at(2, 1));
    EXPECT_EQ(kRed, canvas.at(3, 1));
    EXPECT_EQ(kBlue, canvas.at(10, 2));
    EXPECT_EQ(kGround, canvas.at(11, 2));
    EXPECT_EQ(COLORONCOLOR, ::GetStretchBltMode(canvas.dc()));
    EXPECT_FALSE(UIImageUtility::XDrawPicture(nullptr, 0, 0, picture.Get(), FALSE));
    EXPECT_FALSE(UIImageUtility::XDrawPicture(canvas.dc(), 0, 0, 5, 5, nullptr, TRUE));
}

TEST(UIImageUtility, KeepsThePicturesSidesInAMirroredDc)
{
    const auto picture = pictureOf(o7::test::kTwoColours);
    ASSERT_TRUE(picture);
    const Canvas canvas(20, 4, kGround);
    ::SetLayout(canvas.dc(), LAYOUT_RTL);
    UIImageUtility::XStretchDrawPicture(canvas.dc(), 2, 0, 8, 2, picture.Get(), TRUE);
    EXPECT_EQ(DWORD{LAYOUT_RTL}, ::GetLayout(canvas.dc()));
    ::SetLayout(canvas.dc(), 0);
    // Two pixels from the right, and red still on the left.
    EXPECT_EQ(kGround, canvas.at(9, 0));
    EXPECT_EQ(kRed, canvas.at(10, 0));
    EXPECT_EQ(kBlue, canvas.at(17, 0));
    EXPECT_EQ(kGround, canvas.at(18, 0));
}

TEST(UIImageUtility, RefusesWhatIsNoPicture)
{
    EXPECT_FALSE(UIImageUtility::XLoadPicture(nullptr, TRUE));
    const std::uint8_t text[] = {'n', 'o', 't', ' ', 'o', 'n', 'e'};
    EXPECT_FALSE(pictureOf(text));
    EXPECT_FALSE(pictureOf(std::span(o7::test::kTwoColours).first(20))) << "cut short";
    const HINSTANCE module = IsolationAware::moduleInstance();
    EXPECT_FALSE(UIImageUtility::XLoadPictureFromRes(module, L"BINARY", L"none/such"));
    EXPECT_FALSE(
        UIImageUtility::XLoadPictureFromResInt(module, ImageType::Jpeg, MAKEINTRESOURCEW(1)));
    EXPECT_TRUE(UIImageUtility::XLoadPictureFromRes(module, MAKEINTRESOURCEW(24),
                                                    MAKEINTRESOURCEW(O7_MANIFEST)))
        << "a resource that is there";
    EXPECT_FALSE(UIImageUtility::XLoadPictureFromFile(L"C:\\no\\such\\file.gif"));
}

/// 4 by 1 pixels: key, red, blue, key.
o7::UniqueBitmap makeKeyed()
{
    const Canvas canvas(4, 1, UIImageUtility::kKeyColour);
    o7::UniqueBitmap bitmap(::CreateCompatibleBitmap(canvas.dc(), 4, 1));
    ::SetPixelV(canvas.dc(), 1, 0, kRed);
    ::SetPixelV(canvas.dc(), 2, 0, kBlue);
    const o7::UniqueMemoryDc copy(::CreateCompatibleDC(canvas.dc()));
    const o7::SelectedObject selected(copy.get(), bitmap.get());
    ::BitBlt(copy.get(), 0, 0, 4, 1, canvas.dc(), 0, 0, SRCCOPY);
    return bitmap;
}

TEST(UIImageUtility, LeavesOutTheKeyColour)
{
    const o7::UniqueBitmap bitmap = makeKeyed();
    for (const bool mirrored : {false, true}) {
        const Canvas canvas(10, 1, kGround);
        ::SetLayout(canvas.dc(), mirrored ? LAYOUT_RTL : 0);
        EXPECT_TRUE(UIImageUtility::TransBlt(bitmap.get(), canvas.dc(), 1, 0, 4, 1));
        ::SetLayout(canvas.dc(), 0);
        const int left = mirrored ? 5 : 1;
        EXPECT_EQ(kGround, canvas.at(left, 0));
        EXPECT_EQ(kRed, canvas.at(left + 1, 0));
        EXPECT_EQ(kBlue, canvas.at(left + 2, 0));
        EXPECT_EQ(kGround, canvas.at(left + 3, 0));
    }
}

TEST(UIImageUtility, ScalesWithoutATraceOfTheKeyColour)
{
    const o7::UniqueBitmap bitmap = makeKeyed();
    for (const DWORD width : {2U, 3U, 7U, 16U}) {
        SCOPED_TRACE(width);
        const Canvas canvas(16, 3, RGB(255, 255, 255));
        EXPECT_TRUE(
            UIImageUtility::TransStretchBlt(bitmap.get(), canvas.dc(), 0, 0, 4, 1, width, 3));
        for (int x = 0; x < 16; ++x) {
            // On white, red and blue and their blends have no more green than the lesser of the
            // two.
            const COLORREF pixel = canvas.at(x, 1);
            EXPECT_GE(GetRValue(pixel) + GetBValue(pixel), 254) << x;
        }
        EXPECT_EQ(canvas.at(0, 0), canvas.at(0, 2)) << "as high as wanted";
    }
    const Canvas canvas(16, 1, kGround);
    for (const DWORD width : {0U, 5U, 100000U}) { // nothing, more than there is, too much
        EXPECT_FALSE(
            UIImageUtility::TransStretchBlt(bitmap.get(), canvas.dc(), 0, 0, width, 1, 8, 1));
    }
    EXPECT_FALSE(UIImageUtility::TransBlt(nullptr, canvas.dc(), 0, 0, 4, 1));
}

} // namespace

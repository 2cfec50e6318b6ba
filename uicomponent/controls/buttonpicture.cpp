#include "buttonpicture.h"

#include "uiimageutility.h"

#include <algorithm>
#include <cstdint>
#include <functional>

namespace o7 {

namespace {

/// A drawing on a ground of one colour, with its pixels at hand.
class Canvas
{
public:
    Canvas(SIZE size, COLORREF ground) : m_dc(::CreateCompatibleDC(nullptr)), m_size(size)
    {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = size.cx;
        info.bmiHeader.biHeight = -size.cy; // rows from the top down
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* pixels = nullptr;
        m_bitmap.reset(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
        m_pixels = static_cast<std::uint32_t*>(pixels);
        std::fill_n(m_pixels, m_pixels != nullptr ? count() : 0,
                    static_cast<std::uint32_t>(ground));
    }

    bool draw(const std::function<bool(HDC)>& paint) const
    {
        if (m_pixels == nullptr) {
            return false;
        }
        const SelectedObject selected(m_dc.get(), m_bitmap.get());
        const bool drawn = paint(m_dc.get());
        ::GdiFlush();
        return drawn;
    }

    std::size_t count() const
    {
        return static_cast<std::size_t>(m_size.cx) * static_cast<std::size_t>(m_size.cy);
    }
    std::uint32_t& pixel(std::size_t index) const { return m_pixels[index]; }
    HBITMAP bitmap() const { return m_bitmap.get(); }

private:
    UniqueMemoryDc m_dc;
    SIZE m_size;
    UniqueBitmap m_bitmap;
    std::uint32_t* m_pixels = nullptr;
};

std::uint32_t channel(std::uint32_t pixel, int shift)
{
    return pixel >> shift & 0xFFU;
}

/// What was drawn on black and on white differs where it lets the ground through. Gives the pixel
/// with its own colour and, above that, how much it covers.
std::uint32_t withCover(std::uint32_t onBlack, std::uint32_t onWhite)
{
    const std::uint32_t cover = 255 - std::min(255U, channel(onWhite, 8) - channel(onBlack, 8));
    std::uint32_t pixel = cover << 24;
    for (int shift = 0; shift < 24 && cover != 0; shift += 8) {
        pixel |= std::min(255U, channel(onBlack, shift) * 255U / cover) << shift;
    }
    return pixel;
}

UniqueIcon iconOf(SIZE size, const std::function<bool(HDC)>& paint)
{
    const Canvas black(size, RGB(0, 0, 0));
    const Canvas white(size, RGB(255, 255, 255));
    if (!black.draw(paint) || !white.draw(paint)) {
        return {};
    }
    for (std::size_t index = 0; index < black.count(); ++index) {
        black.pixel(index) = withCover(black.pixel(index), white.pixel(index));
    }
    const UniqueBitmap mask(::CreateBitmap(size.cx, size.cy, 1, 1, nullptr));
    ICONINFO info{TRUE, 0, 0, mask.get(), black.bitmap()};
    return UniqueIcon(::CreateIconIndirect(&info));
}

/// The largest area of these proportions in the middle of another that begins at the origin.
RECT fitted(SIZE proportions, SIZE area)
{
    SIZE size = area;
    if (proportions.cx * area.cy > proportions.cy * area.cx) {
        size.cy = std::max(1L, ::MulDiv(area.cx, proportions.cy, proportions.cx) + 0L);
    } else {
        size.cx = std::max(1L, ::MulDiv(area.cy, proportions.cx, proportions.cy) + 0L);
    }
    const POINT corner{(area.cx - size.cx) / 2, (area.cy - size.cy) / 2};
    return {corner.x, corner.y, corner.x + size.cx, corner.y + size.cy};
}

} // namespace

UniqueIcon loadButtonPicture(HINSTANCE module, int resource, SIZE area)
{
    if (resource == 0 || area.cx <= 0 || area.cy <= 0) {
        return {};
    }
    auto memory = UIImageUtility::XLoadPictureFromResInt(module, ImageType::Binary,
                                                         MAKEINTRESOURCEW(resource));
    if (const auto picture = UIImageUtility::XLoadPicture(memory.get(), FALSE)) {
        SIZE size{1, 1}; // in units of its own
        picture->get_Width(&size.cx);
        picture->get_Height(&size.cy);
        const RECT place = fitted(size, area);
        return iconOf(area, [&](HDC dc) {
            return UIImageUtility::XDrawPicture(dc, place.left, place.top, place.right - place.left,
                                                place.bottom - place.top, picture.Get(), TRUE);
        });
    }
    const UniqueBitmap bitmap(::LoadBitmapW(module, MAKEINTRESOURCEW(resource)));
    BITMAP size{};
    if (!bitmap || ::GetObjectW(bitmap.get(), sizeof size, &size) == 0) {
        return {};
    }
    const RECT place = fitted({size.bmWidth, size.bmHeight}, area);
    return iconOf(area, [&](HDC dc) {
        return UIImageUtility::TransStretchBlt(
            bitmap.get(), dc, static_cast<DWORD>(place.left), static_cast<DWORD>(place.top),
            static_cast<DWORD>(size.bmWidth), static_cast<DWORD>(size.bmHeight),
            static_cast<DWORD>(place.right - place.left),
            static_cast<DWORD>(place.bottom - place.top));
    });
}

} // namespace o7

#pragma once

#include "uihandles.h"

#include <windows.h>

namespace o7::test {

/// A picture in memory to draw into and to look at, filled with one colour at first.
class Canvas
{
public:
    Canvas(int width, int height, COLORREF ground)
        : m_width(width),
          m_height(height),
          m_bitmap(makeBitmap(width, height)),
          m_dc(::CreateCompatibleDC(nullptr))
    {
        ::SelectObject(m_dc.get(), m_bitmap.get());
        const UniqueBrush brush(::CreateSolidBrush(ground));
        const RECT all{0, 0, width, height};
        ::FillRect(m_dc.get(), &all, brush.get());
    }

    HDC dc() const { return m_dc.get(); }
    RECT area() const { return {0, 0, m_width, m_height}; }
    COLORREF at(int x, int y) const { return ::GetPixel(m_dc.get(), x, y); }

    /// How many pixels of a place differ from those of another canvas.
    int difference(const Canvas& other, const RECT& place) const
    {
        int count = 0;
        for (int y = place.top; y < place.bottom; ++y) {
            for (int x = place.left; x < place.right; ++x) {
                count += at(x, y) != other.at(x, y) ? 1 : 0;
            }
        }
        return count;
    }
    int difference(const Canvas& other) const { return difference(other, area()); }

private:
    static HBITMAP makeBitmap(int width, int height)
    {
        const WindowDc screen(nullptr);
        return ::CreateCompatibleBitmap(screen.get(), width, height);
    }

    int m_width;
    int m_height;
    UniqueBitmap m_bitmap;
    UniqueMemoryDc m_dc; // goes first, and so lets the bitmap go
};

} // namespace o7::test

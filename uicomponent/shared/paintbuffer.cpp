#include "paintbuffer.h"

#include "unmirroreddc.h"

namespace o7 {

PaintBuffer::PaintBuffer(HDC target, const RECT& area) noexcept
    : m_target(target),
      m_area(area),
      m_dc(::CreateCompatibleDC(target)),
      m_bitmap(::CreateCompatibleBitmap(target, area.right - area.left, area.bottom - area.top))
{
    if (!m_bitmap) {
        return;
    }
    m_selected.emplace(m_dc.get(), m_bitmap.get());
    // After the bitmap, by whose width the layout mirrors.
    ::SetLayout(m_dc.get(), ::GetLayout(target));
    ::SetWindowOrgEx(m_dc.get(), area.left, area.top, nullptr);
}

PaintBuffer::~PaintBuffer()
{
    if (!m_bitmap) {
        return;
    }
    const UnmirroredDc from(m_dc.get(), m_area);
    const UnmirroredDc to(m_target, m_area);
    const RECT& source = from.area();
    const RECT& place = to.area();
    const int width = m_area.right - m_area.left;
    const int height = m_area.bottom - m_area.top;
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, m_opacity, 0};
    if (m_opacity == 255 ||
        ::GdiAlphaBlend(m_target, place.left, place.top, width, height, m_dc.get(), source.left,
                        source.top, width, height, blend) == FALSE) {
        ::BitBlt(m_target, place.left, place.top, width, height, m_dc.get(), source.left,
                 source.top, SRCCOPY);
    }
}

} // namespace o7

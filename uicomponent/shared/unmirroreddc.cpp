#include "unmirroreddc.h"

namespace o7 {

namespace {

bool isMirrored(DWORD layout)
{
    return layout != GDI_ERROR && (layout & LAYOUT_RTL) != 0;
}

} // namespace

UnmirroredDc::UnmirroredDc(HDC dc, const RECT& area) noexcept
    : m_dc(dc), m_layout(::GetLayout(dc)), m_area(area)
{
    if (!isMirrored(m_layout)) {
        return;
    }
    auto* corners = reinterpret_cast<POINT*>(&m_area);
    ::LPtoDP(dc, corners, 2);
    ::SetLayout(dc, m_layout & ~static_cast<DWORD>(LAYOUT_RTL));
    // The left edge lies right now, and a mirrored column begins where its neighbour ends.
    m_area = {m_area.right + 1, m_area.top, m_area.left + 1, m_area.bottom};
    ::DPtoLP(dc, corners, 2);
}

UnmirroredDc::~UnmirroredDc()
{
    if (isMirrored(m_layout)) {
        ::SetLayout(m_dc, m_layout);
    }
}

} // namespace o7

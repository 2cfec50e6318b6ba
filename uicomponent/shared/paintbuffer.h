#pragma once

#include "uihandles.h"

#include <optional>

namespace o7 {

/// Collects in memory what is painted into a rectangle of a DC, and copies it there in one step at
/// the end of its life, so that a ground, a face and a picture over each other are never seen one
/// by one. Coordinates and mirroring are those of the target; its font and colours are not taken
/// over. Without memory for it, what is painted goes to the target at once.
class PaintBuffer
{
public:
    /// @param target  borrowed, must outlive the buffer
    PaintBuffer(HDC target, const RECT& area) noexcept;
    ~PaintBuffer();
    PaintBuffer(const PaintBuffer&) = delete;
    PaintBuffer& operator=(const PaintBuffer&) = delete;

    /// Lets what is under it shine through: 255 covers it (the default), 0 shows nothing new.
    void setOpacity(BYTE opacity) noexcept { m_opacity = opacity; }

    HDC dc() const noexcept { return m_bitmap ? m_dc.get() : m_target; }

private:
    HDC m_target;
    RECT m_area;
    BYTE m_opacity = 255;
    UniqueMemoryDc m_dc;
    UniqueBitmap m_bitmap;
    std::optional<SelectedObject> m_selected; // put back before bitmap and DC go
};

} // namespace o7

#pragma once

#include <windows.h>

namespace o7 {

/// For drawing a picture as it is into the DC of a right-to-left window, which would mirror it:
/// takes the mirroring off for its life. A DC that does not mirror is left alone.
class UnmirroredDc
{
public:
    /// @param area  in the DC's coordinates as they are; area() tells the same place without
    /// mirroring
    UnmirroredDc(HDC dc, const RECT& area) noexcept;
    ~UnmirroredDc();
    UnmirroredDc(const UnmirroredDc&) = delete;
    UnmirroredDc& operator=(const UnmirroredDc&) = delete;

    const RECT& area() const noexcept { return m_area; }

private:
    HDC m_dc;
    DWORD m_layout;
    RECT m_area;
};

} // namespace o7

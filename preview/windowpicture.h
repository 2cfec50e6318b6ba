#pragma once

#include <windows.h>

#include <filesystem>
#include <memory>
#include <type_traits>

namespace o7 {

/// What a window's inside looks like on the screen, without the caption and border that the system
/// draws round it. Owns the bitmap. Throws std::runtime_error when the system refuses a step.
class WindowPicture
{
public:
    /// Copies the pixels from the screen, so nothing may lie over the window (see bringToFront).
    explicit WindowPicture(HWND window);

    /// What of the screen a picture of the window shows, in pixels.
    static RECT place(HWND window);

    /// Puts the window wholly on the screen and above all others.
    static void bringToFront(HWND window);

    /// Takes an area (pixels of the window's inside) from another picture of the same window.
    void take(const WindowPicture& other, const RECT& area);

    /// True when every pixel has the same colour: then nothing was painted.
    bool isBlank() const;

    /// Writes a PNG file through the system's imaging component. COM must be initialised.
    void savePng(const std::filesystem::path& file) const;

private:
    struct BitmapDeleter
    {
        void operator()(HBITMAP bitmap) const { DeleteObject(bitmap); }
    };

    SIZE m_size{};
    std::unique_ptr<std::remove_pointer_t<HBITMAP>, BitmapDeleter> m_bitmap;
    DWORD* m_pixels = nullptr; ///< owned by the bitmap
};

} // namespace o7

#include "uiimageutility.h"

#include "cxstring.h"
#include "picturecheck.h"
#include "pixelscaler.h"
#include "unmirroreddc.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <iterator>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace {

using Microsoft::WRL::ComPtr;

constexpr LONGLONG kMaxFile = 64LL * 1024 * 1024;
constexpr DWORD kMaxSide = 8192; // pixels of a drawn bitmap
constexpr int kHimetricPerInch = 2540;
constexpr std::uint32_t kOpaque = 0xFF000000U;

o7::UniqueGlobalMemory copyOf(const void* data, std::size_t size)
{
    o7::UniqueGlobalMemory memory(::GlobalAlloc(GMEM_MOVEABLE, size));
    const o7::GlobalMemoryLock lock(memory.get());
    if (lock.get() != nullptr && data != nullptr) {
        std::memcpy(lock.get(), data, size);
    }
    return memory;
}

const wchar_t* resourceTypeOf(ImageType type)
{
    switch (type) {
    case ImageType::Binary:
    case ImageType::Binary100:
    case ImageType::Binary101:
    case ImageType::Binary102:
        return L"BINARY";
    case ImageType::Jpeg:
        return L"JPEGS";
    default:
        return L"GIFS";
    }
}

bool isDecodable(HGLOBAL memory)
{
    const o7::GlobalMemoryLock lock(memory);
    return lock.get() != nullptr &&
           o7::isDecodablePicture(
               {static_cast<const std::uint8_t*>(lock.get()), ::GlobalSize(memory)});
}

bool isSide(DWORD length)
{
    return length >= 1 && length <= kMaxSide;
}

BITMAPINFO describe(LONG width, LONG height)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height; // rows from the top down
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

std::size_t pixelCount(int width, int height)
{
    return static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
}

/// A bitmap of 32 bits a pixel, selected into a DC of its own; false when there is no memory for
/// it.
class MemoryImage
{
public:
    MemoryImage(int width, int height) noexcept : m_dc(::CreateCompatibleDC(nullptr))
    {
        const BITMAPINFO info = describe(width, height);
        void* bits = nullptr;
        m_bitmap.reset(::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
        m_bits = static_cast<std::uint32_t*>(bits);
        if (*this) {
            m_selected.emplace(m_dc.get(), m_bitmap.get());
        }
    }

    explicit operator bool() const noexcept { return m_dc && m_bitmap; }
    HDC dc() const noexcept { return m_dc.get(); }
    std::uint32_t* bits() const noexcept { return m_bits; }

private:
    o7::UniqueMemoryDc m_dc;
    o7::UniqueBitmap m_bitmap;
    std::uint32_t* m_bits = nullptr;
    std::optional<o7::SelectedObject> m_selected; // put back before bitmap and DC go
};

int naturalPixels(HDC dc, int resolution, LONG himetric)
{
    return ::MulDiv(himetric, ::GetDeviceCaps(dc, resolution), kHimetricPerInch);
}

/// Sets how a DC shrinks and stretches pictures, and puts it back.
class HalftoneScope
{
public:
    explicit HalftoneScope(HDC dc) noexcept : m_dc(dc), m_mode(::SetStretchBltMode(dc, HALFTONE))
    {
        ::SetBrushOrgEx(dc, 0, 0, &m_origin); // which this mode asks for
    }
    ~HalftoneScope()
    {
        ::SetBrushOrgEx(m_dc, m_origin.x, m_origin.y, nullptr);
        ::SetStretchBltMode(m_dc, m_mode);
    }
    HalftoneScope(const HalftoneScope&) = delete;
    HalftoneScope& operator=(const HalftoneScope&) = delete;

private:
    HDC m_dc;
    int m_mode;
    POINT m_origin{};
};

/// Selects and realises a picture's palette, if it has one, and puts the former back.
class PaletteScope
{
public:
    PaletteScope(HDC dc, IPicture& picture) noexcept : m_dc(dc)
    {
        OLE_HANDLE handle = 0;
        if (SUCCEEDED(picture.get_hPal(&handle)) && handle != 0) {
            const auto palette = reinterpret_cast<HPALETTE>(static_cast<ULONG_PTR>(handle));
            m_former = ::SelectPalette(dc, palette, FALSE);
            ::RealizePalette(dc);
        }
    }
    ~PaletteScope()
    {
        if (m_former != nullptr) {
            ::SelectPalette(m_dc, m_former, FALSE);
        }
    }
    PaletteScope(const PaletteScope&) = delete;
    PaletteScope& operator=(const PaletteScope&) = delete;

private:
    HDC m_dc;
    HPALETTE m_former = nullptr;
};

/// The picture's own size, in HIMETRIC units; its rows go from the bottom up.
struct HimetricSize
{
    OLE_XSIZE_HIMETRIC width = 0;
    OLE_YSIZE_HIMETRIC height = 0;
};

bool renderStretched(HDC dc, const RECT& area, IPicture& picture, const HimetricSize& size)
{
    const HalftoneScope halftone(dc);
    return SUCCEEDED(picture.Render(dc, area.left, area.top, area.right - area.left,
                                    area.bottom - area.top, 0, size.height, size.width,
                                    -size.height, nullptr));
}

/// A picture in natural size as it comes out on black or on white; empty when that fails.
std::vector<std::uint32_t> renderOn(int ground, int width, int height, IPicture& picture,
                                    const HimetricSize& size)
{
    const MemoryImage memory(width, height);
    if (!memory) {
        return {};
    }
    const RECT all{0, 0, width, height};
    ::FillRect(memory.dc(), &all, static_cast<HBRUSH>(::GetStockObject(ground)));
    if (!renderStretched(memory.dc(), all, picture, size)) {
        return {};
    }
    ::GdiFlush();
    return {memory.bits(), memory.bits() + pixelCount(width, height)};
}

/// Finds out by two grounds how far each pixel covers them, and scales that with the picture: the
/// system would scale picture and mask each by itself, and leave seams of wrong colours.
o7::PixelImage readTransparent(HDC dc, IPicture& picture, const HimetricSize& size)
{
    const int width = naturalPixels(dc, LOGPIXELSX, size.width);
    const int height = naturalPixels(dc, LOGPIXELSY, size.height);
    if (!isSide(static_cast<DWORD>(width)) || !isSide(static_cast<DWORD>(height))) {
        return {};
    }
    o7::PixelImage image{width, height, renderOn(BLACK_BRUSH, width, height, picture, size)};
    const auto onWhite = renderOn(WHITE_BRUSH, width, height, picture, size);
    if (onWhite.size() != image.pixels.size()) {
        return {};
    }
    std::transform(image.pixels.begin(), image.pixels.end(), onWhite.begin(), image.pixels.begin(),
                   [](std::uint32_t black, std::uint32_t white) {
                       const std::uint32_t dark = black & 0xFFU;
                       const std::uint32_t gap = std::max(white & 0xFFU, dark) - dark;
                       return (black & ~kOpaque) | (255U - gap) << 24U;
                   });
    return image;
}

bool isTransparent(IPicture& picture)
{
    DWORD attributes = 0;
    return SUCCEEDED(picture.get_Attributes(&attributes)) &&
           (attributes & PICTURE_TRANSPARENT) != 0;
}

std::uint32_t premultiplied(std::uint32_t colour)
{
    constexpr std::uint32_t kKey = GetGValue(UIImageUtility::kKeyColour) << 8U;
    static_assert(GetRValue(UIImageUtility::kKeyColour) == 0 &&
                  GetBValue(UIImageUtility::kKeyColour) == 0);
    const std::uint32_t plain = colour & ~kOpaque;
    return plain == kKey ? 0U : plain | kOpaque;
}

/// The upper left part of a bitmap, with the key colour transparent; empty when it is not all
/// there.
o7::PixelImage readBitmap(HBITMAP bitmap, int width, int height)
{
    BITMAP size{};
    if (::GetObjectW(bitmap, sizeof size, &size) == 0 || width > size.bmWidth ||
        height > size.bmHeight) {
        return {};
    }
    BITMAPINFO info = describe(size.bmWidth, size.bmHeight);
    const auto rowLength = static_cast<std::size_t>(size.bmWidth);
    std::vector<std::uint32_t> all(rowLength * static_cast<std::size_t>(size.bmHeight));
    const o7::WindowDc screen(nullptr);
    if (::GetDIBits(screen.get(), bitmap, 0, static_cast<UINT>(size.bmHeight), all.data(), &info,
                    DIB_RGB_COLORS) == 0) {
        return {};
    }
    o7::PixelImage image{width, height, {}};
    image.pixels.reserve(pixelCount(width, height));
    for (std::size_t y = 0; y < static_cast<std::size_t>(height); ++y) {
        const auto row = all.begin() + static_cast<std::ptrdiff_t>(y * rowLength);
        std::transform(row, row + width, std::back_inserter(image.pixels), premultiplied);
    }
    return image;
}

/// Draws the image in the size of the area, over what is there.
bool drawImage(HDC dc, const RECT& area, const o7::PixelImage& image)
{
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const MemoryImage memory(width, height);
    if (image.pixels.empty() || !memory) {
        return false;
    }
    const bool fits = image.width == width && image.height == height;
    const auto& pixels = fits ? image.pixels : o7::scaled(image, width, height).pixels;
    std::copy(pixels.begin(), pixels.end(), memory.bits());
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    return ::GdiAlphaBlend(dc, area.left, area.top, width, height, memory.dc(), 0, 0, width, height,
                           blend) != FALSE;
}

} // namespace

o7::UniqueGlobalMemory UIImageUtility::XLoadPictureFromResInt(HINSTANCE module, ImageType imageType,
                                                              const wchar_t* name)
{
    return XLoadPictureFromRes(module, resourceTypeOf(imageType), name);
}

o7::UniqueGlobalMemory UIImageUtility::XLoadPictureFromRes(HINSTANCE module, const wchar_t* type,
                                                           const wchar_t* name)
{
    std::wstring cut;
    if (!IS_INTRESOURCE(name)) {
        const std::wstring_view whole(name);
        cut = whole.substr(0, whole.find(L'/'));
        name = cut.c_str();
    }
    const HRSRC resource = ::FindResourceW(module, name, type);
    const HGLOBAL loaded = resource != nullptr ? ::LoadResource(module, resource) : nullptr;
    if (loaded == nullptr) {
        return {};
    }
    return copyOf(::LockResource(loaded), ::SizeofResource(module, resource));
}

o7::UniqueGlobalMemory UIImageUtility::XLoadPictureFromFile(const CXString& path)
{
    const o7::UniqueFile file(::CreateFileW(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr,
                                            OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr));
    LARGE_INTEGER size{};
    if (!file || ::GetFileSizeEx(file.get(), &size) == FALSE || size.QuadPart < 1 ||
        size.QuadPart > kMaxFile) {
        return {};
    }
    o7::UniqueGlobalMemory memory = copyOf(nullptr, static_cast<std::size_t>(size.QuadPart));
    const o7::GlobalMemoryLock lock(memory.get());
    DWORD read = 0;
    if (lock.get() == nullptr ||
        ::ReadFile(file.get(), lock.get(), size.LowPart, &read, nullptr) == FALSE ||
        read != size.LowPart) {
        return {};
    }
    return memory;
}

UIImageUtility::Picture UIImageUtility::XLoadPicture(HGLOBAL memory, int deleteOnRelease)
{
    o7::UniqueGlobalMemory owner(deleteOnRelease != 0 ? memory : nullptr);
    ComPtr<IStream> stream;
    if (memory == nullptr || !isDecodable(memory) ||
        FAILED(::CreateStreamOnHGlobal(memory, deleteOnRelease, stream.GetAddressOf()))) {
        return {};
    }
    owner.release(); // the stream's now
    Picture picture;
    if (FAILED(::OleLoadPicture(stream.Get(), static_cast<LONG>(::GlobalSize(memory)), FALSE,
                                IID_IPicture, reinterpret_cast<void**>(picture.GetAddressOf())))) {
        return {};
    }
    return picture;
}

bool UIImageUtility::XDrawPicture(HDC dc, int x, int y, IPicture* picture, int keepTransparency)
{
    return XStretchDrawPicture(dc, x, y, -1, -1, picture, keepTransparency);
}

bool UIImageUtility::XDrawPicture(HDC dc, int x, int y, int cx, int cy, IPicture* picture,
                                  int keepTransparency)
{
    return XStretchDrawPicture(dc, x, y, cx, cy, picture, keepTransparency);
}

bool UIImageUtility::XStretchDrawPicture(HDC dc, int x, int y, int cx, int cy, IPicture* picture,
                                         int keepTransparency)
{
    HimetricSize size;
    if (dc == nullptr || picture == nullptr || FAILED(picture->get_Width(&size.width)) ||
        FAILED(picture->get_Height(&size.height))) {
        return false;
    }
    if (cx == -1) {
        cx = naturalPixels(dc, LOGPIXELSX, size.width);
    }
    if (cy == -1) {
        cy = naturalPixels(dc, LOGPIXELSY, size.height);
    }
    if (!isSide(static_cast<DWORD>(cx)) || !isSide(static_cast<DWORD>(cy))) {
        return false;
    }
    const o7::UnmirroredDc unmirrored(dc, {x, y, x + cx, y + cy});
    if (keepTransparency != 0 && isTransparent(*picture)) {
        return drawImage(dc, unmirrored.area(), readTransparent(dc, *picture, size));
    }
    const PaletteScope palette(dc, *picture);
    return renderStretched(dc, unmirrored.area(), *picture, size);
}

bool UIImageUtility::TransBlt(HBITMAP bitmap, HDC dc, DWORD x, DWORD y, DWORD width, DWORD height)
{
    return TransStretchBlt(bitmap, dc, x, y, width, height, width, height);
}

bool UIImageUtility::TransStretchBlt(HBITMAP bitmap, HDC dc, DWORD x, DWORD y, DWORD srcWidth,
                                     DWORD srcHeight, DWORD dstWidth, DWORD dstHeight)
{
    if (!isSide(srcWidth) || !isSide(srcHeight) || !isSide(dstWidth) || !isSide(dstHeight)) {
        return false;
    }
    const o7::PixelImage image =
        readBitmap(bitmap, static_cast<int>(srcWidth), static_cast<int>(srcHeight));
    const auto left = static_cast<LONG>(x);
    const auto top = static_cast<LONG>(y);
    const o7::UnmirroredDc unmirrored(
        dc, {left, top, left + static_cast<LONG>(dstWidth), top + static_cast<LONG>(dstHeight)});
    return drawImage(dc, unmirrored.area(), image);
}

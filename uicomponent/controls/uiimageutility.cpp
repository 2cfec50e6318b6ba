#include "uiimageutility.h"

#include "cxstring.h"
#include "picturecheck.h"
#include "pixelscaler.h"
#include "unmirroreddc.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

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

/// Over what is there already, put together in memory first.
bool renderTransparent(HDC dc, const RECT& area, IPicture& picture, const HimetricSize& size)
{
    const int width = area.right - area.left;
    const int height = area.bottom - area.top;
    const o7::UniqueMemoryDc memory(::CreateCompatibleDC(dc));
    const o7::UniqueBitmap bitmap(::CreateCompatibleBitmap(dc, width, height));
    if (!memory || !bitmap) {
        return false;
    }
    const o7::SelectedObject selected(memory.get(), bitmap.get());
    ::BitBlt(memory.get(), 0, 0, width, height, dc, area.left, area.top, SRCCOPY);
    return renderStretched(memory.get(), {0, 0, width, height}, picture, size) &&
           ::BitBlt(dc, area.left, area.top, width, height, memory.get(), 0, 0, SRCCOPY) != FALSE;
}

bool isTransparent(IPicture& picture)
{
    DWORD attributes = 0;
    return SUCCEEDED(picture.get_Attributes(&attributes)) &&
           (attributes & PICTURE_TRANSPARENT) != 0;
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
    image.pixels.reserve(static_cast<std::size_t>(width) * static_cast<std::size_t>(height));
    for (std::size_t y = 0; y < static_cast<std::size_t>(height); ++y) {
        const auto row = all.begin() + static_cast<std::ptrdiff_t>(y * rowLength);
        std::transform(row, row + width, std::back_inserter(image.pixels), premultiplied);
    }
    return image;
}

bool drawImage(HDC dc, const RECT& area, const o7::PixelImage& image)
{
    const BITMAPINFO info = describe(image.width, image.height);
    void* bits = nullptr;
    const o7::UniqueBitmap bitmap(
        ::CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
    const o7::UniqueMemoryDc memory(::CreateCompatibleDC(dc));
    if (!bitmap || !memory) {
        return false;
    }
    std::memcpy(bits, image.pixels.data(), image.pixels.size() * sizeof image.pixels[0]);
    const o7::SelectedObject selected(memory.get(), bitmap.get());
    const BLENDFUNCTION blend{AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
    return ::GdiAlphaBlend(dc, area.left, area.top, image.width, image.height, memory.get(), 0, 0,
                           image.width, image.height, blend) != FALSE;
}

bool isSide(DWORD length)
{
    return length >= 1 && length <= kMaxSide;
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
        cx = ::MulDiv(size.width, ::GetDeviceCaps(dc, LOGPIXELSX), kHimetricPerInch);
    }
    if (cy == -1) {
        cy = ::MulDiv(size.height, ::GetDeviceCaps(dc, LOGPIXELSY), kHimetricPerInch);
    }
    const o7::UnmirroredDc unmirrored(dc, {x, y, x + cx, y + cy});
    const PaletteScope palette(dc, *picture);
    return keepTransparency != 0 && isTransparent(*picture)
               ? renderTransparent(dc, unmirrored.area(), *picture, size)
               : renderStretched(dc, unmirrored.area(), *picture, size);
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
    o7::PixelImage image =
        readBitmap(bitmap, static_cast<int>(srcWidth), static_cast<int>(srcHeight));
    if (image.pixels.empty()) {
        return false;
    }
    if (srcWidth != dstWidth || srcHeight != dstHeight) {
        image = o7::scaled(image, static_cast<int>(dstWidth), static_cast<int>(dstHeight));
    }
    const auto left = static_cast<LONG>(x);
    const auto top = static_cast<LONG>(y);
    const o7::UnmirroredDc unmirrored(
        dc, {left, top, left + static_cast<LONG>(dstWidth), top + static_cast<LONG>(dstHeight)});
    return drawImage(dc, unmirrored.area(), image);
}

#include "windowpicture.h"

#include <wincodec.h>
#include <wrl/client.h>

#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <stdexcept>
#include <string>

namespace o7 {
namespace {

using Microsoft::WRL::ComPtr;

void check(HRESULT result, const char* step)
{
    if (FAILED(result)) {
        char code[16];
        std::snprintf(code, sizeof code, "0x%08lx", static_cast<unsigned long>(result));
        throw std::runtime_error(std::string("The picture could not be written: ") + step +
                                 " failed with " + code + ".");
    }
}

struct ScreenDcReleaser
{
    void operator()(HDC dc) const { ReleaseDC(nullptr, dc); }
};

struct MemoryDcDeleter
{
    void operator()(HDC dc) const { DeleteDC(dc); }
};

using ScreenDc = std::unique_ptr<std::remove_pointer_t<HDC>, ScreenDcReleaser>;
using MemoryDc = std::unique_ptr<std::remove_pointer_t<HDC>, MemoryDcDeleter>;

} // namespace

WindowPicture::WindowPicture(HWND window)
{
    const RECT inside = place(window);
    m_size = {inside.right - inside.left, inside.bottom - inside.top};

    BITMAPINFO info{};
    info.bmiHeader = {.biSize = sizeof info.bmiHeader,
                      .biWidth = m_size.cx,
                      .biHeight = -m_size.cy, // rows from the top down
                      .biPlanes = 1,
                      .biBitCount = 32,
                      .biCompression = BI_RGB,
                      .biSizeImage = 0,
                      .biXPelsPerMeter = 0,
                      .biYPelsPerMeter = 0,
                      .biClrUsed = 0,
                      .biClrImportant = 0};
    const ScreenDc screen(GetDC(nullptr));
    const MemoryDc memory(CreateCompatibleDC(screen.get()));
    void* pixels = nullptr;
    m_bitmap.reset(CreateDIBSection(screen.get(), &info, DIB_RGB_COLORS, &pixels, nullptr, 0));
    if (!m_bitmap || !memory) {
        throw std::runtime_error("The picture could not be taken: no bitmap of that size.");
    }
    m_pixels = static_cast<DWORD*>(pixels);
    HGDIOBJ before = SelectObject(memory.get(), m_bitmap.get());
    const BOOL copied = BitBlt(memory.get(), 0, 0, m_size.cx, m_size.cy, screen.get(), inside.left,
                               inside.top, SRCCOPY | CAPTUREBLT);
    GdiFlush();
    SelectObject(memory.get(), before);
    if (!copied) {
        throw std::runtime_error("The picture could not be taken: the screen cannot be read.");
    }
}

void WindowPicture::bringToFront(HWND window)
{
    RECT frame{};
    GetWindowRect(window, &frame);
    RECT work{};
    SystemParametersInfoW(SPI_GETWORKAREA, 0, &work, 0);
    const LONG x = std::max(work.left, std::min(frame.left, work.right - frame.right + frame.left));
    const LONG y = std::max(work.top, std::min(frame.top, work.bottom - frame.bottom + frame.top));
    SetWindowPos(window, HWND_TOPMOST, x, y, 0, 0, SWP_NOSIZE | SWP_NOACTIVATE);
}

RECT WindowPicture::place(HWND window)
{
    RECT inside{};
    GetClientRect(window, &inside);
    // As a rectangle: of a mirrored window the left edge of the screen is the right one.
    MapWindowPoints(window, nullptr, reinterpret_cast<POINT*>(&inside), 2);
    return inside;
}

void WindowPicture::take(const WindowPicture& other, const RECT& area)
{
    const RECT all{0, 0, std::min(m_size.cx, other.m_size.cx),
                   std::min(m_size.cy, other.m_size.cy)};
    RECT part{};
    IntersectRect(&part, &area, &all);
    for (LONG y = part.top; y < part.bottom; ++y) {
        const DWORD* const line = other.m_pixels + std::ptrdiff_t{y} * other.m_size.cx;
        std::copy(line + part.left, line + part.right,
                  m_pixels + std::ptrdiff_t{y} * m_size.cx + part.left);
    }
}

bool WindowPicture::isBlank() const
{
    const auto count = static_cast<std::size_t>(m_size.cx) * static_cast<std::size_t>(m_size.cy);
    return count == 0 ||
           std::all_of(m_pixels, m_pixels + count, [this](DWORD p) { return p == *m_pixels; });
}

void WindowPicture::savePng(const std::filesystem::path& file) const
{
    ComPtr<IWICImagingFactory> factory;
    check(CoCreateInstance(CLSID_WICImagingFactory, nullptr, CLSCTX_INPROC_SERVER,
                           IID_PPV_ARGS(&factory)),
          "creating the imaging factory");
    ComPtr<IWICBitmap> source;
    check(factory->CreateBitmapFromHBITMAP(m_bitmap.get(), nullptr, WICBitmapIgnoreAlpha, &source),
          "reading the bitmap");
    ComPtr<IWICStream> stream;
    check(factory->CreateStream(&stream), "creating the stream");
    check(stream->InitializeFromFilename(file.c_str(), GENERIC_WRITE), "opening the file");
    ComPtr<IWICBitmapEncoder> encoder;
    check(factory->CreateEncoder(GUID_ContainerFormatPng, nullptr, &encoder),
          "creating the encoder");
    check(encoder->Initialize(stream.Get(), WICBitmapEncoderNoCache), "starting the encoder");
    ComPtr<IWICBitmapFrameEncode> frame;
    check(encoder->CreateNewFrame(&frame, nullptr), "creating the frame");
    check(frame->Initialize(nullptr), "starting the frame");
    WICPixelFormatGUID format = GUID_WICPixelFormat24bppBGR;
    check(frame->SetPixelFormat(&format), "setting the pixel format");
    check(frame->WriteSource(source.Get(), nullptr), "writing the pixels");
    check(frame->Commit(), "ending the frame");
    check(encoder->Commit(), "ending the file");
}

} // namespace o7

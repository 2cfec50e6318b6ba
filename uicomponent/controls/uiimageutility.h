#pragma once

#include "uiapi.h"
#include "uihandles.h"

#include <windows.h>

#include <ocidl.h>
#include <olectl.h>
#include <wrl/client.h>

class CXString;

/// What kind of data a picture resource holds; decides the type of resource that is looked for.
enum class ImageType
{
    Binary = 0, ///< "BINARY", as are 100 to 102
    Binary100 = 100,
    Binary101 = 101,
    Binary102 = 102,
    Gif = 103,  ///< "GIFS", as is every value not named here
    Jpeg = 104, ///< "JPEGS"
};

/// Loading and drawing of pictures (GIF, JPEG, bitmap, icon, metafile) by the system's own decoder,
/// and drawing of bitmaps with a transparent key colour. Nothing is thrown or shown: failure is
/// null or false. In the DC of a right-to-left window pictures keep their sides.
class O7UI_API UIImageUtility
{
public:
    using Picture = Microsoft::WRL::ComPtr<IPicture>;

    /// The pixels of this colour are left out by TransBlt and TransStretchBlt.
    static constexpr COLORREF kKeyColour = RGB(0, 128, 0);

    UIImageUtility() = delete;

    /// The resource of the type that the image type stands for. The name is a string or an integer
    /// resource id (MAKEINTRESOURCEW).
    static o7::UniqueGlobalMemory XLoadPictureFromResInt(HINSTANCE module, ImageType imageType,
                                                         const wchar_t* name);
    /// A copy of the resource in movable memory; null when there is none. Of a string name only
    /// what stands before its first "/" counts.
    static o7::UniqueGlobalMemory XLoadPictureFromRes(HINSTANCE module, const wchar_t* type,
                                                      const wchar_t* name);
    /// The whole file in movable memory; null when it is missing, empty, larger than 64 MB or
    /// cannot be read whole.
    static o7::UniqueGlobalMemory XLoadPictureFromFile(const CXString& path);
    /// Decodes a picture (OleLoadPicture). Null when the data is none, or promises a size that no
    /// page has.
    /// @param deleteOnRelease  not 0: the memory belongs to the picture from now on, also when
    ///                         decoding fails; 0: it stays the caller's
    static Picture XLoadPicture(HGLOBAL memory, int deleteOnRelease);

    /// Draws in natural size.
    static bool XDrawPicture(HDC dc, int x, int y, IPicture* picture, int keepTransparency);
    static bool XDrawPicture(HDC dc, int x, int y, int cx, int cy, IPicture* picture,
                             int keepTransparency);
    /// Draws stretched to cx by cy pixels; -1 stands for the natural size at the DC's resolution.
    /// @param keepTransparency  not 0: what the picture leaves free shows what was there before
    static bool XStretchDrawPicture(HDC dc, int x, int y, int cx, int cy, IPicture* picture,
                                    int keepTransparency);

    /// Draws the upper left part of a bitmap without the pixels of the key colour.
    /// @param bitmap  borrowed, selected into no DC
    static bool TransBlt(HBITMAP bitmap, HDC dc, DWORD x, DWORD y, DWORD width, DWORD height);
    /// The same in another size. Edges are smoothed, so that no pixel of the key colour shows.
    static bool TransStretchBlt(HBITMAP bitmap, HDC dc, DWORD x, DWORD y, DWORD srcWidth,
                                DWORD srcHeight, DWORD dstWidth, DWORD dstHeight);
};

#include "gallerytemplate.h"

#include <string_view>

namespace o7 {
namespace {

constexpr std::wstring_view kFont = L"MS Shell Dlg";

} // namespace

GalleryTemplate::GalleryTemplate(DWORD style, DWORD exStyle, POINT location, SIZE size,
                                 WORD pointSize)
{
    style |= DS_SHELLFONT;
    m_words = {1, // the extended form: version, signature, help id
               0xFFFF,
               0,
               0,
               LOWORD(exStyle),
               HIWORD(exStyle),
               LOWORD(style),
               HIWORD(style),
               0, // number of controls
               static_cast<WORD>(location.x),
               static_cast<WORD>(location.y),
               static_cast<WORD>(size.cx),
               static_cast<WORD>(size.cy),
               0, // menu, class and title: none
               0,
               0,
               pointSize,
               FW_NORMAL,
               MAKEWORD(FALSE, DEFAULT_CHARSET)};
    for (const wchar_t c : kFont) {
        m_words.push_back(static_cast<WORD>(c));
    }
    m_words.push_back(0);
}

HWND GalleryTemplate::create(HWND parent, DLGPROC procedure, void* parameter) const
{
    return CreateDialogIndirectParamW(GetModuleHandleW(nullptr),
                                      reinterpret_cast<const DLGTEMPLATE*>(m_words.data()), parent,
                                      procedure, reinterpret_cast<LPARAM>(parameter));
}

} // namespace o7

#include "uiimagecontrol.h"

#include "paintbuffer.h"
#include "parentbackground.h"
#include "productdata.h"

#include <oleacc.h>

namespace {

constexpr BYTE kDisabledOpacity = 100; // of 255

} // namespace

UIImageControl::UIImageControl(HWND parent, int id, UIServices& services, HFONT font,
                               POINT location, SIZE size, DWORD style, bool visible)
    : UIDrawingSurfaceControl(parent, id, services, font, location, size, style, visible)
{
    setAccessibleRole(ROLE_SYSTEM_GRAPHIC);
}

UIImageControl::~UIImageControl()
{
    releasePicture();
}

void UIImageControl::draw(HWND window, HDC dc)
{
    RECT client{};
    ::GetClientRect(window, &client);
    const o7::PaintBuffer ground(dc, client);
    o7::drawParentBackground(window, ground.dc());
    auto* picture = static_cast<IPicture*>(::GetPropW(window, kPictureProperty));
    if (picture == nullptr) {
        return;
    }
    o7::PaintBuffer shown(ground.dc(), client);
    if (::IsWindowEnabled(window) == FALSE) {
        shown.setOpacity(kDisabledOpacity);
    }
    o7::drawParentBackground(window, shown.dc());
    UIImageUtility::XStretchDrawPicture(shown.dc(), 0, 0, client.right, client.bottom, picture,
                                        TRUE);
}

LRESULT UIImageControl::processMessage(HWND window, UINT message, WPARAM /*wParam*/,
                                       LPARAM /*lParam*/, bool& /*handled*/)
{
    if (message == WM_ENABLE) {
        ::InvalidateRect(window, nullptr, FALSE);
    } else if (message == WM_DESTROY) { // with the parent, before this object
        releasePicture();
    }
    return 0;
}

void UIImageControl::dump() const
{
    dumpWindow(L"image", m_source);
}

bool UIImageControl::setImage(HINSTANCE module, ImageType type, int resourceId)
{
    const CXString source =
        CXString::Formatted(L"resource %d.%d", static_cast<int>(type), resourceId);
    return shows(source) || show(source, UIImageUtility::XLoadPictureFromResInt(
                                             module, type, MAKEINTRESOURCEW(resourceId)));
}

bool UIImageControl::setImage(ProductData& productData, ImageType /*type*/, const CXString& file)
{
    const CXString source = CXString::Formatted(L"file %s", file.c_str());
    if (shows(source)) {
        return true;
    }
    CXString folder;
    if (!productData.GetPath(InfoType::ResourceFolder, folder)) {
        return show(source, {});
    }
    const CXString path = CXString::Formatted(L"%s\\%s", folder.c_str(), file.c_str());
    return show(source, UIImageUtility::XLoadPictureFromFile(path));
}

bool UIImageControl::show(const CXString& source, o7::UniqueGlobalMemory memory)
{
    UIImageUtility::Picture picture = UIImageUtility::XLoadPicture(memory.release(), TRUE);
    releasePicture();
    if (picture && ::SetPropW(getHwnd(), kPictureProperty, picture.Get()) != FALSE) {
        picture.Detach(); // the property's now
        m_source = source;
    }
    repaint(false);
    return !m_source.IsEmpty();
}

bool UIImageControl::shows(const CXString& source) const
{
    return m_source == source;
}

void UIImageControl::releasePicture() noexcept
{
    m_source.Empty();
    if (getHwnd() != nullptr) {
        // Taken over as it is: with some compilers Attach adds a reference of its own.
        UIImageUtility::Picture picture;
        *picture.GetAddressOf() =
            static_cast<IPicture*>(::RemovePropW(getHwnd(), kPictureProperty));
    }
}

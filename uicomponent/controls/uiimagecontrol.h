#pragma once

#include "cxstring.h"
#include "uidrawingsurfacecontrol.h"
#include "uiimageutility.h"

class ProductData;

/// A picture, stretched to the control; where it is transparent the page shows through. A disabled
/// one is drawn faded. Without a picture the page alone is seen.
class O7UI_API UIImageControl : public UIDrawingSurfaceControl
{
public:
    /// Name of the window property that holds the picture (IPicture, one reference).
    static constexpr wchar_t kPictureProperty[] = L"pIpic";

    UIImageControl(HWND parent, int id, UIServices& services, HFONT font, POINT location, SIZE size,
                   DWORD style, bool visible);
    ~UIImageControl() override;

    void draw(HWND window, HDC dc) override;
    LRESULT processMessage(HWND window, UINT message, WPARAM wParam, LPARAM lParam,
                           bool& handled) override;
    void dump() const override;

    /// Shows a picture of a module's resources; one that is shown already is not loaded again.
    /// False when it is missing or broken: then nothing is shown, the former picture neither.
    bool setImage(HINSTANCE module, ImageType type, int resourceId);
    /// The same with a file in the product's folder of pictures.
    bool setImage(ProductData& productData, ImageType type, const CXString& file);

private:
    bool show(const CXString& source, o7::UniqueGlobalMemory memory);
    bool shows(const CXString& source) const;
    void releasePicture() noexcept;

    CXString m_source; ///< what is shown, and where it came from
};

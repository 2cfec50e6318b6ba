#pragma once

#include "ibuttoncontrol.h"
#include "subclassedwindow.h"
#include "systemlibrary.h"
#include "uicontrol.h"

#include <optional>

/// A push button with a bitmap of the module's resources instead of a text (owner drawn "BUTTON",
/// subclassed). Looks as the theme has it, or classic; the bitmap is scaled to the button, without
/// its key colour (UIImageUtility::kKeyColour). setAccessibleName gives it a name to be read out.
class O7UI_API UIBitmapButtonControl : public UIControl,
                                       public IButtonControl,
                                       private o7::SubclassedWindow<UIBitmapButtonControl>
{
public:
    /// @param normalBitmap,disabledBitmap  resource ids; 0: none
    UIBitmapButtonControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                          SIZE size, INT_PTR normalBitmap, INT_PTR disabledBitmap);
    ~UIBitmapButtonControl() override;

    /// Claims WM_DRAWITEM of its own window.
    bool handleMessage(const _UIWindowsMessage& message) override;

    /// The window text, which is not shown.
    CXString getButtonDisplayName() override;
    /// The area of the bitmap: the control's size, less 4 dialog units each way.
    SIZE getTextAreaInPixels() override;
    /// Does nothing: this button shows no text.
    void setButtonDisplayName(const CXString& name) const override;
    void dump() const override;
    HWND getHwnd() const override { return UIControl::getHwnd(); }
    SIZE getDimensionInPixels() override { return UIControl::getDimensionInPixels(); }
    int getId() const override { return UIControl::getId(); }

    using UIControl::move;
    using UIControl::setEnable;
    using UIControl::setShow;

    /// Loads and shows other bitmaps. Only those whose id differs are loaded; nothing is repainted
    /// when neither does. A missing bitmap shows as an empty button.
    void setBitmaps(INT_PTR normalBitmap, INT_PTR disabledBitmap);

    /// Paints face, bitmap and focus into the item's DC and rectangle.
    void Draw(DRAWITEMSTRUCT* item);

private:
    friend o7::SubclassedWindow<UIBitmapButtonControl>;
    static constexpr const wchar_t* kProcedureName =
        L"UIBitmapButtonControl::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"uibitmapbuttoncontrol";

    /// A bitmap and the resource id that it came from.
    struct Sign
    {
        INT_PTR id = 0;
        o7::UniqueBitmap bitmap;
    };

    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool trackPointer();
    void cancelHot();
    void invalidate() const;
    void askTheme();
    static bool load(Sign& sign, INT_PTR id);

    void drawThemed(const DRAWITEMSTRUCT& item, HDC dc) const;
    static void drawClassic(const DRAWITEMSTRUCT& item, HDC dc);
    static void DrawButton(HDC dc, RECT face, bool hasFocus);
    static void DrawButtonPressed(HDC dc, const RECT& face);
    void DrawBitmap(HDC dc, HBITMAP bitmap, int drop);

    Sign m_normal;
    Sign m_disabled;
    std::optional<SystemLibrary> m_themes; ///< while visual styles are on
    bool m_hot = false;
};

#pragma once

#include "itextcontrol.h"
#include "subclassedwindow.h"
#include "uicontrol.h"

/// A text that acts when it is clicked (owner drawn, notifying "STATIC", subclassed). The parent
/// gets WM_COMMAND with STN_CLICKED; when the style makes it a tab stop, also for Enter and the
/// space bar.
class O7UI_API UIHyperlinkTextControl : public UIControl,
                                        public ITextControl,
                                        private o7::SubclassedWindow<UIHyperlinkTextControl>
{
public:
    /// @param style  added to child, visible, owner drawn and notifying
    UIHyperlinkTextControl(HWND parent, int id, UIServices& services, HFONT font, POINT location,
                           SIZE size, DWORD style);
    ~UIHyperlinkTextControl() override;

    /// Claims WM_DRAWITEM of its own window.
    bool handleMessage(const _UIWindowsMessage& message) override;

    void clearText() const override;
    /// A link is bold and underlined always.
    void boldText(bool bold) override;
    void dump() const override;
    HWND getHwnd() const override { return UIControl::getHwnd(); }
    SIZE getDimensionInPixels() override { return UIControl::getDimensionInPixels(); }
    int getId() const override { return UIControl::getId(); }

    using UIControl::move;
    using UIControl::setEnable;
    using UIControl::setShow;

private:
    friend o7::SubclassedWindow<UIHyperlinkTextControl>;
    static constexpr const wchar_t* kProcedureName =
        L"UIHyperlinkTextControl::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"uihyperlinktextcontrol";

    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    bool pressedBy(WPARAM key, LPARAM keyData);
    void draw(const DRAWITEMSTRUCT& item) const;
    void drawText(const DRAWITEMSTRUCT& item, HDC dc) const;
    o7::UniqueFont makeLinkFont() const;
};

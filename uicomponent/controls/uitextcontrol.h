#pragma once

#include "itextcontrol.h"
#include "uicontrol.h"

/// A line or block of text ("STATIC").
class O7UI_API UITextControl : public UIControl, public ITextControl
{
public:
    /// @param style     added to WS_CHILD (SS_... bits)
    /// @param visible   whether the text is shown from the start
    /// @param boldFont  for boldText(true); borrowed, must outlive the control
    UITextControl(HWND parent, int id, UIServices& services, HFONT font, POINT location, SIZE size,
                  DWORD style, bool visible, HFONT boldFont);
    ~UITextControl() override;

    bool handleMessage(const _UIWindowsMessage& message) override;

    void clearText() const override;
    void boldText(bool bold) override;
    void dump() const override;
    HWND getHwnd() const override { return UIControl::getHwnd(); }
    SIZE getDimensionInPixels() override { return UIControl::getDimensionInPixels(); }
    int getId() const override { return UIControl::getId(); }

    using UIControl::move;
    using UIControl::setEnable;
    using UIControl::setShow;

private:
    HFONT m_boldFont;
};

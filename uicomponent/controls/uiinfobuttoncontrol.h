#pragma once

#include <cstdint>

#include "cxstring.h"
#include "uicontrol.h"

class UIToolTips;

/// The small button beside a control that is limited: an information mark, or a warning mark when
/// two of the user's own choices clash. The reason is its tip, and its press shows it in a message
/// box, so that the keyboard reaches it too.
class O7UI_API UIInfoButtonControl : public UIControl
{
public:
    static constexpr std::uint32_t kInformation = 1;
    static constexpr std::uint32_t kConflict = 2;

    /// @param location,size  pixels
    /// @param toolTips       borrowed, may be null; must outlive the control
    UIInfoButtonControl(HWND parent, int id, UIServices& services, POINT location, SIZE size,
                        UIToolTips* toolTips);
    ~UIInfoButtonControl() override;

    /// Claims WM_DRAWITEM and the press of its own window.
    bool handleMessage(const _UIWindowsMessage& message) override;
    void dump() const override;

    /// Shows the mark of that style with that reason; nothing is repainted when both are the same.
    /// @param title  names the setting in the caption of the message box
    void setMessage(std::uint32_t style, const CXString& text, const CXString& title);

private:
    void draw(const DRAWITEMSTRUCT& item) const;
    void showMessage() const;

    UIToolTips* m_toolTips;
    std::uint32_t m_style = 0;
    CXString m_text;
    CXString m_title;
};

#pragma once

#include <cstdint>
#include <functional>

#include "cxstring.h"
#include "subclassedwindow.h"
#include "uicontrol.h"

class UIToolTips;

/// The small button beside a control that is limited: an information mark, or a warning mark when
/// two of the user's own choices clash. The reason is its tip, and its press shows it in a message
/// box, so that the keyboard reaches it too; or whoever knows more about it shows it.
class O7UI_API UIInfoButtonControl : public UIControl,
                                     private o7::SubclassedWindow<UIInfoButtonControl>
{
public:
    static constexpr std::uint32_t kInformation = 1;
    static constexpr std::uint32_t kConflict = 2;

    /// @param location,size  pixels
    /// @param toolTips       borrowed, may be null; must outlive the control
    UIInfoButtonControl(HWND parent, int id, UIServices& services, POINT location, SIZE size,
                        UIToolTips* toolTips);
    ~UIInfoButtonControl() override;

    /// Claims WM_DRAWITEM and the press of its own window. A press is answered by a message that
    /// the button posts to itself, so it may be destroyed at any time, its own press included.
    bool handleMessage(const _UIWindowsMessage& message) override;
    void dump() const override;

    /// Shows the mark of that style with that reason; nothing is repainted when both are the same.
    /// @param title  names the setting in the caption of the message box
    void setMessage(std::uint32_t style, const CXString& text, const CXString& title);

    /// What a box about the reason is to say.
    struct Reason
    {
        HWND owner;
        std::uint32_t style;
        CXString text;
        CXString title;
    };
    /// Shows a box with ways out of it; false, and nothing shown, when there is none. May outlive
    /// the button.
    using Explainer = std::function<bool(const Reason&)>;
    void setExplainer(Explainer explainer) { m_explainer = std::move(explainer); }
    /// As its press, but only where there are ways out; soon, by a message that it posts to itself.
    void offerWaysOut() const;

private:
    friend o7::SubclassedWindow<UIInfoButtonControl>;
    static constexpr const wchar_t* kProcedureName =
        L"UIInfoButtonControl::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"uiinfobuttoncontrol";

    using UIControl::forgetWindow;
    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    void draw(const DRAWITEMSTRUCT& item) const;
    void post(WORD code) const;
    void showMessage(bool onlyWithWaysOut) const;

    const UIServices& m_services;
    UIToolTips* m_toolTips;
    std::uint32_t m_style = 0;
    CXString m_text;
    CXString m_title;
    Explainer m_explainer;
};

#pragma once

#include "subclassedwindow.h"
#include "uicontrol.h"

class CXString;

/// A field to type in ("EDIT"). The parent gets EN_CHANGE for every change of the text, also for
/// those made by setText: ignore it while filling.
class O7UI_API UIEditControl : public UIControl, private o7::SubclassedWindow<UIEditControl>
{
public:
    /// @param style      added to WS_VISIBLE (ES_... bits; WS_CHILD too, unless bordered)
    /// @param bordered   a child with a border that Tab stops at and that scrolls
    /// @param textLimit  characters that can be typed (EM_LIMITTEXT); 0 is the system's own limit.
    ///                   What is pasted comes whole, for the owner to judge; of a text beyond all
    ///                   measure, which would take the system minutes, only the beginning.
    UIEditControl(HWND parent, int id, UIServices& services, HFONT font, POINT location, SIZE size,
                  DWORD style, bool bordered, int textLimit);
    ~UIEditControl() override;

    void dump() const override;

    /// The whole text, however long.
    CXString getText() const;
    /// Sets the text, which may be longer than what can be typed. When it stands there already
    /// nothing happens: no repaint, no EN_CHANGE, and the caret stays where it is.
    void setText(const CXString& text);
    /// Selects all of the text, so that typing replaces it.
    void selectAll();

private:
    friend o7::SubclassedWindow<UIEditControl>;
    static constexpr const wchar_t* kProcedureName = L"UIEditControl::subclassWindowProcedure";
    static constexpr const wchar_t* kSource = L"uieditcontrol";

    LRESULT subclassWindowProcedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam);
    LRESULT paste(HWND window, std::size_t most);
};

#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <vector>

#include "cxstring.h"
#include "uiapi.h"
#include "uifunctionkey.h"
#include "uimessagehandler.h"

class UIServices;
namespace o7 {
class TextMeasure;
}

/// A message box that lets the person choose: a sign, a text, things to choose from (one of them is
/// always chosen; arrows move on), and buttons. As large as its texts need, centred over its owner,
/// laid out in the direction of the texts.
class O7UI_API UIChoiceBox : private UIMessageHandler
{
public:
    struct Button
    {
        int id; ///< IDOK, IDCANCEL, ...
        CXString label;
    };
    struct Content
    {
        CXString title;
        const wchar_t* sign = nullptr; ///< IDI_WARNING, ...
        CXString text;                 ///< as it is: an ampersand is one
        CXString choicesLabel;
        std::vector<CXString> choices; ///< may be none
        std::vector<Button> buttons;   ///< Enter presses the first, Escape that with IDCANCEL
        /// Gets the message when F8 is pressed, with whether Shift was held as WPARAM, after the
        /// box has closed as with Escape. Null: the key does nothing.
        HWND walker = nullptr;
        UINT walkMessage = 0;
    };

    UIChoiceBox(const UIServices& services, Content content);
    UIChoiceBox(const UIChoiceBox&) = delete;
    UIChoiceBox& operator=(const UIChoiceBox&) = delete;
    ~UIChoiceBox() override;

    /// Shows the box, modal. Whoever called may be gone when it returns: the pages live on.
    /// @return the id of the button; IDCANCEL also when the box could not be shown.
    int run(HWND owner);
    /// What was chosen when the box closed.
    std::size_t getChosen() const { return m_chosen; }

private:
    bool handleMessage(const _UIWindowsMessage& message) override;
    void dump() const override;
    void open(HWND window);
    void placeAll(const o7::TextMeasure& measure);
    LONG widthOfTexts(const o7::TextMeasure& measure, LONG margin) const;
    LONG placeText(const o7::TextMeasure& measure, const CXString& text, RECT room, int id) const;
    LONG placeChoices(const o7::TextMeasure& measure, RECT room) const;
    void placeButtons(const o7::TextMeasure& measure, POINT corner) const;
    LONG widthOfButton(const o7::TextMeasure& measure) const;
    HWND add(const wchar_t* className, const CXString& text, DWORD style, const RECT& place,
             int id) const;
    SIZE pixels(LONG width, LONG height) const;
    void command(int id);
    void close(int id);

    const UIServices& m_services;
    Content m_content;
    HWND m_window = nullptr;
    HFONT m_font = nullptr; ///< the dialog's
    std::size_t m_chosen = 0;
    std::optional<UIFunctionKey> m_walkKey;
};

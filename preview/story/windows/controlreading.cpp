#include "controlreading.h"

#include <commctrl.h>

#include <algorithm>

#include "otherwindow.h"
#include "visibletext.h"

namespace o7::story {
namespace {

struct ListMessages
{
    UINT count;
    UINT text;
    UINT length;
    UINT chosen;
};

constexpr ListMessages kDropDown{CB_GETCOUNT, CB_GETLBTEXT, CB_GETLBTEXTLEN, CB_GETCURSEL};
constexpr ListMessages kListBox{LB_GETCOUNT, LB_GETTEXT, LB_GETTEXTLEN, LB_GETCURSEL};

const ListMessages& messagesOf(const PageControl& list)
{
    return isDropDown(list) ? kDropDown : kListBox;
}

std::string entryText(const PageControl& list, int index)
{
    const ListMessages& messages = messagesOf(list);
    const auto position = static_cast<WPARAM>(index);
    return index < 0 ? std::string()
                     : textByMessage(list.window, messages.text, position,
                                     ask(list.window, messages.length, position));
}

std::string checkText(HWND window)
{
    switch (ask(window, BM_GETCHECK)) {
    case BST_CHECKED:
        return "checked";
    case BST_UNCHECKED:
        return "unchecked";
    default:
        return "mixed";
    }
}

std::string chosenRadio(const PageControl& group)
{
    for (HWND button : group.radioButtons) {
        if (ask(button, BM_GETCHECK) == BST_CHECKED) {
            return plainLabel(textOf(button));
        }
    }
    return {};
}

/// The number stands in a text beside the slider, as its buddy.
std::string sliderText(HWND slider)
{
    const auto number = reinterpret_cast<HWND>(ask(slider, TBM_GETBUDDY, FALSE));
    return number != nullptr ? textOf(number) : std::to_string(ask(slider, TBM_GETPOS));
}

} // namespace

std::string shownValue(const PageControl& control)
{
    switch (control.kind) {
    case ControlKind::CheckBox:
        return checkText(control.window);
    case ControlKind::RadioGroup:
        return chosenRadio(control);
    case ControlKind::List:
        return entryText(control, chosenIndex(control));
    case ControlKind::Slider:
        return sliderText(control.window);
    case ControlKind::Field:
    case ControlKind::Button:
        break;
    }
    return textOf(control.window);
}

bool isEnabled(const PageControl& control)
{
    if (control.kind == ControlKind::RadioGroup) {
        return std::ranges::any_of(control.radioButtons,
                                   [](HWND button) { return IsWindowEnabled(button) != FALSE; });
    }
    return IsWindowEnabled(control.window) != FALSE &&
           (control.kind != ControlKind::Field ||
            (GetWindowLongPtrW(control.window, GWL_STYLE) & ES_READONLY) == 0);
}

std::vector<std::string> entriesOf(const PageControl& control)
{
    std::vector<std::string> entries;
    for (HWND button : control.radioButtons) {
        if (IsWindowVisible(button)) {
            entries.push_back(plainLabel(textOf(button)));
        }
    }
    if (control.kind == ControlKind::List) {
        const int count = static_cast<int>(ask(control.window, messagesOf(control).count));
        for (int i = 0; i < count; ++i) {
            entries.push_back(entryText(control, i));
        }
    }
    return entries;
}

HWND radioButton(const PageControl& control, const std::string& text)
{
    const auto found = std::ranges::find_if(control.radioButtons, [&](HWND button) {
        return IsWindowVisible(button) && plainLabel(textOf(button)) == text;
    });
    return found == control.radioButtons.end() ? nullptr : *found;
}

bool isDropDown(const PageControl& list)
{
    return hasClass(list.window, WC_COMBOBOXW);
}

int chosenIndex(const PageControl& list)
{
    return static_cast<int>(ask(list.window, messagesOf(list).chosen));
}

} // namespace o7::story

#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "controlname.h"

namespace o7::story {

enum class ControlKind
{
    CheckBox,
    RadioGroup, ///< a group of radio buttons is one control
    List,       ///< drop-down or not
    Field,      ///< to type in
    Slider,
    Button,
};

/// A control of a page as a person sees it: with the label that stands before it and the group
/// around it. Texts are UTF-8, without mnemonic and colon.
struct PageControl
{
    ControlKind kind = ControlKind::Button;
    HWND window = nullptr; ///< of a group of radio buttons: the first button
    std::string group;     ///< caption of the innermost group box; empty outside of any
    std::string label;     ///< a control without one has the group's caption
    std::vector<HWND> radioButtons;

    bool isShown() const;
    /// "Group/Label", or the label alone.
    std::string fullName() const;
};

/// All controls of a page or dialog in the order of Tab, hidden ones included; those without any
/// text to know them by are left out.
std::vector<PageControl> controlsOf(HWND page);

} // namespace o7::story

#pragma once

#include <string>
#include <vector>

#include "pagecontrols.h"

namespace o7::story {

/// What a control shows: the text of a list's chosen entry, of the chosen radio button, of a field
/// (a number without its unit), the number beside a slider; checked, unchecked or mixed. Empty when
/// it shows no value.
std::string shownValue(const PageControl& control);

/// Whether a person can change it.
bool isEnabled(const PageControl& control);

/// The entries of a list, or the texts of the radio buttons that can be seen.
std::vector<std::string> entriesOf(const PageControl& control);

/// The window of the radio button with this text; null when there is none.
HWND radioButton(const PageControl& control, const std::string& text);

bool isDropDown(const PageControl& list);
int chosenIndex(const PageControl& list);

} // namespace o7::story

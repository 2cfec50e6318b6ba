#pragma once

class UIToolTips;
struct UIPageWindow;

namespace o7 {

/// Gives every label, check box and radio button of a page whose text is longer than its room a tip
/// that holds the whole of it. For pages on which the layout has found such a text: it asks each
/// window, which costs more than the layout itself.
/// @param toolTips  the page's
void addWholeTextTips(const UIPageWindow& page, UIToolTips& toolTips);

} // namespace o7

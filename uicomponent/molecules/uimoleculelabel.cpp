#include "uimoleculelabel.h"

#include <algorithm>

#include "uitextcontrol.h"
#include "uitextruler.h"

namespace {

// Dialog units.
constexpr long kGap = 1;  // between a label and the box under it
constexpr long kDrop = 3; // of a label beside a box of one line
constexpr long kMostLines = 2;

} // namespace

UIMoleculeLabel::UIMoleculeLabel() = default;
UIMoleculeLabel::~UIMoleculeLabel() = default;

void UIMoleculeLabel::Set(const CXString& text, long labelWidth)
{
    m_text = text;
    m_labelWidth = labelWidth;
    m_lines = 1;
}

long UIMoleculeLabel::GetHeightAbove() const
{
    return IsEmpty() || m_labelWidth ? 0 : m_lines * UITextRuler::kLineHeight + kGap;
}

void UIMoleculeLabel::Fit(const UITextRuler& ruler, long contentWidth)
{
    const long width = m_labelWidth ? m_labelWidth : contentWidth;
    m_lines = IsEmpty() ? 1 : std::min(kMostLines, ruler.LinesOf(m_text, width));
}

long UIMoleculeLabel::GetWantedWidth(const UITextRuler& ruler) const
{
    return IsEmpty() ? 0 : ruler.WidthOf(m_text);
}

void UIMoleculeLabel::Create(UIPageWindow& page, UIServices& services, POINT place,
                             long contentWidth)
{
    if (IsEmpty())
        return;
    // Two lines beside a box stand as high as the box; one stands at its text's height.
    const long drop = m_labelWidth && m_lines == 1 ? kDrop : 0;
    const SIZE size{m_labelWidth ? m_labelWidth : contentWidth, m_lines * UITextRuler::kLineHeight};
    m_control = std::make_unique<UITextControl>(page.window, page.takeId(), services, page.font,
                                                POINT{place.x, place.y + drop}, size, SS_NOTIFY,
                                                true, page.boldFont);
    m_control->setLabelText(m_text);
}

void UIMoleculeLabel::Move(POINT delta)
{
    if (m_control)
        m_control->move(delta, false);
}

void UIMoleculeLabel::Enable(bool enabled)
{
    if (m_control)
        m_control->setEnable(enabled);
}

void UIMoleculeLabel::Show(bool shown)
{
    if (m_control)
        m_control->setShow(shown);
}

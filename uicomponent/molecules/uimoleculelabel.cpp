#include "uimoleculelabel.h"

#include <algorithm>

#include "uitextcontrol.h"
#include "uitextruler.h"

namespace {

// Dialog units.
constexpr long kGap = 1;       // between a label and the box under it
constexpr long kGapBeside = 4; // between a label and the box to its right
constexpr long kDrop = 3;      // of a label beside a box of one line
constexpr long kRise = 1;      // of two lines beside such a box, which are higher than it

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

long UIMoleculeLabel::GetTextWidth(long contentWidth) const
{
    return m_labelWidth ? m_labelWidth - kGapBeside : contentWidth;
}

void UIMoleculeLabel::Fit(const UITextRuler& ruler, long contentWidth)
{
    if (m_labelWidth && ruler.GetFit().labelWidth)
        m_labelWidth = ruler.GetFit().labelWidth;
    m_lines = IsEmpty() ? 1 : ruler.LinesOf(m_text, GetTextWidth(contentWidth));
    m_isCut = !IsEmpty() && m_lines == 1 && ruler.WidthOf(m_text) > GetTextWidth(contentWidth);
}

long UIMoleculeLabel::GetWantedWidth(const UITextRuler& ruler) const
{
    return IsEmpty() ? 0 : ruler.WidthOf(m_text) + kGapBeside;
}

void UIMoleculeLabel::Create(UIPageWindow& page, UIServices& services, POINT place,
                             long contentWidth)
{
    if (IsEmpty())
        return;
    long drop = 0;
    if (m_labelWidth)
        drop = m_lines == 1 ? kDrop : -kRise;
    const SIZE size{GetTextWidth(contentWidth), m_lines * UITextRuler::kLineHeight};
    // One line that is cut says so by three dots; the page gives it its tip.
    const DWORD style = SS_NOTIFY | (m_isCut ? SS_ENDELLIPSIS : 0);
    m_control = std::make_unique<UITextControl>(page.window, page.takeId(), services, page.font,
                                                POINT{place.x, place.y + drop}, size, style, true,
                                                page.boldFont);
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

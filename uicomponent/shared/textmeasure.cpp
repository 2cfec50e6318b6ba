#include "textmeasure.h"

namespace o7 {

TextMeasure::TextMeasure(HFONT font) noexcept
    : m_dc(::CreateCompatibleDC(nullptr)),
      m_font(m_dc.get(), font != nullptr ? font : ::GetStockObject(DEFAULT_GUI_FONT))
{
}

SIZE TextMeasure::measure(std::wstring_view text) const noexcept
{
    SIZE extent{};
    ::GetTextExtentPoint32W(m_dc.get(), text.data(), static_cast<int>(text.size()), &extent);
    POINT corner{extent.cx, extent.cy};
    ::LPtoDP(m_dc.get(), &corner, 1);
    return {corner.x, corner.y};
}

SIZE TextMeasure::measureWrapped(std::wstring_view text, LONG width) const noexcept
{
    RECT needed{0, 0, width, 0};
    ::DrawTextW(m_dc.get(), text.data(), static_cast<int>(text.size()), &needed,
                DT_CALCRECT | DT_WORDBREAK);
    return {needed.right, needed.bottom};
}

int TextMeasure::fontHeight() const noexcept
{
    TEXTMETRICW metrics{};
    ::GetTextMetricsW(m_dc.get(), &metrics);
    return metrics.tmHeight;
}

} // namespace o7

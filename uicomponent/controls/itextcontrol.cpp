#include "itextcontrol.h"

#include "uicontrol.h"
#include "windowtext.h"

#include <array>

CXString ITextControl::getText() const
{
    std::array<wchar_t, 260> text{};
    const UINT length = ::GetDlgItemTextW(m_control->getParentHwnd(), m_control->getId(),
                                          text.data(), static_cast<int>(text.size()));
    return {text.data(), static_cast<int>(length)};
}

void ITextControl::setText(const CXString& text)
{
    if (o7::windowText(getHwnd()) != text) {
        ::SetDlgItemTextW(m_control->getParentHwnd(), m_control->getId(), text.c_str());
    }
}

void ITextControl::move(POINT delta)
{
    m_control->move(delta, false);
}

void ITextControl::setShow(bool show)
{
    m_control->setShow(show);
}

void ITextControl::setEnable(bool enable)
{
    m_control->setEnable(enable);
}

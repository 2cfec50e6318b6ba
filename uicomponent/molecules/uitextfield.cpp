#include "uitextfield.h"

#include <algorithm>
#include <utility>

#include "uistringnumbers.h"
#include "uitypednumber.h"

UITextField::UITextField(const Rules& rules, Writer writer)
    : m_rules(rules), m_write(std::move(writer))
{
}

UITextField::~UITextField() = default;

void UITextField::Create(UIPageWindow& page, const Surroundings& surroundings, POINT location,
                         SIZE size)
{
    const DWORD style = (m_rules.password ? ES_PASSWORD : 0U) |
                        (m_rules.lines > 1 ? DWORD{ES_MULTILINE} | ES_WANTRETURN | WS_VSCROLL : 0U);
    CreateBox(page, surroundings, {location, size, style, m_rules.longest});
}

void UITextField::ShowValue(const CXString& text)
{
    if (text == m_value)
        return;
    m_value = m_origin = text;
    DropPending();
}

bool UITextField::HandleMessage(const _UIWindowsMessage& message)
{
    if (message.message == WM_COMMAND && HIWORD(message.wParam) == EN_MAXTEXT && GetHwnd() &&
        reinterpret_cast<HWND>(message.lParam) == GetHwnd()) {
        ShowTip(TooLong());
        return true;
    }
    return UITypedField::HandleMessage(message);
}

CXString UITextField::TooLong() const
{
    return CXString::Formatted(String(O7STR_M_TOO_LONG).c_str(),
                               CXString::Formatted(L"%d", m_rules.longest).c_str());
}

CXString UITextField::PresentTextInSentence() const
{
    return m_rules.password || m_value.IsEmpty() ? CXString() : L"\u201C" + m_value + L"\u201D";
}

CXString UITextField::FaultOf(CXString& text) const
{
    if (m_rules.digitsOnly) {
        text = UITypedNumber::withPlainDigits(text).Trim();
        const auto characters = text.View();
        if (!std::all_of(characters.begin(), characters.end(),
                         [](wchar_t character) { return character >= L'0' && character <= L'9'; }))
            return String(O7STR_M_DIGITS_ONLY);
    }
    return text.GetLength() > m_rules.longest ? TooLong() : CXString();
}

UITypedField::Verdict UITextField::Take(const CXString& text)
{
    CXString value = text;
    const CXString fault = FaultOf(value);
    // On the way to a text that is not allowed, its beginning may have been.
    if (!fault.IsEmpty())
        value = m_origin;
    if (value == m_value)
        return {.taken = fault.IsEmpty(), .fault = fault};
    const CXString before = std::exchange(m_value, value); // what is told meanwhile is no news
    if (m_write(value))
        return {.taken = fault.IsEmpty(), .fault = fault};
    m_value = before;
    if (!fault.IsEmpty())
        return {.fault = fault};
    const CXString refused = RefusedSentence();
    if (m_value != m_origin) {
        const CXString beginning = std::exchange(m_value, m_origin);
        if (!m_write(m_origin))
            m_value = beginning;
    }
    return {.fault = refused};
}

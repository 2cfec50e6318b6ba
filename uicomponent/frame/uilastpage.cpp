#include "uilastpage.h"

#include <windows.h>

#include "orvikutilities.h"

UILastPage::UILastPage(const CXString& path, const CXString& printer, UIMode mode)
    : m_kept(!path.IsEmpty()),
      m_key(HKEY_CURRENT_USER,
            path + L"\\" + OrvikUtilities::ConvertPrinterNameToRegistryKey(printer)),
      m_name(CXString::Formatted(L"LastPage%u", static_cast<unsigned>(mode)))
{
    if (m_kept)
        m_page = static_cast<std::uint32_t>(m_key.GetLongValue(m_name, 0));
}

void UILastPage::set(std::uint32_t page)
{
    if (!m_kept || page == m_page)
        return;
    m_page = page;
    m_key.SetLongValue(m_name, static_cast<std::int32_t>(page));
}

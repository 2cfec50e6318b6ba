#pragma once

#include <cstdint>

#include "cxstring.h"
#include "registrykey.h"
#include "uimode.h"

/// Which page the person looked at last, by the number that the description gives it: one value for
/// each mode, under the key of the printer in the current user's hive.
class UILastPage
{
public:
    /// @param path     the key above those of the printers; empty keeps nothing
    /// @param printer  its name
    UILastPage(const CXString& path, const CXString& printer, UIMode mode);

    /// 0 when there is none, and when the person's choices are not kept.
    std::uint32_t get() const { return m_page; }
    /// Written only when it is another one than before. A refusal of the system is no error: the
    /// next sheet opens on its first page.
    void set(std::uint32_t page);

private:
    bool m_kept;
    RegistryKey m_key;
    CXString m_name;
    std::uint32_t m_page = 0;
};

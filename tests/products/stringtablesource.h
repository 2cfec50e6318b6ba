// The texts read from a resource script, as the data model wants them.
#pragma once

#include "istringsource.h"

#include <map>
#include <string>

namespace o7 {

/// Texts (UTF-8) by string number.
using StringTable = std::map<unsigned, std::string>;

class StringTableSource : public IStringSource
{
public:
    explicit StringTableSource(StringTable strings) : m_strings(std::move(strings)) {}

    CXString LoadStringW(unsigned id) const override
    {
        const auto found = m_strings.find(id);
        return CXString::FromUtf8(found != m_strings.end() ? found->second
                                                           : std::string("#") + std::to_string(id));
    }

    const StringTable& table() const { return m_strings; }

private:
    StringTable m_strings;
};

} // namespace o7

#pragma once

#include <optional>
#include <vector>

#include "cxstring.h"
#include "dimension.h"

/// The words for units of length that a person may type behind a number. Signs and abbreviations
/// are known in every language; the words of a language are added.
class UIUnitNames
{
public:
    struct Unit
    {
        Dimension::UnitsEnum units;
        int factor; ///< how many of them: 10 millimetres for a centimetre
    };

    /// @param words  separated by ";"; may be empty
    void add(const CXString& words, Unit unit);
    /// Without regard to case and to a full stop behind an abbreviation.
    std::optional<Unit> find(const CXString& word) const;

private:
    struct Name
    {
        CXString word;
        Unit unit;
    };
    std::vector<Name> m_names;
};

#pragma once

#include "cxstring.h"
#include "number.h"

/// What a person typed into a field for a number: signs, digits of any script, separators of
/// thousands and of decimals, and a word behind the number, which may be a unit. No window and no
/// locale of the process: the separator is given.
///
/// A separator that the locale uses for thousands is taken for the decimal one where it cannot
/// stand for thousands ("1.5" and "0.125" where a comma is usual); otherwise the locale counts.
struct UITypedNumber
{
    enum class Fault
    {
        None,
        Empty,     ///< nothing but white space
        NotANumber ///< no digits, or digits and separators that make no number
    };

    Fault fault = Fault::None;
    Number number; ///< stops at the limits of Number, so that a huge one is just out of range
    CXString unit; ///< the word behind the number, without blanks around it; may be empty

    static UITypedNumber read(const CXString& text, wchar_t decimalSeparator);

    /// The text with the digits of other scripts as 0 to 9 and the marks of bidirectional text
    /// taken out.
    static CXString withPlainDigits(const CXString& text);
};

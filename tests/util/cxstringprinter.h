#pragma once
// Lets a failing comparison show texts as texts.

#include "cxstring.h"

#include <ostream>

inline void PrintTo(const CXString& text, std::ostream* out)
{
    *out << '"' << text.ToUtf8() << '"';
}

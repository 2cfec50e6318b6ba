#pragma once

class CXString;

/// The line formats of a dump, so that every molecule writes the same ones. Quotation marks and
/// line breaks inside texts are escaped: one control is one line.
namespace o7 {

/// `check "Collate" = "checked" [disabled] because "..."`; empty parts are left out.
void dumpControl(const wchar_t* kind, const CXString& label, const CXString& value,
                 const CXString& state, const CXString& reason);

/// `- "Two staples" [disabled] because "..."`; empty parts are left out.
void dumpOption(const CXString& text, const CXString& state, const CXString& reason);

} // namespace o7

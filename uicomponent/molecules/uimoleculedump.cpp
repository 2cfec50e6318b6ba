#include "uimoleculedump.h"

#include <string>

#include "cxstring.h"
#include "uidump.h"

namespace {

void appendQuoted(std::wstring& line, const CXString& text)
{
    line += L'"';
    for (const wchar_t* next = text.c_str(); *next; ++next) {
        if (*next == L'"' || *next == L'\\')
            line += L'\\';
        if (*next == L'\n')
            line += L"\\n";
        else
            line += *next;
    }
    line += L'"';
}

void appendState(std::wstring& line, const CXString& state)
{
    if (!state.IsEmpty())
        line.append(L" [").append(state.c_str()).append(L"]");
}

void appendReason(std::wstring& line, const CXString& reason)
{
    if (reason.IsEmpty())
        return;
    line += L" because ";
    appendQuoted(line, reason);
}

} // namespace

namespace o7 {

void dumpControl(const wchar_t* kind, const CXString& label, const CXString& value,
                 const CXString& state, const CXString& reason)
{
    if (!UIDump::isCollecting())
        return;
    std::wstring line(kind);
    line += L' ';
    appendQuoted(line, label);
    if (!value.IsEmpty()) {
        line += L" = ";
        appendQuoted(line, value);
    }
    appendState(line, state);
    appendReason(line, reason);
    UIDump::line(line);
}

void dumpOption(const CXString& text, const CXString& state, const CXString& reason)
{
    if (!UIDump::isCollecting())
        return;
    std::wstring line(L"- ");
    appendQuoted(line, text);
    appendState(line, state);
    appendReason(line, reason);
    UIDump::line(line);
}

} // namespace o7

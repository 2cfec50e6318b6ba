#pragma once

#include "cxstring.h"

#include <windows.h>

/// Where this test program lies, without a backslash at the end.
inline CXString programFolder()
{
    CXString path;
    wchar_t* const buffer = path.GetBuffer(MAX_PATH);
    path.ReleaseBuffer(static_cast<int>(GetModuleFileNameW(nullptr, buffer, MAX_PATH)));
    return path.Left(path.ReverseFind(L'\\'));
}

#include "messagebox.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include "cxstring.h"

#include <cstdio>
#endif

namespace o7 {

#if defined(_WIN32)

void showErrorBox(const wchar_t* title, const wchar_t* text)
{
    MessageBoxW(GetActiveWindow(), text, title, MB_OK | MB_ICONERROR);
}

#else

void showErrorBox(const wchar_t* title, const wchar_t* text)
{
    const std::string line = (CXString(title) + L": " + text + L"\n").ToUtf8();
    std::fwrite(line.data(), 1, line.size(), stderr);
}

#endif

} // namespace o7

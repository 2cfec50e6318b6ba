#include "messagebox.h"

#if defined(_WIN32)
#include <windows.h>
#else
#include <cstdio>
#endif

namespace o7 {

#if defined(_WIN32)

void showErrorBox(const CXString& title, const CXString& text)
{
    MessageBoxW(GetActiveWindow(), text.c_str(), title.c_str(), MB_OK | MB_ICONERROR);
}

#else

void showErrorBox(const CXString& title, const CXString& text)
{
    const std::string line = (title + L": " + text + L"\n").ToUtf8();
    std::fwrite(line.data(), 1, line.size(), stderr);
}

#endif

} // namespace o7

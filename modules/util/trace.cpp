#include "trace.h"

#include <cstdio>
#include <cstdlib>

#if defined(_WIN32)
#include <windows.h>
#endif

namespace o7 {

namespace {

void writeToDebugger(const CXString& line)
{
#if defined(_WIN32)
    OutputDebugStringW(line.c_str());
#else
    (void)line;
#endif
}

void writeToStandardError(const CXString& line)
{
    static const bool wanted = std::getenv("O7_TRACE") != nullptr;
    if (wanted) {
        const std::string utf8 = line.ToUtf8();
        std::fwrite(utf8.data(), 1, utf8.size(), stderr);
        std::fflush(stderr);
    }
}

} // namespace

void trace(const CXString& line) noexcept
{
#if defined(_WIN32)
    const DWORD lastError = GetLastError();
#endif
    try {
        const CXString whole = line + L"\n";
        writeToDebugger(whole);
        writeToStandardError(whole);
    } catch (...) {
        // A diagnostic that cannot be written must not become a failure of its own.
        (void)line;
    }
#if defined(_WIN32)
    SetLastError(lastError);
#endif
}

} // namespace o7

#include "console.h"

#include <windows.h>

#include <string>

#include "cxstring.h"

namespace o7 {
namespace {

void writeLine(DWORD standardHandle, std::wstring_view text)
{
    HANDLE stream = GetStdHandle(standardHandle);
    if (!stream || stream == INVALID_HANDLE_VALUE) {
        return;
    }
    std::wstring line(text);
    if (!line.ends_with(L'\n')) {
        line += L'\n';
    }
    DWORD written = 0;
    DWORD mode = 0;
    if (GetConsoleMode(stream, &mode)) {
        WriteConsoleW(stream, line.data(), static_cast<DWORD>(line.size()), &written, nullptr);
    } else {
        const std::string bytes = CXString(line).ToUtf8();
        WriteFile(stream, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    }
}

} // namespace

void printError(std::wstring_view text)
{
    writeLine(STD_ERROR_HANDLE, text);
}

void print(std::wstring_view text)
{
    writeLine(STD_OUTPUT_HANDLE, text);
}

} // namespace o7

#include "console.h"

#include <windows.h>

namespace o7 {
namespace {

void writeLine(DWORD standardHandle, std::wstring_view text)
{
    const HANDLE stream = GetStdHandle(standardHandle);
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
        const std::string bytes = utf8FromWide(line);
        WriteFile(stream, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
    }
}

} // namespace

std::wstring wideFromUtf8(std::string_view text)
{
    const auto length = static_cast<int>(text.size());
    std::wstring wide(
        static_cast<std::size_t>(MultiByteToWideChar(CP_UTF8, 0, text.data(), length, nullptr, 0)),
        L'\0');
    MultiByteToWideChar(CP_UTF8, 0, text.data(), length, wide.data(),
                        static_cast<int>(wide.size()));
    return wide;
}

std::string utf8FromWide(std::wstring_view text)
{
    const auto length = static_cast<int>(text.size());
    std::string bytes(static_cast<std::size_t>(WideCharToMultiByte(
                          CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr)),
                      '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(),
                        static_cast<int>(bytes.size()), nullptr, nullptr);
    return bytes;
}

void printError(std::wstring_view text)
{
    writeLine(STD_ERROR_HANDLE, text);
}

void print(std::wstring_view text)
{
    writeLine(STD_OUTPUT_HANDLE, text);
}

} // namespace o7

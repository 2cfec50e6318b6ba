#include "crashreport.h"

#include <windows.h>

#include <array>
#include <cstdio>
#include <utility>

namespace o7::story {
namespace {

CrashReport::Writer s_write; // the system calls a plain function

LONG WINAPI reportCrash(EXCEPTION_POINTERS* crash)
{
    std::array<char, 120> line{};
    std::snprintf(line.data(), line.size(),
                  "not ok the program has crashed (code 0x%08lX) in the step after the last line",
                  static_cast<unsigned long>(crash->ExceptionRecord->ExceptionCode));
    s_write(line.data());
    TerminateProcess(GetCurrentProcess(), 1);
    return EXCEPTION_EXECUTE_HANDLER;
}

} // namespace

CrashReport::CrashReport(Writer write)
{
    s_write = std::move(write);
    SetUnhandledExceptionFilter(reportCrash);
}

CrashReport::~CrashReport()
{
    SetUnhandledExceptionFilter(nullptr);
    s_write = nullptr;
}

} // namespace o7::story

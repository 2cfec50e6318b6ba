#include "clock.h"

#include <windows.h>

namespace o7::bench {

double microsecondsNow()
{
    static const double perMicrosecond = [] {
        LARGE_INTEGER frequency;
        QueryPerformanceFrequency(&frequency);
        return static_cast<double>(frequency.QuadPart) / 1e6;
    }();
    LARGE_INTEGER counter;
    QueryPerformanceCounter(&counter);
    return static_cast<double>(counter.QuadPart) / perMicrosecond;
}

double millisecondsNow()
{
    return microsecondsNow() / 1000;
}

} // namespace o7::bench

#include "resourceguard.h"
#include "processresources.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

using o7::test::ProcessResources;
using o7::test::ResourceGuard;

namespace {

using GiveBack = std::function<void()>;

HWND makeWindow(HWND parent, DWORD style)
{
    return CreateWindowExW(0, L"STATIC", L"leak", style, 0, 0, 10, 10, parent, nullptr, nullptr,
                           nullptr);
}

GiveBack windows(HWND parent, DWORD style, int below)
{
    HWND window = makeWindow(parent, style);
    for (HWND at = window; below > 0; --below)
        at = makeWindow(at, WS_CHILD);
    return [window] { DestroyWindow(window); };
}

GiveBack gdi(HGDIOBJ object)
{
    return [object] { DeleteObject(object); };
}

GiveBack startEvent()
{
    HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    return [event] { CloseHandle(event); };
}

DWORD WINAPI waitFor(void* event)
{
    WaitForSingleObject(event, 5000);
    return 0;
}

GiveBack startThread()
{
    HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
    HANDLE thread = CreateThread(nullptr, 0, waitFor, event, 0, nullptr);
    return [event, thread] {
        SetEvent(event);
        WaitForSingleObject(thread, INFINITE);
        CloseHandle(thread);
        CloseHandle(event);
    };
}

/// One way to take something; `counted` is how much its reading must grow by.
struct Case
{
    const char* name;
    ProcessResources::Items (*read)();
    std::size_t counted;
    GiveBack (*take)();
};

constexpr auto kWindows = &o7::test::windowsOfThisProcess;
constexpr auto kGdi = &o7::test::gdiObjectsOfThisProcess;
constexpr auto kHandles = &o7::test::kernelHandlesOfThisProcess;

const Case kCases[] = {
    {"window", kWindows, 1, [] { return windows(nullptr, WS_POPUP, 0); }},
    {"window with child and grandchild", kWindows, 3, [] { return windows(nullptr, WS_POPUP, 2); }},
    {"message-only window", kWindows, 1, [] { return windows(HWND_MESSAGE, 0, 0); }},
    {"brush", kGdi, 1, [] { return gdi(CreateSolidBrush(RGB(1, 2, 3))); }},
    {"pen", kGdi, 1, [] { return gdi(CreatePen(PS_SOLID, 3, 0)); }},
    {"font", kGdi, 1, [] { return gdi(CreateFontW(9, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, L"")); }},
    {"bitmap", kGdi, 1, [] { return gdi(CreateBitmap(4, 4, 1, 1, nullptr)); }},
    {"region", kGdi, 1, [] { return gdi(CreateRectRgn(0, 0, 4, 4)); }},
    {"memory device context", kGdi, 1, [] { return gdi(CreateCompatibleDC(nullptr)); }},
    {"event", kHandles, 1, startEvent},
    {"handles of a thread and its event", kHandles, 2, startThread},
    {"thread", &o7::test::threadsOfThisProcess, 1, startThread},
};

TEST(ResourceGuard, EveryReadingSeesExactlyWhatIsTakenAndGivenBack)
{
    for (const Case& one : kCases) {
        SCOPED_TRACE(one.name);
        one.take()(); // the first time the system may keep something for itself
        const ResourceGuard guard;
        const std::size_t before = one.read().size();
        std::vector<GiveBack> taken;
        for (std::size_t count = 1; count <= 3; ++count) {
            taken.push_back(one.take());
            EXPECT_EQ(one.read().size(), before + count * one.counted);
        }
        for (const GiveBack& giveBack : taken)
            giveBack();
    }
}

TEST(ResourceGuard, SaysWhatWasNotGivenBackOfTheKindsAskedFor)
{
    startThread()();
    GiveBack brush;
    GiveBack window;
    const auto leak = [](GiveBack& kept, GiveBack taken) { kept = std::move(taken); };
    EXPECT_NONFATAL_FAILURE(
        {
            const ResourceGuard guard;
            leak(brush, gdi(CreateSolidBrush(RGB(9, 9, 9))));
        },
        "came: brush");
    EXPECT_NONFATAL_FAILURE(
        {
            const ResourceGuard guard;
            leak(window, windows(nullptr, WS_POPUP, 0));
        },
        "window 'Static' \"leak\"");
    EXPECT_NONFATAL_FAILURE(
        {
            const ResourceGuard guard;
            window();
        },
        "went: window");
    ResourceGuard guard(ResourceGuard::Windows | ResourceGuard::Threads);
    brush();
    EXPECT_EQ(guard.compare(), "");
}

} // namespace

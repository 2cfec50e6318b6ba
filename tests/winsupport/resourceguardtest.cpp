#include "resourceguard.h"
#include "processresources.h"

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <functional>
#include <vector>

using o7::test::ProcessResources;
using o7::test::ResourceGuard;

namespace {

HWND makeWindow(HWND parent, DWORD style)
{
    return CreateWindowExW(0, L"STATIC", L"leak", style, 0, 0, 10, 10, parent, nullptr,
                           GetModuleHandleW(nullptr), nullptr);
}

// One way to take something, and to give it back; counted is how much the reading must grow by.
struct Case
{
    const char* name;
    ProcessResources::Items (*read)();
    std::size_t counted;
    std::function<std::function<void()>()> take;
};

std::function<void()> gdi(HGDIOBJ object)
{
    return [object] { DeleteObject(object); };
}

DWORD WINAPI waitFor(void* event)
{
    WaitForSingleObject(event, 5000);
    return 0;
}

std::function<void()> startThread()
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

std::vector<Case> cases()
{
    using o7::test::gdiObjectsOfThisProcess;
    using o7::test::kernelHandlesOfThisProcess;
    using o7::test::threadsOfThisProcess;
    using o7::test::windowsOfThisProcess;
    return {
        {"top-level window", windowsOfThisProcess, 1,
         [] {
             HWND window = makeWindow(nullptr, WS_POPUP);
             return [window] { DestroyWindow(window); };
         }},
        {"window with child and grandchild", windowsOfThisProcess, 3,
         [] {
             HWND window = makeWindow(nullptr, WS_POPUP);
             makeWindow(makeWindow(window, WS_CHILD), WS_CHILD);
             return [window] { DestroyWindow(window); };
         }},
        {"message-only window", windowsOfThisProcess, 1,
         [] {
             HWND window = makeWindow(HWND_MESSAGE, 0);
             return [window] { DestroyWindow(window); };
         }},
        {"brush", gdiObjectsOfThisProcess, 1, [] { return gdi(CreateSolidBrush(RGB(1, 2, 3))); }},
        {"pen", gdiObjectsOfThisProcess, 1, [] { return gdi(CreatePen(PS_SOLID, 3, 0)); }},
        {"font", gdiObjectsOfThisProcess, 1,
         [] {
             const LOGFONTW font{};
             return gdi(CreateFontIndirectW(&font));
         }},
        {"bitmap", gdiObjectsOfThisProcess, 1,
         [] { return gdi(CreateBitmap(4, 4, 1, 1, nullptr)); }},
        {"region", gdiObjectsOfThisProcess, 1, [] { return gdi(CreateRectRgn(0, 0, 4, 4)); }},
        {"memory device context", gdiObjectsOfThisProcess, 1,
         [] {
             HDC memory = CreateCompatibleDC(nullptr);
             return [memory] { DeleteDC(memory); };
         }},
        {"event", kernelHandlesOfThisProcess, 1,
         [] {
             HANDLE event = CreateEventW(nullptr, TRUE, FALSE, nullptr);
             return [event] { CloseHandle(event); };
         }},
        {"handles of a thread and its event", kernelHandlesOfThisProcess, 2, startThread},
        {"thread", threadsOfThisProcess, 1, startThread},
    };
}

TEST(ResourceGuard, EveryReadingSeesExactlyWhatIsTakenAndGivenBack)
{
    for (const Case& one : cases()) {
        SCOPED_TRACE(one.name);
        one.take()(); // the first time the system may keep something for itself
        const std::size_t before = one.read().size();
        std::vector<std::function<void()>> giveBack;
        for (std::size_t taken = 1; taken <= 3; ++taken) {
            giveBack.push_back(one.take());
            EXPECT_EQ(one.read().size(), before + taken * one.counted);
        }
        for (const auto& give : giveBack)
            give();
        EXPECT_EQ(one.read().size(), before);
    }
}

TEST(ResourceGuard, SaysWhatWasNotGivenBack)
{
    startThread()();
    HBRUSH brush = nullptr;
    HWND window = nullptr;
    EXPECT_NONFATAL_FAILURE(
        {
            const ResourceGuard guard;
            brush = CreateSolidBrush(RGB(9, 9, 9));
        },
        "came: brush");
    EXPECT_NONFATAL_FAILURE(
        {
            const ResourceGuard guard;
            window = makeWindow(nullptr, WS_POPUP);
        },
        "window 'Static' \"leak\"");
    EXPECT_NONFATAL_FAILURE(
        {
            const ResourceGuard guard;
            DestroyWindow(window);
        },
        "went: window");
    DeleteObject(brush);
}

TEST(ResourceGuard, IsSilentWhenEverythingWasGivenBack)
{
    const ResourceGuard guard;
    for (const Case& one : cases())
        one.take()();
}

TEST(ResourceGuard, ComparesOnlyTheKindsAskedFor)
{
    ResourceGuard guard(ResourceGuard::Windows | ResourceGuard::Threads);
    HBRUSH brush = CreateSolidBrush(RGB(4, 4, 4));
    EXPECT_EQ(guard.compare(), "");
    DeleteObject(brush);
}

} // namespace

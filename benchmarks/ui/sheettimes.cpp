#include "sheettimes.h"

#include <windows.h>

#include <prsht.h>

#include <algorithm>
#include <stdexcept>

#include "clock.h"
#include "idledriver.h"
#include "productstringloader.h"
#include "uicontainerdata.h"
#include "uidata.h"

namespace o7::bench {

namespace {

constexpr int kMillisecondsPerStep = 20000;

/// Memory in use on all heaps of the process: what the sheet's objects and windows really hold,
/// however the heaps grow.
double heapKilobytes()
{
    HANDLE heaps[64];
    const DWORD count = std::min<DWORD>(GetProcessHeaps(64, heaps), 64);
    double bytes = 0;
    for (DWORD index = 0; index < count; ++index) {
        PROCESS_HEAP_ENTRY entry{};
        while (HeapWalk(heaps[index], &entry))
            if (entry.wFlags & PROCESS_HEAP_ENTRY_BUSY)
                bytes += static_cast<double>(entry.cbData);
    }
    return bytes / 1024.0;
}

void runThrough(const Run& open, std::vector<test::IdleDriver::Step> steps)
{
    const test::IdleDriver driver(std::move(steps), kMillisecondsPerStep);
    open();
    if (!driver.failure().empty())
        throw std::runtime_error("the sheet did not follow: " + driver.failure());
}

bool pressCancel(HWND sheet)
{
    PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
    return true;
}

} // namespace

SheetTimes timeSheet(const Run& open, int visited)
{
    SheetTimes times;
    double mark = 0;
    const double memoryBefore = heapKilobytes();
    const auto lap = [&mark] {
        const double time = millisecondsNow();
        const double passed = time - mark;
        mark = time;
        return passed;
    };
    std::vector<test::IdleDriver::Step> steps{[&](HWND sheet) {
        if (!sheet)
            return false; // the queue can run empty before the sheet is there
        times.entry = lap();
        times.memory = heapKilobytes() - memoryBefore;
        return true;
    }};
    for (int turn = 1; turn <= 2 * visited; ++turn) {
        steps.push_back([&, index = turn % visited](HWND sheet) {
            lap();
            SendMessageW(sheet, PSM_SETCURSEL, static_cast<WPARAM>(index), 0);
            return true;
        });
        steps.push_back([&, turn, visited](HWND) {
            (turn < visited ? times.firstSwitches : times.laterSwitches).push_back(lap());
            return true;
        });
    }
    steps.push_back([&](HWND sheet) {
        lap();
        return pressCancel(sheet);
    });
    mark = millisecondsNow();
    runThrough(open, std::move(steps));
    times.close = lap();
    return times;
}

RawSheet recordSheet(const Run& open, const UIData& data, const ProductStringLoader& strings,
                     std::size_t visited)
{
    RawSheet recorded;
    std::vector<RawPage>& pages = recorded.pages;
    std::vector<test::IdleDriver::Step> steps;
    for (const auto& tab : data.getTabs()) {
        RawPage page;
        page.title = strings.LoadStringW(tab->getTitle()).c_str();
        page.width = tab->getWidth();
        page.height = tab->getHeight();
        pages.push_back(page);
    }
    for (std::size_t index = 0; index < std::min(visited, pages.size()); ++index) {
        steps.push_back([index](HWND sheet) {
            return sheet && SendMessageW(sheet, PSM_SETCURSEL, index, 0) != 0;
        });
        steps.push_back([&recorded, &pages, index](HWND sheet) {
            if (index == 0)
                recorded.areas = recordAreas(sheet);
            pages[index].windows = recordWindows(
                reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETCURRENTPAGEHWND, 0, 0)));
            return true;
        });
    }
    steps.push_back(&pressCancel);
    runThrough(open, std::move(steps));
    return recorded;
}

} // namespace o7::bench

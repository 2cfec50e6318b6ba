#include "pagesbench.h"

#include <windows.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <stdexcept>
#include <utility>

#include "report.h"
#include "sheettimes.h"
#include "syntheticpages.h"

namespace o7::bench {

namespace {

/// Pages, and windows of each: every size alone, fewer sizes where there are more pages.
constexpr struct
{
    int pages = 0;
    std::initializer_list<int> controls;
} kSheets[] = {{1, {5, 20, 50, 200}}, {6, {5, 50, 200}}, {16, {5, 200}}};
constexpr int kMostVisited = 3; // further pages cost the same again

/// What one sheet took in one run, as kMeasureNames says.
using Measures = std::array<double, 4>;
constexpr std::array<const char*, 4> kMeasureNames = {"entry", "first visit", "later visit",
                                                      "close"};
constexpr std::array<double, 4> kLimits = {1.15, 1.10, 1.05, 1.10};

/// All runs of one size of sheet, ours and the bare one.
struct Size
{
    int controls;
    std::array<std::vector<Measures>, 2> runs;

    std::vector<double> column(std::size_t which, std::size_t measure) const
    {
        std::vector<double> values;
        values.reserve(runs[which].size());
        for (const Measures& run : runs[which])
            values.push_back(run[measure]);
        return values;
    }
};

Measures measure(const Run& open, int pages)
{
    const SheetTimes times = timeSheet(open, std::min(pages, kMostVisited));
    return {times.entry, times.firstSwitches.empty() ? 0 : median(times.firstSwitches),
            times.laterSwitches.empty() ? 0 : median(times.laterSwitches), times.close};
}

/// The larger the sheet, the longer a run and the less a disturbance weighs.
int runsFor(int controls)
{
    return controls >= 200 ? 5 : 7;
}

Size measureSize(const std::wstring& folder, int pages, int controls)
{
    const SyntheticPages synthetic(folder, pages, controls);
    const Run ours = [&] { synthetic.run(); };
    const RawSheet recorded =
        recordSheet(ours, synthetic.data(), synthetic.session().strings(), kMostVisited);
    if (recorded.pages.front().windows.size() != static_cast<std::size_t>(controls))
        throw std::logic_error("the page has " +
                               std::to_string(recorded.pages.front().windows.size()) +
                               " windows instead of " + std::to_string(controls));
    const Run raw = [&] { runRawSheet(recorded); };
    measure(raw, pages); // what the first of a size sets up; ours has just been open
    Size size{controls, {}};
    for (int run = 0; run < runsFor(controls); ++run) {
        size.runs[0].push_back(measure(ours, pages));
        size.runs[1].push_back(measure(raw, pages));
    }
    return size;
}

void report(Report& report, int pages, const Size& size)
{
    const std::string what =
        std::to_string(pages) + " x " + std::to_string(size.controls) + " controls, ";
    for (std::size_t index = 0; index < kLimits.size(); ++index) {
        const bool isSwitch = index == 1 || index == 2;
        if (isSwitch && pages == 1)
            continue; // there is nowhere to switch to
        report.add({"pages",
                    what + kMeasureNames[index],
                    "ms",
                    size.column(0, index),
                    size.column(1, index),
                    {Goal::RatioAtMost, kLimits[index]}});
    }
}

/// What each control costs beyond those of the smallest page, in microseconds.
void reportSlope(Report& report, int pages, const Size& small, const Size& large)
{
    const std::size_t index = pages == 1 ? 0 : 1;
    const auto slopes = [&](std::size_t which) {
        const double base = median(small.column(which, index));
        std::vector<double> values = large.column(which, index);
        for (double& value : values)
            value = (value - base) * 1000 / (large.controls - small.controls);
        return values;
    };
    report.add(
        {"pages",
         std::to_string(pages) + " pages, " + kMeasureNames[index] + ", each further control",
         "us",
         slopes(0),
         slopes(1),
         {Goal::RatioAtMost, 1.10}});
}

} // namespace

void benchPages(Report& report_, const std::wstring& productFolder)
{
    for (const auto& [pages, allControls] : kSheets) {
        std::vector<Size> sizes;
        for (const int controls : allControls) {
            sizes.push_back(measureSize(productFolder, pages, controls));
            report(report_, pages, sizes.back());
        }
        reportSlope(report_, pages, sizes.front(), sizes.back());
    }
}

} // namespace o7::bench

#include <windows.h>

#include <prsht.h>

#include <algorithm>
#include <memory>
#include <stdexcept>

#include "clock.h"
#include "idledriver.h"
#include "messagerecorder.h"
#include "pagesbench.h"
#include "report.h"
#include "syntheticpages.h"

namespace o7::bench {

namespace {

constexpr int kClicks = 20; // on and off in turns
constexpr double kTwoFrames = 1000.0 / 30;

/// One window of the page, and how often it painted.
struct Watched
{
    explicit Watched(HWND window_)
        : window(window_),
          wasEnabled(IsWindowEnabled(window_) != FALSE),
          paints(std::make_unique<test::MessageRecorder>(window_,
                                                         std::initializer_list<UINT>{WM_PAINT}))
    {
    }
    bool hasChanged() const { return (IsWindowEnabled(window) != FALSE) != wasEnabled; }

    HWND window;
    bool wasEnabled;
    std::unique_ptr<test::MessageRecorder> paints;
};

/// What the clicks of one opening of the page showed.
struct Outcome
{
    std::vector<double> times; ///< ms from a click to everything painted
    std::size_t greyed = 0;    ///< windows that a click greys out
    std::size_t most = 0;      ///< WM_PAINT of one that changed, at most
    std::size_t others = 0;    ///< WM_PAINT of all that did not
};

std::vector<HWND> childrenOf(HWND page)
{
    std::vector<HWND> children;
    for (HWND child = GetWindow(page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT))
        children.push_back(child);
    return children;
}

/// Clicks the page's first control again and again, and looks on.
class Clicker
{
public:
    Outcome run(const SyntheticPages& pages)
    {
        std::vector<test::IdleDriver::Step> steps;
        for (int click = 0; click < kClicks; ++click) {
            steps.push_back([this](HWND sheet) { return sheet && begin(sheet); });
            steps.push_back([this](HWND) { return end(); });
        }
        steps.push_back([](HWND sheet) {
            PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
            return true;
        });
        const test::IdleDriver driver(std::move(steps));
        pages.run();
        if (!driver.failure().empty())
            throw std::runtime_error("the page did not follow: " + driver.failure());
        return m_outcome;
    }

private:
    bool begin(HWND sheet)
    {
        const auto page = reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
        m_watched.clear();
        for (const HWND child : childrenOf(page))
            m_watched.emplace_back(child);
        const HWND master = m_watched.front().window;
        m_start = millisecondsNow();
        SendMessageW(master, BM_CLICK, 0, 0);
        return true;
    }

    bool end()
    {
        m_outcome.times.push_back(millisecondsNow() - m_start);
        std::size_t greyed = 0;
        for (const Watched& watched : m_watched) {
            const std::size_t paints = watched.paints->messages().size();
            if (!IsWindow(watched.window))
                continue; // a mark that is not needed any more
            if (watched.hasChanged()) {
                ++greyed;
                m_outcome.most = std::max(m_outcome.most, paints);
            } else if (&watched != &m_watched.front()) { // which shows its new check
                m_outcome.others += paints;
            }
        }
        m_outcome.greyed = std::max(m_outcome.greyed, greyed);
        m_watched.clear();
        return true;
    }

    Outcome m_outcome;
    std::vector<Watched> m_watched;
    double m_start = 0;
};

} // namespace

void benchGreying(Report& report, const std::wstring& productFolder)
{
    const auto pages = SyntheticPages::greying(productFolder);
    const Outcome outcome = Clicker().run(*pages);
    report.note("a click that greys out " + std::to_string(SyntheticPages::kGreyed) +
                " molecules, " + std::to_string(outcome.greyed) + " windows");
    report.add({"greying",
                "click to everything painted",
                "ms",
                outcome.times,
                {},
                {Goal::ValueAtMost, kTwoFrames}});
    report.add({"greying",
                "WM_PAINT of a control that changes, at most",
                "",
                {static_cast<double>(outcome.most)},
                {},
                {Goal::ValueAtMost, 1}});
    report.add({"greying",
                "WM_PAINT of all the others",
                "",
                {static_cast<double>(outcome.others)},
                {},
                {Goal::ValueAtMost, 0}});
}

} // namespace o7::bench

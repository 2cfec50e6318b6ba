#include "sheetbench.h"

#include <windows.h>

#include <prsht.h>

#include <algorithm>
#include <filesystem>
#include <memory>
#include <stdexcept>

#include "clock.h"
#include "idledriver.h"
#include "rawsheet.h"
#include "report.h"
#include "sessionopener.h"
#include "sheetrig.h"
#include "tables/productids.h"
#include "uicontainerdata.h"
#include "uidata.h"
#include "uimanager.h"
#include "uirecords.h"
#include "uistringnumbers.h"

namespace o7::bench {

namespace {

constexpr int kRuns = 9;

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

HWND currentPage(HWND sheet)
{
    return reinterpret_cast<HWND>(SendMessageW(sheet, PSM_GETCURRENTPAGEHWND, 0, 0));
}

using Run = std::function<void()>;

/// Times of one opening, in milliseconds. Page switches go 1, 2, … n - 1, then the same again.
struct Times
{
    double entry = 0;
    std::vector<double> firstSwitches;
    std::vector<double> laterSwitches;
    double close = 0;
    double memory = 0;
};

Times timeSheet(const Run& open, int pages)
{
    Times times;
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
    const int switches = 2 * pages;
    for (int turn = 1; turn <= switches; ++turn) {
        const int index = turn % pages;
        steps.push_back([&, index](HWND sheet) {
            lap();
            SendMessageW(sheet, PSM_SETCURSEL, static_cast<WPARAM>(index), 0);
            return true;
        });
        steps.push_back([&, turn, pages](HWND) {
            (turn < pages ? times.firstSwitches : times.laterSwitches).push_back(lap());
            return true;
        });
    }
    steps.push_back([&](HWND sheet) {
        lap();
        PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
        return true;
    });
    const test::IdleDriver driver(std::move(steps), 20000);
    mark = millisecondsNow();
    open();
    times.close = lap();
    if (!driver.failure().empty())
        throw std::runtime_error("the sheet did not follow: " + driver.failure());
    return times;
}

/// What our sheet shows, page by page.
std::vector<RawPage> recordPages(const Run& open, const UIData& data,
                                 const ProductStringLoader& strings)
{
    std::vector<RawPage> pages;
    std::vector<test::IdleDriver::Step> steps;
    for (const auto& tab : data.getTabs()) {
        RawPage page;
        page.title = strings.LoadStringW(tab->getTitle()).c_str();
        page.width = tab->getWidth();
        page.height = tab->getHeight();
        pages.push_back(page);
    }
    for (std::size_t index = 0; index < pages.size(); ++index) {
        steps.push_back([index](HWND sheet) {
            return sheet && SendMessageW(sheet, PSM_SETCURSEL, index, 0) != 0;
        });
        steps.push_back([&pages, index](HWND sheet) {
            pages[index].windows = recordWindows(currentPage(sheet));
            return true;
        });
    }
    steps.push_back([](HWND sheet) {
        PostMessageW(sheet, PSM_PRESSBUTTON, PSBTN_CANCEL, 0);
        return true;
    });
    const test::IdleDriver driver(std::move(steps), 20000);
    open();
    if (!driver.failure().empty())
        throw std::runtime_error("the sheet did not follow: " + driver.failure());
    return pages;
}

/// Everything needed to open ours and the bare sheet in turns.
class SheetPair
{
public:
    explicit SheetPair(const std::wstring& folder)
        : m_session(openSession(folder)),
          m_data(UIMode::PrintingPreferences, DataModelIds::kValueFamily8430, Workflow::Standard)
    {
        m_ours = [this] {
            UIManager manager(m_session->productData(), nullptr, UIMode::PrintingPreferences, 0,
                              Workflow::Standard);
            manager.runAsPropertySheet(m_session->featureServices(), m_session->strings(), nullptr);
        };
        m_raw = [this] { runRawSheet(m_pages); };
    }

    void record() { m_pages = recordPages(m_ours, m_data, m_session->strings()); }
    int pageCount() const { return static_cast<int>(m_data.getTabs().size()); }
    std::size_t controlCount() const
    {
        std::size_t count = 0;
        for (const RawPage& page : m_pages)
            count += page.windows.size();
        return count;
    }
    const std::vector<RawPage>& pages() const { return m_pages; }
    const Run& ours() const { return m_ours; }
    const Run& raw() const { return m_raw; }

private:
    std::unique_ptr<ProductSession> m_session;
    UIData m_data;
    std::vector<RawPage> m_pages;
    Run m_ours;
    Run m_raw;
};

void append(std::vector<double>& to, const std::vector<double>& from)
{
    to.insert(to.end(), from.begin(), from.end());
}

void benchOpenings(Report& report, const std::wstring& folder)
{
    SheetPair sheets(folder);
    sheets.record();
    report.note("the product's sheet: " + std::to_string(sheets.pageCount()) + " pages, " +
                std::to_string(sheets.controlCount()) + " controls");
    std::vector<double> entry[2], first[2], later[2], close[2], memory[2];
    for (int run = 0; run < kRuns; ++run) {
        for (const int which : {0, 1}) {
            const Times times =
                timeSheet(which == 0 ? sheets.ours() : sheets.raw(), sheets.pageCount());
            entry[which].push_back(times.entry);
            append(first[which], times.firstSwitches);
            append(later[which], times.laterSwitches);
            close[which].push_back(times.close);
            memory[which].push_back(times.memory);
        }
    }
    const Goal goal{Goal::RatioAtMost, 1.25};
    report.add({"raw-sheet", "entry to painted, later", "ms", entry[0], entry[1], goal});
    report.add({"raw-sheet", "page switch, first visit", "ms", first[0], first[1], goal});
    report.add({"raw-sheet", "page switch, later visits", "ms", later[0], later[1], goal});
    report.add({"raw-sheet", "close", "ms", close[0], close[1], {}});
    report.add({"raw-sheet", "memory in use while open", "KiB", memory[0], memory[1], {}});
}

double firstOpeningOfProcess(const std::wstring& recording)
{
    std::wstring program(32768, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    std::wstring line = L"\"" + program + L"\" --first \"" + recording + L"\"";
    STARTUPINFOW start{};
    start.cb = sizeof start;
    PROCESS_INFORMATION process{};
    if (!CreateProcessW(program.c_str(), line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &start, &process))
        throw std::runtime_error("the measurement could not start itself");
    WaitForSingleObject(process.hProcess, INFINITE);
    DWORD microseconds = 0;
    GetExitCodeProcess(process.hProcess, &microseconds);
    CloseHandle(process.hThread);
    CloseHandle(process.hProcess);
    return microseconds / 1000.0;
}

void benchFirstOpening(Report& report, const std::wstring& folder)
{
    const std::wstring recording =
        (std::filesystem::temp_directory_path() / L"o7bench-pages.bin").wstring();
    SheetPair sheets(folder);
    sheets.record();
    savePages(sheets.pages(), recording);
    std::vector<double> ours, raw;
    for (int run = 0; run < kRuns; ++run) {
        ours.push_back(firstOpeningOfProcess({}));
        raw.push_back(firstOpeningOfProcess(recording));
    }
    std::filesystem::remove(recording);
    report.add({"raw-sheet",
                "entry to painted, first in process",
                "ms",
                ours,
                raw,
                {Goal::RatioAtMost, 1.25}});
}

// A small page, many times: what a page costs that nobody visits.
template <tagFeatureEnum feature, std::uint32_t label>
constexpr UIControlRecord kCheckControl[] = {{UIControlKind::Check, feature, label}};
template <tagFeatureEnum feature, std::uint32_t label>
constexpr UIControlRecord kComboControls[] = {{UIControlKind::Text, feature, label},
                                              {UIControlKind::Combo, feature}};
constexpr UIMoleculeRecord kMolecules[] = {
    {UIMoleculeKind::CheckBox, kCheckControl<kTonerSaving, O7STR_L_TONER_SAVING>},
    {UIMoleculeKind::CheckBox, kCheckControl<kCollate, O7STR_L_COLLATE>},
    {UIMoleculeKind::ComboBox, kComboControls<kSides, O7STR_L_SIDES>},
    {UIMoleculeKind::ComboBox, kComboControls<kPaperSize, O7STR_L_PAPER_SIZE>},
    {UIMoleculeKind::ComboBox, kComboControls<kStaple, O7STR_L_STAPLE>},
    {UIMoleculeKind::ComboBox, kComboControls<kPunch, O7STR_L_PUNCH>},
};
constexpr UIColumnRecord kColumns[] = {{7, 200, 0, kMolecules}};
constexpr UIContainerRecord smallPage(std::uint32_t id)
{
    return {id, O7STR_TAB_PAPER, 252, 218, kColumns};
}
constexpr UIContainerRecord kSixteenPages[] = {
    smallPage(1),  smallPage(2),  smallPage(3),  smallPage(4),  smallPage(5),  smallPage(6),
    smallPage(7),  smallPage(8),  smallPage(9),  smallPage(10), smallPage(11), smallPage(12),
    smallPage(13), smallPage(14), smallPage(15), smallPage(16)};
constexpr UIContainerRecord kOnePage[] = {smallPage(1)};
constexpr UIRootRecord kSixteen = {DataModelIds::kValueFamily8430, UIMode::PrintingPreferences, 0,
                                   kSixteenPages};
constexpr UIRootRecord kOne = {DataModelIds::kValueFamily8430, UIMode::PrintingPreferences, 0,
                               kOnePage};

void benchUnvisitedPages(Report& report, const std::wstring& folder)
{
    const auto session = openSession(folder);
    const UIData one(kOne, UIMode::PrintingPreferences, Workflow::Standard);
    const UIData sixteen(kSixteen, UIMode::PrintingPreferences, Workflow::Standard);
    const auto opening = [&](const UIData& data) -> Run {
        return [&session, &data] {
            test::SheetRig rig(session->productData(), session->model(), session->strings(), data);
            rig.run(PSH_NOAPPLYNOW);
        };
    };
    const auto entryOf = [&](const Run& run) { return timeSheet(run, 1).entry; };
    const auto pages = recordPages(opening(sixteen), sixteen, session->strings());
    const std::vector<RawPage> firstPage(pages.begin(), pages.begin() + 1);

    std::vector<double> ours, raw, excess;
    constexpr double kUnvisited = 15;
    for (int run = 0; run < kRuns; ++run) {
        ours.push_back((entryOf(opening(sixteen)) - entryOf(opening(one))) / kUnvisited);
        raw.push_back(
            (entryOf([&] { runRawSheet(pages); }) - entryOf([&] { runRawSheet(firstPage); })) /
            kUnvisited);
        excess.push_back(ours.back() - raw.back());
    }
    report.add({"raw-sheet", "one page that is never shown", "ms", ours, raw, {}});
    report.add(
        {"raw-sheet", "the same, over a bare page", "ms", excess, {}, {Goal::ValueAtMost, 0.5}});
}

} // namespace

unsigned long firstOpening(const std::wstring& productFolder, const std::wstring& recording)
{
    Run open;
    std::unique_ptr<SheetPair> sheets;
    std::vector<RawPage> pages;
    if (recording.empty()) {
        sheets = std::make_unique<SheetPair>(productFolder);
        open = sheets->ours();
    } else {
        pages = loadPages(recording);
        open = [&pages] { runRawSheet(pages); };
    }
    return static_cast<unsigned long>(timeSheet(open, 1).entry * 1000);
}

void benchRawSheet(Report& report, const std::wstring& productFolder)
{
    benchOpenings(report, productFolder);
    benchUnvisitedPages(report, productFolder);
    benchFirstOpening(report, productFolder);
}

} // namespace o7::bench

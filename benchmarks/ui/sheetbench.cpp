#include "sheetbench.h"

#include <windows.h>

#include <prsht.h>

#include <filesystem>
#include <memory>
#include <stdexcept>

#include "rawsheet.h"
#include "report.h"
#include "sessionopener.h"
#include "sheetrig.h"
#include "sheettimes.h"
#include "tables/productids.h"
#include "uicontainerdata.h"
#include "uidata.h"
#include "uimanager.h"
#include "uirecords.h"
#include "uistringnumbers.h"

namespace o7::bench {

namespace {

constexpr int kRuns = 9;
constexpr std::size_t kAllPages = 16;

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
        m_raw = [this] { runRawSheet(m_recorded); };
    }

    void record() { m_recorded = recordSheet(m_ours, m_data, m_session->strings(), kAllPages); }
    int pageCount() const { return static_cast<int>(m_data.getTabs().size()); }
    std::size_t controlCount() const
    {
        std::size_t count = 0;
        for (const RawPage& page : m_recorded.pages)
            count += page.windows.size();
        for (const RawArea& area : m_recorded.areas)
            count += area.windows.size();
        return count;
    }
    const RawSheet& recorded() const { return m_recorded; }
    const Run& ours() const { return m_ours; }
    const Run& raw() const { return m_raw; }

private:
    std::unique_ptr<ProductSession> m_session;
    UIData m_data;
    RawSheet m_recorded;
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
            const SheetTimes times =
                timeSheet(which == 0 ? sheets.ours() : sheets.raw(), sheets.pageCount());
            entry[which].push_back(times.entry);
            append(first[which], times.firstSwitches);
            append(later[which], times.laterSwitches);
            close[which].push_back(times.close);
            memory[which].push_back(times.memory);
        }
    }
    const auto goal = [](double limit) { return Goal{Goal::RatioAtMost, limit}; };
    report.add({"raw-sheet", "entry to painted, later", "ms", entry[0], entry[1], goal(1.15)});
    report.add({"raw-sheet", "page switch, first visit", "ms", first[0], first[1], goal(1.10)});
    report.add({"raw-sheet", "page switch, later visits", "ms", later[0], later[1], goal(1.05)});
    report.add({"raw-sheet", "close", "ms", close[0], close[1], goal(1.10)});
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
    saveSheet(sheets.recorded(), recording);
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
                {Goal::RatioAtMost, 1.15}});
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
    const auto pages = recordSheet(opening(sixteen), sixteen, session->strings(), kAllPages);
    const RawSheet firstPage{{pages.pages.front()}, {}};

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
    RawSheet recorded;
    if (recording.empty()) {
        sheets = std::make_unique<SheetPair>(productFolder);
        open = sheets->ours();
    } else {
        recorded = loadSheet(recording);
        open = [&recorded] { runRawSheet(recorded); };
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

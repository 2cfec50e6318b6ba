#include "routingbench.h"

#include <windows.h>

#include <memory>
#include <stdexcept>
#include <vector>

#include "allocations.h"
#include "clock.h"
#include "isolationaware.h"
#include "report.h"
#include "sessionopener.h"
#include "sheetrig.h"
#include "uidata.h"
#include "uimessagemanager.h"
#include "uimolecule.h"
#include "uirecords.h"
#include "uitab.h"
#include "uitabmanager.h"

namespace o7::bench {

namespace {

constexpr int kRuns = 9;
constexpr std::size_t kTabs = 16;

// Fifty lines of explanation on each page: molecules whose handling of a message is the least there
// is, so that the routing shows.
constexpr UIControlRecord kLine[] = {{UIControlKind::Text}};
constexpr UIMoleculeRecord kText = {UIMoleculeKind::Text, kLine};
#define O7_TEN kText, kText, kText, kText, kText, kText, kText, kText, kText, kText
constexpr UIMoleculeRecord kFifty[] = {O7_TEN, O7_TEN, O7_TEN, O7_TEN, O7_TEN};
#undef O7_TEN
constexpr UIColumnRecord kColumns[] = {{7, 200, 0, kFifty}};
constexpr UIContainerRecord page(std::uint32_t id)
{
    return {id, 0, 252, 800, kColumns};
}
constexpr UIContainerRecord kPages[] = {page(1),  page(2),  page(3),  page(4),  page(5),  page(6),
                                        page(7),  page(8),  page(9),  page(10), page(11), page(12),
                                        page(13), page(14), page(15), page(16)};
constexpr UIRootRecord kRoot = {DataModelIds::kValueFamily8430, UIMode::PrintingPreferences, 0,
                                kPages};

template <class Call> double nanosecondsPerCall(int calls, Call call)
{
    const double start = microsecondsNow();
    for (int index = 0; index < calls; ++index)
        call();
    return (microsecondsNow() - start) * 1000 / calls;
}

void addUnwanted(Report& report, test::SheetRig& rig)
{
    const _UIWindowsMessage message{UIMessageKind::TabPage, GetDesktopWindow(), WM_KEYUP, 0, 0, 0};
    std::vector<double> runs;
    runs.reserve(kRuns);
    const auto allocations = allocationCount();
    for (int run = 0; run < kRuns; ++run)
        runs.push_back(nanosecondsPerCall(2000000, [&] { rig.messages().handleMessage(message); }));
    const auto grown = allocationCount() - allocations;
    report.add({"routing", "a message nobody wants", "ns", runs, {}, {Goal::ValueAtMost, 20}});
    report.note("allocations meanwhile: " + std::to_string(grown));
}

void addDeclined(Report& report, test::SheetRig& rig)
{
    const _UIWindowsMessage message{UIMessageKind::TabPage,
                                    GetDesktopWindow(),
                                    WM_COMMAND,
                                    0,
                                    reinterpret_cast<LPARAM>(GetDesktopWindow()),
                                    0}; // from a control of nobody's
    const auto& tabs = rig.tabs().getTabs();
    std::vector<UIMolecule*> molecules;
    for (const auto& tab : tabs)
        molecules.insert(molecules.end(), tab->getMolecules().begin(), tab->getMolecules().end());
    std::vector<double> routed, plain;
    bool claimed = false;
    for (int run = 0; run < kRuns; ++run) {
        routed.push_back(nanosecondsPerCall(5000, [&] {
            for (const auto& tab : tabs)
                claimed |= tab->offerToMolecules(message);
        }));
        plain.push_back(nanosecondsPerCall(5000, [&] {
            for (UIMolecule* molecule : molecules)
                claimed |= molecule->HandleMessage(message);
        }));
    }
    if (claimed)
        throw std::logic_error("a text claimed a command");
    report.add(
        {"routing", "a message all 800 decline", "ns", routed, plain, {Goal::RatioAtMost, 1.2}});
}

} // namespace

void benchRouting(Report& report, const std::wstring& productFolder)
{
    const auto session = openSession(productFolder);
    const UIData data(kRoot, UIMode::PrintingPreferences, Workflow::Standard);
    test::SheetRig rig(session->productData(), session->model(), session->strings(), data);
    std::vector<const UIContainerData*> descriptions;
    for (const auto& tab : data.getTabs())
        descriptions.push_back(tab.get());
    HPROPSHEETPAGE handles[kTabs]{};
    rig.tabs().createPagesForPropertySheet(descriptions, handles, kTabs, nullptr);
    if (rig.tabs().getTabs().size() != kTabs)
        throw std::logic_error("the pages of the measurement do not fit");
    rig.messages().append(UIMessageKind::TabPage, rig.tabs());
    addUnwanted(report, rig);
    addDeclined(report, rig);
    for (const HPROPSHEETPAGE handle : handles)
        IsolationAware::destroyPropertySheetPage(handle);
}

} // namespace o7::bench

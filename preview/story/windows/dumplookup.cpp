#include "dumplookup.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "otherwindow.h"
#include "stepfailure.h"

namespace o7::story {
namespace {

struct KindRow
{
    ControlKind kind;
    std::string_view inDump;
};

constexpr std::array<KindRow, 7> kKinds{{{ControlKind::CheckBox, "check"},
                                         {ControlKind::RadioGroup, "radio buttons"},
                                         {ControlKind::List, "list"},
                                         {ControlKind::Field, "spin"},
                                         {ControlKind::Field, "edit"},
                                         {ControlKind::Slider, "slider"},
                                         {ControlKind::Button, "button"}}};

bool isOfKind(const DumpLine& line, ControlKind kind)
{
    return std::ranges::any_of(
        kKinds, [&](const KindRow& row) { return row.kind == kind && row.inDump == line.kind; });
}

/// Windows and lines come in the same order, so the n-th of a kind is the n-th of the lines.
std::size_t positionOf(HWND page, const PageControl& wanted)
{
    std::size_t position = 0;
    for (const PageControl& control : controlsOf(page)) {
        if (control.window == wanted.window) {
            break;
        }
        position += control.kind == wanted.kind ? 1 : 0;
    }
    return position;
}

} // namespace

std::span<const DumpLine> dumpOfPage(const DumpText& dump, const FrontWindow& window)
{
    if (!window.isSheet()) {
        return dump.under("dialog", window.caption());
    }
    const auto tabs = window.tabs();
    const auto current = static_cast<std::size_t>(window.currentTab());
    return current < tabs.size() ? dump.under("tab", tabs[current]) : std::span<const DumpLine>();
}

std::vector<DumpLine> dumpLinesOf(const DumpText& dump, const FrontWindow& window,
                                  const PageControl& control)
{
    const auto lines = dumpOfPage(dump, window);
    std::size_t left = positionOf(window.page(), control);
    const auto found = std::ranges::find_if(
        lines, [&](const DumpLine& line) { return isOfKind(line, control.kind) && left-- == 0; });
    if (found == lines.end() || (!found->label.empty() && !found->isLabelled(control.label))) {
        throw StepFailure("The user interface says nothing of " + quoted(control.fullName()) + ".");
    }
    std::vector<DumpLine> result{*found};
    for (auto entry = found + 1; entry != lines.end() && entry->level > found->level; ++entry) {
        if (entry->kind == "-") {
            result.push_back(*entry);
        }
    }
    return result;
}

} // namespace o7::story

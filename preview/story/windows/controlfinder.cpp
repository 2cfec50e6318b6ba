#include "controlfinder.h"

#include <algorithm>
#include <string>
#include <vector>

#include "otherwindow.h"
#include "stepfailure.h"

namespace o7::story {
namespace {

using Kinds = std::initializer_list<ControlKind>;

bool isOneOf(ControlKind kind, Kinds kinds)
{
    return std::ranges::find(kinds, kind) != kinds.end();
}

std::string kindName(ControlKind kind)
{
    switch (kind) {
    case ControlKind::CheckBox:
        return "check box";
    case ControlKind::RadioGroup:
        return "group of radio buttons";
    case ControlKind::List:
        return "list";
    case ControlKind::Field:
        return "field";
    case ControlKind::Slider:
        return "slider";
    case ControlKind::Button:
        break;
    }
    return "button";
}

std::string namesOf(const std::vector<PageControl>& controls)
{
    std::string names;
    for (const PageControl& control : controls) {
        names.append(names.empty() ? "" : ", ").append(quoted(control.fullName()));
    }
    return names.empty() ? "nothing" : names;
}

std::string placeOf(const FrontWindow& window)
{
    if (!window.isSheet()) {
        return "in " + quoted(window.caption());
    }
    const auto tabs = window.tabs();
    const auto current = static_cast<std::size_t>(window.currentTab());
    return current < tabs.size() ? "on the page " + quoted(tabs[current].title) : "on the page";
}

} // namespace

PageControl findControl(const FrontWindow& window, const ControlName& name, Kinds kinds,
                        bool hiddenToo)
{
    std::vector<PageControl> meant;
    std::vector<PageControl> ofOtherKind;
    std::vector<PageControl> hidden;
    std::vector<PageControl> shown;
    for (const PageControl& control : controlsOf(window.page())) {
        const bool isShown = control.isShown();
        if (isShown) {
            shown.push_back(control);
        }
        if (!name.matches(control.group, control.label)) {
            continue;
        }
        if (!isOneOf(control.kind, kinds)) {
            ofOtherKind.push_back(control);
        } else if (isShown) {
            meant.push_back(control);
        } else {
            hidden.push_back(control);
        }
    }
    if (meant.empty() && hiddenToo) {
        meant = hidden;
    }
    const std::string meantName = quoted(name.text());
    if (meant.size() > 1) {
        throw StepFailure(meantName + " stands more than once " + placeOf(window) + ": " +
                          namesOf(meant) + ".");
    }
    if (meant.empty()) {
        throw StepFailure(!hidden.empty() ? meantName + " is hidden."
                          : !ofOtherKind.empty()
                              ? meantName + " is a " + kindName(ofOtherKind.front().kind) + "."
                              : "There is no " + meantName + " " + placeOf(window) +
                                    "; there are: " + namesOf(shown) + ".");
    }
    return meant.front();
}

} // namespace o7::story

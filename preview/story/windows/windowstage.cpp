#include "windowstage.h"

#include <algorithm>
#include <iterator>
#include <utility>
#include <vector>

#include "controlfinder.h"
#include "controlreading.h"
#include "dumplookup.h"
#include "keycodes.h"
#include "otherwindow.h"
#include "personinput.h"
#include "stepfailure.h"

namespace o7::story {
namespace {

using Kinds = std::initializer_list<ControlKind>;

constexpr int kWaitMilliseconds = 10000;
constexpr DWORD kPollMilliseconds = 5;
constexpr Kinds kWithValue{ControlKind::CheckBox, ControlKind::RadioGroup, ControlKind::List,
                           ControlKind::Field, ControlKind::Slider};
constexpr Kinds kAll{ControlKind::CheckBox, ControlKind::RadioGroup, ControlKind::List,
                     ControlKind::Field,    ControlKind::Slider,     ControlKind::Button};

std::string listed(const std::vector<std::string>& texts)
{
    std::string list;
    for (const std::string& text : texts) {
        list += (list.empty() ? "" : ", ") + quoted(text);
    }
    return list.empty() ? "none" : list;
}

/// Whether a click that meets `hit` goes to the window. A group box around it lets the mouse
/// through, which only its own thread is told.
bool isHit(HWND window, HWND hit)
{
    constexpr LONG_PTR kType = 0xF;
    const bool isGroupBox = hasClass(hit, L"Button") &&
                            (GetWindowLongPtrW(hit, GWL_STYLE) & kType) == BS_GROUPBOX &&
                            GetParent(hit) == GetParent(window);
    return hit == window || IsChild(window, hit) || isGroupBox;
}

} // namespace

bool WindowStage::waitFor(const std::function<bool()>& condition) const
{
    const ULONGLONG end = GetTickCount64() + kWaitMilliseconds;
    while (!condition()) {
        if (GetTickCount64() >= end) {
            return false;
        }
        Sleep(kPollMilliseconds);
    }
    return true;
}

void WindowStage::open()
{
    start();
    const auto isThere = [this] { return front().handle() != nullptr || closed(); };
    if (!waitFor(isThere)) {
        throw StepFailure("No window came up.");
    }
    if (closed()) {
        throw StepFailure("The window was closed before anybody saw it.");
    }
    SetForegroundWindow(front().handle());
    settle();
}

void WindowStage::leave()
{
    const ULONGLONG end = GetTickCount64() + kWaitMilliseconds;
    while (!closed() && GetTickCount64() < end) {
        if (const FrontWindow window = front(); window.handle() != nullptr) {
            window.cancel();
        }
        settle();
    }
    if (!closed()) {
        throw StepFailure("The window does not close; on screen is " + front().description() + ".");
    }
}

/// The window in front, which is no message box.
FrontWindow WindowStage::usable() const
{
    FrontWindow window = front();
    if (window.handle() == nullptr) {
        throw StepFailure("No window is open.");
    }
    if (window.isMessage()) {
        throw StepFailure("A message is open: " + window.description() + ".");
    }
    if (window.page() == nullptr) {
        throw StepFailure("The window shows no page.");
    }
    return window;
}

PageControl WindowStage::findUsable(const ControlName& name, Kinds kinds) const
{
    PageControl control = findControl(usable(), name, kinds);
    if (!isEnabled(control)) {
        throw StepFailure(quoted(name.text()) + " is grey.");
    }
    return control;
}

void WindowStage::clickOn(HWND window, const std::string& name)
{
    const POINT place = input::middleOf(window);
    HWND hit = WindowFromPoint(place);
    if (!isHit(window, hit)) {
        throw StepFailure(quoted(name) + " cannot be clicked: it is covered, grey or cut off.");
    }
    input::click(place);
    settle();
}

void WindowStage::pressKey(WORD key, std::initializer_list<WORD> held)
{
    input::key(key, {held.begin(), held.size()});
    settle();
}

void WindowStage::page(const std::string& title)
{
    const FrontWindow window = usable();
    const auto tabs = window.tabs();
    const auto found =
        std::ranges::find_if(tabs, [&](const TabTitle& tab) { return tab.isOf(title); });
    if (found == tabs.end()) {
        std::vector<std::string> titles;
        std::ranges::transform(tabs, std::back_inserter(titles), &TabTitle::title);
        throw StepFailure("There is no page " + quoted(title) + "; there are: " + listed(titles) +
                          ".");
    }
    const int wanted = static_cast<int>(found - tabs.begin());
    if (window.currentTab() != wanted) {
        input::click(window.placeOfTab(wanted));
        settle();
    }
    // A tab that is out of sight cannot be clicked; the sheet may refuse to turn, too.
    for (std::size_t i = 0; i < tabs.size() && !front().isMessage() && front().isSheet() &&
                            front().currentTab() != wanted;
         ++i) {
        pressKey(VK_TAB, {VK_CONTROL});
    }
    if (front().isSheet() && front().currentTab() != wanted) {
        throw StepFailure("The sheet does not turn to the page " + quoted(title) + ".");
    }
}

void WindowStage::choose(const ControlName& name, const std::string& entry)
{
    const PageControl control = findUsable(name, {ControlKind::List, ControlKind::RadioGroup});
    if (control.kind == ControlKind::List) {
        return pickFromList(control, entry);
    }
    HWND button = radioButton(control, entry);
    if (button == nullptr) {
        throw StepFailure(quoted(name.text()) + " has no button " + quoted(entry) +
                          "; there are: " + listed(entriesOf(control)) + ".");
    }
    if (!IsWindowEnabled(button)) {
        throw StepFailure("The button " + quoted(entry) + " is grey.");
    }
    clickOn(button, entry);
}

/// Opens the list with the mouse, walks with the arrow keys, which pass over grey entries, and
/// takes the entry with Enter.
void WindowStage::pickFromList(const PageControl& list, const std::string& entry)
{
    const auto entries = entriesOf(list);
    const auto found = std::ranges::find(entries, entry);
    if (found == entries.end()) {
        throw StepFailure(quoted(list.label) + " has no entry " + quoted(entry) +
                          "; there are: " + listed(entries) + ".");
    }
    clickOn(list.window, list.label);
    const bool dropsDown = isDropDown(list);
    if (dropsDown && !waitFor([&] { return ask(list.window, CB_GETDROPPEDSTATE) != 0; })) {
        throw StepFailure("The list " + quoted(list.label) + " does not open.");
    }
    walkTo(list, static_cast<int>(found - entries.begin()), entry);
    if (dropsDown) {
        pressKey(VK_RETURN);
    }
}

void WindowStage::walkTo(const PageControl& list, int wanted, const std::string& entry)
{
    int at = chosenIndex(list);
    while (at != wanted) {
        const int before = at;
        pressKey(at < wanted ? WORD{VK_DOWN} : WORD{VK_UP});
        at = chosenIndex(list);
        const bool passed = before < wanted ? at > wanted : at < wanted;
        if (at == before || passed) {
            pressKey(VK_ESCAPE);
            throw StepFailure("The entry " + quoted(entry) + " of " + quoted(list.label) +
                              " is grey.");
        }
    }
}

void WindowStage::tick(const ControlName& name, bool checked)
{
    const PageControl box = findUsable(name, {ControlKind::CheckBox});
    const std::string wanted = checked ? "checked" : "unchecked";
    for (int clicks = 0; shownValue(box) != wanted; ++clicks) {
        if (clicks == 2) { // of three states
            throw StepFailure(quoted(name.text()) + " stays " + shownValue(box) + ".");
        }
        clickOn(box.window, name.text());
    }
}

void WindowStage::focusOn(const PageControl& control, const std::string& name)
{
    HWND window = control.kind == ControlKind::RadioGroup ? nullptr : control.window;
    for (HWND button : control.radioButtons) {
        if (window == nullptr || ask(button, BM_GETCHECK) == BST_CHECKED) {
            window = button;
        }
    }
    switch (control.kind) {
    case ControlKind::Field:
        return clickOn(window, name);
    default:
        // A click would change it. This is what Tab does in the end.
        ask(GetAncestor(window, GA_PARENT), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(window), TRUE);
        settle();
    }
}

void WindowStage::type(const ControlName& name, const std::string& text)
{
    const PageControl field = findUsable(name, {ControlKind::Field});
    clickOn(field.window, name.text());
    constexpr WORD kToStart[] = {VK_CONTROL};
    constexpr WORD kSelect[] = {VK_CONTROL, VK_SHIFT};
    input::key(VK_HOME, kToStart);
    input::key(VK_END, kSelect);
    if (text.empty()) {
        input::key(VK_DELETE);
    }
    input::text(wide(text));
    settle();
}

void WindowStage::key(const Chord& chord, const ControlName& name)
{
    if (!name.empty()) {
        focusOn(findUsable(name, kAll), name.text());
    }
    std::vector<WORD> held;
    const std::pair<bool, WORD> modifiers[] = {
        {chord.ctrl, VK_CONTROL}, {chord.alt, VK_MENU}, {chord.shift, VK_SHIFT}};
    for (const auto& [isHeld, modifier] : modifiers) {
        if (isHeld) {
            held.push_back(modifier);
        }
    }
    input::key(keyCode(chord.key), held);
    settle();
}

void WindowStage::press(const std::string& text)
{
    const FrontWindow window = usable();
    HWND button = window.button(text);
    if (button == nullptr) {
        throw StepFailure("There is no button " + quoted(text) + " in " + window.description() +
                          ".");
    }
    if (!IsWindowEnabled(button)) {
        throw StepFailure("The button " + quoted(text) + " is grey.");
    }
    clickOn(button, text);
}

void WindowStage::answer(const std::string& text)
{
    const FrontWindow window = front();
    if (!window.isMessage()) {
        throw StepFailure("No message is open.");
    }
    HWND button = window.button(text);
    if (button == nullptr) {
        throw StepFailure("The message has no button " + quoted(text) + ": " +
                          window.description() + ".");
    }
    clickOn(button, text);
}

std::string WindowStage::value(const ControlName& name)
{
    return shownValue(findControl(usable(), name, kWithValue));
}

DumpText WindowStage::dumpNow()
{
    auto text = dump();
    if (!text) {
        throw StepFailure("This entry does not tell reasons and marks.");
    }
    return *std::move(text);
}

DumpLine WindowStage::lineOf(const ControlName& name)
{
    const FrontWindow window = usable();
    return dumpLinesOf(dumpNow(), window, findControl(window, name, kAll, true)).front();
}

DumpLine WindowStage::lineOfEntry(const ControlName& name, const std::string& entry)
{
    const FrontWindow window = usable();
    const PageControl control =
        findControl(window, name, {ControlKind::List, ControlKind::RadioGroup}, true);
    const auto lines = dumpLinesOf(dumpNow(), window, control);
    const auto found = std::find_if(lines.begin() + 1, lines.end(),
                                    [&](const DumpLine& line) { return line.isLabelled(entry); });
    if (found == lines.end()) {
        throw StepFailure(quoted(name.text()) + " has no entry " + quoted(entry) +
                          "; there are: " + listed(entriesOf(control)) + ".");
    }
    return *found;
}

ControlState WindowStage::state(const ControlName& name)
{
    const FrontWindow window = usable();
    const PageControl control = findControl(window, name, kAll, true);
    ControlState state;
    state.hidden = !control.isShown();
    state.enabled = isEnabled(control);
    state.empty = control.kind != ControlKind::Button && shownValue(control).empty();
    if (const auto text = dump()) {
        const DumpLine line = dumpLinesOf(*text, window, control).front();
        state.empty = state.empty || line.is("cleared");
        state.conflict = line.is("conflict");
    }
    return state;
}

std::string WindowStage::reason(const ControlName& name)
{
    return lineOf(name).reason;
}

ControlState WindowStage::entryState(const ControlName& name, const std::string& entry)
{
    const DumpLine line = lineOfEntry(name, entry);
    const auto shown = entriesOf(findControl(usable(), name, kAll, true));
    ControlState state;
    state.hidden = std::ranges::find(shown, entry) == shown.end();
    state.enabled = !line.is("disabled") && !line.is("hidden");
    state.conflict = line.is("conflict");
    return state;
}

std::string WindowStage::entryReason(const ControlName& name, const std::string& entry)
{
    return lineOfEntry(name, entry).reason;
}

std::string WindowStage::status()
{
    std::string text = usable().statusText();
    if (text.empty()) {
        throw StepFailure("This window has no status line.");
    }
    return text;
}

std::optional<std::string> WindowStage::message()
{
    const FrontWindow window = front();
    return window.isMessage() ? std::optional(window.messageText()) : std::nullopt;
}

bool WindowStage::tabMarked(const std::string& title)
{
    for (const TabTitle& tab : usable().tabs()) {
        if (tab.isOf(title)) {
            return tab.marked;
        }
    }
    throw StepFailure("There is no page " + quoted(title) + ".");
}

/// A dialog has no status line; there the marks count.
int WindowStage::conflictCount()
{
    const FrontWindow window = usable();
    if (const std::string text = window.statusText(); !text.empty()) {
        return countInStatus(text);
    }
    const DumpText text = dumpNow();
    const auto lines = dumpOfPage(text, window);
    return static_cast<int>(
        std::ranges::count_if(lines, [](const DumpLine& line) { return line.is("conflict"); }));
}

int WindowStage::countInStatus(const std::string&)
{
    throw StepFailure("This entry does not count conflicts.");
}

} // namespace o7::story

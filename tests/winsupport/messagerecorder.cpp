#include "messagerecorder.h"

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <map>

namespace o7::test {
namespace {

// Which recorder stands before which window. Windows belong to threads, so this does too.
std::map<HWND, MessageRecorder*>& recorders()
{
    thread_local std::map<HWND, MessageRecorder*> table;
    return table;
}

struct Name
{
    UINT message;
    const char* name;
};

constexpr Name names[] = {
    {WM_CREATE, "WM_CREATE"},
    {WM_DESTROY, "WM_DESTROY"},
    {WM_SIZE, "WM_SIZE"},
    {WM_SETFOCUS, "WM_SETFOCUS"},
    {WM_KILLFOCUS, "WM_KILLFOCUS"},
    {WM_ENABLE, "WM_ENABLE"},
    {WM_SETTEXT, "WM_SETTEXT"},
    {WM_GETTEXT, "WM_GETTEXT"},
    {WM_PAINT, "WM_PAINT"},
    {WM_CLOSE, "WM_CLOSE"},
    {WM_ERASEBKGND, "WM_ERASEBKGND"},
    {WM_SHOWWINDOW, "WM_SHOWWINDOW"},
    {WM_SETCURSOR, "WM_SETCURSOR"},
    {WM_DRAWITEM, "WM_DRAWITEM"},
    {WM_MEASUREITEM, "WM_MEASUREITEM"},
    {WM_SETFONT, "WM_SETFONT"},
    {WM_WINDOWPOSCHANGING, "WM_WINDOWPOSCHANGING"},
    {WM_WINDOWPOSCHANGED, "WM_WINDOWPOSCHANGED"},
    {WM_NOTIFY, "WM_NOTIFY"},
    {WM_HELP, "WM_HELP"},
    {WM_CONTEXTMENU, "WM_CONTEXTMENU"},
    {WM_NCCREATE, "WM_NCCREATE"},
    {WM_NCDESTROY, "WM_NCDESTROY"},
    {WM_GETDLGCODE, "WM_GETDLGCODE"},
    {WM_KEYDOWN, "WM_KEYDOWN"},
    {WM_KEYUP, "WM_KEYUP"},
    {WM_CHAR, "WM_CHAR"},
    {WM_INITDIALOG, "WM_INITDIALOG"},
    {WM_COMMAND, "WM_COMMAND"},
    {WM_TIMER, "WM_TIMER"},
    {WM_HSCROLL, "WM_HSCROLL"},
    {WM_VSCROLL, "WM_VSCROLL"},
    {WM_CTLCOLOREDIT, "WM_CTLCOLOREDIT"},
    {WM_CTLCOLORBTN, "WM_CTLCOLORBTN"},
    {WM_CTLCOLORSTATIC, "WM_CTLCOLORSTATIC"},
    {WM_MOUSEMOVE, "WM_MOUSEMOVE"},
    {WM_LBUTTONDOWN, "WM_LBUTTONDOWN"},
    {WM_LBUTTONUP, "WM_LBUTTONUP"},
};

std::string nameOf(UINT message)
{
    for (const Name& known : names) {
        if (known.message == message)
            return known.name;
    }
    char number[16];
    std::snprintf(number, sizeof number, "0x%04x", message);
    return number;
}

std::string textOf(const RecordedMessage& recorded)
{
    char parameters[64];
    std::snprintf(parameters, sizeof parameters, "(0x%llx, 0x%llx)",
                  static_cast<unsigned long long>(recorded.wParam),
                  static_cast<unsigned long long>(recorded.lParam));
    return nameOf(recorded.message) + parameters;
}

std::string textOf(const ExpectedMessage& expected)
{
    const auto value = [](const auto& parameter) {
        char text[32] = "any";
        if (parameter)
            std::snprintf(text, sizeof text, "0x%llx", static_cast<unsigned long long>(*parameter));
        return std::string(text);
    };
    return nameOf(expected.message) + "(" + value(expected.wParam) + ", " + value(expected.lParam) +
           ")";
}

bool matches(const ExpectedMessage& expected, const RecordedMessage& recorded)
{
    return expected.message == recorded.message &&
           expected.wParam.value_or(recorded.wParam) == recorded.wParam &&
           expected.lParam.value_or(recorded.lParam) == recorded.lParam;
}

} // namespace

MessageRecorder::MessageRecorder(HWND window, std::initializer_list<UINT> wanted)
    : window_(window), previous_(nullptr), wanted_(wanted)
{
    recorders()[window] = this;
    previous_ = reinterpret_cast<WNDPROC>(
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&procedure)));
}

MessageRecorder::~MessageRecorder()
{
    restore();
}

void MessageRecorder::restore()
{
    if (window_ == nullptr)
        return;
    SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(previous_));
    recorders().erase(window_);
    window_ = nullptr;
}

bool MessageRecorder::wants(UINT message) const
{
    return wanted_.empty() || std::find(wanted_.begin(), wanted_.end(), message) != wanted_.end();
}

LRESULT CALLBACK MessageRecorder::procedure(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    const auto found = recorders().find(window);
    if (found == recorders().end())
        return DefWindowProcW(window, message, wParam, lParam);
    MessageRecorder& recorder = *found->second;
    const WNDPROC previous = recorder.previous_;
    if (recorder.wants(message))
        recorder.messages_.push_back({message, wParam, lParam});
    if (message == WM_NCDESTROY)
        recorder.restore();
    return CallWindowProcW(previous, window, message, wParam, lParam);
}

std::string MessageRecorder::compare(std::span<const ExpectedMessage> table) const
{
    std::string fault;
    auto row = table.begin();
    for (const RecordedMessage& recorded : messages_) {
        while (row != table.end() && !matches(*row, recorded) &&
               row->presence == ExpectedMessage::Optional)
            ++row;
        if (row == table.end() || !matches(*row, recorded)) {
            fault = "expected " + (row == table.end() ? "nothing more" : textOf(*row)) + ", came " +
                    textOf(recorded);
            break;
        }
        ++row;
    }
    if (fault.empty()) {
        while (row != table.end() && row->presence == ExpectedMessage::Optional)
            ++row;
        if (row == table.end())
            return {};
        fault = "expected " + textOf(*row) + ", nothing more came";
    }
    fault += "\nrecorded:";
    for (const RecordedMessage& recorded : messages_)
        fault += "\n  " + textOf(recorded);
    return fault;
}

} // namespace o7::test

#include "messagerecorder.h"

#include <algorithm>
#include <array>
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

std::string hexadecimal(unsigned long long value, int digits)
{
    std::array<char, 32> text{};
    std::snprintf(text.data(), text.size(), "0x%0*llx", digits, value);
    return text.data();
}

std::string textOf(const ExpectedMessage& expected)
{
    const auto value = [](const auto& parameter) {
        return parameter ? hexadecimal(static_cast<unsigned long long>(*parameter), 1) : "any";
    };
    return hexadecimal(expected.message, 4) + "(" + value(expected.wParam) + ", " +
           value(expected.lParam) + ")";
}

std::string textOf(const RecordedMessage& recorded)
{
    return textOf(ExpectedMessage{recorded.message, ExpectedMessage::Required, recorded.wParam,
                                  recorded.lParam});
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

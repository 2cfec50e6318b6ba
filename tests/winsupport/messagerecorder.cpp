#include "messagerecorder.h"

#include <algorithm>
#include <map>

namespace o7::test {
namespace {

// Which recorder stands before which window. Windows belong to threads, so this does too.
std::map<HWND, MessageRecorder*>& recorders()
{
    thread_local std::map<HWND, MessageRecorder*> table;
    return table;
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

} // namespace o7::test

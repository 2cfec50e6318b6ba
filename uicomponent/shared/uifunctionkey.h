#pragma once

#include <windows.h>

#include "uihandles.h"

/// One function key (VK_F1 to VK_F24), alone or with Shift, while the keyboard focus is inside a
/// sheet or dialog: its press is taken out of the queue and becomes a posted message. The loop of a
/// property sheet, which is not ours, offers such a key to nobody.
///
/// Stands on a keyboard hook (WH_KEYBOARD) of the calling thread, which sees keys and nothing else,
/// and on a window property, which tells the sheets of a thread apart. Used on the thread of the
/// windows; both go with the object, and may outlive their windows.
class UIFunctionKey
{
public:
    /// @param root     the sheet or dialog inside which the key counts; one key for each
    /// @param target   gets `message`, with whether Shift was held as WPARAM
    UIFunctionKey(HWND root, WORD key, HWND target, UINT message);
    UIFunctionKey(const UIFunctionKey&) = delete;
    UIFunctionKey& operator=(const UIFunctionKey&) = delete;
    ~UIFunctionKey();

private:
    static LRESULT CALLBACK procedure(int code, WPARAM key, LPARAM details) noexcept;
    static bool take(WPARAM key, LPARAM details);
    bool press(WPARAM key) const;

    HWND m_root;
    WORD m_key;
    HWND m_target;
    UINT m_message;
    o7::UniqueHook m_hook;
};

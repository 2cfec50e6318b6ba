#include "uifunctionkey.h"

#include "uiguard.h"

namespace {

constexpr wchar_t kProperty[] = L"O7UIFunctionKey";

bool isHeld(int key)
{
    return GetKeyState(key) < 0;
}

} // namespace

UIFunctionKey::UIFunctionKey(HWND root, WORD key, HWND target, UINT message)
    : m_root(root), m_key(key), m_target(target), m_message(message)
{
    if (!SetPropW(root, kProperty, this))
        return;
    m_hook.reset(SetWindowsHookExW(WH_KEYBOARD, &procedure, nullptr, GetCurrentThreadId()));
}

UIFunctionKey::~UIFunctionKey()
{
    if (GetPropW(m_root, kProperty) == this)
        RemovePropW(m_root, kProperty);
}

LRESULT CALLBACK UIFunctionKey::procedure(int code, WPARAM key, LPARAM details) noexcept
{
    const bool taken = code == HC_ACTION && key >= VK_F1 && key <= VK_F24 &&
                       o7::guarded<bool>(L"UIFunctionKey::procedure", L"uifunctionkey",
                                         [=] { return UIFunctionKey::take(key, details); });
    return taken ? 1 : CallNextHookEx(nullptr, code, key, details);
}

// Upwards from the focus; owners do not count, so a dialog over the sheet has its own keys.
bool UIFunctionKey::take(WPARAM key, LPARAM details)
{
    const bool released = (HIWORD(details) & KF_UP) != 0;
    if (released || isHeld(VK_CONTROL) || isHeld(VK_MENU))
        return false;
    for (HWND window = GetFocus(); window; window = GetAncestor(window, GA_PARENT))
        if (const auto* self = static_cast<const UIFunctionKey*>(GetPropW(window, kProperty)))
            return self->press(key);
    return false;
}

bool UIFunctionKey::press(WPARAM key) const
{
    if (key != m_key)
        return false;
    PostMessageW(m_target, m_message, isHeld(VK_SHIFT), 0);
    return true;
}

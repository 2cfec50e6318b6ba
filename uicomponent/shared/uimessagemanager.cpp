#include "uimessagemanager.h"

#include <algorithm>
#include <iterator>

int UIMessageManager::handleMessage(const _UIWindowsMessage& message) const
{
    const auto index = static_cast<std::size_t>(message.kind);
    return index < kKinds ? dispatch(message, m_handlers[index]) : 0;
}

int UIMessageManager::dispatch(const _UIWindowsMessage& message, const HandlerList& handlers)
{
    // By index, because a handler may change the list while it is being asked.
    for (std::size_t i = 0; i < handlers.size(); ++i) {
        if (handlers[i]->handleMessage(message)) {
            return 1;
        }
    }
    return 0;
}

void UIMessageManager::append(UIMessageKind kind, UIMessageHandler& handler)
{
    m_handlers.at(static_cast<std::size_t>(kind)).push_back(&handler);
}

void UIMessageManager::remove(UIMessageKind kind, const UIMessageHandler& handler) noexcept
{
    const auto index = static_cast<std::size_t>(kind);
    if (index >= kKinds) {
        return;
    }
    HandlerList& list = m_handlers[index];
    const auto last = std::find(list.rbegin(), list.rend(), &handler);
    if (last != list.rend()) {
        list.erase(std::next(last).base());
    }
}

const UIMessageManager::HandlerList& UIMessageManager::handlers(UIMessageKind kind) const
{
    return m_handlers.at(static_cast<std::size_t>(kind));
}

void UIMessageManager::dump() const
{
    HandlerList dumped; // one that stands in two lists is written once
    for (const HandlerList& list : m_handlers) {
        for (UIMessageHandler* handler : list) {
            if (std::find(dumped.begin(), dumped.end(), handler) == dumped.end()) {
                dumped.push_back(handler);
                handler->dump();
            }
        }
    }
}

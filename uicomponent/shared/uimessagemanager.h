#pragma once

#include "uiapi.h"
#include "uimessagehandler.h"

#include <array>
#include <vector>

/// The root of message routing: three ordered lists of borrowed handlers, one per kind of message.
/// Owned by UIManager, used on the UI thread only. Asking the handlers allocates nothing.
class O7UI_API UIMessageManager final
{
public:
    using HandlerList = std::vector<UIMessageHandler*>;

    UIMessageManager() = default;
    UIMessageManager(const UIMessageManager&) = delete;
    UIMessageManager& operator=(const UIMessageManager&) = delete;

    /// Dumps every registered handler, list by list.
    virtual void dump() const;

    /// Offers the message to the handlers of its own kind. 1 when one claimed it, else 0; a kind
    /// that has no list is claimed by nobody.
    int handleMessage(const _UIWindowsMessage& message) const;

    /// Offers the message to the handlers of a list in registration order, up to the first that
    /// claims it: 1 when one did, else 0. A handler may append to or remove from the list meanwhile
    /// (it opens or closes a popup): what is appended is still asked.
    static int dispatch(const _UIWindowsMessage& message, const HandlerList& handlers);

    /// Appends a handler at the end of the list of a kind. The handler is borrowed.
    void append(UIMessageKind kind, UIMessageHandler& handler);

    /// Takes a handler off the list of a kind, the last time that it stands there. Nothing happens
    /// when it does not: whoever appended nothing takes nobody else off.
    void remove(UIMessageKind kind, const UIMessageHandler& handler) noexcept;

    /// The handlers of a kind, in the order in which they are asked.
    const HandlerList& handlers(UIMessageKind kind) const;

private:
    static constexpr std::size_t kKinds = 3;

    /// Tab pages, off-tab areas, dialogs: indexed by UIMessageKind.
    std::array<HandlerList, kKinds> m_handlers;
};

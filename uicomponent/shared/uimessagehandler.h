#pragma once

#include "uiwindowsmessage.h"

/// Receiver of the window messages of pages, sheets and dialogs. Handlers are asked on the thread
/// that owns the window; whoever registers one keeps it alive until it is removed.
class UIMessageHandler
{
public:
    virtual ~UIMessageHandler() = default;

    /// Offers a message. Returns true when the handler claims it, which hides it from all handlers
    /// after it; the answer for the window procedure then stands in message.result. May throw: the
    /// window procedure that started the walk shows the error and answers 0.
    virtual bool handleMessage(const _UIWindowsMessage& message) = 0;

    /// Writes what this object shows to the collector of UIDump, if there is one.
    virtual void dump() const {}

protected:
    UIMessageHandler() = default;
    UIMessageHandler(const UIMessageHandler&) = default;
    UIMessageHandler& operator=(const UIMessageHandler&) = default;
};

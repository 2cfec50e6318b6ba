#pragma once

#include "inotification.h"

#include <cstddef>
#include <memory>
#include <vector>

/// Walks the notifications of one bundle, in the order in which the changes happened.
class NotificationBundleIterator
{
public:
    explicit NotificationBundleIterator(
        const std::vector<std::shared_ptr<const INotification>>& notifications)
        : m_notifications(&notifications)
    {
    }

    bool MoreNotifications() const { return m_next < m_notifications->size(); }

    /// The next notification, borrowed from the bundle. Only while MoreNotifications() holds.
    const INotification& GetNext() { return *(*m_notifications)[m_next++]; }

private:
    const std::vector<std::shared_ptr<const INotification>>* m_notifications;
    std::size_t m_next = 0;
};

#pragma once

#include "inotification.h"
#include "notificationbundleiterator.h"

#include <cstddef>
#include <memory>
#include <utility>
#include <vector>

/// Several notifications delivered at once. What an observer receives from a data model is always a
/// bundle, valid for the duration of the call.
class NotificationBundle : public INotification
{
public:
    NotificationBundle() = default;
    explicit NotificationBundle(std::vector<std::shared_ptr<const INotification>> notifications)
        : m_notifications(std::move(notifications))
    {
    }

    void Add(std::shared_ptr<const INotification> notification)
    {
        m_notifications.push_back(std::move(notification));
    }

    std::size_t GetSize() const { return m_notifications.size(); }

    /// Borrows from the bundle: it must outlive the iterator.
    NotificationBundleIterator GetIterator() const
    {
        return NotificationBundleIterator(m_notifications);
    }

private:
    std::vector<std::shared_ptr<const INotification>> m_notifications;
};

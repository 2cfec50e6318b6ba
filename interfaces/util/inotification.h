#pragma once
// INotification: base of everything an observer can be told. Receivers ask for the kind they know
// with dynamic_cast and take no notice of others.

class INotification
{
public:
    virtual ~INotification() = default;

protected:
    INotification() = default;
    INotification(const INotification&) = default;
    INotification& operator=(const INotification&) = default;
};

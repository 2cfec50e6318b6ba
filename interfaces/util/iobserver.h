#pragma once
// IObserver: base of every receiver of notifications. The order of the virtual operations is
// fixed; additions go last.

#include "cxstring.h"
#include "inotification.h"
#include "trace.h"

#include <cstdint>

class IObserver
{
public:
    virtual ~IObserver() = default;

    /// Tells observers apart; never 0. By default the object's own address.
    virtual std::uintptr_t GetObserverId() const { return reinterpret_cast<std::uintptr_t>(this); }
    /// Called on the thread that changed the model, possibly while an operation of this very
    /// observer is running. `registrationKind` is the kind given at registration.
    virtual void ProcessNotification(const INotification& notification,
                                     unsigned int registrationKind) = 0;
    /// The class and its bases, outermost last, parted by " : ".
    virtual CXString GetObserverClassNameHeirarchy() const { return L"IObserver"; }
    /// One line about the observer; with `detailed`, its state too. Free of addresses, so that two
    /// runs give the same text.
    virtual CXString GetDumpDisplayString(bool detailed) const
    {
        (void)detailed;
        return GetObserverClassNameHeirarchy();
    }
    /// Writes the display string to the diagnostic output.
    virtual void Dump(bool detailed) const { o7::trace(GetDumpDisplayString(detailed)); }

protected:
    IObserver() = default;
    IObserver(const IObserver&) = default;
    IObserver& operator=(const IObserver&) = default;
};

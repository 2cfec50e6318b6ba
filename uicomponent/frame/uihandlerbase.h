#pragma once

#include <windows.h>

#include "datasource.h"
#include "iobserver.h"

class UIEventProcessor;

/// What the special-feature handlers have in common: they observe the data model and are handed to
/// the caller for registration (UIManager::addDataSources). What each does with a notification is
/// its own.
class UIHandlerBase : public DataSource, public IObserver
{
public:
    explicit UIHandlerBase(const wchar_t* name) : m_name(name) {}
    ~UIHandlerBase() override = default;

    CXString GetName() const override { return m_name; }
    void ProcessNotification(const INotification&, unsigned int) override {}
    CXString GetObserverClassNameHeirarchy() const override
    {
        return m_name + L" : DataSource : IObserver";
    }

private:
    CXString m_name;
};

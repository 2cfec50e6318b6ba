#pragma once
// DataSource: base of the observers that a module hands to the driver for registration with the
// data model.

#include "cxstring.h"

class DataSource
{
public:
    virtual ~DataSource() = default;
    virtual CXString GetName() const = 0;

protected:
    DataSource() = default;
    DataSource(const DataSource&) = default;
    DataSource& operator=(const DataSource&) = default;
};

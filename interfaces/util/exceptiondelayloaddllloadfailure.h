#pragma once

#include "orvikexception.h"

/// A module of the driver could not be loaded when first needed.
class ExceptionDelayLoadDllLoadFailure : public OrvikException
{
public:
    using OrvikException::OrvikException;
};

O7UTIL_API ExceptionDelayLoadDllLoadFailure GetExceptionDelayLoadDllLoadFailure(
    const CXString& message, const CXString& file, int line, const CXString& function,
    const ExecutionContextStack& contextStack);

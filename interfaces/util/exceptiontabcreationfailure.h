#pragma once

#include "orvikexception.h"

/// A page could not be created.
class ExceptionTabCreationFailure : public OrvikException
{
public:
    using OrvikException::OrvikException;
};

O7UTIL_API ExceptionTabCreationFailure
GetExceptionTabCreationFailure(const CXString& message, const CXString& file, int line,
                               const CXString& function, const ExecutionContextStack& contextStack);

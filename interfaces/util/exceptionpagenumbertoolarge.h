#pragma once

#include "orvikexception.h"

/// A page number is above the highest page.
class ExceptionPageNumberTooLarge : public OrvikException
{
public:
    using OrvikException::OrvikException;
};

O7UTIL_API ExceptionPageNumberTooLarge
GetExceptionPageNumberTooLarge(const CXString& message, const CXString& file, int line,
                               const CXString& function, const ExecutionContextStack& contextStack);

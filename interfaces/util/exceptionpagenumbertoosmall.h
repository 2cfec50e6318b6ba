#pragma once

#include "orvikexception.h"

/// A page number is below the lowest page.
class ExceptionPageNumberTooSmall : public OrvikException
{
public:
    using OrvikException::OrvikException;
};

O7UTIL_API ExceptionPageNumberTooSmall
GetExceptionPageNumberTooSmall(const CXString& message, const CXString& file, int line,
                               const CXString& function, const ExecutionContextStack& contextStack);

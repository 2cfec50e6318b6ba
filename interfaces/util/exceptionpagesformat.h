#pragma once

#include "orvikexception.h"

/// A list of pages is not written as one.
class ExceptionPagesFormat : public OrvikException
{
public:
    using OrvikException::OrvikException;
};

O7UTIL_API ExceptionPagesFormat GetExceptionPagesFormat(const CXString& message,
                                                        const CXString& file, int line,
                                                        const CXString& function,
                                                        const ExecutionContextStack& contextStack);

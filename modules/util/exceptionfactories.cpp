// The factories of the exception family: every exception of the driver is created in this module.

#include "exceptiondelayloaddllloadfailure.h"
#include "exceptionpagenumbertoolarge.h"
#include "exceptionpagenumbertoosmall.h"
#include "exceptionpagesformat.h"
#include "exceptiontabcreationfailure.h"
#include "orvikexception.h"

OrvikException GetOrvikException(const CXString& message, const CXString& file, int line,
                                 const CXString& function,
                                 const ExecutionContextStack& contextStack)
{
    return {L"OrvikException", message, file, line, function, contextStack};
}

ExceptionTabCreationFailure
GetExceptionTabCreationFailure(const CXString& message, const CXString& file, int line,
                               const CXString& function, const ExecutionContextStack& contextStack)
{
    return {L"ExceptionTabCreationFailure", message, file, line, function, contextStack};
}

ExceptionPagesFormat GetExceptionPagesFormat(const CXString& message, const CXString& file,
                                             int line, const CXString& function,
                                             const ExecutionContextStack& contextStack)
{
    return {L"ExceptionPagesFormat", message, file, line, function, contextStack};
}

ExceptionPageNumberTooSmall
GetExceptionPageNumberTooSmall(const CXString& message, const CXString& file, int line,
                               const CXString& function, const ExecutionContextStack& contextStack)
{
    return {L"ExceptionPageNumberTooSmall", message, file, line, function, contextStack};
}

ExceptionPageNumberTooLarge
GetExceptionPageNumberTooLarge(const CXString& message, const CXString& file, int line,
                               const CXString& function, const ExecutionContextStack& contextStack)
{
    return {L"ExceptionPageNumberTooLarge", message, file, line, function, contextStack};
}

ExceptionDelayLoadDllLoadFailure
GetExceptionDelayLoadDllLoadFailure(const CXString& message, const CXString& file, int line,
                                    const CXString& function,
                                    const ExecutionContextStack& contextStack)
{
    return {L"ExceptionDelayLoadDllLoadFailure", message, file, line, function, contextStack};
}

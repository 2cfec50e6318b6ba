#pragma once
// BasicExecutionContext: one named thing that the thread is doing, for diagnostics.

#include "cxstring.h"

struct BasicExecutionContext
{
    unsigned number = 0; ///< the context number
    CXString source;     ///< the source file, without folder and extension
    CXString function;   ///< "Class::function"
    int line = 0;
    CXString text; ///< what is special this time
};

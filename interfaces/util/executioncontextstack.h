#pragma once
// ExecutionContextStack: a snapshot of what a thread was doing, innermost first.

#include "basicexecutioncontext.h"
#include "cxstring.h"
#include "utilapi.h"

#include <vector>

class O7UTIL_API ExecutionContextStack
{
public:
    ExecutionContextStack() = default;
    /// The contexts of the calling thread at this moment.
    static ExecutionContextStack current();

    const std::vector<BasicExecutionContext>& contexts() const noexcept { return m_contexts; }
    bool empty() const noexcept { return m_contexts.empty(); }
    /// One line each: "31517 uimanager(111) UIManager::initializeForCPSUI: text".
    CXString toString() const;

private:
    std::vector<BasicExecutionContext> m_contexts;
};

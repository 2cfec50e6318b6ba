#pragma once
// ExecutionContextLifetime: puts a context on the thread's execution-context stack for as long as
// the object lives. Allocates nothing: the objects themselves, which live on the call stack, are
// the links of the stack.

#include "basicexecutioncontext.h"
#include "utilapi.h"

class O7UTIL_API ExecutionContextLifetime
{
public:
    /// The context is borrowed and must outlive this object.
    explicit ExecutionContextLifetime(const BasicExecutionContext& context) noexcept;
    ~ExecutionContextLifetime();
    ExecutionContextLifetime(const ExecutionContextLifetime&) = delete;
    ExecutionContextLifetime& operator=(const ExecutionContextLifetime&) = delete;

    const BasicExecutionContext& context() const noexcept { return m_context; }
    /// The context around this one, or null.
    const ExecutionContextLifetime* outer() const noexcept { return m_outer; }
    /// The innermost context of the calling thread, or null.
    static const ExecutionContextLifetime* innermost() noexcept;

private:
    const BasicExecutionContext& m_context;
    ExecutionContextLifetime* m_outer;
};

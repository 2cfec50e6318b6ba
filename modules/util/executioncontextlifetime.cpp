#include "executioncontextlifetime.h"

#include "threadslot.h"

namespace {

struct Innermost;
using InnermostSlot = o7::ThreadSlot<Innermost>;

} // namespace

ExecutionContextLifetime::ExecutionContextLifetime(const BasicExecutionContext& context) noexcept
    : m_context(context), m_outer(static_cast<ExecutionContextLifetime*>(InnermostSlot::get()))
{
    InnermostSlot::set(this);
}

ExecutionContextLifetime::~ExecutionContextLifetime()
{
    InnermostSlot::set(m_outer);
}

const ExecutionContextLifetime* ExecutionContextLifetime::innermost() noexcept
{
    return static_cast<const ExecutionContextLifetime*>(InnermostSlot::get());
}

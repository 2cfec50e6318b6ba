#include "executioncontextstack.h"

#include "executioncontextlifetime.h"

ExecutionContextStack ExecutionContextStack::current()
{
    ExecutionContextStack stack;
    for (const auto* at = ExecutionContextLifetime::innermost(); at != nullptr; at = at->outer()) {
        stack.m_contexts.push_back(at->context());
    }
    return stack;
}

CXString ExecutionContextStack::toString() const
{
    CXString lines;
    for (const BasicExecutionContext& context : m_contexts) {
        if (!lines.IsEmpty()) {
            lines += L'\n';
        }
        lines += CXString::Formatted(L"%u %s(%d) %s: %s", context.number, context.source.c_str(),
                                     context.line, context.function.c_str(), context.text.c_str());
    }
    return lines;
}

#pragma once

#include "orvikexception.h"

#include <exception>
#include <new>
#include <utility>

namespace o7 {

/// A failed allocation in the words that people are shown on every compiler.
class BadAllocation final : public std::exception
{
public:
    const char* what() const noexcept override { return "bad allocation"; }
};

/// The one guard around every window procedure, hook, callback, thread entry and exported entry:
/// runs the callable and returns its answer; whatever it throws is shown to the user, with the name
/// of the procedure and of the source that it stands in, and the answer is then R{} (0, null).
/// Nothing else in this module catches everything.
///
///     return o7::guarded<INT_PTR>(L"DialogProcedure", L"uidialogprocedure", [&] { ... });
template <class R, class Callable>
R guarded(const wchar_t* procedureName, const wchar_t* source, Callable&& callable) noexcept
{
    try {
        return std::forward<Callable>(callable)();
    } catch (const std::bad_alloc&) {
        OrvikException::DisplayExceptionMessage(BadAllocation(), procedureName, source);
    } catch (const std::exception& exception) {
        OrvikException::DisplayExceptionMessage(exception, procedureName, source);
    } catch (...) {
        OrvikException::DisplayUnknownExceptionMessage(procedureName, source);
    }
    return R();
}

} // namespace o7

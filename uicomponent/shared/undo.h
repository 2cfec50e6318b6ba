#pragma once

#include <utility>

namespace o7 {

/// Takes back, at the end of its scope, what an operation of several steps has begun, unless all of
/// it has come about (keep). The function must not throw.
template <class Function> class Undo
{
public:
    explicit Undo(Function function) : m_function(std::move(function)) {}
    ~Undo()
    {
        if (!m_kept) {
            m_function();
        }
    }
    Undo(const Undo&) = delete;
    Undo& operator=(const Undo&) = delete;

    void keep() noexcept { m_kept = true; }

private:
    Function m_function;
    bool m_kept = false;
};

} // namespace o7

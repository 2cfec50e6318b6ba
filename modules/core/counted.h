#pragma once

namespace o7 {

/// Adds to a counter for as long as it lives.
class Counted
{
public:
    explicit Counted(int& counter) : m_counter(counter) { ++m_counter; }
    ~Counted() { --m_counter; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

private:
    int& m_counter;
};

} // namespace o7

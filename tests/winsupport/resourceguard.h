#pragma once

#include "processresources.h"

#include <string>

namespace o7::test {

/// Fails the running test when, at the end of its scope, this process holds more or fewer windows,
/// GDI objects, kernel handles or threads than at the beginning, and names what came or went.
///
/// What the system itself makes once and keeps (system colour brushes, cached device contexts, the
/// side-by-side store, theme data) belongs before the guard: do the thing once, then guard the
/// second time.
class ResourceGuard
{
public:
    /// Which kinds are compared.
    enum Kinds : unsigned
    {
        Windows = 1,
        GdiObjects = 2,
        KernelHandles = 4,
        Threads = 8,
        All = 15
    };

    explicit ResourceGuard(unsigned kinds = All);
    /// Compares, unless compare() was called already, and reports a difference by ADD_FAILURE.
    ~ResourceGuard();
    ResourceGuard(const ResourceGuard&) = delete;
    ResourceGuard& operator=(const ResourceGuard&) = delete;

    /// What differs now, one line for each kind; empty when nothing does. Handles out this thread's
    /// messages first, and gives ending threads up to a second. The destructor then keeps silent.
    std::string compare();

private:
    std::string difference() const;

    unsigned kinds_;
    bool compared_ = false;
    ProcessResources before_;
};

} // namespace o7::test

#pragma once

#include <string>
#include <vector>

namespace o7 {

/// Nobody is there to close a message box, so exceptions that a window procedure swallowed become
/// failures of the run: while an object of this class lives they are kept instead of shown. One at
/// a time.
class DisplayedExceptions
{
public:
    DisplayedExceptions();
    ~DisplayedExceptions();
    DisplayedExceptions(const DisplayedExceptions&) = delete;
    DisplayedExceptions& operator=(const DisplayedExceptions&) = delete;

    const std::vector<std::wstring>& texts() const;
};

} // namespace o7

#pragma once

#include <functional>
#include <string>

namespace o7::story {

/// A crash of what a story opens is a failure of the story and not its silent end: while an object
/// of this class lives, a crash of this process is told in a line, and ends it with exit code 1.
/// One at a time.
class CrashReport
{
public:
    using Writer = std::function<void(const std::string& line)>;

    explicit CrashReport(Writer write);
    ~CrashReport();
    CrashReport(const CrashReport&) = delete;
    CrashReport& operator=(const CrashReport&) = delete;
};

} // namespace o7::story

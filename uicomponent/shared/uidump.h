#pragma once

#include "uiapi.h"

#include <string>
#include <string_view>

/// Where the dump() operations of this thread write to: while an object of this class lives, each
/// line goes to the end of its text; without one, dump() writes nothing. Objects nest.
///
///     std::wstring text;
///     { UIDump collector(text); manager.dump(); }
class O7UI_API UIDump
{
public:
    /// The text is borrowed and must outlive the collector.
    explicit UIDump(std::wstring& text);
    ~UIDump();
    UIDump(const UIDump&) = delete;
    UIDump& operator=(const UIDump&) = delete;

    /// False when lines would go nowhere, so that they need not be made.
    static bool isCollecting();

    /// Appends one line, indented by the levels open at the moment, and ends it with "\n".
    static void line(std::wstring_view text);

    /// Indents the lines written during its life by one more level of two blanks.
    class O7UI_API Level
    {
    public:
        Level();
        ~Level();
        Level(const Level&) = delete;
        Level& operator=(const Level&) = delete;
    };

private:
    std::wstring& m_text;
    UIDump* m_outer;
    unsigned m_level = 0;
};

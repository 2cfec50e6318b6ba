#pragma once

#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "visibletext.h"

namespace o7::story {

/// One line of what the user interface says of itself (UIManager::dumpText):
///
///     list "Staple" = "2 staples" [disabled] because "No finisher is installed."
///       - "Saddle stitch" [hidden]
struct DumpLine
{
    int level = 0;
    std::string kind; ///< all of it for a line that names nothing, such as "not visited"
    std::string label;
    std::string value;
    std::string state;
    std::string reason;

    /// Labels have their mnemonics here; texts of entries have none, and mean every ampersand.
    bool isLabelled(std::string_view text) const;
    /// Whether the state names this: "disabled, cleared" has both.
    bool is(std::string_view state) const;
};

/// The whole text, UTF-8, in lines.
class DumpText
{
public:
    explicit DumpText(std::string_view text);

    /// What stands under the last line of that kind with that label; empty when there is none.
    std::span<const DumpLine> under(std::string_view kind, std::string_view label) const;
    /// The same for the tab with this title.
    std::span<const DumpLine> under(std::string_view kind, const TabTitle& tab) const;

private:
    std::span<const DumpLine> under(const std::function<bool(const DumpLine&)>& isHeading) const;

    std::vector<DumpLine> m_lines;
};

} // namespace o7::story

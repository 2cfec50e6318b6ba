// Whatever lies in a file of a story: it is a story whose every step can be played, or it has
// mistakes that name their lines.
#include "storyparser.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace o7::story;

const std::vector<std::string> kProducts = {"office-c430", "mono-m210"};

void require(bool held)
{
    if (!held)
        std::abort();
}

void checkSteps(const Story& story, int lines)
{
    int line = 0;
    bool looked = false;
    for (const Step& step : story.steps) {
        require(step.line >= line && step.line <= lines);
        require(step.session < story.sessions.size() && !step.source.empty());
        require(step.expectation.has_value() == (step.verb == Verb::Expect));
        require(step.verb != Verb::Key || parseChord(step.chord.key).has_value());
        looked = looked || step.verb == Verb::Expect;
        line = step.line;
    }
    require(looked);
    for (const Session& session : story.sessions)
        require(!session.product.empty() && session.mode >= 1 && session.mode <= 4);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const ParsedStory parsed = parseStory(text, "f", kProducts);
    const auto lines = static_cast<int>(std::ranges::count(text, '\n')) + 1;
    for (const Mistake& mistake : parsed.mistakes)
        require(mistake.line >= 1 && mistake.line <= lines && !mistake.message.empty());
    if (parsed.mistakes.empty())
        checkSteps(parsed.story, lines);
    return 0;
}

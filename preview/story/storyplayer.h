#pragma once

#include <filesystem>
#include <functional>
#include <memory>
#include <string>

#include "story.h"
#include "storystage.h"

namespace o7::story {

/// Makes the stage for a session; `store` is the folder in which the printer and the user of this
/// story keep what they keep (StoryStore: device settings, printing defaults, the user's document),
/// the same for all its sessions, so that a restart finds them. Throws what says why it cannot.
using StageFactory = std::function<std::unique_ptr<StoryStage>(const Session& session,
                                                               const std::filesystem::path& store)>;

/// What became of playing stories.
struct Tally
{
    int passed = 0;
    int failed = 0;
};

/// Walks through the steps of stories and writes one line for each check. Checks are the steps
/// `expect`, and every other step that fails; after one of these the rest of its story is left out,
/// and a line says so.
class StoryPlayer
{
public:
    using Writer = std::function<void(const std::string& line)>;

    /// @param store  an empty folder of this run; every story gets one of its own in it.
    StoryPlayer(StageFactory stages, std::filesystem::path store, Writer write);

    void play(const Story& story);
    /// Writes the last line.
    Tally finish() const;

private:
    struct Run;

    bool take(Run& run, const Step& step);
    bool guarded(const Story& story, const Step& step, const std::function<void()>& action);
    static void act(StoryStage& stage, const Step& step);
    void report(const Story& story, const Step& step, const std::string& fault);

    StageFactory m_stages;
    std::filesystem::path m_store;
    Writer m_write;
    Tally m_tally;
    int m_stories = 0;
};

} // namespace o7::story

#include "storyplayer.h"

#include <exception>
#include <utility>

#include "judgement.h"
#include "stepfailure.h"

namespace o7::story {
namespace {

/// A check is one line, whatever was read.
std::string onOneLine(std::string text)
{
    for (std::size_t at = text.find_first_of("\r\n"); at != std::string::npos;
         at = text.find_first_of("\r\n", at + 1)) {
        text[at] = ' ';
    }
    return text;
}

} // namespace

/// A story that is being played.
struct StoryPlayer::Run
{
    const Story& story;
    std::filesystem::path store;
    std::unique_ptr<StoryStage> stage; ///< of the present session; null before its first step
};

StoryPlayer::StoryPlayer(StageFactory stages, std::filesystem::path store, Writer write)
    : m_stages(std::move(stages)), m_store(std::move(store)), m_write(std::move(write))
{
}

void StoryPlayer::play(const Story& story)
{
    Run run{story, m_store / std::to_string(++m_stories), nullptr};
    std::filesystem::create_directories(run.store);
    for (std::size_t i = 0; i < story.steps.size(); ++i) {
        if (!take(run, story.steps[i])) {
            const std::size_t left = story.steps.size() - i - 1;
            if (left > 0) {
                m_write("# " + story.file + ": " + std::to_string(left) +
                        (left == 1 ? " further step was" : " further steps were") + " not played");
            }
            break;
        }
    }
    if (run.stage && !story.steps.empty()) {
        // What cannot be closed would stand in the way of the next story.
        guarded(story, story.steps.back(), [&] { run.stage->leave(); });
    }
}

Tally StoryPlayer::finish() const
{
    m_write(std::to_string(m_tally.passed) + " passed, " + std::to_string(m_tally.failed) +
            " failed");
    return m_tally;
}

/// False when the story cannot go on.
bool StoryPlayer::take(Run& run, const Step& step)
{
    return guarded(run.story, step, [&] {
        if (!run.stage) {
            run.stage = m_stages(run.story.sessions[step.session], run.store);
        }
        if (step.expectation) {
            report(run.story, step, judge(*run.stage, *step.expectation));
            return;
        }
        act(*run.stage, step);
        if (step.verb == Verb::Restart) {
            run.stage.reset();
        }
    });
}

/// Stages stand on windows, files and a print system, all of which fail in their own ways.
bool StoryPlayer::guarded(const Story& story, const Step& step, const std::function<void()>& action)
{
    try {
        action();
        return true;
    } catch (const std::exception& failure) {
        report(story, step, failure.what());
        return false;
    }
}

void StoryPlayer::act(StoryStage& stage, const Step& step)
{
    switch (step.verb) {
    case Verb::Open:
        return stage.open();
    case Verb::Reopen:
        if (!stage.closed()) {
            throw StepFailure("it is still open; OK or Cancel closes it");
        }
        return stage.reopen();
    case Verb::Restart:
        return stage.leave();
    case Verb::Page:
        return stage.page(step.control.text());
    case Verb::Choose:
        return stage.choose(step.control, step.value);
    case Verb::Tick:
    case Verb::Untick:
        return stage.tick(step.control, step.verb == Verb::Tick);
    case Verb::Type:
        return stage.type(step.control, step.value);
    case Verb::Key:
        return stage.key(step.chord, step.control);
    case Verb::Press:
        return stage.press(step.control.text());
    case Verb::Answer:
        return stage.answer(step.control.text());
    case Verb::Set:
        return stage.set(step.control, step.value);
    case Verb::Document:
        return stage.setDocumentField(step.control.text(), step.value);
    case Verb::Expect:
        return;
    }
}

void StoryPlayer::report(const Story& story, const Step& step, const std::string& fault)
{
    const std::string place = story.file + ":" + std::to_string(step.line) + " " + step.source;
    ++(fault.empty() ? m_tally.passed : m_tally.failed);
    m_write(fault.empty() ? "ok " + place : "not ok " + place + ": " + onOneLine(fault));
}

} // namespace o7::story

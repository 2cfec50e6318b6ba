#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "recordingstage.h"
#include "runfolder.h"
#include "storyparser.h"
#include "storyplayer.h"

namespace o7::story {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class StoryPlayerTest : public testing::Test
{
protected:
    /// Plays a story of one session with these lines behind `open`.
    Tally playLines(const std::string& lines, const std::string& entry = "cpsui")
    {
        return play("product p\nentry " + entry + "\nopen\n" + lines);
    }

    Tally play(const std::string& text)
    {
        const ParsedStory parsed = parseStory(text, "s", {});
        for (const Mistake& mistake : parsed.mistakes) {
            ADD_FAILURE() << mistake.toString();
        }
        StoryPlayer player(
            [this](const Session& session, const std::filesystem::path& store) {
                sessions.push_back(session);
                stores.push_back(store);
                return std::make_unique<RecordingStage>(recording);
            },
            folder.path(), [this](const std::string& line) { output.push_back(line); });
        player.play(parsed.story);
        return player.finish();
    }

    /// The line of the report about the only expectation.
    std::string lineOf(const std::string& expectation)
    {
        output.clear();
        playLines(expectation + "\n");
        return output.empty() ? std::string() : output.front();
    }

    Recording recording;
    RunFolder folder;
    std::vector<Session> sessions;
    std::vector<std::filesystem::path> stores;
    std::vector<std::string> output;
};

TEST_F(StoryPlayerTest, StepsReachTheStageInTheirOrder)
{
    playLines("page \"L\"\nchoose \"A\" \"b\"\ntick \"C\"\nuntick \"C\"\ntype \"D\" \"1\"\n"
              "key F8\nkey Down in \"A\"\npress OK\nreopen\npress Apply\nanswer Yes\n"
              "document copies 2\nexpect no message\n");
    EXPECT_THAT(recording.calls,
                ElementsAre("open", "page L", "choose A=b", "tick C", "untick C", "type D=1",
                            "key F8 in ", "key Down in A", "press OK", "reopen", "press Apply",
                            "answer Yes", "document copies=2", "leave"));
    EXPECT_THAT(output, ElementsAre("ok s:16 expect no message", "1 passed, 0 failed"));
    EXPECT_EQ(recording.stages, 0);
}

TEST_F(StoryPlayerTest, ARestartMakesANewStageOnTheSameStore)
{
    play("product p\nmode 2\nopen\nrestart mode 1\nentry cpsui\nopen\nexpect open\n");
    EXPECT_THAT(recording.calls, ElementsAre("open", "leave", "open", "leave"));
    ASSERT_EQ(sessions.size(), 2U);
    EXPECT_EQ(sessions[0].mode, 2);
    EXPECT_EQ(sessions[1].entry, Entry::Cpsui);
    EXPECT_EQ(stores[0], stores[1]);
    play("product p\nopen\nexpect open\n");
    EXPECT_TRUE(std::filesystem::is_directory(stores[0]));
}

TEST_F(StoryPlayerTest, EveryStoryHasAStoreOfItsOwn)
{
    const Story story = parseStory("product p\nopen\nexpect open\n", "s", {}).story;
    StoryPlayer player(
        [this](const Session&, const std::filesystem::path& store) {
            stores.push_back(store);
            return std::make_unique<RecordingStage>(recording);
        },
        folder.path(), [](const std::string&) {});
    player.play(story);
    player.play(story);
    ASSERT_EQ(stores.size(), 2U);
    EXPECT_NE(stores[0], stores[1]);
}

TEST_F(StoryPlayerTest, AStepThatFailsEndsItsStoryAndIsCounted)
{
    recording.failing = "tick C";
    const Tally tally = playLines("expect open\ntick \"C\"\nexpect closed\npress OK\n");
    EXPECT_EQ(tally.passed, 1);
    EXPECT_EQ(tally.failed, 1);
    EXPECT_THAT(output,
                ElementsAre("ok s:4 expect open", "not ok s:5 tick \"C\": tick C does not work",
                            "# s: 2 further steps were not played", "1 passed, 1 failed"));
    EXPECT_THAT(recording.calls, ElementsAre("open", "tick C", "leave"));
}

TEST_F(StoryPlayerTest, AWindowThatCannotBeClosedIsAFailure)
{
    recording.failing = "leave";
    EXPECT_EQ(playLines("expect open\n").failed, 1);
    EXPECT_EQ(recording.stages, 0);
}

TEST_F(StoryPlayerTest, WhatIsStillOpenCannotBeReopened)
{
    EXPECT_EQ(playLines("reopen\nexpect open\n").failed, 1);
    EXPECT_THAT(output.front(), HasSubstr("still open"));
}

TEST_F(StoryPlayerTest, AStageThatCannotBeMadeFailsTheStory)
{
    const Story story = parseStory("product p\nopen\nexpect open\n", "s", {}).story;
    StoryPlayer player(
        [](const Session&, const std::filesystem::path&) -> std::unique_ptr<StoryStage> {
            throw std::runtime_error("no display");
        },
        folder.path(), [this](const std::string& line) { output.push_back(line); });
    player.play(story);
    EXPECT_EQ(player.finish().failed, 1);
    EXPECT_EQ(output.front(), "not ok s:2 open: no display");
}

TEST_F(StoryPlayerTest, ExpectationsSayWhatWasSeenInstead)
{
    recording.values = {
        {"A", "two\r\nlines"}, {"status", "3 conflicts"}, {"L", "marked"}, {"copies", "2"}};
    recording.states = {{"gone", {.hidden = true}},
                        {"grey", {.enabled = false}},
                        {"bad", {.empty = true, .conflict = true}},
                        {"A=x", {.enabled = false}}};
    recording.reasons = {{"grey", "no\nunit"}, {"bad", "clash"}, {"A=x", "no kit"}};
    recording.message = "Keep it?";
    recording.conflicts = 1;
    struct Row
    {
        const char* expectation;
        const char* seen; ///< null: it is so
    };
    const Row rows[] = {
        {R"(expect "A" is "two lines")", nullptr},
        {R"(expect "A" is "Two lines")", "it is \"two  lines\""},
        {R"(expect "A" enabled)", nullptr},
        {R"(expect "A" disabled)", "it is enabled"},
        {R"(expect "grey" disabled reason contains "no unit")", nullptr},
        {R"(expect "grey" disabled reason contains "kit")", "the reason is \"no unit\""},
        {R"(expect "grey" enabled)", "it is disabled: \"no unit\""},
        {R"(expect "gone" hidden)", nullptr},
        {R"(expect "gone" enabled)", "it is hidden"},
        {R"(expect "gone" disabled)", "it is hidden"},
        {R"(expect "bad" empty)", nullptr},
        {R"(expect "A" empty)", "it is enabled"},
        {R"(expect "bad" conflict reason contains "clash")", nullptr},
        {R"(expect "bad" no conflict)", "it is enabled, empty, in conflict: \"clash\""},
        {R"(expect "A" no conflict)", nullptr},
        {R"(expect "A" conflict reason contains "x")", "it is enabled"},
        {R"(expect "A" reason contains "x")", "there is no reason"},
        {R"(expect entry "A" "x" disabled reason contains "kit")", nullptr},
        {R"(expect entry "A" "x" enabled)", "it is disabled: \"no kit\""},
        {R"(expect entry "A" "y" disabled)", "it is enabled"},
        {R"(expect status contains "3 conf")", nullptr},
        {R"(expect status contains "4")", "the status is \"3 conflicts\""},
        {R"(expect message contains "keep")", "the message is \"Keep it?\""},
        {R"(expect no message)", "the message is \"Keep it?\""},
        {R"(expect tab "L" marked)", nullptr},
        {R"(expect tab "L" unmarked)", "it is marked"},
        {R"(expect tab "M" marked)", "it is not marked"},
        {R"(expect count conflicts 1)", nullptr},
        {R"(expect no conflict)", "1 setting is in conflict"},
        {R"(expect document copies is 2)", nullptr},
        {R"(expect document copies is 3)", "it is \"2\""},
        {R"(expect closed)", "it is open, and a message says \"Keep it?\""},
    };
    for (const Row& row : rows) {
        const std::string expected =
            row.seen == nullptr ? std::string("ok s:4 ") + row.expectation
                                : std::string("not ok s:4 ") + row.expectation + ": " + row.seen;
        EXPECT_EQ(lineOf(row.expectation), expected);
    }
}

TEST(ControlNameTest, ALabelMayStandAloneOrBehindItsGroup)
{
    EXPECT_TRUE(ControlName("Tray").matches("Covers", "Tray"));
    EXPECT_TRUE(ControlName("Covers/Tray").matches("Covers", "Tray"));
    EXPECT_TRUE(ControlName("Black/White").matches("", "Black/White"));
    EXPECT_TRUE(ControlName("Ink/Black/White").matches("Ink", "Black/White"));
    EXPECT_FALSE(ControlName("Covers/Tray").matches("", "Tray"));
    EXPECT_FALSE(ControlName("Covers/Tray").matches("Cover", "Tray"));
    EXPECT_FALSE(ControlName("/Tray").matches("", "Tray"));
}

} // namespace
} // namespace o7::story

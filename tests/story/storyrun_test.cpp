#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <string>
#include <vector>

#include "recordingstage.h"
#include "runfolder.h"
#include "storyrun.h"

namespace o7::story {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

class StoryRunTest : public testing::Test
{
protected:
    StoryRunTest()
    {
        run.products = O7_PRODUCTS_DIR;
        run.stages = [this](const Session&, const std::filesystem::path& store) {
            stores.push_back(store);
            return std::make_unique<RecordingStage>(recording);
        };
        run.print = [this](const std::string& line) { output.push_back(line); };
        run.printError = [this](const std::string& line) { errors.push_back(line); };
    }

    void add(const std::string& name, const std::string& text)
    {
        // UTF-8 whatever the system's own encoding is.
        run.files.push_back(folder.path() / std::u8string(name.begin(), name.end()));
        std::ofstream(run.files.back(), std::ios::binary) << text;
    }

    RunFolder folder;
    Recording recording;
    StoryRun run;
    std::vector<std::filesystem::path> stores;
    std::vector<std::string> output;
    std::vector<std::string> errors;
};

TEST_F(StoryRunTest, StoriesAreCountedTogether)
{
    add("good.story", "product office-c430\nopen\nexpect open\n");
    add("b\xC3\xA4"
        "d.story",
        "product mono-m210\nopen\nexpect closed\n");
    EXPECT_EQ(runStories(run), 1);
    ASSERT_EQ(output.size(), 3U);
    EXPECT_THAT(output[1], HasSubstr("not ok "));
    EXPECT_THAT(output[1], HasSubstr("b\xC3\xA4"
                                     "d.story:3 "));
    EXPECT_EQ(output[2], "1 passed, 1 failed");
    run.files.pop_back();
    EXPECT_EQ(runStories(run), 0);
}

TEST_F(StoryRunTest, NothingIsPlayedWhenAStoryCannotBeRead)
{
    add("good.story", "product office-c430\nopen\nexpect open\n");
    add("one.story", "product office-c340\nopn\n");
    add("two.story", "tick\n");
    run.files.push_back(folder.path() / "none.story");
    run.files.push_back(folder.path());
    EXPECT_EQ(runStories(run), 2);
    EXPECT_THAT(output, IsEmpty());
    EXPECT_THAT(errors, ElementsAre(HasSubstr("one.story:1: "), HasSubstr("one.story:2: "),
                                    HasSubstr("one.story:2: "), HasSubstr("two.story:1: "),
                                    HasSubstr("two.story:1: "), HasSubstr("none.story: "),
                                    HasSubstr(": ")));
    EXPECT_THAT(recording.calls, IsEmpty());
}

TEST_F(StoryRunTest, WithoutStoriesOrProductsThereIsNothingToPlay)
{
    EXPECT_EQ(runStories(run), 2);
    add("good.story", "product office-c430\nopen\nexpect open\n");
    run.products = folder.path();
    EXPECT_EQ(runStories(run), 2);
    EXPECT_EQ(errors.size(), 2U);
}

TEST_F(StoryRunTest, WhatWasKeptIsGoneAfterwards)
{
    add("good.story", "product office-c430\nopen\nexpect open\n");
    EXPECT_EQ(runStories(run), 0);
    ASSERT_EQ(stores.size(), 1U);
    EXPECT_FALSE(std::filesystem::exists(stores[0].parent_path()));
}

} // namespace
} // namespace o7::story

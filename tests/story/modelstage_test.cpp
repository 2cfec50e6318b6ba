#include <gtest/gtest.h>

#include <functional>
#include <string>

#include "modelstages.h"
#include "runfolder.h"
#include "stepfailure.h"

namespace o7::story {
namespace {

class Numbers final : public IStringSource
{
public:
    CXString LoadStringW(unsigned id) const override
    {
        return CXString::FromUtf8("text " + std::to_string(id));
    }
};

class ModelStageTest : public testing::Test
{
protected:
    std::unique_ptr<StoryStage> stage(int mode = 1)
    {
        auto made = stages().make({"office-c430", Entry::Model, mode, "en"}, folder.path());
        made->open();
        return made;
    }

    /// The sentence with which an action fails; empty when it does not.
    static std::string failure(const std::function<void()>& action)
    {
        try {
            action();
        } catch (const StepFailure& fault) {
            return fault.what();
        }
        return {};
    }

    /// Of all tests, as they are of all stories of a run.
    static ModelStages& stages()
    {
        static ModelStages all(O7_PRODUCTS_DIR, [](const auto&, const auto& language) {
            return language == "en" ? std::make_unique<Numbers>() : nullptr;
        });
        return all;
    }

    RunFolder folder;
};

TEST_F(ModelStageTest, ValuesOfEveryKindAreWrittenAsTheyAreRead)
{
    struct Row
    {
        const char* feature;
        const char* written;
        const char* read;
    };
    const Row rows[] = {
        {"odrv-staple", "one-top-left", "one-top-left"},
        {"odrv-copies", "12", "12"},
        {"odrv-lightness", "-7", "-7"},
        {"odrv-collate", "false", "false"},
        {"odrv-user-id", "Ann \xC3\x84", "Ann \xC3\x84"},
        {"odrv-binding-margin", "12.5 mm", "12.5 mm"},
        {"odrv-binding-margin", "1 inch", "25.4 mm"},
        {"odrv-binding-margin", "72 pt", "25.4 mm"},
        {"odrv-some-pages", "true", "true"},
        {"odrv-page-range", "2-5", "2-5"},
        {"odrv-special-pages", "2", "2"},
        {"odrv-special-pages", "1", "1"},
    };
    const auto open = stage();
    for (const Row& row : rows) {
        open->set(row.feature, row.written);
        EXPECT_EQ(open->value(row.feature), row.read) << row.feature;
    }
    EXPECT_EQ(open->value("odrv-dot-resolution"), "600x600");
}

TEST_F(ModelStageTest, WhatNobodyCanSetIsRefusedWithTheReason)
{
    struct Row
    {
        const char* feature;
        const char* value;
        const char* part;
    };
    const Row rows[] = {
        {"odrv-stapel", "none", "did you mean \"odrv-staple\""},
        {"odrv-staple", "tow-left", "did you mean \"two-left\""},
        {"odrv-staple", "saddle-stitch", "\"saddle-stitch\" cannot be chosen now: text 600"},
        {"odrv-copies", "many", "takes a number"},
        {"odrv-copies", "0", "stays 1"},
        {"odrv-collate", "yes", "true or false"},
        {"odrv-binding-margin", "12", "a length such as"},
        {"odrv-page-range", "5", "2-5"},
        {"odrv-pin", "1234", "is disabled: text 600"},
        {"odrv-installed-finisher", "none", "mode 2"},
        {"odrv-pages-per-minute", "4", "nobody sets it"},
        {"odrv-dot-resolution", "4x4", "nobody sets it"},
        {"odrv-special-pages", "101", "no more than 100"},
        {"odrv-special-pages[1]/odrv-sides", "x", "no feature"},
    };
    const auto open = stage();
    open->set("odrv-some-pages", "true");
    for (const Row& row : rows) {
        const std::string fault = failure([&] { open->set(row.feature, row.value); });
        EXPECT_NE(fault.find(row.part), std::string::npos) << row.feature << ": " << fault;
    }
    // A refused list has none of the items.
    EXPECT_EQ(open->value("odrv-special-pages"), "0");
}

TEST_F(ModelStageTest, OkKeepsWhatWasChosenAndCancelDoesNot)
{
    const auto open = stage();
    open->set("odrv-staple", "two-left");
    open->set("odrv-copies", "3");
    open->press("OK");
    EXPECT_TRUE(open->closed());
    open->reopen();
    EXPECT_EQ(open->value("odrv-staple"), "two-left");
    EXPECT_EQ(open->value("odrv-copies"), "3");
    open->set("odrv-copies", "4");
    open->press("Apply");
    EXPECT_FALSE(open->closed());
    open->set("odrv-copies", "5");
    open->press("Cancel");
    open->reopen();
    EXPECT_EQ(open->value("odrv-copies"), "4");
    open->set("odrv-copies", "6");
    open->leave();
    open->leave();
    open->reopen();
    EXPECT_EQ(open->value("odrv-copies"), "4");
}

TEST_F(ModelStageTest, ARejectedOkStaysOpenAndStoresNothing)
{
    const auto open = stage();
    open->set("odrv-copies", "3");
    open->set("odrv-warn-at-apply", "warn");
    open->press("OK");
    EXPECT_FALSE(open->closed());
    EXPECT_EQ(open->documentField("copies"), "1");
    open->set("odrv-warn-at-apply", "no");
    open->press("OK");
    EXPECT_TRUE(open->closed());
    EXPECT_EQ(open->documentField("copies"), "3");
}

TEST_F(ModelStageTest, DeviceSettingsArePrintersAndDefaultsAreForNewDocuments)
{
    const auto device = stage(2);
    device->set("odrv-installed-finisher", "none");
    device->press("OK");
    const auto defaults = stage(4);
    defaults->set("odrv-copies", "7");
    defaults->press("OK");
    const auto document = stage();
    EXPECT_EQ(document->value("odrv-installed-finisher"), "none");
    EXPECT_FALSE(document->state("odrv-staple").enabled);
    EXPECT_EQ(document->value("odrv-copies"), "7");
    document->set("odrv-copies", "8");
    document->press("OK");
    // The administrator sees the defaults, not what somebody printed with.
    EXPECT_EQ(stage(4)->value("odrv-copies"), "7");
}

TEST_F(ModelStageTest, AProgramReadsAndWritesThePublicFields)
{
    const auto open = stage();
    EXPECT_EQ(open->documentField("paper"), "A4");
    open->set("odrv-sides", "two-sided-short-edge");
    EXPECT_EQ(open->documentField("duplex"), "none");
    EXPECT_NE(failure([&] { open->setDocumentField("copies", "2"); }), "");
    open->press("OK");
    EXPECT_EQ(open->documentField("duplex"), "short");
    open->setDocumentField("copies", "2");
    open->reopen();
    EXPECT_EQ(open->value("odrv-copies"), "2");
    EXPECT_EQ(open->value("odrv-sides"), "two-sided-short-edge");
}

TEST_F(ModelStageTest, StatesAndReasonsAreTheModels)
{
    const auto open = stage();
    EXPECT_FALSE(open->state("odrv-pin").enabled);
    EXPECT_NE(open->reason("odrv-pin").find("text 600"), std::string::npos);
    EXPECT_TRUE(open->state("odrv-page-borders").empty);
    EXPECT_EQ(open->reason("odrv-copies"), "");
    EXPECT_TRUE(open->entryState("odrv-paper-tray", "tray-1").enabled);
    EXPECT_FALSE(open->entryState("odrv-paper-tray", "large-tray").enabled);
    EXPECT_NE(open->entryReason("odrv-paper-tray", "large-tray"), "");
    EXPECT_NE(failure([&] { open->entryState("odrv-paper-tray", "tray-9"); }), "");
    EXPECT_NE(failure([&] { open->entryState("odrv-copies", "1"); }), "");
    open->set("odrv-sides", "two-sided-long-edge");
    open->set("odrv-paper-type", "labels");
    EXPECT_GT(open->conflictCount(), 0);
    EXPECT_TRUE(open->state("odrv-sides").conflict);
    EXPECT_NE(open->reason("odrv-sides"), "");
}

TEST_F(ModelStageTest, NothingIsDoneOrReadWhileNothingIsOpen)
{
    const auto open = stage();
    open->press("OK");
    EXPECT_NE(failure([&] { open->set("odrv-copies", "2"); }), "");
    EXPECT_NE(failure([&] { open->value("odrv-copies"); }), "");
    EXPECT_NE(failure([&] { open->press("OK"); }), "");
    EXPECT_NE(failure([&] { open->page("Layout"); }), "");
}

TEST_F(ModelStageTest, WhatIsMissingIsNamed)
{
    EXPECT_NE(failure([&] {
                  stages().make({"none", Entry::Model, 1, "en"}, folder.path());
              }).find("package"),
              std::string::npos);
    EXPECT_NE(failure([&] {
                  stages().make({"office-c430", Entry::Model, 1, "xx"}, folder.path());
              }).find("\"xx\""),
              std::string::npos);
}

} // namespace
} // namespace o7::story

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "storygrammar.h"
#include "storyparser.h"

namespace o7::story {
namespace {

const std::vector<std::string> kProducts = {"office-c430", "mono-m210"};

ParsedStory parse(const std::string& text)
{
    return parseStory(text, "a.story", kProducts);
}

/// The only step behind `open` of a story that is otherwise right.
Step stepOf(const std::string& line, const std::string& entry = "sheet")
{
    const ParsedStory parsed =
        parse("product office-c430\nentry " + entry + "\nopen\n" + line + "\nexpect closed\n");
    for (const Mistake& mistake : parsed.mistakes) {
        ADD_FAILURE() << line << ": " << mistake.message;
    }
    return parsed.story.steps.size() == 3 ? parsed.story.steps[1] : Step();
}

TEST(StoryParser, EveryStepIsReadWithWhatItNames)
{
    struct Row
    {
        const char* line;
        Verb verb;
        const char* control;
        const char* value;
    };
    const Row rows[] = {
        {R"(page "Layout")", Verb::Page, "Layout", ""},
        {R"(choose "Staple" "2 staples, left")", Verb::Choose, "Staple", "2 staples, left"},
        {R"(choose "Covers/Tray" "Tray 1")", Verb::Choose, "Covers/Tray", "Tray 1"},
        {R"(tick "Booklet")", Verb::Tick, "Booklet", ""},
        {R"(untick Booklet)", Verb::Untick, "Booklet", ""},
        {R"(type "Copies" "12")", Verb::Type, "Copies", "12"},
        {R"(type "Name" "")", Verb::Type, "Name", ""},
        {R"(type "Name" "say ""a # b""" # why)", Verb::Type, "Name", "say \"a # b\""},
        {R"(type "Folder" "C:\jobs\")", Verb::Type, "Folder", "C:\\jobs\\"},
        {"type \"Stra\xC3\x9F"
         "e\" \"\xE6\x97\xA5\"",
         Verb::Type,
         "Stra\xC3\x9F"
         "e",
         "\xE6\x97\xA5"},
        {"key F8", Verb::Key, "", ""},
        {R"(key Alt+Down in "Paper type")", Verb::Key, "Paper type", ""},
        {R"(press "Apply")", Verb::Press, "Apply", ""},
        {"press OK", Verb::Press, "OK", ""},
        {R"(answer "Yes")", Verb::Answer, "Yes", ""},
        {"reopen", Verb::Reopen, "", ""},
    };
    for (const Row& row : rows) {
        const Step step = stepOf(row.line);
        EXPECT_EQ(step.verb, row.verb) << row.line;
        EXPECT_EQ(step.control.text(), row.control) << row.line;
        EXPECT_EQ(step.value, row.value) << row.line;
        EXPECT_EQ(step.line, 4) << row.line;
    }
    EXPECT_EQ(stepOf(R"(type "A" "b" # why)").source, R"(type "A" "b")");
}

TEST(StoryParser, EveryExpectationIsReadWithWhatItNames)
{
    struct Row
    {
        const char* line;
        Aspect aspect;
        const char* control;
        const char* entry;  ///< null: of no entry
        const char* text;   ///< or the number
        const char* reason; ///< null: of no reason
    };
    const Row rows[] = {
        {R"(expect "A" is "b c")", Aspect::Value, "A", nullptr, "b c", nullptr},
        {R"(expect "A" is 12)", Aspect::Value, "A", nullptr, "12", nullptr},
        {R"(expect "A" enabled)", Aspect::Enabled, "A", nullptr, "", nullptr},
        {R"(expect "A" disabled)", Aspect::Disabled, "A", nullptr, "", nullptr},
        {R"(expect "A" disabled reason contains "no unit")", Aspect::Disabled, "A", nullptr, "",
         "no unit"},
        {R"(expect "A" hidden)", Aspect::Hidden, "A", nullptr, "", nullptr},
        {R"(expect "A" empty)", Aspect::Empty, "A", nullptr, "", nullptr},
        {R"(expect "A" conflict)", Aspect::Conflict, "A", nullptr, "", nullptr},
        {R"(expect "A" no conflict)", Aspect::Settled, "A", nullptr, "", nullptr},
        {R"(expect "A" reason contains "x")", Aspect::Reason, "A", nullptr, "x", nullptr},
        {R"(expect entry "A" "B" disabled reason contains "x")", Aspect::Disabled, "A", "B", "",
         "x"},
        {R"(expect entry "A" "B" enabled)", Aspect::Enabled, "A", "B", "", nullptr},
        {R"(expect "A" entry "B" hidden)", Aspect::Hidden, "A", "B", "", nullptr},
        {R"(expect "status" is "x")", Aspect::Value, "status", nullptr, "x", nullptr},
        {R"(expect status contains "x")", Aspect::Status, "", nullptr, "x", nullptr},
        {R"(expect message contains "x")", Aspect::Message, "", nullptr, "x", nullptr},
        {R"(expect no message)", Aspect::NoMessage, "", nullptr, "", nullptr},
        {R"(expect tab "L" marked)", Aspect::TabMarked, "L", nullptr, "", nullptr},
        {R"(expect tab "L" unmarked)", Aspect::TabUnmarked, "L", nullptr, "", nullptr},
        {R"(expect closed)", Aspect::Closed, "", nullptr, "", nullptr},
        {R"(expect open)", Aspect::Open, "", nullptr, "", nullptr},
    };
    for (const Row& row : rows) {
        const Step step = stepOf(row.line);
        ASSERT_TRUE(step.expectation) << row.line;
        EXPECT_EQ(step.expectation->aspect, row.aspect) << row.line;
        EXPECT_EQ(step.expectation->control.text(), row.control) << row.line;
        EXPECT_EQ(step.expectation->text, row.text) << row.line;
        EXPECT_EQ(step.expectation->entry.value_or("-"), row.entry != nullptr ? row.entry : "-")
            << row.line;
        EXPECT_EQ(step.expectation->reason.value_or("-"), row.reason != nullptr ? row.reason : "-")
            << row.line;
    }
    EXPECT_EQ(stepOf("expect count conflicts 3").expectation->count, 3);
    const Expectation none = *stepOf("expect no conflict").expectation;
    EXPECT_EQ(none.aspect, Aspect::ConflictCount);
    EXPECT_EQ(none.count, 0);
}

TEST(StoryParser, FeaturesOfTheModelNeedNoQuotationMarks)
{
    const Step set = stepOf("set odrv-staple two-left", "model");
    EXPECT_EQ(set.control.text(), "odrv-staple");
    EXPECT_EQ(set.value, "two-left");
    const Step look = stepOf("expect odrv-staple entry two-left disabled", "model");
    ASSERT_TRUE(look.expectation);
    EXPECT_EQ(look.expectation->entry, "two-left");
    EXPECT_EQ(look.expectation->aspect, Aspect::Disabled);
}

TEST(StoryParser, ChordsAreReadInAnyCase)
{
    struct Row
    {
        const char* text = "";
        Chord chord;
    };
    const Row rows[] = {
        {"F8", {false, false, false, "F8"}},
        {"alt+down", {false, true, false, "Down"}},
        {"Ctrl+Shift+Tab", {true, false, true, "Tab"}},
        {"ctrl+a", {true, false, false, "A"}},
        {"7", {false, false, false, "7"}},
        {"PAGEUP", {false, false, false, "PageUp"}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(stepOf(std::string("key ") + row.text).chord, row.chord) << row.text;
    }
    for (const char* const text :
         {"", "+", "Ctrl", "Ctrl+", "Ctrl+Ctrl+A", "F13", "Down+Alt", "ab"}) {
        EXPECT_FALSE(parseChord(text)) << text;
    }
}

TEST(StoryParser, SessionsFollowEachOther)
{
    const ParsedStory parsed = parse("\xEF\xBB\xBF# device first\r\n"
                                     "product office-c430\r\n"
                                     "mode 2\r\n"
                                     "language de\r\n"
                                     "open\r\n"
                                     "press OK\r\n"
                                     "restart product mono-m210 mode 1\r\n"
                                     "entry cpsui\r\n"
                                     "document duplex long\r\n"
                                     "open\r\n"
                                     "expect closed\r\n"
                                     "restart entry dialog mode 3\r\n"
                                     "open\r\n");
    EXPECT_TRUE(parsed.mistakes.empty());
    const auto& sessions = parsed.story.sessions;
    ASSERT_EQ(sessions.size(), 3U);
    EXPECT_EQ(sessions[0].mode, 2);
    EXPECT_EQ(sessions[0].entry, Entry::Sheet);
    EXPECT_EQ(sessions[1].product, "mono-m210");
    EXPECT_EQ(sessions[1].mode, 1);
    EXPECT_EQ(sessions[1].entry, Entry::Cpsui);
    EXPECT_EQ(sessions[1].language, "de");
    EXPECT_EQ(sessions[2].entry, Entry::Dialog);
    std::vector<std::size_t> sessionOfStep;
    for (const Step& step : parsed.story.steps) {
        sessionOfStep.push_back(step.session);
    }
    // A restart still belongs to the session that it closes.
    EXPECT_EQ(sessionOfStep, (std::vector<std::size_t>{0, 0, 0, 1, 1, 1, 1, 2}));
}

TEST(StoryParser, ADialogIsInModeThreeUnlessItIsSaid)
{
    const ParsedStory parsed = parse("product mono-m210\nentry dialog\nopen\nexpect closed\n");
    EXPECT_TRUE(parsed.mistakes.empty());
    EXPECT_EQ(parsed.story.sessions.at(0).mode, 3);
}

struct MistakeRow
{
    const char* text;
    std::vector<std::pair<int, const char*>> mistakes; ///< line, and part of the message
};

const char* const kRight = "product office-c430\nopen\nexpect closed\n";

const MistakeRow kMistakes[] = {
    {"", {{1, "expects nothing"}}},
    {"product office-c430\nopen\n", {{2, "expects nothing"}}},
    {"open\nexpect closed\n", {{1, "which product"}}},
    {"product ofice-c430\nopen\nexpect closed\n", {{1, "did you mean \"office-c430\"?"}}},
    {"product x\nopen\nexpect closed\n", {{1, "there are office-c430, mono-m210"}}},
    {"product office-c430\nentry cpsiu\nmode 5\nlanguage x1\nopen\nexpect closed\n",
     {{2, "did you mean \"cpsui\"?"}, {3, "modes 1 to 4"}, {4, "no language"}}},
    // What the entry could do is not known, so nothing is said about it.
    {"product office-c430\nentry modl\nopen\nset odrv-copies 2\nexpect odrv-copies is 2\n",
     {{2, "did you mean \"model\"?"}}},
    {"product office-c430\nproduct office-c430\nopen\nexpect closed\n", {{2, "before, in line 1"}}},
    {"product office-c430\nopen\nmode 2\nexpect closed\n", {{3, "\"restart\""}}},
    {"product office-c430\nopen\nopen\nexpect closed\n", {{3, "\"reopen\""}}},
    {"product office-c430\npress OK\nexpect closed\n", {{2, "\"open\" comes first"}}},
    {"restart mode 2\nproduct office-c430\nopen\nexpect closed\n",
     {{1, "nothing has begun"}, {1, "which product"}}},
    {"product office-c430\nopen\nexpect closed\nrestart mode\n", {{4, "restart goes on with"}}},
    {"product office-c430\nopen\nexpect closed\nrestart press OK\n", {{4, "not with press"}}},
};

TEST(StoryParser, MistakesInTheOrderOfStepsAreToldWithTheirLines)
{
    for (const MistakeRow& row : kMistakes) {
        const ParsedStory parsed = parse(row.text);
        ASSERT_EQ(parsed.mistakes.size(), row.mistakes.size()) << row.text;
        for (std::size_t i = 0; i < row.mistakes.size(); ++i) {
            EXPECT_EQ(parsed.mistakes[i].line, row.mistakes[i].first) << row.text;
            EXPECT_NE(parsed.mistakes[i].message.find(row.mistakes[i].second), std::string::npos)
                << parsed.mistakes[i].message;
        }
    }
    EXPECT_TRUE(parse(kRight).mistakes.empty());
}

/// What is wrong with one line among right ones; empty when nothing is.
std::string faultOf(const std::string& line, const std::string& session = "entry cpsui")
{
    const ParsedStory parsed =
        parse("product office-c430\n" + session + "\nopen\n" + line + "\nexpect closed\n");
    EXPECT_LE(parsed.mistakes.size(), 1U) << line;
    if (parsed.mistakes.empty()) {
        return {};
    }
    EXPECT_EQ(parsed.mistakes.front().line, 4) << line;
    return parsed.mistakes.front().toString();
}

TEST(StoryParser, ALineThatIsNoStepIsToldWithWhatWouldBe)
{
    const std::pair<const char*, const char*> rows[] = {
        {"chose \"A\" \"b\"", "chose is no step; did you mean \"choose\"?"},
        {"\"A\"", "\"A\" is no step; there are product, entry"},
        {"choose", "after choose comes the name of a control or feature, and the line ends there"},
        {"choose \"A\"", "after \"A\" comes a text, and the line ends"},
        {"tick \"A\" \"B\"", "after \"A\" comes nothing more, not \"B\""},
        {"type \"A\" two words", "a text with blanks stands in quotation marks"},
        {"tick \"\"", "no name between"},
        {"tick \"A", "none that ends the text"},
        {"tick \"A\"B", "written twice"},
        {"tick A\"B\"", "no blank between A"},
        {"tick \"\xC3(\"", "no UTF-8"},
        {"key Ctrl+Dwon", "did you mean \"Down\"?"},
        {"key F8 on \"A\"", "comes nothing, or in, not on"},
        {"expect", "after expect comes closed"},
        {"expect Copies is \"1\"", "the label of a control in quotation marks"},
        {"expect mesage contains \"x\"", "did you mean \"message\"?"},
        {"expect \"A\" greyed", "not greyed"},
        {"expect \"A\" disabld", "did you mean \"disabled\"?"},
        {"expect \"A\" disabled reason is \"x\"", "after reason comes contains, not is"},
        {"expect count conflicts two", "after conflicts comes a number, not two"},
        {"expect count conflicts -1", "a number"},
        {"expect document paper is \"nonsense\"", "the system's number, not \"nonsense\""},
        {"expect document papr is A4", "did you mean \"paper\"?"},
        {"document duplex both", "none, long or short"},
        {"document length 29,7", "millimetres"},
    };
    for (const auto& [line, part] : rows) {
        EXPECT_NE(faultOf(line).find(part), std::string::npos) << line << "\n" << faultOf(line);
    }
    EXPECT_EQ(faultOf("tick", "entry sheet").substr(0, 11), "a.story:4: ");
}

TEST(StoryParser, WhatAnEntryCannotDoIsAMistake)
{
    struct Row
    {
        const char* session;
        const char* line;
        const char* part; ///< null: it can
    };
    const Row rows[] = {
        {"entry in-app", "document copies 2", "cannot change the fields of a document"},
        {"entry in-app", "expect document copies is 2", "cannot read the fields"},
        {"entry in-app", "expect \"A\" disabled reason contains \"x\"", "cannot read a reason"},
        {"entry in-app", "expect \"A\" reason contains \"x\"", "cannot read a reason"},
        {"entry in-app", "expect \"A\" conflict", "mark of a conflict"},
        {"entry in-app", "expect tab \"A\" marked", "mark of a tab"},
        {"entry in-app", "expect entry \"A\" \"b\" disabled", "a list's entry"},
        {"entry in-app", "expect count conflicts 1", "count conflicts"},
        {"entry in-app", "expect \"A\" disabled", nullptr},
        {"entry in-app", "choose \"A\" \"b\"", nullptr},
        {"entry sheet", "document copies 2", "these can: cpsui, model"},
        {"entry sheet", "set odrv-copies 2", "these can: model"},
        {"entry dialog", "page \"A\"", "cannot turn to a page"},
        {"entry model", "page \"A\"", "cannot turn to a page"},
        {"entry model", "tick \"A\"", "cannot tick"},
        {"entry model", "expect status contains \"x\"", "status line"},
        {"entry model", "press \"Defaults\"", "no \"Defaults\""},
        {"entry model", "press \"Apply\"", nullptr},
        {"entry model", "document copies 2", nullptr},
        {"entry cpsui", "document copies 2", nullptr},
    };
    for (const Row& row : rows) {
        const std::string fault = faultOf(row.line, row.session);
        if (row.part == nullptr) {
            EXPECT_EQ(fault, "") << row.line;
        } else {
            EXPECT_NE(fault.find(row.part), std::string::npos) << row.line << "\n" << fault;
        }
    }
}

TEST(StoryParser, ModesThatAnEntryDoesNotHaveAreMistakes)
{
    const std::pair<const char*, const char*> rows[] = {
        {"entry in-app\nmode 2", "mode 1 only"},
        {"entry dialog\nmode 1", "mode 3 only"},
        {"entry cpsui\nmode 3", "modes 1, 2 and 4"},
    };
    for (const auto& [session, part] : rows) {
        const ParsedStory parsed =
            parse("product office-c430\n" + std::string(session) + "\nopen\nexpect closed\n");
        ASSERT_EQ(parsed.mistakes.size(), 1U) << session;
        EXPECT_EQ(parsed.mistakes.front().line, 3) << session;
        EXPECT_NE(parsed.mistakes.front().message.find(part), std::string::npos);
    }
}

/// Every form of the table can be written down, and is then recognised as itself.
TEST(StoryGrammar, EveryFormIsReachable)
{
    for (const Form& form : forms()) {
        std::vector<Word> words;
        for (std::string_view rest = form.pattern; !rest.empty();) {
            const std::string_view part = rest.substr(0, rest.find(' '));
            rest.remove_prefix(std::min(part.size() + 1, rest.size()));
            if (part == "[REASON]") {
                words.insert(words.end(), {{"reason", false}, {"contains", false}, {"x", true}});
            } else if (part == "NUMBER") {
                words.push_back({"3", false});
            } else {
                words.push_back({std::string(part), part.front() < 'a' && part.front() != '['});
            }
        }
        const Recognition found = recognise(words, false);
        EXPECT_EQ(found.form, &form) << form.pattern << "\n" << found.fault;
    }
}

} // namespace
} // namespace o7::story

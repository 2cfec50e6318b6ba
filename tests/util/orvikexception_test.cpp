#include "cxstringprinter.h"
#include "exceptiondelayloaddllloadfailure.h"
#include "exceptionpagenumbertoolarge.h"
#include "exceptionpagenumbertoosmall.h"
#include "exceptionpagesformat.h"
#include "exceptiontabcreationfailure.h"
#include "executioncontextlifetime.h"
#include "throworvik.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <thread>
#include <vector>

namespace {

std::vector<ExceptionDisplay> g_shown;

// Collects what would be shown, for the length of one test.
class Displays : public testing::Test
{
protected:
    Displays()
    {
        g_shown.clear();
        m_former = OrvikException::SetDisplayHook(
            [](const ExceptionDisplay& display) { g_shown.push_back(display); });
    }
    ~Displays() override { OrvikException::SetDisplayHook(m_former); }

private:
    OrvikException::DisplayHook m_former;
};

template <class Exception, class Factory> void expectRaised(Factory factory, const wchar_t* name)
{
    const BasicExecutionContext context{42, L"source", L"Outer::work", 7, L"x=1"};
    const ExecutionContextLifetime lifetime(context);
    int line = 0;
    try {
        line = __LINE__ + 1;
        o7::throwOrvik(factory, name, {L"Class::function"}, L"page %d of %s", 3, L"five");
    } catch (const Exception& exception) {
        EXPECT_EQ(exception.GetName(), name);
        EXPECT_EQ(exception.GetMessageText(), L"page 3 of five");
        EXPECT_STREQ(exception.what(), "page 3 of five");
        EXPECT_EQ(exception.GetFile(), L"orvikexception_test.cpp");
        EXPECT_EQ(exception.GetLine(), line);
        EXPECT_EQ(exception.GetFunction(), L"Class::function");
        ASSERT_EQ(exception.GetContextStack().contexts().size(), 1U);
        EXPECT_EQ(exception.GetContextStack().contexts()[0].number, 42U);
        return;
    }
    FAIL() << "not of its own type";
}

TEST(OrvikException, EachOfTheFamilyIsRaisedWithItsPlaceAndContext)
{
#define EXPECT_RAISED(name) expectRaised<name>(Get##name, L## #name)
    EXPECT_RAISED(ExceptionTabCreationFailure);
    EXPECT_RAISED(ExceptionPagesFormat);
    EXPECT_RAISED(ExceptionPageNumberTooSmall);
    EXPECT_RAISED(ExceptionPageNumberTooLarge);
    EXPECT_RAISED(ExceptionDelayLoadDllLoadFailure);
    EXPECT_RAISED(OrvikException);
#undef EXPECT_RAISED
}

TEST(OrvikException, MessageThatCannotBeFormattedIsReplaced)
{
    const auto messageOf = [](const wchar_t* format) {
        try {
            o7::throwOrvik(GetExceptionPagesFormat, L"ExceptionPagesFormat", {L"f"}, format, L"");
        } catch (const OrvikException& exception) {
            return exception.GetMessageText();
        }
        return CXString(L"nothing thrown");
    };
    EXPECT_EQ(messageOf(L"%y"), o7::brokenMessageText());
    EXPECT_EQ(messageOf(L"%s"), o7::brokenMessageText());
    EXPECT_EQ(messageOf(L""), L"");
    EXPECT_EQ(messageOf(nullptr), L"");
}

TEST_F(Displays, TellWhatHappenedAndWhere)
{
    OrvikException::DisplayExceptionMessage(
        GetExceptionPagesFormat(L"bad list", L"uipagesparser.cpp", 12, L"UIPagesParser::parsePages",
                                {}),
        L"UIDialogProcedure::run", L"o7guiQK");
    OrvikException::DisplayExceptionMessage(std::runtime_error("out of t\xC3\xB6ner"), nullptr,
                                            nullptr);
    OrvikException::DisplayUnknownExceptionMessage(L"run", L"o7guiQK");
    ASSERT_EQ(g_shown.size(), 3U);
    EXPECT_EQ(g_shown[0].title, L"o7guiQK");
    EXPECT_EQ(g_shown[0].text,
              L"bad list\n\nExceptionPagesFormat, raised by UIPagesParser::parsePages "
              L"(uipagesparser.cpp, line 12)\nCaught in UIDialogProcedure::run");
    EXPECT_EQ(g_shown[1].title, L"o7utilQK");
    EXPECT_EQ(g_shown[1].text, L"out of t\u00F6ner");
    EXPECT_EQ(g_shown[2].text, L"An unknown error occurred.\nCaught in run");
}

TEST_F(Displays, DoNotPileUpAndSurviveAFailingHook)
{
    OrvikException::SetDisplayHook([](const ExceptionDisplay& display) {
        g_shown.push_back(display);
        OrvikException::DisplayExceptionMessage(std::runtime_error("inner"), L"p", L"s");
        throw std::runtime_error("hook");
    });
    OrvikException::DisplayExceptionMessage(std::runtime_error("outer"), L"p", L"s");
    OrvikException::DisplayExceptionMessage(std::runtime_error("next"), L"p", L"s");
    ASSERT_EQ(g_shown.size(), 2U);
    EXPECT_EQ(g_shown[1].text, L"next\nCaught in p");
}

TEST(ExecutionContext, NestsPerThread)
{
    EXPECT_TRUE(ExecutionContextStack::current().empty());
    const BasicExecutionContext outer{31517, L"uimanager", L"UIManager::initializeForCPSUI", 111,
                                      L"ActivationContext=0x0"};
    const ExecutionContextLifetime outerLifetime(outer);
    ExecutionContextStack snapshot;
    {
        const BasicExecutionContext inner{2, L"tab", L"UITab::build", 5, L""};
        const ExecutionContextLifetime innerLifetime(inner);
        snapshot = ExecutionContextStack::current();
        bool otherIsEmpty = false;
        std::thread([&] { otherIsEmpty = ExecutionContextStack::current().empty(); }).join();
        EXPECT_TRUE(otherIsEmpty);
    }
    EXPECT_EQ(ExecutionContextStack::current().contexts().size(), 1U);
    EXPECT_EQ(snapshot.toString(),
              L"2 tab(5) UITab::build: \n"
              L"31517 uimanager(111) UIManager::initializeForCPSUI: ActivationContext=0x0");
}

} // namespace

#include "uiguard.h"

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <utility>

namespace {

std::string s_title;
std::string s_text;

class UIGuard : public testing::Test
{
protected:
    UIGuard()
        : m_former(OrvikException::SetDisplayHook([](const ExceptionDisplay& display) {
              s_title = display.title.ToUtf8();
              s_text = display.text.ToUtf8();
          }))
    {
        s_title.clear();
        s_text.clear();
    }
    ~UIGuard() override { OrvikException::SetDisplayHook(m_former); }

private:
    OrvikException::DisplayHook m_former;
};

/// What is thrown, and a part of what the user is shown.
const std::pair<const char*, std::function<void()>> kRows[] = {
    {"no such page", [] { throw GetOrvikException(L"no such page", L"here.cpp", 7, L"Here", {}); }},
    {"it broke", [] { throw std::runtime_error("it broke"); }},
    {"bad allocation", [] { throw std::bad_alloc(); }},
    {"TheProcedure", [] { throw 7; }},
};

TEST_F(UIGuard, ShowsWhateverIsThrownAndAnswersNothing)
{
    for (const auto& row : kRows) {
        s_text.clear();
        const auto answer = o7::guarded<long long>(L"TheProcedure", L"thesource", [&]() {
            row.second();
            return 5LL;
        });
        EXPECT_EQ(0, answer);
        EXPECT_NE(std::string::npos, s_text.find(row.first)) << s_text;
        EXPECT_NE(std::string::npos, s_text.find("TheProcedure")) << s_text;
        EXPECT_NE(std::string::npos, s_title.find("thesource")) << s_title;
    }
}

TEST_F(UIGuard, HandsTheAnswerOnAndShowsNothing)
{
    EXPECT_EQ(5, o7::guarded<int>(L"TheProcedure", L"thesource", [] { return 5; }));
    EXPECT_EQ("", s_text);
}

} // namespace

// What is shown when there is no memory for what was to be shown.

#include "orvikexception.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>
#include <stdexcept>

namespace {

bool s_fails = false;
int s_boxes = 0;
bool s_hadText = false;

void note(const ExceptionDisplay& display)
{
    ++s_boxes;
    s_hadText = !display.text.IsEmpty();
}

TEST(OutOfMemory, AFailureIsShownAllTheSame)
{
    const auto former = OrvikException::SetDisplayHook(&note);
    const std::runtime_error error("what happened");
    for (const bool fails : {false, true}) {
        s_boxes = 0;
        s_fails = fails;
        OrvikException::DisplayExceptionMessage(error, L"procedure", L"source");
        OrvikException::DisplayUnknownExceptionMessage(L"procedure", L"source");
        s_fails = false;
        EXPECT_EQ(s_boxes, 2);
        EXPECT_EQ(s_hadText, !fails);
    }
    OrvikException::SetDisplayHook(former);
}

} // namespace

void* operator new(std::size_t size)
{
    void* const memory = s_fails ? nullptr : std::calloc(1, size != 0 ? size : 1);
    if (memory == nullptr)
        throw std::bad_alloc();
    return memory;
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

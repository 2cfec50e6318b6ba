#include "displayedexceptions.h"

#include "orvikexception.h"

namespace o7 {
namespace {

std::vector<std::wstring> s_texts; // the hook is a plain function

} // namespace

DisplayedExceptions::DisplayedExceptions()
{
    s_texts.clear();
    OrvikException::SetDisplayHook(
        [](const ExceptionDisplay& display) { s_texts.emplace_back(display.text.View()); });
}

DisplayedExceptions::~DisplayedExceptions()
{
    OrvikException::SetDisplayHook(nullptr);
}

const std::vector<std::wstring>& DisplayedExceptions::texts() const
{
    return s_texts;
}

} // namespace o7

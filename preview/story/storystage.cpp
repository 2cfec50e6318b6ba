#include "storystage.h"

#include "stepfailure.h"

namespace o7::story {
namespace {

[[noreturn]] void cannot(const char* what)
{
    throw StepFailure(std::string("This entry cannot ") + what + ".");
}

} // namespace

void StoryStage::page(const std::string&)
{
    cannot("turn to a page");
}

void StoryStage::choose(const ControlName&, const std::string&)
{
    cannot("choose from a list");
}

void StoryStage::tick(const ControlName&, bool)
{
    cannot("tick a box");
}

void StoryStage::type(const ControlName&, const std::string&)
{
    cannot("type a text");
}

void StoryStage::key(const Chord&, const ControlName&)
{
    cannot("press a key");
}

void StoryStage::press(const std::string&)
{
    cannot("press a button");
}

void StoryStage::answer(const std::string&)
{
    cannot("answer a message");
}

void StoryStage::set(const ControlName&, const std::string&)
{
    cannot("set a feature");
}

std::string StoryStage::value(const ControlName&)
{
    cannot("read a value");
}

ControlState StoryStage::state(const ControlName&)
{
    cannot("read a state");
}

std::string StoryStage::reason(const ControlName&)
{
    cannot("read a reason");
}

ControlState StoryStage::entryState(const ControlName&, const std::string&)
{
    cannot("read the state of a list's entry");
}

std::string StoryStage::entryReason(const ControlName&, const std::string&)
{
    cannot("read the reason of a list's entry");
}

std::string StoryStage::status()
{
    cannot("read the status line");
}

std::optional<std::string> StoryStage::message()
{
    return std::nullopt;
}

bool StoryStage::tabMarked(const std::string&)
{
    cannot("read the marks of tabs");
}

int StoryStage::conflictCount()
{
    cannot("count conflicts");
}

std::string StoryStage::documentField(const std::string&)
{
    cannot("read the document");
}

void StoryStage::setDocumentField(const std::string&, const std::string&)
{
    cannot("change the document");
}

} // namespace o7::story

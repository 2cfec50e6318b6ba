#include "sheetsteps.h"

#include <prsht.h>

#include "eventnotification.h"
#include "notificationbundle.h"
#include "orvikexception.h"
#include "uifixture.h"

namespace o7::test {

namespace {

std::string s_shown;
OrvikException::DisplayHook s_former = nullptr;

void rememberShown(const ExceptionDisplay& display)
{
    s_shown += display.text.ToUtf8() + "\n";
}

} // namespace

EventCounter::EventCounter(FeatureServices& services,
                           std::initializer_list<DataModelIds::EventEnum> events)
    : m_services(services), m_events(events)
{
    for (const auto event : m_events)
        services.RegisterForEvent(*this, EventId(event), DataModelIds::kObserverEvent);
}

EventCounter::~EventCounter()
{
    for (const auto event : m_events)
        m_services.UnregisterForEvent(*this, EventId(event), DataModelIds::kObserverEvent);
}

void EventCounter::ProcessNotification(const INotification& notification, unsigned int)
{
    const auto& bundle = dynamic_cast<const NotificationBundle&>(notification);
    for (auto iterator = bundle.GetIterator(); iterator.MoreNotifications();) {
        const auto& event = dynamic_cast<const EventNotification&>(iterator.GetNext());
        seen.push_back(event.GetEventId().GetEventEnum());
        data.push_back(event.GetParam());
    }
}

IdleDriver::Step show(int index)
{
    return [index](HWND sheet) {
        return sheet && SendMessageW(sheet, PSM_SETCURSEL, static_cast<WPARAM>(index), 0) &&
               IsWindowVisible(currentPage(sheet));
    };
}

IdleDriver::Step press(int button)
{
    return [button](HWND sheet) {
        if (sheet)
            PostMessageW(sheet, PSM_PRESSBUTTON, static_cast<WPARAM>(button), 0);
        return sheet != nullptr;
    };
}

IdleDriver::Step clickOn(const wchar_t* text)
{
    return [text](HWND sheet) {
        const HWND box = sheet ? findControl(sheet, L"BUTTON", text) : nullptr;
        if (box)
            SendMessageW(box, BM_CLICK, 0, 0);
        return box != nullptr;
    };
}

IdleDriver::Step type(const wchar_t* text)
{
    return [=](HWND sheet) {
        const HWND field = sheet ? findListBehind(sheet, kCopiesLabel) : nullptr;
        if (!field)
            return false;
        SetFocus(field);
        SendMessageW(field, EM_SETSEL, 0, -1);
        SendMessageW(field, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(text));
        return true;
    };
}

ShownErrors::ShownErrors()
{
    s_shown.clear();
    s_former = OrvikException::SetDisplayHook(&rememberShown);
}

ShownErrors::~ShownErrors()
{
    OrvikException::SetDisplayHook(s_former);
}

const std::string& ShownErrors::text()
{
    return s_shown;
}

} // namespace o7::test

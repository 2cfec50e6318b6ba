#pragma once

#include <windows.h>

#include <initializer_list>
#include <string>
#include <vector>

#include "eventid.h"
#include "featureservices.h"
#include "idledriver.h"
#include "iobserver.h"
#include "tables/tablerows.h"
#include "uirecords.h"
#include "uistringnumbers.h"

namespace o7::test {

/// Pages for tests of a whole sheet: two check boxes each, and one with a field that can refuse.
template <tagFeatureEnum feature, std::uint32_t label>
constexpr UIControlRecord kCheckOf[] = {{UIControlKind::Check, feature, label}};
inline constexpr UIMoleculeRecord kTwoChecks[] = {
    {UIMoleculeKind::CheckBox, kCheckOf<kTonerSaving, O7STR_L_TONER_SAVING>},
    {UIMoleculeKind::CheckBox, kCheckOf<kCollate, O7STR_L_COLLATE>},
};
inline constexpr UIColumnRecord kCheckColumns[] = {{7, 200, 0, kTwoChecks}};
inline constexpr UIMoleculeRecord kFieldAndCheck[] = {spin<kCopies, O7STR_L_COPIES>(),
                                                      check<kCollate, O7STR_L_COLLATE>()};
inline constexpr UIColumnRecord kFieldColumns[] = {{7, 200, 0, kFieldAndCheck}};
inline constexpr UIContainerRecord kFieldPage = {2, O7STR_TAB_LAYOUT, 220, 90, kFieldColumns};
inline constexpr int kFieldPageIndex = 1;
constexpr UIContainerRecord checkPage(std::uint32_t id)
{
    return {id, O7STR_TAB_PAPER, 220, 60, kCheckColumns};
}

/// Writes down the events that the model hands on.
class EventCounter : public IObserver
{
public:
    EventCounter(FeatureServices& services, std::initializer_list<DataModelIds::EventEnum> events);
    ~EventCounter() override;
    void ProcessNotification(const INotification& notification, unsigned int kind) override;

    std::vector<int> seen;
    std::vector<void*> data; ///< what came along with each

private:
    FeatureServices& m_services;
    std::vector<DataModelIds::EventEnum> m_events;
};

/// Brings a page of the sheet to the front.
IdleDriver::Step show(int index);
/// Presses a button of the sheet (PSBTN_...).
IdleDriver::Step press(int button);
/// Clicks a button or check box of the page that is shown.
IdleDriver::Step clickOn(const wchar_t* text);

inline constexpr wchar_t kCopiesLabel[] = L"Copies:";
/// Replaces what stands in the box of the copies.
IdleDriver::Step type(const wchar_t* text);

/// While it lives, what an exception would show to the person is collected.
class ShownErrors
{
public:
    ShownErrors();
    ~ShownErrors();
    ShownErrors(const ShownErrors&) = delete;
    ShownErrors& operator=(const ShownErrors&) = delete;
    static const std::string& text();
};

} // namespace o7::test

#include "uisheetareas.h"

#include <algorithm>

#include "cxstring.h"
#include "dialogconversion.h"
#include "trace.h"
#include "uidialogprocedure.h"
#include "uiguard.h"
#include "uiofftab.h"
#include "uiservices.h"
#include "undo.h"

namespace {

// Between the tab control and an area, and between two areas; dialog units.
constexpr long kGap = 4;

} // namespace

UISheetAreas::UISheetAreas(HINSTANCE moduleInstance, FeatureServices& featureServices,
                           UIContext& context, UIServices& services,
                           UIMessageManager& messageManager)
    : m_moduleInstance(moduleInstance),
      m_featureServices(featureServices),
      m_context(context),
      m_services(services),
      m_messageManager(messageManager)
{
}

UISheetAreas::~UISheetAreas()
{
    close();
}

void UISheetAreas::close()
{
    for (const auto& offTab : m_offTabs)
        offTab->close();
    m_sheet.restore(); // over the place where they stood
}

void UISheetAreas::build(const std::vector<const UIContainerData*>& descriptions)
{
    for (const UIContainerData* description : descriptions) {
        auto offTab = std::make_unique<UIOffTab>(m_featureServices, m_context, m_services);
        if (offTab->build(*description))
            m_offTabs.push_back(std::move(offTab));
    }
}

bool UISheetAreas::open(HWND page)
{
    if (m_wasTried || !m_sheet.adopt(GetParent(page)))
        return false;
    m_wasTried = true;
    o7::Undo undo([this] { close(); });
    std::vector<long> heights;
    const long gap = m_services.getDialogConversion().dialogUnitsToPixels(SIZE{0, kGap}).cy;
    if (!makeRoom(heights, gap)) {
        o7::trace(CXString(L"there is no room for the areas under the pages"));
        return false;
    }
    openAll(heights, gap);
    undo.keep();
    return true;
}

bool UISheetAreas::makeRoom(std::vector<long>& heights, long gap)
{
    const DialogConversion& conversion = m_services.getDialogConversion();
    long growth = 0;
    for (const auto& offTab : m_offTabs) {
        heights.push_back(conversion.dialogUnitsToPixels(SIZE{0, offTab->getHeight()}).cy);
        growth += gap + heights.back();
    }
    return m_sheet.enlarge(growth) && m_sheet.subclass(m_messageManager);
}

void UISheetAreas::openAll(const std::vector<long>& heights, long gap)
{
    RECT place = m_sheet.getTabControl();
    HWND predecessor = m_sheet.getTabPredecessor();
    for (std::size_t index = 0; index < m_offTabs.size(); ++index) {
        place.top = place.bottom + gap;
        place.bottom = place.top + heights[index];
        if (m_offTabs[index]->open(m_moduleInstance, m_sheet.get(), place, predecessor,
                                   m_messageManager))
            predecessor = m_offTabs[index]->getWindow();
    }
}

bool UISheetAreas::handleMessage(const _UIWindowsMessage& message)
{
    // The sheet gets its message whatever an area does with it: it could not live without.
    const bool claimed =
        !UIDialogProcedure::lacksRecord(message) &&
        o7::guarded<bool>(L"UISheetAreas::offer", L"uisheetareas", [&] { return offer(message); });
    if (claimed)
        return true;
    if (message.window != m_sheet.get())
        return false;
    message.result = m_sheet.passOn(message);
    return true;
}

bool UISheetAreas::offer(const _UIWindowsMessage& message) const
{
    return std::any_of(m_offTabs.begin(), m_offTabs.end(),
                       [&](const auto& offTab) { return offTab->handleMessage(message); });
}

bool UISheetAreas::hasPendingInput() const
{
    return std::any_of(m_offTabs.begin(), m_offTabs.end(),
                       [](const auto& offTab) { return offTab->hasPendingInput(); });
}

bool UISheetAreas::validate() const
{
    return std::all_of(m_offTabs.begin(), m_offTabs.end(),
                       [](const auto& offTab) { return offTab->validateAll(); });
}

void UISheetAreas::dump() const
{
    for (const auto& offTab : m_offTabs)
        offTab->dump();
}

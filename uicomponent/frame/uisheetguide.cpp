#include "uisheetguide.h"

#include <prsht.h>

#include <algorithm>

#include "featureservices.h"
#include "setofsettingids.h"
#include "uibuttonaction.h"
#include "uibuttonmolecule.h"
#include "uiguard.h"
#include "uimoleculedata.h"
#include "uitab.h"
#include "uiwindowsmessage.h"

namespace {

// The no-feature id designates the full list: everything is told.
const FeatureIdWithContext kEverything;

} // namespace

UISheetGuide::UISheetGuide(FeatureServices& featureServices, const ProductStringLoader& strings,
                           const Tabs& tabs)
    : m_featureServices(featureServices), m_tabs(tabs), m_status(featureServices, strings)
{
}

UISheetGuide::~UISheetGuide()
{
    // Here only when the manager goes before its sheet; what fails then must not end the host.
    o7::guarded<bool>(L"UISheetGuide::end", L"uisheetguide", [this] {
        end();
        return true;
    });
}

void UISheetGuide::rememberPage(const CXString& path, const CXString& printer, UIMode mode)
{
    m_lastPage.emplace(path, printer, mode);
}

void UISheetGuide::carryOn(HWND page)
{
    if (!m_sheet)
        begin(page);
}

void UISheetGuide::serve(const UIMoleculeContainer& container)
{
    m_served.push_back(&container);
    requestUpdate();
}

bool UISheetGuide::handleMessage(const _UIWindowsMessage& message)
{
    switch (message.message) {
    case WM_INITDIALOG:
        if (!m_sheet)
            begin(message.window);
        return false;
    case WM_DESTROY:
        if (message.window == m_page)
            end();
        return false;
    case WM_NOTIFY:
        if (reinterpret_cast<const NMHDR*>(message.lParam)->code == PSN_SETACTIVE)
            activated(message.window);
        return false;
    case UIConflictWalk::kMessage: // of a page in whose box F8 was pressed, too
        return pageOf(message.window) && serveOwn(message);
    case kUpdateMessage:
        return message.window == m_page && serveOwn(message);
    default:
        return false;
    }
}

bool UISheetGuide::serveOwn(const _UIWindowsMessage& message)
{
    if (message.message == kUpdateMessage)
        update();
    else
        goToConflict(message.wParam != 0);
    return true;
}

void UISheetGuide::begin(HWND page)
{
    m_page = page;
    m_sheet = GetParent(page);
    m_key.emplace(m_sheet, WORD{VK_F8}, page, UIConflictWalk::kMessage);
    m_featureServices.RegisterObserver(*this, SettingsInstanceId(DataModelIds::kSettingsCurrent),
                                       kEverything, DataModelIds::kObserverFeature);
    // In a sheet that is open already the person has just chosen a page.
    m_reopens = m_lastPage && !IsWindowVisible(m_sheet);
    requestUpdate();
}

void UISheetGuide::end()
{
    if (!m_sheet)
        return;
    m_featureServices.UnregisterObserver(*this, SettingsInstanceId(DataModelIds::kSettingsCurrent),
                                         kEverything, DataModelIds::kObserverFeature);
    m_key.reset();
    m_marks.reset();
    // Who never left the first page leaves no trace.
    if (m_lastPage && m_active < m_tabs.size() && (m_active != 0 || m_lastPage->get() != 0))
        m_lastPage->set(m_tabs[m_active]->getPageId());
    m_sheet = nullptr;
    m_page = nullptr;
    m_updateRequested = false;
}

std::optional<std::size_t> UISheetGuide::pageOf(HWND window) const
{
    for (std::size_t page = 0; page < m_tabs.size(); ++page)
        if (window && m_tabs[page]->getWindow() == window)
            return page;
    return std::nullopt;
}

void UISheetGuide::activated(HWND page)
{
    if (const auto active = pageOf(page))
        m_active = *active;
    requestUpdate();
}

void UISheetGuide::ProcessNotification(const INotification&, unsigned int)
{
    requestUpdate();
}

// Posted messages come before anything is painted.
void UISheetGuide::requestUpdate()
{
    if (!m_updateRequested && m_page)
        m_updateRequested = PostMessageW(m_page, kUpdateMessage, 0, 0) != FALSE;
}

void UISheetGuide::update()
{
    m_updateRequested = false;
    if (!m_sheet)
        return;
    reopenLastPage();
    const auto conflicts = conflictsInOrder();
    markTabs(conflicts);
    for (const auto& tab : m_tabs)
        serveMolecules(*tab, conflicts);
    for (const UIMoleculeContainer* container : m_served)
        serveMolecules(*container, conflicts);
}

std::vector<FeatureIdWithContext> UISheetGuide::conflictsInOrder()
{
    auto conflicts = UIConflictWalk::conflicts(m_featureServices);
    if (conflicts.size() < 2)
        return conflicts;
    std::stable_sort(conflicts.begin(), conflicts.end(),
                     [&](const auto& a, const auto& b) { return placeOf(a) < placeOf(b); });
    return conflicts;
}

/// Counts the settings of all pages.
std::size_t UISheetGuide::placeOf(const FeatureIdWithContext& feature)
{
    std::size_t place = 0;
    for (const UIPageSettings& page : settings()) {
        if (const auto found = page.find(feature))
            return place + *found;
        place += page.size();
    }
    return place;
}

// Found anew each time: a page may have lost its molecules, with its window, meanwhile.
void UISheetGuide::serveMolecules(const UIMoleculeContainer& container,
                                  const std::vector<FeatureIdWithContext>& conflicts)
{
    if (!container.getWindow())
        return;
    for (UIMolecule* molecule : container.getMolecules()) {
        const UIMoleculeKind kind = molecule->GetData().getKind();
        if (kind == UIMoleculeKind::Status) {
            static_cast<UIStatusMolecule*>(molecule)->SetStatus(
                m_status.describe(conflicts, settings(), m_active));
        } else if (kind == UIMoleculeKind::Button) {
            auto& button = static_cast<UIButtonMolecule&>(*molecule);
            if (button.GetAction() != o7::kActionPageDefaults)
                continue;
            button.SetPressed([this] { restorePageDefaults(); });
            button.SetEnabled(settings()[m_active].isChanged());
        }
    }
}

void UISheetGuide::reopenLastPage()
{
    if (!m_reopens)
        return;
    m_reopens = false;
    const auto found = std::find_if(m_tabs.begin(), m_tabs.end(), [&](const auto& tab) {
        return tab->getPageId() == m_lastPage->get();
    });
    if (found != m_tabs.end())
        selectPage(static_cast<std::size_t>(found - m_tabs.begin()));
}

/// Where our first page stands in the sheet; negative when the sheet does not say.
int UISheetGuide::firstTab() const
{
    const auto page = pageOf(m_page);
    const auto tab = SendMessageW(m_sheet, PSM_HWNDTOINDEX, reinterpret_cast<WPARAM>(m_page), 0);
    return page ? static_cast<int>(tab) - static_cast<int>(*page) : -1;
}

/// @return false when the page that is shown does not let the person go.
bool UISheetGuide::selectPage(std::size_t page)
{
    if (page == m_active)
        return true;
    const int tab = firstTab() + static_cast<int>(page);
    SendMessageW(m_sheet, PSM_SETCURSEL, static_cast<WPARAM>(tab), 0);
    return m_active == page;
}

const std::vector<UIPageSettings>& UISheetGuide::settings()
{
    for (std::size_t page = m_settings.size(); page < m_tabs.size(); ++page) {
        SetOfSettingIds ids;
        m_tabs[page]->collectSettings(ids);
        m_settings.emplace_back(m_featureServices, ids);
    }
    return m_settings;
}

void UISheetGuide::markTabs(const std::vector<FeatureIdWithContext>& conflicts)
{
    if (conflicts.empty() && !m_marks)
        return;
    if (!m_marks) {
        std::vector<CXString> titles;
        for (const auto& tab : m_tabs)
            titles.push_back(tab->getTitle());
        const auto tabs = reinterpret_cast<HWND>(SendMessageW(m_sheet, PSM_GETTABCONTROL, 0, 0));
        m_marks.emplace(tabs, firstTab(), std::move(titles));
    }
    std::vector<bool> marked;
    for (const UIPageSettings& page : settings())
        marked.push_back(std::any_of(conflicts.begin(), conflicts.end(), [&](const auto& feature) {
            return page.find(feature).has_value();
        }));
    for (std::size_t page = 0; page < marked.size(); ++page)
        m_tabs[page]->setInConflict(marked[page]);
    m_marks->show(marked);
}

void UISheetGuide::goToConflict(bool backwards)
{
    UIConflictWalk::Containers containers;
    for (const auto& tab : m_tabs)
        containers.push_back(tab.get());
    const UIConflictWalk walk(m_featureServices, std::move(containers));
    const auto next = walk.next(walk.placeOfFocus(m_active), backwards);
    if (!next) {
        MessageBeep(MB_OK);
    } else if (selectPage(static_cast<std::size_t>(next->container))) {
        walk.moleculeAt(*next).Focus();
        walk.moleculeAt(*next).OfferWaysOut();
    }
}

bool UISheetGuide::shows(const FeatureIdWithContext& feature) const
{
    return std::any_of(m_tabs.begin(), m_tabs.end(),
                       [&](const auto& tab) { return tab->findMolecule(feature) != nullptr; });
}

void UISheetGuide::goTo(const FeatureIdWithContext& feature)
{
    for (std::size_t page = 0; page < m_tabs.size(); ++page) {
        UIMolecule* const molecule = m_tabs[page]->findMolecule(feature);
        if (!molecule || !selectPage(page))
            continue;
        molecule->Focus();
        return;
    }
}

void UISheetGuide::restorePageDefaults()
{
    if (m_active < m_tabs.size())
        settings()[m_active].restoreDefaults();
}

CXString UISheetGuide::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UISheetGuide:IObserver");
}

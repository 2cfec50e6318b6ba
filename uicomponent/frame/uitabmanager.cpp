#include "uitabmanager.h"

#include <algorithm>
#include <utility>

#include "dialogconversion.h"
#include "exceptiontabcreationfailure.h"
#include "featureservices.h"
#include "isolationaware.h"
#include "optionfeatureref.h"
#include "productstringloader.h"
#include "throworvik.h"
#include "trace.h"
#include "uicontainerdata.h"
#include "uicontext.h"
#include "uidialogprocedure.h"
#include "uidialogtemplate.h"
#include "uieventprocessor.h"
#include "uiguard.h"
#include "uimessagemanager.h"
#include "uiofftab.h"
#include "uipagesource.h"
#include "uiservices.h"
#include "uisheetguide.h"
#include "uitab.h"
#include "undo.h"

namespace {

constexpr wchar_t kSource[] = L"uitabmanager";
constexpr UINT kFirstPaintMessage = WM_APP + 7;
constexpr UINT kAddPropSheetPage = 1; // function index of the print system's callback

// What the manager and the tabs handle themselves, besides what molecules want.
constexpr UINT kOwnMessages[] = {WM_INITDIALOG,
                                 WM_PAINT,
                                 WM_NOTIFY,
                                 WM_DESTROY,
                                 kFirstPaintMessage,
                                 UIApplyButton::kModelChanged,
                                 UISheetGuide::kUpdateMessage,
                                 UIConflictWalk::kMessage};

[[noreturn]] void throwPageFailure(const UITab& tab)
{
    o7::throwOrvik(GetExceptionTabCreationFailure, L"ExceptionTabCreationFailure",
                   {L"UITabManager::createAndAddPage"}, L"the page \"%s\" could not be created",
                   tab.getTitle().c_str());
}

} // namespace

/// The page structure in the size of its fourth version, whose last field the toolchain's headers
/// do not know.
struct UITabManager::Page
{
    PROPSHEETPAGEW structure{};
    HBITMAP headerBitmap = nullptr;
};

UITabManager::UITabManager(UIServices& services, UIMessageManager& messageManager,
                           HINSTANCE moduleInstance, FeatureServices& featureServices,
                           UIContext& context, ProductData& productData,
                           UIEventProcessor& eventProcessor, UIMode mode, unsigned long option)
    : m_moduleInstance(moduleInstance),
      m_messageManager(messageManager),
      m_featureServices(featureServices),
      m_context(context),
      m_productData(productData),
      m_eventProcessor(eventProcessor),
      m_services(services),
      m_mode(mode),
      m_option(option),
      m_features(featureServices.GetFullListOfFeatures()),
      m_areas(moduleInstance, featureServices, context, services, messageManager),
      m_guide(std::make_unique<UISheetGuide>(featureServices, context.strings, m_tabs)),
      m_applyButton(featureServices, [this] { return hasPendingInput(); }),
      m_apply(featureServices, context.strings, services, eventProcessor, m_mode, m_areas, *m_guide,
              m_applyButton)
{
    UIPageSource::freeUnused();
    for (const UINT message : kOwnMessages)
        m_wanted.add(message);
}

UITabManager::~UITabManager()
{
    m_areas.close(); // the sheet needs its messages until it has been given back
    m_messageManager.remove(UIMessageKind::OffTab, *this);
    m_messageManager.remove(UIMessageKind::TabPage, *this);
    for (const auto& tab : m_tabs)
        tab->outliveIn(m_sheet);
}

UITab* UITabManager::buildTab(const UIContainerData& description, HANDLE activationContext,
                              Page& page)
{
    auto tab = std::make_unique<UITab>(m_featureServices, m_context, m_eventProcessor, m_services,
                                       m_features, m_productData);
    // Unique among all managers: a popup's page is offered to the sheet's tabs as well.
    const auto tabId = reinterpret_cast<UINT_PTR>(tab.get());
    if (!tab->build(description, tabId)) {
        o7::trace(tab->getMisfit());
        return nullptr;
    }
    tab->setTitle(m_context.strings.LoadStringW(description.getTitle()));
    tab->getPageRecord().messageManager = &m_messageManager;

    UIDialogTemplate dialogTemplate(m_moduleInstance);
    if (!dialogTemplate.get())
        throwPageFailure(*tab);
    dialogTemplate.setSize(description.getWidth(), description.getHeight());
    if (m_services.isRightToLeft())
        dialogTemplate.mirror();
    m_largestWidth = std::max<long>(m_largestWidth, description.getWidth());
    m_largestHeight = std::max<long>(m_largestHeight, description.getHeight());

    static_assert(sizeof(Page) == 104);
    m_activationContext = activationContext;
    PROPSHEETPAGEW& structure = page.structure;
    structure.dwSize = sizeof(Page);
    structure.dwFlags = PSP_DLGINDIRECT | PSP_USETITLE;
    if (activationContext && activationContext != INVALID_HANDLE_VALUE) {
        structure.dwFlags |= PSP_USEFUSIONCONTEXT;
        structure.hActCtx = activationContext;
    }
    structure.hInstance = m_moduleInstance;
    structure.pResource = dialogTemplate.get();
    structure.pszTitle = tab->getTitle().c_str();
    structure.pfnDlgProc = &UIDialogProcedure::cpsuiDialogProcedure;
    structure.lParam = reinterpret_cast<LPARAM>(&tab->getPageRecord());
    tab->adoptTemplate(std::move(dialogTemplate));

    m_wanted |= tab->getWantedMessages();
    m_tabs.push_back(std::move(tab));
    return m_tabs.back().get();
}

/// Never null.
HPROPSHEETPAGE UITabManager::createPage(Page& page, UITab& tab) const
{
    const HPROPSHEETPAGE handle = IsolationAware::createPropertySheetPage(page.structure);
    if (!handle)
        throwPageFailure(tab);
    return handle;
}

std::size_t UITabManager::createPagesForPropertySheet(const Descriptions& descriptions,
                                                      HPROPSHEETPAGE* pages, std::size_t room,
                                                      HANDLE activationContext)
{
    o7::Undo undo([this] {
        for (const HPROPSHEETPAGE made : m_pages)
            IsolationAware::destroyPropertySheetPage(made);
        m_pages.clear();
    });
    m_pages.reserve(std::min(room, descriptions.size()));
    for (const UIContainerData* description : descriptions) {
        if (m_pages.size() == room)
            break;
        Page page;
        if (UITab* const tab = buildTab(*description, activationContext, page))
            m_pages.push_back(createPage(page, *tab));
    }
    undo.keep();
    std::copy(m_pages.begin(), m_pages.end(), pages);
    return m_pages.size();
}

void UITabManager::createPagesForSheetWindow(const Descriptions& descriptions, HWND sheet,
                                             HANDLE activationContext)
{
    m_sheet = sheet;
    o7::Undo undo([this] { takePagesBack(); });
    m_pages.reserve(descriptions.size());
    for (const UIContainerData* description : descriptions) {
        Page page;
        UITab* const tab = buildTab(*description, activationContext, page);
        if (!tab)
            continue;
        const HPROPSHEETPAGE handle = createPage(page, *tab);
        if (!SendMessageW(sheet, PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(handle))) {
            IsolationAware::destroyPropertySheetPage(handle);
            throwPageFailure(*tab);
        }
        m_pages.push_back(handle);
    }
    undo.keep();
}

void UITabManager::takePagesBack()
{
    for (const HPROPSHEETPAGE page : m_pages)
        SendMessageW(m_sheet, PSM_REMOVEPAGE, 0, reinterpret_cast<LPARAM>(page));
    m_pages.clear();
}

void UITabManager::createPagesForCPSUI(const Descriptions& descriptions, HANDLE sheet,
                                       UIComPropSheetCallback callback, HANDLE activationContext)
{
    for (const UIContainerData* description : descriptions) {
        Page page;
        UITab* const tab = buildTab(*description, activationContext, page);
        if (!tab)
            continue;
        if (!m_cpsuiCallback) {
            m_cpsuiSheet = sheet;
            m_cpsuiCallback = callback;
        }
        const LONG_PTR handle = m_cpsuiCallback(m_cpsuiSheet, kAddPropSheetPage,
                                                reinterpret_cast<LPARAM>(&page.structure), 0);
        if (handle <= 0)
            throwPageFailure(*tab);
        m_pages.push_back(reinterpret_cast<HPROPSHEETPAGE>(handle));
    }
}

void UITabManager::rememberLastPage(const CXString& path, const CXString& printer)
{
    const auto name = m_featureServices.GetFullListOfFeatures().GetOptionFeature(
        FeatureId(DataModelIds::kFeaturePrinterName));
    m_guide->rememberPage(path, printer.IsEmpty() ? name.GetValue().GetDisplayString() : printer,
                          m_mode);
}

void UITabManager::buildTabs(const Descriptions&)
{
    for (const auto& tab : m_tabs)
        tab->settled();
}

bool UITabManager::handleMessage(const _UIWindowsMessage& message)
{
    const bool ofPage = message.kind == UIMessageKind::TabPage;
    if (ofPage ? !m_wanted.wants(message.message) : message.kind != UIMessageKind::OffTab)
        return false;
    // Controls are created while the page initialises, and marks at any time later.
    const IsolationAware::CallerContext callerContext(m_activationContext);
    return ofPage ? handlePageMessage(message) : handleOffTabMessage(message);
}

bool UITabManager::offerToTabs(const _UIWindowsMessage& message) const
{
    for (const auto& tab : m_tabs)
        if (tab->handleMessage(message))
            return true;
    return false;
}

bool UITabManager::offerToGuide(const _UIWindowsMessage& message) const
{
    if (message.message != WM_INITDIALOG)
        return m_guide->handleMessage(message);
    // A page does not stay blank because what is told around it fails.
    return o7::guarded<bool>(L"UITabManager::offerToGuide", kSource,
                             [&] { return m_guide->handleMessage(message); });
}

bool UITabManager::handlePageMessage(const _UIWindowsMessage& message)
{
    if (offerToGuide(message))
        return true;
    switch (message.message) {
    case WM_INITDIALOG:
        return initializePage(message);
    case WM_NOTIFY:
        return handleNotification(message);
    case WM_DESTROY:
        pageGoes(message.window);
        return offerToTabs(message);
    case WM_PAINT:
        postFirstPaint(message);
        return offerToTabs(message);
    case kFirstPaintMessage:
        m_eventProcessor.notifyDataModel(DataModelIds::kEventFirstPaintDone, nullptr);
        return true;
    case WM_COMMAND: {
        const bool claimed = offerToTabs(message);
        m_applyButton.update();
        return claimed;
    }
    case UIApplyButton::kModelChanged:
        m_applyButton.modelChanged();
        return true;
    default:
        return offerToTabs(message);
    }
}

void UITabManager::buildOffTabs(const Descriptions& descriptions)
{
    m_areas.build(descriptions);
    if (!m_areas.isEmpty())
        m_messageManager.append(UIMessageKind::OffTab, *this);
}

bool UITabManager::handleOffTabMessage(const _UIWindowsMessage& message)
{
    if (message.kind == UIMessageKind::TabPage) {
        if (m_areas.open(message.window))
            areasOpened(message.window);
        return false; // the page itself is still to be made
    }
    const bool claimed = m_areas.handleMessage(message);
    if (message.message == WM_COMMAND)
        m_applyButton.update();
    return claimed;
}

void UITabManager::areasOpened(HWND page)
{
    for (const auto& offTab : m_areas.getOffTabs())
        m_guide->serve(*offTab);
    m_eventProcessor.notifyDataModel(DataModelIds::kEventSheetSubclassed, page);
}

void UITabManager::prepareSheet(const _UIWindowsMessage& message)
{
    m_services.getDialogConversion().initDialogConversions(message.window);
    if (!m_sheet)
        m_sheet = GetParent(message.window);
    if (!m_areas.isEmpty())
        o7::guarded<bool>(L"UITabManager::prepareSheet", kSource,
                          [&] { return handleOffTabMessage(message); });
}

bool UITabManager::initializePage(const _UIWindowsMessage& message)
{
    prepareSheet(message);
    if (!offerToTabs(message))
        return false;
    pageOpened(message.window);
    return true;
}

void UITabManager::pageOpened(HWND page)
{
    m_eventProcessor.incrementVisitedTabCount();
    m_applyButton.pageInitialized(page);
}

/// The host has removed it, or the sheet goes: nobody waits for its Apply any more.
void UITabManager::pageGoes(HWND page)
{
    HWND other = nullptr;
    bool wasOpen = false;
    for (const auto& tab : m_tabs) {
        if (!tab->isOpen())
            continue;
        if (tab->getWindow() == page)
            wasOpen = true;
        else
            other = tab->getWindow();
    }
    if (!wasOpen)
        return;
    m_apply.pageGoes(page);
    m_applyButton.pageGoes(page, other);
    if (other && IsWindowVisible(m_sheet)) // a sheet that goes itself is hidden first
        m_guide->carryOn(other);
}

bool UITabManager::openAgain(const _UIWindowsMessage& message) const
{
    return std::any_of(m_tabs.begin(), m_tabs.end(),
                       [&](const auto& tab) { return tab->openAgain(message); });
}

bool UITabManager::handleNotification(const _UIWindowsMessage& message)
{
    if (openAgain(message))
        pageOpened(message.window);
    tellCancel(message);
    if (reinterpret_cast<const NMHDR*>(message.lParam)->code == PSN_APPLY)
        return applyPage(message);
    return offerToTabs(message);
}

/// Only the page in front is asked whether Cancel is allowed, and it may be one of the host's;
/// every visited page is told of the Cancel itself, and some systems do all of it twice. The model
/// hears of the first of these, and again when something has changed since.
void UITabManager::tellCancel(const _UIWindowsMessage& message)
{
    const bool isOurs = std::any_of(m_tabs.begin(), m_tabs.end(), [&](const auto& tab) {
        return tab->getWindow() == message.window;
    });
    if (!isOurs) // of a popup set over the sheet
        return;
    switch (reinterpret_cast<const NMHDR*>(message.lParam)->code) {
    case PSN_QUERYCANCEL:
    case PSN_RESET:
        if (!std::exchange(m_isCancelTold, true) || m_featureServices.IsModified())
            m_eventProcessor.notifyDataModel(DataModelIds::kEventCancelQueried, message.window);
        break;
    case PSN_SETACTIVE: // the sheet lives on
    case PSN_KILLACTIVE:
        m_isCancelTold = false;
        break;
    default:
        break;
    }
}

void UITabManager::postFirstPaint(const _UIWindowsMessage& message)
{
    if (!m_firstPaintPending)
        return;
    m_firstPaintPending = false;
    PostMessageW(message.window, kFirstPaintMessage, 0, 0);
}

bool UITabManager::applyPage(const _UIWindowsMessage& message)
{
    if (!offerToTabs(message))
        return false;
    m_apply.pageAnswered(message);
    return true;
}

bool UITabManager::hasPendingInput() const
{
    return m_areas.hasPendingInput() ||
           std::any_of(m_tabs.begin(), m_tabs.end(),
                       [](const auto& tab) { return tab->hasPendingInput(); });
}

void UITabManager::dump() const
{
    for (const auto& tab : m_tabs)
        tab->dump();
    m_areas.dump();
}

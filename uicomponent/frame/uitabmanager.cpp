#include "uitabmanager.h"

#include <algorithm>

#include "booleanfeatureref.h"
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
#include "uidatavalidator.h"
#include "uidialogprocedure.h"
#include "uidialogtemplate.h"
#include "uieventprocessor.h"
#include "uimessagemanager.h"
#include "uiservices.h"
#include "uitab.h"

namespace {

constexpr UINT kFirstPaintMessage = WM_APP + 7;
constexpr UINT kAddPropSheetPage = 1; // function index of the print system's callback

// String resources of the warning that keeps the sheet open.
constexpr unsigned kWarningCaption = 35000;
constexpr unsigned kWarningText = 35001;
constexpr unsigned kWarningAdvice = 35002;

// What the manager and the tabs handle themselves, besides what molecules want.
constexpr UINT kOwnMessages[] = {WM_INITDIALOG, WM_PAINT, WM_NOTIFY, WM_DESTROY,
                                 kFirstPaintMessage};

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
      m_option(option)
{
    for (const UINT message : kOwnMessages)
        m_wanted.add(message);
}

UITabManager::~UITabManager()
{
    if (!m_tabs.empty())
        m_messageManager.removeLast(UIMessageKind::TabPage);
}

UITab* UITabManager::buildTab(const UIContainerData& description, HANDLE activationContext,
                              Page& page)
{
    auto tab = std::make_unique<UITab>(m_featureServices, m_context, m_eventProcessor, m_services,
                                       m_featureServices.GetFullListOfFeatures(), m_productData,
                                       m_tabFlag);
    const UINT_PTR tabId = m_tabs.size() + 1;
    if (!tab->build(description, tabId)) {
        o7::trace(tab->getMisfit());
        return nullptr;
    }
    tab->setTitle(m_context.strings.LoadStringW(description.getTitle()));
    tab->getPageRecord().messageManager = &m_messageManager;

    UIDialogTemplate dialogTemplate(m_moduleInstance);
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

void UITabManager::keepPage(HPROPSHEETPAGE page, UITab& tab)
{
    if (!page)
        throwPageFailure(tab);
    m_pages.push_back(page);
}

std::size_t UITabManager::createPagesForPropertySheet(const Descriptions& descriptions,
                                                      HPROPSHEETPAGE* pages, std::size_t room,
                                                      HANDLE activationContext)
{
    for (const UIContainerData* description : descriptions) {
        if (m_pages.size() == room)
            break;
        Page page;
        UITab* const tab = buildTab(*description, activationContext, page);
        if (!tab)
            continue;
        const HPROPSHEETPAGE handle = IsolationAware::createPropertySheetPage(page.structure);
        if (!handle) {
            for (const HPROPSHEETPAGE made : m_pages)
                IsolationAware::destroyPropertySheetPage(made);
            m_pages.clear();
        }
        keepPage(handle, *tab);
    }
    std::copy(m_pages.begin(), m_pages.end(), pages);
    return m_pages.size();
}

void UITabManager::createPagesForSheetWindow(const Descriptions& descriptions, HWND sheet,
                                             HANDLE activationContext)
{
    for (const UIContainerData* description : descriptions) {
        Page page;
        UITab* const tab = buildTab(*description, activationContext, page);
        if (!tab)
            continue;
        const HPROPSHEETPAGE handle = IsolationAware::createPropertySheetPage(page.structure);
        if (handle && !SendMessageW(sheet, PSM_ADDPAGE, 0, reinterpret_cast<LPARAM>(handle))) {
            IsolationAware::destroyPropertySheetPage(handle);
            throwPageFailure(*tab);
        }
        keepPage(handle, *tab);
    }
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
        keepPage(reinterpret_cast<HPROPSHEETPAGE>(std::max<LONG_PTR>(handle, 0)), *tab);
    }
}

void UITabManager::buildTabs(const Descriptions&)
{
    for (const auto& tab : m_tabs)
        tab->settled();
}

bool UITabManager::handleMessage(const _UIWindowsMessage& message)
{
    if (message.kind == UIMessageKind::TabPage)
        return m_wanted.wants(message.message) && handlePageMessage(message);
    if (message.kind == UIMessageKind::OffTab)
        return handleOffTabMessage(message);
    return false;
}

bool UITabManager::offerToTabs(const _UIWindowsMessage& message) const
{
    for (const auto& tab : m_tabs)
        if (tab->handleMessage(message))
            return true;
    return false;
}

bool UITabManager::handlePageMessage(const _UIWindowsMessage& message)
{
    // Controls are created while the page initialises, and marks at any time later.
    const IsolationAware::CallerContext callerContext(m_activationContext);
    switch (message.message) {
    case WM_INITDIALOG:
        return initializePage(message);
    case WM_NOTIFY:
        if (reinterpret_cast<const NMHDR*>(message.lParam)->code == PSN_APPLY)
            return applyPage(message);
        [[fallthrough]];
    case WM_PAINT:
        postFirstPaint(message);
        return offerToTabs(message);
    case kFirstPaintMessage:
        m_eventProcessor.notifyDataModel(DataModelIds::kEventFirstPaintDone, nullptr);
        return true;
    case WM_COMMAND: {
        const bool claimed = offerToTabs(message);
        if (claimed)
            updateApplyButton(message.window);
        return claimed;
    }
    default:
        return offerToTabs(message);
    }
}

bool UITabManager::handleOffTabMessage(const _UIWindowsMessage&)
{
    return false;
}

bool UITabManager::initializePage(const _UIWindowsMessage& message)
{
    m_services.getDialogConversion().initDialogConversions(message.window);
    const bool claimed = offerToTabs(message);
    if (claimed)
        m_eventProcessor.incrementVisitedTabCount();
    return claimed;
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
    const LONG_PTR result = GetWindowLongPtrW(message.window, DWLP_MSGRESULT);
    const UIDataValidator validator(m_featureServices, m_eventProcessor);
    const auto& notification = *reinterpret_cast<const NMHDR*>(message.lParam);
    if (result == PSNRET_INVALID || !validator.validate(notification))
        rejectApply();
    else if (result == PSNRET_NOERROR && m_eventProcessor.incrementNotificationCount())
        completeApply(message);
    return true;
}

void UITabManager::rejectApply()
{
    m_eventProcessor.resetNotificationCount();
    m_featureServices.GetFullListOfFeatures()
        .GetBooleanFeature(FeatureId(DataModelIds::kFeatureApplyIsValid))
        .SetValue(false);
}

void UITabManager::completeApply(const _UIWindowsMessage& message)
{
    const bool closing = reinterpret_cast<const PSHNOTIFY*>(message.lParam)->lParam != 0;
    m_eventProcessor.notifyDataModel(closing ? DataModelIds::kEventOk : DataModelIds::kEventApply,
                                     &m_mode);
    m_modifiedShown = false; // the sheet greys Apply by itself
    if (showApplyWarning(message.window))
        SetWindowLongPtrW(message.window, DWLP_MSGRESULT, PSNRET_INVALID);
}

bool UITabManager::showApplyWarning(HWND page) const
{
    ValueId value;
    const auto feature = m_featureServices.GetFullListOfFeatures().GetOptionFeature(
        FeatureId(DataModelIds::kFeatureApplyResult));
    if (!feature.GetValue(value, FeatureRef::kDoNotAssertIfUnsupported) ||
        value.GetValueEnum() != DataModelIds::kValueApplyRejected)
        return false;
    const auto& strings = m_context.strings;
    const CXString text =
        strings.LoadStringW(kWarningText) + L"\n\n" + strings.LoadStringW(kWarningAdvice);
    m_services.showMessage(page, text, strings.LoadStringW(kWarningCaption), MB_ICONWARNING);
    return true;
}

void UITabManager::updateApplyButton(HWND page)
{
    const bool modified = m_featureServices.IsModified();
    if (modified == m_modifiedShown)
        return;
    m_modifiedShown = modified;
    const HWND sheet = GetParent(page);
    if (modified) {
        SendMessageW(sheet, PSM_CHANGED, reinterpret_cast<WPARAM>(page), 0);
        return;
    }
    for (const auto& tab : m_tabs)
        if (tab->getWindow())
            SendMessageW(sheet, PSM_UNCHANGED, reinterpret_cast<WPARAM>(tab->getWindow()), 0);
}

void UITabManager::dump() const
{
    for (const auto& tab : m_tabs)
        tab->dump();
}

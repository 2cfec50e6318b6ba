#include "uimanager.h"

#include <prsht.h>

#include "cxstring.h"
#include "executioncontextlifetime.h"
#include "featureservices.h"
#include "isolationaware.h"
#include "optionfeatureref.h"
#include "productdata.h"
#include "productstringloader.h"
#include "trace.h"
#include "uicoloraccesspinhandler.h"
#include "uicolorhandler.h"
#include "uicontext.h"
#include "uidata.h"
#include "uidatasource.h"
#include "uidump.h"
#include "uieventprocessor.h"
#include "uifinishinghandler.h"
#include "uimessagemanager.h"
#include "uimruhandler.h"
#include "uioffsethandler.h"
#include "uipopuplauncher.h"
#include "uipopupsheet.h"
#include "uiservices.h"
#include "uisheetpages.h"
#include "uispecialfeaturehandler.h"
#include "uistringnumbers.h"
#include "uitabmanager.h"
#include "uitvtabmanager.h"
#include "undo.h"

namespace {

constexpr auto kRootGroup = static_cast<DataModelIds::tagFeatureEnum>(2);

UITabManager::Descriptions listed(const UIDataList<UIContainerData>& containers)
{
    UITabManager::Descriptions descriptions;
    for (const auto& container : containers)
        descriptions.push_back(container.get());
    return descriptions;
}

UITabManager::Descriptions tabsOf(const UIData& data)
{
    return listed(data.getTabs());
}

} // namespace

UIManager::UIManager(ProductData& productData, void* moduleHandle, UIMode mode,
                     unsigned long option, Workflow workflow)
    : m_dataSource(
          std::make_unique<UIDataSource>(static_cast<HINSTANCE>(moduleHandle), productData)),
      m_finishingHandler(std::make_unique<UIFinishingHandler>()),
      m_offsetHandler(std::make_unique<UIOffsetHandler>()),
      m_colorAccessPinHandler(std::make_unique<UIColorAccessPinHandler>()),
      m_colorHandler(std::make_unique<UIColorHandler>()),
      m_mruHandler(std::make_unique<UIMRUHandler>()),
      m_specialFeatureHandler(std::make_unique<UISpecialFeatureHandler>()),
      m_moduleInstance(IsolationAware::moduleInstance()),
      m_mode(mode),
      m_workflow(workflow),
      m_option(option),
      m_productData(productData)
{
}

UIManager::~UIManager()
{
    m_dataSource.reset();
    m_finishingHandler.reset();
    m_offsetHandler.reset();
    m_colorAccessPinHandler.reset();
    m_colorHandler.reset();
    m_mruHandler.reset();
    m_specialFeatureHandler.reset();
    m_tvTabManager.reset();
    m_tabManager.reset();
    m_popupLauncher.reset();
    m_popupSheet.reset();
    m_eventProcessor.reset();
    m_messageManager.reset();
    m_uiData.reset();
    m_context.reset();
    m_services.reset();
}

void UIManager::initializePartI(FeatureServices& featureServices, ProductStringLoader& strings,
                                void* activationContext, bool wantsPages)
{
    const auto family = featureServices.GetFullListOfFeatures()
                            .GetOptionFeature(FeatureId(DataModelIds::kFeatureControllerFamily))
                            .GetValue()
                            .GetValueEnum();
    m_uiData = m_dataSource->createDescription(m_mode, family, m_workflow);
    if (m_uiData->isEmpty())
        o7::trace(CXString::Formatted(L"nothing to show: no description for family %d in mode %d",
                                      static_cast<int>(family), static_cast<int>(m_mode)));
    m_services = std::make_unique<UIServices>(strings.GetLanguage());
    const UIRegionalSettings& regional = m_services->getRegionalSettings();
    featureServices.SetLengthFormat({regional.metric, regional.decimalSeparator,
                                     strings.LoadStringW(O7STR_U_MILLIMETRE),
                                     strings.LoadStringW(O7STR_U_INCH)});
    m_messageManager = std::make_unique<UIMessageManager>();
    m_context.reset(new UIContext{featureServices, strings, m_productData});
    m_popupLauncher = std::make_unique<UIPopupLauncher>(
        *m_messageManager, m_moduleInstance, featureServices, *m_context, m_productData, *m_uiData,
        nullptr, *m_services, activationContext, m_mode);
    m_eventProcessor =
        std::make_unique<UIEventProcessor>(*m_popupLauncher, featureServices, m_productData);
    m_popupLauncher->setEventProcessor(m_eventProcessor.get());
    m_dataSource->setEventProcessor(m_eventProcessor.get());
    m_specialFeatureHandler->setEventProcessor(m_eventProcessor.get());
    m_popupSheet = std::make_unique<UIPopupSheet>(
        *m_services, *m_messageManager, m_moduleInstance, featureServices, *m_context,
        m_productData, *m_eventProcessor, m_mode, m_option, activationContext);
    m_popupLauncher->setSheetRunner(m_popupSheet.get());
    if (!wantsPages)
        return;
    m_tabManager = std::make_unique<UITabManager>(*m_services, *m_messageManager, m_moduleInstance,
                                                  featureServices, *m_context, m_productData,
                                                  *m_eventProcessor, m_mode, m_option);
    m_tabManager->buildOffTabs(listed(m_uiData->getOffTabs()));
    m_tabManager->rememberLastPage(m_personalSettings, m_printer);
}

void UIManager::setPersonalSettings(const CXString& registryPath, const CXString& printer)
{
    m_personalSettings = registryPath;
    m_printer = printer;
    if (m_tabManager)
        m_tabManager->rememberLastPage(registryPath, printer);
}

void UIManager::initializePartII(FeatureServices& featureServices)
{
    m_messageManager->append(UIMessageKind::TabPage, *m_tabManager);
    featureServices.SettleBeforeDisplay();
    m_tabManager->buildTabs(tabsOf(*m_uiData));
    dump();
}

void UIManager::initializeForCPSUI(void* hComPropSheet, UIComPropSheetCallback callback,
                                   FeatureServices& featureServices, ProductStringLoader& strings,
                                   void* activationContext)
{
    const BasicExecutionContext here{
        31517, CXString(L"uimanager"), CXString(L"UIManager::initializeForCPSUI"), 111,
        CXString::Formatted(
            L"ActivationContext=0x%lx",
            static_cast<unsigned long>(reinterpret_cast<ULONG_PTR>(activationContext)))};
    const ExecutionContextLifetime context(here);

    initializePartI(featureServices, strings, activationContext, true);
    m_tabManager->createPagesForCPSUI(tabsOf(*m_uiData), hComPropSheet, callback,
                                      activationContext);
    if (const UITvTabData* tvTab = m_uiData->getTvTabData())
        m_tvTabManager = std::make_unique<UITvTabManager>(
            *tvTab, m_moduleInstance, hComPropSheet, callback, *m_eventProcessor, *m_services,
            featureServices, m_mode, *m_context, m_productData);
    initializePartII(featureServices);
}

bool UIManager::runAsPropertySheet(FeatureServices& featureServices, ProductStringLoader& strings,
                                   void* activationContext)
{
    const IsolationAware::CallerContext callerContext(activationContext);
    initializePartI(featureServices, strings, activationContext, true);
    // The group is the sheet's own settings; asking for it lets the model prepare them.
    static_cast<void>(featureServices.GetListOfFeaturesByGroup(kRootGroup));

    const CXString caption = m_uiData->getCaption() ? strings.LoadStringW(m_uiData->getCaption())
                                                    : m_productData.GetModelName();
    UISheetPages pages(*m_tabManager, tabsOf(*m_uiData), activationContext);
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    static_assert(sizeof header == 96);
    header.dwFlags = PSH_NOAPPLYNOW;
    header.hInstance = m_moduleInstance;
    header.pszCaption = caption.c_str();
    initializePartII(featureServices);
    return pages.show(header);
}

bool UIManager::runAsDialog(FeatureServices& featureServices, ProductStringLoader& strings,
                            void* activationContext)
{
    initializePartI(featureServices, strings, activationContext, false);
    featureServices.SettleBeforeDisplay();
    if (m_mode != UIMode::CompactDialog)
        return false;
    return m_popupLauncher->displayDialog(DialogId::QuickSettings,
                                          featureServices.GetFullListOfFeatures(), nullptr, true);
}

void UIManager::initialize(HWND parent, FeatureServices& featureServices,
                           ProductStringLoader& strings, void* activationContext)
{
    const IsolationAware::CallerContext callerContext(activationContext);
    initializePartI(featureServices, strings, activationContext, true);
    m_tabManager->createPagesForSheetWindow(tabsOf(*m_uiData), parent, activationContext);
    o7::Undo undo([this] { m_tabManager->takePagesBack(); });
    initializePartII(featureServices);
    undo.keep();
}

void UIManager::addDataSources(std::vector<DataSource*>& sources) const
{
    const std::initializer_list<DataSource*> owned = {
        m_finishingHandler.get(), m_offsetHandler.get(), m_colorAccessPinHandler.get(),
        m_colorHandler.get(),     m_mruHandler.get(),    m_specialFeatureHandler.get(),
    };
    sources.insert(sources.end(), owned);
}

void UIManager::dump() const
{
    if (!UIDump::isCollecting() || !m_uiData)
        return;
    UIDump::line((CXString(L"ui of \"") + m_uiData->getName() + L"\"").View());
    const UIDump::Level inner;
    m_messageManager->dump();
    if (m_tvTabManager)
        m_tvTabManager->dump();
}

CXString UIManager::dumpText() const
{
    std::wstring text;
    {
        const UIDump collector(text);
        dump();
    }
    return CXString(std::wstring_view(text));
}

#include "uipopupsheet.h"

#include <prsht.h>

#include "isolationaware.h"
#include "productstringloader.h"
#include "uicontainerdata.h"
#include "uicontext.h"
#include "uimessagemanager.h"
#include "uipopuptabmanager.h"
#include "uisheetpages.h"

UIPopupSheet::UIPopupSheet(UIServices& services, UIMessageManager& messageManager,
                           HINSTANCE moduleInstance, FeatureServices& featureServices,
                           UIContext& context, ProductData& productData,
                           UIEventProcessor& eventProcessor, UIMode mode, unsigned long option,
                           HANDLE activationContext)
    : m_services(services),
      m_messageManager(messageManager),
      m_moduleInstance(moduleInstance),
      m_featureServices(featureServices),
      m_context(context),
      m_productData(productData),
      m_eventProcessor(eventProcessor),
      m_mode(mode),
      m_option(option),
      m_activationContext(activationContext)
{
}

bool UIPopupSheet::runPopupSheet(const std::vector<const UIContainerData*>& pages,
                                 const ListOfFeaturesRef& features, HWND parent)
{
    const IsolationAware::CallerContext callerContext(m_activationContext);
    UIPopupTabManager manager(m_services, m_messageManager, m_moduleInstance, m_featureServices,
                              m_context, m_productData, m_eventProcessor, m_mode, m_option,
                              features);
    UISheetPages sheetPages(manager, pages, m_activationContext);
    if (sheetPages.isEmpty())
        return false;
    m_messageManager.append(UIMessageKind::TabPage, manager); // it takes itself out again

    const CXString caption = m_context.strings.LoadStringW(pages.front()->getTitle());
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    header.dwFlags = PSH_NOAPPLYNOW | PSH_NOCONTEXTHELP;
    header.hwndParent = parent ? GetAncestor(parent, GA_ROOT) : nullptr;
    header.hInstance = m_moduleInstance;
    header.pszCaption = caption.c_str();
    return sheetPages.show(header);
}

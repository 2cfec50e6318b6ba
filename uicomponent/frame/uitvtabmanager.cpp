#include "uitvtabmanager.h"

#include "uidump.h"

UITvTabManager::UITvTabManager(const UITvTabData& data, HINSTANCE moduleInstance, HANDLE sheet,
                               UIComPropSheetCallback callback, UIEventProcessor& eventProcessor,
                               UIServices& services, FeatureServices& featureServices, UIMode mode,
                               UIContext& context, ProductData& productData)
    : m_data(data),
      m_moduleInstance(moduleInstance),
      m_sheet(sheet),
      m_callback(callback),
      m_eventProcessor(eventProcessor),
      m_services(services),
      m_featureServices(featureServices),
      m_mode(mode),
      m_context(context),
      m_productData(productData)
{
}

UITvTabManager::~UITvTabManager() = default;

void UITvTabManager::dump() const
{
    UIDump::line(L"tree-view page");
}

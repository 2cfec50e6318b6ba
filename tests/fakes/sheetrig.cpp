#include "sheetrig.h"

#include <array>

#include "featureservices.h"
#include "isolationaware.h"
#include "productstringloader.h"
#include "uicontext.h"
#include "uidata.h"
#include "uieventprocessor.h"
#include "uimessagemanager.h"
#include "uipopuplauncher.h"
#include "uipopupsheet.h"
#include "uiservices.h"
#include "uitab.h"
#include "uitabmanager.h"

namespace o7::test {

SheetRig::SheetRig(ProductData& productData, FeatureServices& featureServices,
                   ProductStringLoader& strings, const UIData& description, UIMode mode)
    : m_description(description),
      m_featureServices(featureServices),
      m_services(std::make_unique<UIServices>(strings.GetLanguage())),
      m_messages(std::make_unique<UIMessageManager>()),
      m_context(new UIContext{featureServices, strings, productData})
{
    const HINSTANCE instance = IsolationAware::moduleInstance();
    m_popups = std::make_unique<UIPopupLauncher>(*m_messages, instance, featureServices, *m_context,
                                                 productData, description, nullptr, *m_services,
                                                 nullptr, mode);
    m_events = std::make_unique<UIEventProcessor>(*m_popups, featureServices, productData);
    m_popups->setEventProcessor(m_events.get());
    m_tabs = std::make_unique<UITabManager>(*m_services, *m_messages, instance, featureServices,
                                            *m_context, productData, *m_events, mode, 0UL);
    m_popupSheet =
        std::make_unique<UIPopupSheet>(*m_services, *m_messages, instance, featureServices,
                                       *m_context, productData, *m_events, mode, 0UL, nullptr);
    m_popups->setSheetRunner(m_popupSheet.get());
}

SheetRig::~SheetRig()
{
    m_tabs.reset();
    m_popups.reset();
    m_events.reset();
}

INT_PTR SheetRig::run(DWORD flags)
{
    const auto listed = [](const UIDataList<UIContainerData>& containers) {
        UITabManager::Descriptions descriptions;
        for (const auto& container : containers)
            descriptions.push_back(container.get());
        return descriptions;
    };
    m_tabs->buildOffTabs(listed(m_description.getOffTabs()));
    const auto descriptions = listed(m_description.getTabs());
    std::array<HPROPSHEETPAGE, 16> pages{};
    PROPSHEETHEADERW header{};
    header.dwSize = sizeof header;
    header.dwFlags = flags;
    header.hInstance = IsolationAware::moduleInstance();
    header.pszCaption = L"Rig";
    header.nPages = static_cast<UINT>(
        m_tabs->createPagesForPropertySheet(descriptions, pages.data(), pages.size(), nullptr));
    header.phpage = pages.data();
    if (header.nPages == 0)
        return -1; // an empty sheet would wait for ever
    m_messages->append(UIMessageKind::TabPage, *m_tabs);
    m_featureServices.SettleBeforeDisplay();
    m_tabs->buildTabs(descriptions);
    return IsolationAware::propertySheet(header);
}

} // namespace o7::test

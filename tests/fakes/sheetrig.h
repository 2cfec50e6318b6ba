#pragma once

#include <windows.h>

#include <memory>

#include "uimode.h"

class FeatureServices;
class ProductData;
class ProductStringLoader;
class UIData;
class UIEventProcessor;
class UIMessageManager;
class UIPopupLauncher;
class UIPopupSheet;
class UIServices;
class UITabManager;
struct UIContext;

namespace o7::test {

/// The collaborators of one UI, made as UIManager makes them, for a description of the caller's
/// choice instead of a product's. Everything passed in is borrowed.
class SheetRig
{
public:
    SheetRig(ProductData& productData, FeatureServices& featureServices,
             ProductStringLoader& strings, const UIData& description,
             UIMode mode = UIMode::PrintingPreferences);
    ~SheetRig();
    SheetRig(const SheetRig&) = delete;
    SheetRig& operator=(const SheetRig&) = delete;

    /// Shows all described tabs in a modal sheet. @param flags  PSH_... of the header; 0 gives the
    /// sheet an Apply button. @return what PropertySheetW returned.
    INT_PTR run(DWORD flags = 0);

    UITabManager& tabs() { return *m_tabs; }
    UIEventProcessor& events() { return *m_events; }
    UIMessageManager& messages() { return *m_messages; }

private:
    const UIData& m_description;
    FeatureServices& m_featureServices;
    std::unique_ptr<UIServices> m_services;
    std::unique_ptr<UIMessageManager> m_messages;
    std::unique_ptr<UIContext> m_context;
    std::unique_ptr<UIPopupLauncher> m_popups;
    std::unique_ptr<UIEventProcessor> m_events;
    std::unique_ptr<UITabManager> m_tabs;
    std::unique_ptr<UIPopupSheet> m_popupSheet;
};

} // namespace o7::test

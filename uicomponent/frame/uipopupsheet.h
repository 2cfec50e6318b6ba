#pragma once

#include "uimode.h"
#include "uipopupsheetrunner.h"

class FeatureServices;
class ProductData;
class UIEventProcessor;
class UIMessageManager;
class UIServices;
struct UIContext;

/// Makes the pages of a popup tab set and shows them in a sheet over the window that asked for it.
/// While it is open, its manager stands at the end of the message manager's tab list.
class UIPopupSheet : public UIPopupSheetRunner
{
public:
    /// Everything is borrowed and must outlive the object. @param activationContext  the caller's,
    /// or null.
    UIPopupSheet(UIServices& services, UIMessageManager& messageManager, HINSTANCE moduleInstance,
                 FeatureServices& featureServices, UIContext& context, ProductData& productData,
                 UIEventProcessor& eventProcessor, UIMode mode, unsigned long option,
                 HANDLE activationContext);

    bool runPopupSheet(const std::vector<const UIContainerData*>& pages,
                       const ListOfFeaturesRef& features, HWND parent) override;

private:
    UIServices& m_services;
    UIMessageManager& m_messageManager;
    HINSTANCE m_moduleInstance;
    FeatureServices& m_featureServices;
    UIContext& m_context;
    ProductData& m_productData;
    UIEventProcessor& m_eventProcessor;
    UIMode m_mode;
    unsigned long m_option;
    HANDLE m_activationContext;
};

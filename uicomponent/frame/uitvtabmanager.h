#pragma once

#include <windows.h>

#include "uimode.h"
#include "uitabmanager.h"

class UITvTabData;

/// Manager of the tree-view page of the print system's sheet. It exists only when the description
/// has such a page, and only under the print system's own sheet.
class UITvTabManager
{
public:
    /// Everything is borrowed and must outlive the manager.
    UITvTabManager(const UITvTabData& data, HINSTANCE moduleInstance, HANDLE sheet,
                   UIComPropSheetCallback callback, UIEventProcessor& eventProcessor,
                   UIServices& services, FeatureServices& featureServices, UIMode mode,
                   UIContext& context, ProductData& productData);
    UITvTabManager(const UITvTabManager&) = delete;
    UITvTabManager& operator=(const UITvTabManager&) = delete;
    virtual ~UITvTabManager();

    virtual void dump() const;

private:
    const UITvTabData& m_data;
    HINSTANCE m_moduleInstance;
    HANDLE m_sheet;
    UIComPropSheetCallback m_callback;
    UIEventProcessor& m_eventProcessor;
    UIServices& m_services;
    FeatureServices& m_featureServices;
    UIMode m_mode;
    UIContext& m_context;
    ProductData& m_productData;
};

#pragma once

#include <windows.h>

#include <memory>

#include "datamodelids.h"
#include "uimode.h"

class ProductData;
class UIData;
class UIEventProcessor;
class UITrayHandler;

/// Builder of the UI description: makes the tree of one product's pages and dialogs.
class UIDataSource
{
public:
    UIDataSource(HINSTANCE module, ProductData& productData);
    UIDataSource(const UIDataSource&) = delete;
    UIDataSource& operator=(const UIDataSource&) = delete;
    ~UIDataSource();

    /// The description for a mode and the value of feature 285; empty when there is none for the
    /// pair. Never null.
    std::unique_ptr<UIData> createDescription(UIMode mode, DataModelIds::tagValueEnum family,
                                              Workflow workflow) const;
    /// Given on to the tray handler, which belongs to the builder.
    void setEventProcessor(UIEventProcessor* eventProcessor);

private:
    HINSTANCE m_module;
    ProductData& m_productData;
    std::unique_ptr<UITrayHandler> m_trayHandler;
    UIEventProcessor* m_eventProcessor = nullptr;
};

#pragma once

#include <windows.h>

#include "dialogid.h"
#include "listoffeaturesref.h"
#include "uimode.h"

class FeatureServices;
class ProductData;
class UIData;
class UIEventProcessor;
class UIMessageManager;
class UIPopupSheetRunner;
class UIServices;
struct UIContext;

/// Shows popup dialogs by DialogId, each inside a transaction of the data model: kept when the
/// dialog ends with OK, rolled back otherwise. While a dialog is open, its handler stands at the
/// end of the message manager's dialog list.
class UIPopupLauncher
{
public:
    /// Everything is borrowed and must outlive the launcher. The event processor is made later and
    /// set then (setEventProcessor).
    UIPopupLauncher(UIMessageManager& messageManager, HINSTANCE moduleInstance,
                    FeatureServices& featureServices, UIContext& context, ProductData& productData,
                    const UIData& uiData, UIEventProcessor* eventProcessor, UIServices& services,
                    HANDLE activationContext, UIMode mode);
    UIPopupLauncher(const UIPopupLauncher&) = delete;
    UIPopupLauncher& operator=(const UIPopupLauncher&) = delete;

    void setEventProcessor(UIEventProcessor* eventProcessor) { m_eventProcessor = eventProcessor; }

    /// Who shows popup tab sets; without one there are none.
    void setSheetRunner(UIPopupSheetRunner* runner) { m_sheetRunner = runner; }

    /// Stores the launch flag and launches without a parameter.
    /// @param wholeUi  the dialog is the whole user interface, not a popup of a page: it is centred
    ///                 on the screen and appears in the task bar.
    bool displayDialog(DialogId id, const ListOfFeaturesRef& features, HWND parent, bool wholeUi);

    /// Shows the dialog, modal. @return true when it ended with OK; false otherwise, for an id that
    /// has no description, and when the dialog could not be shown.
    bool launch(DialogId id, const ListOfFeaturesRef& features, HWND parent, void* param);

    /// Shows the popup tab set of that number in a sheet, modal. @return as launch().
    bool launchPropertySheet(DialogId id, const ListOfFeaturesRef& features, HWND parent);

private:
    UIMessageManager& m_messageManager;
    HINSTANCE m_moduleInstance;
    FeatureServices& m_featureServices;
    UIContext& m_context;
    ProductData& m_productData;
    const UIData& m_uiData;
    UIEventProcessor* m_eventProcessor;
    UIPopupSheetRunner* m_sheetRunner = nullptr;
    UIServices& m_services;
    HANDLE m_activationContext;
    UIMode m_mode;
    bool m_wholeUi = false;
};

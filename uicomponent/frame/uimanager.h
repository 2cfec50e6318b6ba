#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "cxstring.h"
#include "isolationaware.h"
#include "uiapi.h"
#include "uimode.h"

class DataSource;
class FeatureServices;
class ProductData;
class ProductStringLoader;
class UIColorAccessPinHandler;
class UIColorHandler;
class UIData;
class UIDataSource;
class UIEventProcessor;
class UIFinishingHandler;
class UIMessageManager;
class UIMRUHandler;
class UIOffsetHandler;
class UIPopupLauncher;
class UIPopupSheet;
class UIServices;
class UISpecialFeatureHandler;
class UITabManager;
class UITvTabManager;
struct UIContext;

/// The system's property-sheet callback (`PFNCOMPROPSHEET`), told in integers so that callers need
/// no header of the print system: sheet handle, function index, two parameters.
using UIComPropSheetCallback = LONG_PTR(CALLBACK*)(HANDLE, UINT, LPARAM, LPARAM);

/// The one object through which a driver's plug-in enters the UI module.
///
/// Construct it, call exactly one of the four entry operations, keep it for as long as the pages
/// can live (for `initializeForCPSUI` and `initialize` until the pages' sheet is gone), destroy it.
/// Everything runs on the thread that calls the entry operation. The product data, the data model
/// and the string loader are borrowed and must outlive the manager.
class O7UI_API UIManager final
{
public:
    /// @param moduleHandle   for the builder of the description; null when the caller has none.
    ///                       Pages and dialogs belong to this module whatever is given here.
    /// @param option         passed on to the pages.
    UIManager(ProductData& productData, void* moduleHandle, UIMode mode, unsigned long option,
              Workflow workflow);
    UIManager(const UIManager&) = delete;
    UIManager& operator=(const UIManager&) = delete;
    ~UIManager();

    /// Writes what is on screen to the debugger output.
    virtual void dump() const;

    /// Adds every page through the print system's callback (function index 1).
    /// @param activationContext  a context the pages shall use instead of the module's own; null or
    ///                           INVALID_HANDLE_VALUE for none.
    /// @throws ExceptionTabCreationFailure when the callback refuses a page.
    void initializeForCPSUI(void* hComPropSheet, UIComPropSheetCallback callback,
                            FeatureServices& featureServices, ProductStringLoader& strings,
                            void* activationContext);

    /// Shows a property sheet of its own (`PropertySheetW`), modal.
    /// @return true when the sheet returned a positive value.
    bool runAsPropertySheet(FeatureServices& featureServices, ProductStringLoader& strings,
                            void* activationContext);

    /// Shows popup dialog 103 in mode 3.
    /// @return the dialog's result; false in every other mode, without showing anything.
    bool runAsDialog(FeatureServices& featureServices, ProductStringLoader& strings,
                     void* activationContext);

    /// Adds the pages to a property sheet that the caller owns (`PSM_ADDPAGE`).
    /// @throws ExceptionTabCreationFailure when the sheet refuses a page; it has then got none.
    void initialize(HWND parent, FeatureServices& featureServices, ProductStringLoader& strings,
                    void* activationContext);

    /// Has the pages open where the person left them: the last page is kept for each mode, in the
    /// current user's hive under `registryPath`, in a key of the printer's. For before the sheet is
    /// on screen; without it, or with an empty path, every sheet opens on its first page and
    /// nothing is kept.
    /// @param printer  its name; empty: as the product calls itself (feature 255)
    void setPersonalSettings(const CXString& registryPath, const CXString& printer = {});

    /// Appends the observers that the manager owns, for registration with the data model.
    void addDataSources(std::vector<DataSource*>& sources) const;

    /// What is on screen: one line per control, deterministic, pages never visited included as far
    /// as they are built.
    CXString dumpText() const;

private:
    void initializePartI(FeatureServices& featureServices, ProductStringLoader& strings,
                         void* activationContext, bool wantsPages);
    void initializePartII(FeatureServices& featureServices);

    // The order of the fields is fixed; the destructor releases in an order of its own.
    std::unique_ptr<UIData> m_uiData;
    std::unique_ptr<UIDataSource> m_dataSource;
    std::unique_ptr<UIFinishingHandler> m_finishingHandler;
    std::unique_ptr<UIOffsetHandler> m_offsetHandler;
    std::unique_ptr<UIColorAccessPinHandler> m_colorAccessPinHandler;
    std::unique_ptr<UIColorHandler> m_colorHandler;
    std::unique_ptr<UIMRUHandler> m_mruHandler;
    std::unique_ptr<UISpecialFeatureHandler> m_specialFeatureHandler;
    std::unique_ptr<UITabManager> m_tabManager;
    std::unique_ptr<UITvTabManager> m_tvTabManager;
    std::unique_ptr<UIMessageManager> m_messageManager;
    std::unique_ptr<UIPopupLauncher> m_popupLauncher;
    std::unique_ptr<UIEventProcessor> m_eventProcessor;
    std::unique_ptr<UIServices> m_services;
    std::unique_ptr<UIContext> m_context;
    HINSTANCE m_moduleInstance = nullptr;
    UIMode m_mode;
    Workflow m_workflow;
    unsigned long m_option;
    ProductData& m_productData;
    CXString m_personalSettings;
    std::unique_ptr<UIPopupSheet> m_popupSheet; ///< an addition, after the fixed order
    CXString m_printer;
    IsolationAware::Session m_session;
};

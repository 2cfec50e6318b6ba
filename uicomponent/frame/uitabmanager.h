#pragma once

#include <windows.h>

#include <prsht.h>

#include <memory>
#include <vector>

#include "listoffeaturesref.h"
#include "uiapplybutton.h"
#include "uidatalist.h"
#include "uimessagehandler.h"
#include "uimessagemask.h"
#include "uimode.h"
#include "uisheetapply.h"
#include "uisheetareas.h"

class CXString;
class FeatureServices;
class ProductData;
class UIContainerData;
class UIEventProcessor;
class UIMessageManager;
class UIServices;
class UISheetGuide;
class UITab;
struct UIContext;

using UIComPropSheetCallback = LONG_PTR(CALLBACK*)(HANDLE, UINT, LPARAM, LPARAM);

/// Turns tab descriptions into property-sheet pages, receives the messages of those pages, and
/// turns the Apply of a whole sheet into one event for the data model. Virtual operations keep
/// their order.
class UITabManager : public UIMessageHandler
{
public:
    using Descriptions = std::vector<const UIContainerData*>;

    /// Everything is borrowed and must outlive the manager.
    UITabManager(UIServices& services, UIMessageManager& messageManager, HINSTANCE moduleInstance,
                 FeatureServices& featureServices, UIContext& context, ProductData& productData,
                 UIEventProcessor& eventProcessor, UIMode mode, unsigned long option);
    UITabManager(const UITabManager&) = delete;
    UITabManager& operator=(const UITabManager&) = delete;
    ~UITabManager() override;

    bool handleMessage(const _UIWindowsMessage& message) override;
    /// Dumps every tab, in creation order, and then the areas under them.
    void dump() const override;

    /// Pages for PropertySheetW. @return how many; their handles are written to `pages`, and belong
    /// to the caller, who passes them to a sheet (UISheetPages). When something is thrown, there
    /// are none.
    /// @param room  length of `pages`; descriptions beyond it get no page.
    /// @throws ExceptionTabCreationFailure
    virtual std::size_t createPagesForPropertySheet(const Descriptions& descriptions,
                                                    HPROPSHEETPAGE* pages, std::size_t room,
                                                    HANDLE activationContext);
    /// Pages for a sheet that exists already (PSM_ADDPAGE).
    /// @throws ExceptionTabCreationFailure; the sheet has then got none.
    virtual void createPagesForSheetWindow(const Descriptions& descriptions, HWND sheet,
                                           HANDLE activationContext);
    /// Pages for the print system's sheet, through its callback.
    /// @throws ExceptionTabCreationFailure
    virtual void createPagesForCPSUI(const Descriptions& descriptions, HANDLE sheet,
                                     UIComPropSheetCallback callback, HANDLE activationContext);
    /// Takes the pages out of the sheet into which createPagesForSheetWindow() has put them.
    void takePagesBack();
    /// Called when the data model has settled: what is on screen already is brought up to date.
    virtual void buildTabs(const Descriptions& descriptions);

    /// Makes the areas that stand in the sheet's own window, under the pages. They get their
    /// windows with the first page. To be called before pages are created, once.
    void buildOffTabs(const Descriptions& descriptions);

    /// See UIManager::setPersonalSettings. For before the first page has its window.
    void rememberLastPage(const CXString& path, const CXString& printer);

    long getLargestWidth() const { return m_largestWidth; }   ///< dialog units
    long getLargestHeight() const { return m_largestHeight; } ///< dialog units
    const std::vector<std::unique_ptr<UITab>>& getTabs() const { return m_tabs; }

protected:
    /// Messages of the pages.
    virtual bool handlePageMessage(const _UIWindowsMessage& message);
    /// Messages of the sheet window and of the areas in it, and each page's WM_INITDIALOG: with the
    /// first one the areas are opened. Without areas the sheet is not subclassed and none arrive.
    virtual bool handleOffTabMessage(const _UIWindowsMessage& message);

    /// Offers a message to the tabs in creation order, up to the first that claims it.
    bool offerToTabs(const _UIWindowsMessage& message) const;
    /// For a page's WM_INITDIALOG: measures the page's dialog units and opens the areas. An area
    /// that fails says why, and leaves the page alone.
    void prepareSheet(const _UIWindowsMessage& message);
    /// For a page's WM_NOTIFY: one that could not be built may be now. @return whether it is.
    bool openAgain(const _UIWindowsMessage& message) const;

    /// Offers a message to the guide, which sees all before the tabs do. @return true when it was
    /// for the guide alone.
    bool offerToGuide(const _UIWindowsMessage& message) const;

    /// The list of features that pages made from now on work on; the full one otherwise.
    void workOn(const ListOfFeaturesRef& features) { m_features = features; }
    const UIContext& getContext() const { return m_context; }

private:
    struct Page;

    UITab* buildTab(const UIContainerData& description, HANDLE activationContext, Page& page);
    HPROPSHEETPAGE createPage(Page& page, UITab& tab) const;
    bool initializePage(const _UIWindowsMessage& message);
    void pageOpened(HWND page);
    void pageGoes(HWND page);
    bool handleNotification(const _UIWindowsMessage& message);
    void tellCancel(const _UIWindowsMessage& message);
    void postFirstPaint(const _UIWindowsMessage& message);
    bool applyPage(const _UIWindowsMessage& message);
    bool hasPendingInput() const;
    void areasOpened(HWND page);

    std::vector<HPROPSHEETPAGE> m_pages;
    HANDLE m_cpsuiSheet = nullptr;
    UIComPropSheetCallback m_cpsuiCallback = nullptr;
    std::vector<std::unique_ptr<UITab>> m_tabs;
    HINSTANCE m_moduleInstance;
    UIMessageManager& m_messageManager;
    FeatureServices& m_featureServices;
    UIContext& m_context;
    ProductData& m_productData;
    UIEventProcessor& m_eventProcessor;
    UIServices& m_services;
    UIMode m_mode;
    unsigned long m_option;
    HANDLE m_activationContext = nullptr; ///< the caller's, for what the pages create
    ListOfFeaturesRef m_features;
    bool m_firstPaintPending = true;
    bool m_isCancelTold = false;
    HWND m_sheet = nullptr; ///< null until it is known
    UISheetAreas m_areas;
    std::unique_ptr<UISheetGuide> m_guide; ///< goes before the tabs and the areas
    UIApplyButton m_applyButton;
    UISheetApply m_apply;
    long m_largestWidth = 0;
    long m_largestHeight = 0;
    UIMessageMask m_wanted;
};

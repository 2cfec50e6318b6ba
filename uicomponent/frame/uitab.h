#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>

#include "cxstring.h"
#include "iobserver.h"
#include "listoffeaturesref.h"
#include "uimessagehandler.h"
#include "uimoleculecontainer.h"
#include "uipagesource.h"

class ProductData;
class UIEventProcessor;
struct UIContext;

/// One page of a property sheet: the molecules of its description, and the notifications of the
/// sheet turned into validation and data-model events. Exists from the creation of the page handle;
/// its window comes only when the user first visits it.
class UITab : public UIMoleculeContainer, public UIMessageHandler, public IObserver
{
public:
    /// @param features  what the page works on: the full feature list, or one within it.
    UITab(FeatureServices& featureServices, UIContext& context, UIEventProcessor& eventProcessor,
          UIServices& services, const ListOfFeaturesRef& features, ProductData& productData);
    ~UITab() override;

    bool handleMessage(const _UIWindowsMessage& message) override;
    void dump() const override;
    void ProcessNotification(const INotification& notification, unsigned int kind) override;
    CXString GetObserverClassNameHeirarchy() const override;

    /// Called once the data model has settled: what is on screen already is brought up to date.
    void settled();

    /// Adds the features without a control, which belong to the page all the same.
    void collectSettings(SetOfSettingIds& settings) const override;

    const CXString& getTitle() const { return m_title; }
    void setTitle(const CXString& title) { m_title = title; }
    long getWidth() const { return m_width; }   ///< dialog units
    long getHeight() const { return m_height; } ///< dialog units
    UIPageRecord& getPageRecord() { return m_source->record; }
    /// The description's number of the page; unique in its sheet.
    std::uint32_t getPageId() const;
    /// Whether the page shows a setting that is in conflict; for descriptions.
    void setInConflict(bool inConflict) { m_inConflict = inConflict; }
    /// Why the tab is not shown; empty when it is.
    const CXString& getMisfit() const { return m_misfit; }
    /// The template of the page, which has to live as long as the page can be created.
    void adoptTemplate(UIDialogTemplate dialogTemplate)
    {
        m_source->pageTemplate = std::move(dialogTemplate);
    }
    /// The tab goes before the sheet: a page without a window must find nobody when it gets one.
    void outliveIn(HWND sheet);

    /// Whether the page has its window and its controls, and is one that the sheet asks at Apply.
    bool isOpen() const { return m_isOpen; }
    /// A page that could not be built is tried again when the person comes back to it, and when it
    /// is to be applied. Offered before the message itself.
    /// @return whether it is open now. Throws what prevents it.
    bool openAgain(const _UIWindowsMessage& message);

    /// Builds columns and molecules and lays them out.
    /// @return whether the tab is to be shown: false when its content does not fit the page.
    virtual bool build(const UIContainerData& data, UINT_PTR tabId);

private:
    bool takeWindow(const _UIWindowsMessage& message);
    bool open(HWND window);
    void buildMolecules();
    bool handleNotification(const _UIWindowsMessage& message);
    bool apply(const _UIWindowsMessage& message);
    bool killActive(const _UIWindowsMessage& message);
    bool setActive(const _UIWindowsMessage& message);
    void setResult(const _UIWindowsMessage& message, LONG_PTR result) const;
    void registerForEvents();
    void unregisterForEvents();
    void letWindowGo();

    UIEventProcessor& m_eventProcessor;
    ProductData& m_productData;
    const UIContainerData* m_data = nullptr;
    CXString m_title;
    CXString m_misfit;
    long m_width = 0;
    long m_height = 0;
    std::unique_ptr<UIPageSource> m_source = std::make_unique<UIPageSource>();
    HWND m_failedWindow = nullptr; ///< of a page that could not be built
    bool m_hasBeenLeft = false;    ///< since then
    bool m_isOpen = false;
    bool m_registered = false;
    bool m_inConflict = false;
};

#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "cxstring.h"
#include "uihandles.h"
#include "uimessagemask.h"
#include "uimoleculesite.h"
#include "uipagelook.h"
#include "uipagewindow.h"
#include "uivaluewriter.h"
#include "uiwindowsmessage.h"

class FeatureIdWithContext;
class IUIContainerCompanion;
class SetOfSettingIds;
class UIContainer;
class UIContainerData;
class UILayoutManager;
class UIMolecule;
class UIToolTips;

/// What a page and a popup dialog have in common: it holds the molecules of one window in creation
/// order and drives them all, one operation after the other.
class UIMoleculeContainer
{
public:
    /// @param features  the list that the window works on; the container keeps its own reference.
    UIMoleculeContainer(FeatureServices& featureServices, const ProductStringLoader& strings,
                        UIServices& services, const ListOfFeaturesRef& features);
    UIMoleculeContainer(const UIMoleculeContainer&) = delete;
    UIMoleculeContainer& operator=(const UIMoleculeContainer&) = delete;
    virtual ~UIMoleculeContainer();

    /// Takes the window over, creates the controls, connects them, and calls the refresh hook of
    /// every molecule.
    /// @return false when the container refuses the window.
    virtual bool initialize(HWND window);
    virtual void connectAll();
    virtual void disconnectAll();
    virtual void collectSettings(SetOfSettingIds& settings) const;
    /// True as soon as one molecule's GetFeatureState answers 1.
    virtual bool anyFeatureState() const;
    virtual void refreshAll();
    /// The molecules' per-page hook: the page is being left.
    virtual void leavePageAll();

    /// Whether something typed has not been taken into the model yet.
    bool hasPendingInput() const;
    /// Asks the molecules in order, up to the first refusal.
    bool validateAll();
    /// Offers a message to the molecules in order, up to the first that claims it.
    bool offerToMolecules(const _UIWindowsMessage& message) const;
    /// One line per control, in Tab order.
    void dumpMolecules() const;

    HWND getWindow() const { return m_page.window; }
    const std::vector<UIMolecule*>& getMolecules() const { return m_molecules; }
    /// The molecule that is bound to the feature; null when there is none.
    UIMolecule* findMolecule(const FeatureIdWithContext& feature) const;
    /// The messages that the molecules may claim.
    const UIMessageMask& getWantedMessages() const { return m_wanted; }
    void setCompanion(IUIContainerCompanion* companion) { m_companion = companion; }

protected:
    /// Lets a subclass refuse a window, or add to it, before any control is created.
    virtual bool createOn(HWND window);

    /// Builds columns and molecules from a description; no window is touched.
    /// @param extraHeight  dialog units at the lower edge that are not the content's
    void buildFrom(const UIContainerData& data, long extraHeight = 0);
    /// Disconnects and destroys the molecules' controls; the window may be gone already.
    void releaseMolecules();

    /// Places what buildFrom has built.
    UILayoutManager& getLayout() const { return *m_layout; }
    UIPageWindow& getPage() { return m_page; }
    UIServices& getServices() const { return m_site.services; }
    FeatureServices& getFeatureServices() const { return m_site.featureServices; }
    const ListOfFeaturesRef& getFeatures() const { return m_site.features; }
    const ProductStringLoader& getStrings() const { return m_site.strings; }

private:
    bool fitTexts() const;
    void createControls();
    void tellMissing() const;
    void makeBoldFont();

    UIValueWriter m_valueWriter;
    UIMoleculeSite m_site;
    std::unique_ptr<UIContainer> m_container;
    std::unique_ptr<UILayoutManager> m_layout;
    std::vector<UIMolecule*> m_molecules;
    UIPageLook m_look;
    UIPageWindow m_page;
    o7::UniqueFont m_boldFont;
    std::unique_ptr<UIToolTips> m_toolTips;
    bool m_connected = false;
    IUIContainerCompanion* m_companion = nullptr;
    UIMessageMask m_wanted;
    CXString m_missing; ///< names of the settings whose control could not be created
};

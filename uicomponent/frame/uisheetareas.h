#pragma once

#include <windows.h>

#include <memory>
#include <vector>

#include "uidatalist.h"
#include "uisheetwindow.h"

class FeatureServices;
class UIContainerData;
class UIMessageManager;
class UIOffTab;
class UIServices;
struct UIContext;

/// The areas in the sheet's own window, under its pages: made from their descriptions, opened with
/// the first page, closed with this object, which gives the sheet back as it was.
class UISheetAreas
{
public:
    using OffTabs = std::vector<std::unique_ptr<UIOffTab>>;

    UISheetAreas(HINSTANCE moduleInstance, FeatureServices& featureServices, UIContext& context,
                 UIServices& services, UIMessageManager& messageManager);
    ~UISheetAreas();
    UISheetAreas(const UISheetAreas&) = delete;
    UISheetAreas& operator=(const UISheetAreas&) = delete;

    /// One area for each description whose content fits.
    void build(const std::vector<const UIContainerData*>& descriptions);
    bool isEmpty() const { return m_offTabs.empty(); }
    const OffTabs& getOffTabs() const { return m_offTabs; }

    /// Takes the sheet over, makes room and opens the areas, from top to bottom. The dialog-unit
    /// converter has to be that of the page.
    /// @param page  any page of the sheet. @return false, and nothing changed, when that was tried
    /// before, it is no property sheet, or the screen is too low for it. Nothing is changed either
    /// when something is thrown.
    bool open(HWND page);
    /// Closes the areas and gives the sheet back. Messages of both have to arrive until then.
    void close();

    /// Messages of the sheet and of the areas: what no area claims, the sheet's own procedure
    /// answers.
    bool handleMessage(const _UIWindowsMessage& message);

    bool hasPendingInput() const;
    /// Asks the areas in order, up to the first refusal.
    bool validate() const;
    void dump() const;

private:
    bool offer(const _UIWindowsMessage& message) const;
    bool makeRoom(std::vector<long>& heights, long gap);
    void openAll(const std::vector<long>& heights, long gap);

    HINSTANCE m_moduleInstance;
    FeatureServices& m_featureServices;
    UIContext& m_context;
    UIServices& m_services;
    UIMessageManager& m_messageManager;
    UISheetWindow m_sheet;
    OffTabs m_offTabs;
    bool m_wasTried = false;
};

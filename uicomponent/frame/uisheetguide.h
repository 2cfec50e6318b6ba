#pragma once

#include <windows.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

#include "iobserver.h"
#include "uiconflictwalk.h"
#include "uifunctionkey.h"
#include "uilastpage.h"
#include "uipagesettings.h"
#include "uisheetstatus.h"
#include "uitabmarks.h"

class FeatureServices;
class ProductStringLoader;
class UIMoleculeContainer;
class UITab;
struct _UIWindowsMessage;

/// What a sheet tells around its pages, and knows without opening them: which settings are in
/// conflict (marks on tabs, F8), which differ from their defaults (status text, "Page Defaults"),
/// and which page the person looked at last. Follows the data model as a whole; however many
/// settings change at once, everything is worked out once, when the thread's messages are.
///
/// Begins with the first page that gets its window and ends with that window, unless another one
/// takes its place.
class UISheetGuide : public IObserver
{
public:
    using Tabs = std::vector<std::unique_ptr<UITab>>;

    /// Posted to a page: something has changed.
    static constexpr UINT kUpdateMessage = WM_APP + 9;

    /// Everything is borrowed and must outlive the guide.
    UISheetGuide(FeatureServices& featureServices, const ProductStringLoader& strings,
                 const Tabs& tabs);
    UISheetGuide(const UISheetGuide&) = delete;
    UISheetGuide& operator=(const UISheetGuide&) = delete;
    ~UISheetGuide() override;

    /// The sheet opens on the page that it was last closed on. An empty path keeps nothing.
    void rememberPage(const CXString& path, const CXString& printer, UIMode mode);
    /// The page that served the guide has gone, and the sheet has not: this one serves it now.
    void carryOn(HWND page);
    /// From now on status lines and buttons in this container beside the pages are served like
    /// those on the pages. The container has to live as long as the guide.
    void serve(const UIMoleculeContainer& container);

    /// Has to see every message of the pages before they do; those of other sheets may be among
    /// them. @return true for messages of its own.
    bool handleMessage(const _UIWindowsMessage& message);

    /// Gives every setting of the page that is shown its default value.
    void restorePageDefaults();

    /// Brings the page that shows the setting to the front and the keyboard to its control; nothing
    /// when no page shows it.
    void goTo(const FeatureIdWithContext& feature);
    /// Whether a page shows the setting.
    bool shows(const FeatureIdWithContext& feature) const;
    /// What is in conflict, as F8 walks: page by page. What no page shows comes last.
    std::vector<FeatureIdWithContext> conflictsInOrder();

    void ProcessNotification(const INotification& notification, unsigned int kind) override;
    CXString GetObserverClassNameHeirarchy() const override;

private:
    bool serveOwn(const _UIWindowsMessage& message);
    void begin(HWND page);
    void end();
    void activated(HWND page);
    void requestUpdate();
    void update();
    void reopenLastPage();
    std::size_t placeOf(const FeatureIdWithContext& feature);
    void markTabs(const std::vector<FeatureIdWithContext>& conflicts);
    void serveMolecules(const UIMoleculeContainer& container,
                        const std::vector<FeatureIdWithContext>& conflicts);
    void goToConflict(bool backwards);
    bool selectPage(std::size_t page);
    int firstTab() const;
    std::optional<std::size_t> pageOf(HWND window) const;
    const std::vector<UIPageSettings>& settings();

    FeatureServices& m_featureServices;
    const Tabs& m_tabs;
    UISheetStatus m_status;
    HWND m_sheet = nullptr;
    HWND m_page = nullptr; ///< the one whose messages serve the guide
    std::size_t m_active = 0;
    std::vector<const UIMoleculeContainer*> m_served; ///< beside the pages
    std::vector<UIPageSettings> m_settings;           ///< by page; collected when first needed
    std::optional<UIFunctionKey> m_key;
    std::optional<UITabMarks> m_marks;
    std::optional<UILastPage> m_lastPage;
    bool m_reopens = false;
    bool m_updateRequested = false;
};

#pragma once

#include <windows.h>

#include "uihandles.h"
#include "uimessagehandler.h"
#include "uimoleculecontainer.h"

class UIMessageManager;
struct UIContext;

/// One area of the sheet's window under its pages, there whichever page is active. Its molecules
/// stand on a window of the area's own, so that their numbers, their Tab order and their reading
/// direction are independent of the sheet's.
///
/// An area is described like a page, but without the page's margins: what a page begins
/// UILayoutManager::kMargin from its edge begins at the area's edge. The first column takes up the
/// difference between the described width and the real one.
class UIOffTab : public UIMoleculeContainer, public UIMessageHandler
{
public:
    UIOffTab(FeatureServices& featureServices, UIContext& context, UIServices& services);
    ~UIOffTab() override;

    /// Builds columns and molecules. @return false when they do not fit the description.
    bool build(const UIContainerData& data);

    /// Dialog units that the content has, without the page's margins.
    long getHeight() const;

    /// Makes the area's window and controls. @param place  in client coordinates of the sheet;
    /// @param predecessor  the window of the sheet that stands before the area in Tab order.
    /// @return false when there is no window.
    /// What is thrown while the controls are made leaves a window behind, for close().
    bool open(HINSTANCE instance, HWND sheet, const RECT& place, HWND predecessor,
              UIMessageManager& manager);

    /// Destroys controls and window. Messages of the window have to reach the area until then.
    void close();

    /// Claims every message of its own window. Of the sheet's window those that a molecule claims.
    bool handleMessage(const _UIWindowsMessage& message) override;
    void dump() const override;

private:
    LRESULT answer(const _UIWindowsMessage& message);

    const UIContainerData* m_data = nullptr;
    o7::UniqueWindow m_area;
};

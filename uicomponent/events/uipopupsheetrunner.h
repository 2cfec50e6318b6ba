#pragma once

#include <windows.h>

#include <vector>

#include "listoffeaturesref.h"

class UIContainerData;

/// Shows a popup tab set. Implemented where pages are made, above the layer of popups.
class UIPopupSheetRunner
{
public:
    virtual ~UIPopupSheetRunner() = default;

    /// Shows the pages in a modal sheet. @param features  the list that the pages work on.
    /// @return true when it ended with OK; false otherwise, and when it could not be shown.
    virtual bool runPopupSheet(const std::vector<const UIContainerData*>& pages,
                               const ListOfFeaturesRef& features, HWND parent) = 0;

protected:
    UIPopupSheetRunner() = default;
    UIPopupSheetRunner(const UIPopupSheetRunner&) = default;
    UIPopupSheetRunner& operator=(const UIPopupSheetRunner&) = default;
};

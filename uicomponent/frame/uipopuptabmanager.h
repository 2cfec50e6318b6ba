#pragma once

#include "listoffeaturesref.h"
#include "uitabmanager.h"

/// The pages of a popup tab set: a sheet over the sheet, inside the popup's transaction. It counts
/// no Apply, sends no event of its own (that of a Cancel would bring back what other pages have
/// changed) and warns of nothing; what its OK keeps is for the sheet below to apply.
class UIPopupTabManager : public UITabManager
{
public:
    /// Everything is borrowed as for UITabManager. @param features  the list that the pages work
    /// on.
    UIPopupTabManager(UIServices& services, UIMessageManager& messageManager,
                      HINSTANCE moduleInstance, FeatureServices& featureServices,
                      UIContext& context, ProductData& productData,
                      UIEventProcessor& eventProcessor, UIMode mode, unsigned long option,
                      const ListOfFeaturesRef& features);

    /// The sheet around the pages and its OK button; null until the first page has its window.
    HWND getParent() const { return m_parent; }
    HWND getOkButton() const { return m_okButton; }

    std::size_t createPagesForPropertySheet(const Descriptions& descriptions, HPROPSHEETPAGE* pages,
                                            std::size_t room, HANDLE activationContext) override;

protected:
    bool handlePageMessage(const _UIWindowsMessage& message) override;

private:
    void adoptButtons(HWND page);

    const UIContainerData* m_first = nullptr; ///< its actions label the buttons of the sheet
    HWND m_parent = nullptr;
    HWND m_okButton = nullptr;
};

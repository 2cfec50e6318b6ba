#include "uipopuptabmanager.h"

#include "productstringloader.h"
#include "uicontainerdata.h"
#include "uicontext.h"
#include "uidialogactiondata.h"

UIPopupTabManager::UIPopupTabManager(UIServices& services, UIMessageManager& messageManager,
                                     HINSTANCE moduleInstance, FeatureServices& featureServices,
                                     UIContext& context, ProductData& productData,
                                     UIEventProcessor& eventProcessor, UIMode mode,
                                     unsigned long option, const ListOfFeaturesRef& features)
    : UITabManager(services, messageManager, moduleInstance, featureServices, context, productData,
                   eventProcessor, mode, option)
{
    workOn(features);
}

std::size_t UIPopupTabManager::createPagesForPropertySheet(const Descriptions& descriptions,
                                                           HPROPSHEETPAGE* pages, std::size_t room,
                                                           HANDLE activationContext)
{
    m_first = descriptions.empty() ? nullptr : descriptions.front();
    return UITabManager::createPagesForPropertySheet(descriptions, pages, room, activationContext);
}

bool UIPopupTabManager::handlePageMessage(const _UIWindowsMessage& message)
{
    if (offerToGuide(message))
        return true;
    if (message.message == WM_NOTIFY)
        openAgain(message);
    if (message.message != WM_INITDIALOG)
        return offerToTabs(message);
    prepareSheet(message);
    const bool claimed = offerToTabs(message);
    if (claimed && !m_parent)
        adoptButtons(message.window);
    return claimed;
}

/// The system labels the buttons of a sheet in its own language; a popup of ours says what its
/// description says.
void UIPopupTabManager::adoptButtons(HWND page)
{
    m_parent = GetParent(page);
    m_okButton = GetDlgItem(m_parent, IDOK);
    if (!m_first)
        return;
    for (const auto& action : m_first->getDialogActions()) {
        const auto id = static_cast<int>(action->getControlId());
        if (const HWND button = GetDlgItem(m_parent, id))
            SetWindowTextW(button, getContext().strings.LoadStringW(action->getLabel()).c_str());
    }
}

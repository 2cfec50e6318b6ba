#include "uipopuplauncher.h"

#include <utility>

#include "cxstring.h"
#include "featureservices.h"
#include "isolationaware.h"
#include "modaldialog.h"
#include "uicontext.h"
#include "uidata.h"
#include "uidialogtemplate.h"
#include "uimessagemanager.h"
#include "uipopupdialog.h"
#include "uipopupsheetrunner.h"
#include "uiservices.h"

namespace {

/// Keeps a handler in the dialog list for as long as the dialog can receive messages.
class DialogRegistration
{
public:
    DialogRegistration(UIMessageManager& manager, UIMessageHandler& handler)
        : m_manager(manager), m_handler(handler)
    {
        m_manager.append(UIMessageKind::Dialog, handler);
    }
    ~DialogRegistration() { m_manager.remove(UIMessageKind::Dialog, m_handler); }
    DialogRegistration(const DialogRegistration&) = delete;
    DialogRegistration& operator=(const DialogRegistration&) = delete;

private:
    UIMessageManager& m_manager;
    UIMessageHandler& m_handler;
};

} // namespace

UIPopupLauncher::UIPopupLauncher(UIMessageManager& messageManager, HINSTANCE moduleInstance,
                                 FeatureServices& featureServices, UIContext& context,
                                 ProductData& productData, const UIData& uiData,
                                 UIEventProcessor* eventProcessor, UIServices& services,
                                 HANDLE activationContext, UIMode mode)
    : m_messageManager(messageManager),
      m_moduleInstance(moduleInstance),
      m_featureServices(featureServices),
      m_context(context),
      m_productData(productData),
      m_uiData(uiData),
      m_eventProcessor(eventProcessor),
      m_services(services),
      m_activationContext(activationContext),
      m_mode(mode)
{
}

bool UIPopupLauncher::displayDialog(DialogId id, const ListOfFeaturesRef& features, HWND parent,
                                    bool wholeUi)
{
    m_wholeUi = wholeUi;
    return launch(id, features, parent, nullptr);
}

bool UIPopupLauncher::launch(DialogId id, const ListOfFeaturesRef& features, HWND parent,
                             void* param)
{
    const UIContainerData* data = m_uiData.findDialog(id);
    if (!data)
        return false;
    UIDialogTemplate dialogTemplate(m_moduleInstance);
    if (!dialogTemplate.get())
        return false;
    dialogTemplate.setSize(data->getWidth(), data->getHeight());
    dialogTemplate.makePopup(parent != nullptr);
    if (m_services.isRightToLeft())
        dialogTemplate.mirror();

    const IsolationAware::CallerContext callerContext(m_activationContext);
    // What this dialog opens in turn is no whole UI.
    const bool wholeUi = std::exchange(m_wholeUi, false);
    UIPopupDialog dialog(m_featureServices, m_context, m_services, features, *data, wholeUi, param);
    const DialogRegistration registration(m_messageManager, dialog);
    const auto transaction = m_featureServices.OpenTransaction(CXString(L"popup dialog"));
    const INT_PTR result =
        o7::runModalDialog(m_moduleInstance, dialogTemplate, parent, m_messageManager);
    // A dialog that could not be shown (-1) has accepted nothing.
    const bool accepted = result != 0 && result != -1;
    transaction->Close(accepted);
    return accepted;
}

bool UIPopupLauncher::launchPropertySheet(DialogId id, const ListOfFeaturesRef& features,
                                          HWND parent)
{
    const auto pages = m_uiData.findTabSet(id);
    if (pages.empty() || !m_sheetRunner)
        return false;
    const auto transaction = m_featureServices.OpenTransaction(CXString(L"popup tab set"));
    const bool accepted = m_sheetRunner->runPopupSheet(pages, features, parent);
    transaction->Close(accepted);
    return accepted;
}

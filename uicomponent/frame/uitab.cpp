#include "uitab.h"

#include <prsht.h>

#include "featureservices.h"
#include "setofsettingids.h"
#include "uicontainerdata.h"
#include "uicontext.h"
#include "uicontrol.h"
#include "uidump.h"
#include "uieventprocessor.h"
#include "uilayoutmanager.h"
#include "undo.h"

namespace {

// After these the model may have changed any setting at once, so the whole page is read again.
constexpr DataModelIds::EventEnum kRefreshEvents[] = {
    DataModelIds::kEventTab21017,
    DataModelIds::kEventTab21005,
    DataModelIds::kEventTab21056,
};

} // namespace

UITab::UITab(FeatureServices& featureServices, UIContext& context, UIEventProcessor& eventProcessor,
             UIServices& services, const ListOfFeaturesRef& features, ProductData& productData)
    : UIMoleculeContainer(featureServices, context.strings, services, features),
      m_eventProcessor(eventProcessor),
      m_productData(productData)
{
}

UITab::~UITab()
{
    unregisterForEvents();
}

// A page that outlives its manager (a host that closes its sheet too late) must find nobody instead
// of a dead manager: its procedure then answers 0.
void UITab::letWindowGo()
{
    const HWND window = m_failedWindow ? m_failedWindow : getWindow();
    const auto manager = reinterpret_cast<LONG_PTR>(getPageRecord().messageManager);
    if (window && manager && GetWindowLongPtrW(window, GWLP_USERDATA) == manager)
        SetWindowLongPtrW(window, GWLP_USERDATA, 0);
}

void UITab::outliveIn(HWND sheet)
{
    letWindowGo();
    if (!getWindow())
        UIPageSource::keepFor(sheet, std::move(m_source));
}

bool UITab::build(const UIContainerData& data, UINT_PTR tabId)
{
    m_data = &data;
    getPageRecord().tabId = tabId;
    m_width = data.getWidth();
    m_height = data.getHeight();
    buildMolecules();
    if (!m_misfit.IsEmpty())
        return false;
    registerForEvents();
    return true;
}

void UITab::buildMolecules()
{
    buildFrom(*m_data);
    m_misfit = getLayout().findMisfit();
    if (m_misfit.IsEmpty())
        getLayout().layOut();
}

std::uint32_t UITab::getPageId() const
{
    return m_data ? m_data->getId() : 0;
}

void UITab::collectSettings(SetOfSettingIds& settings) const
{
    UIMoleculeContainer::collectSettings(settings);
    for (const auto& feature : m_data->getSimpleFeatures())
        settings.InsertSetting(FeatureIdWithContext(FeatureId(feature->getFeature())));
}

void UITab::registerForEvents()
{
    for (const auto event : kRefreshEvents)
        getFeatureServices().RegisterForEvent(*this, EventId(event), DataModelIds::kObserverEvent);
    m_registered = true;
}

void UITab::unregisterForEvents()
{
    if (!m_registered)
        return;
    for (const auto event : kRefreshEvents)
        getFeatureServices().UnregisterForEvent(*this, EventId(event),
                                                DataModelIds::kObserverEvent);
    m_registered = false;
}

void UITab::ProcessNotification(const INotification&, unsigned int kind)
{
    if (kind == DataModelIds::kObserverEvent && m_isOpen)
        refreshAll();
}

void UITab::settled()
{
    if (m_isOpen)
        refreshAll();
}

bool UITab::handleMessage(const _UIWindowsMessage& message)
{
    if (message.message == WM_INITDIALOG)
        return !getWindow() && takeWindow(message);
    if (!getWindow() || message.window != getWindow() || m_failedWindow)
        return false;
    switch (message.message) {
    case WM_NOTIFY:
        return handleNotification(message);
    case WM_DESTROY: { // the controls go while their windows still exist
        const UIControl::ParentGoes going(message.window);
        m_isOpen = false;
        releaseMolecules();
        return false;
    }
    default:
        return offerToMolecules(message);
    }
}

bool UITab::takeWindow(const _UIWindowsMessage& message)
{
    const auto& page = *reinterpret_cast<const PROPSHEETPAGEW*>(message.lParam);
    const auto& record = *reinterpret_cast<const UIPageRecord*>(page.lParam);
    if (record.tabId != getPageRecord().tabId)
        return false;
    return open(message.window);
}

bool UITab::open(HWND window)
{
    m_failedWindow = nullptr;
    m_hasBeenLeft = false;
    o7::Undo undo([this, window] {
        m_failedWindow = window;
        releaseMolecules();
    });
    if (!initialize(window))
        return false;
    undo.keep();
    m_isOpen = true;
    return true;
}

bool UITab::openAgain(const _UIWindowsMessage& message)
{
    if (!m_failedWindow || message.window != m_failedWindow || message.message != WM_NOTIFY)
        return false;
    const UINT code = reinterpret_cast<const NMHDR*>(message.lParam)->code;
    m_hasBeenLeft |= code == PSN_KILLACTIVE;
    if (code != PSN_APPLY && !(code == PSN_SETACTIVE && m_hasBeenLeft))
        return false;
    const HWND window = m_failedWindow;
    buildMolecules();
    return open(window);
}

bool UITab::handleNotification(const _UIWindowsMessage& message)
{
    switch (reinterpret_cast<const NMHDR*>(message.lParam)->code) {
    case PSN_QUERYCANCEL: // allowed
        setResult(message, FALSE);
        return true;
    case PSN_APPLY:
        return apply(message);
    case PSN_KILLACTIVE:
        return killActive(message);
    case PSN_SETACTIVE:
        return setActive(message);
    default:
        return offerToMolecules(message);
    }
}

void UITab::setResult(const _UIWindowsMessage& message, LONG_PTR result) const
{
    SetWindowLongPtrW(message.window, DWLP_MSGRESULT, result);
    message.result = TRUE; // DWLP_MSGRESULT counts
}

bool UITab::apply(const _UIWindowsMessage& message)
{
    const bool valid = validateAll();
    // A field that refuses has brought its page to the front and has the keyboard. The sheet then
    // selects the page once more, and takes the keyboard away.
    if (const HWND field = valid ? nullptr : GetFocus(); IsChild(getWindow(), field))
        PostMessageW(getWindow(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(field), TRUE);
    setResult(message, valid ? PSNRET_NOERROR : PSNRET_INVALID);
    return true;
}

bool UITab::killActive(const _UIWindowsMessage& message)
{
    if (m_data->validatesOnLeave() && !validateAll()) {
        setResult(message, TRUE);
        return true;
    }
    leavePageAll();
    refreshAll();
    setResult(message, FALSE);
    return true;
}

bool UITab::setActive(const _UIWindowsMessage& message)
{
    connectAll();
    m_eventProcessor.notifyDataModel(DataModelIds::kEventPageActivated, getWindow());
    return offerToMolecules(message);
}

void UITab::dump() const
{
    UIDump::line(CXString::Formatted(L"tab \"%s\" %ld x %ld%s", m_title.c_str(), m_width, m_height,
                                     m_inConflict ? L", in conflict" : L"")
                     .View());
    const UIDump::Level inner;
    if (m_failedWindow)
        UIDump::line(L"could not be built");
    else if (getWindow())
        dumpMolecules();
    else
        UIDump::line(L"not visited");
}

CXString UITab::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UITab : UIMoleculeContainer : UIMessageHandler : IObserver");
}

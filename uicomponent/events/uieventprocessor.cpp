#include "uieventprocessor.h"

#include "eventnotification.h"
#include "eventwithfeaturenotification.h"
#include "featureservices.h"
#include "uipopuplauncher.h"

UIEventProcessor::UIEventProcessor(UIPopupLauncher& popupLauncher, FeatureServices& featureServices,
                                   ProductData& productData)
    : m_popupLauncher(popupLauncher), m_featureServices(featureServices), m_productData(productData)
{
}

UIEventProcessor::~UIEventProcessor() = default;

void UIEventProcessor::incrementVisitedTabCount()
{
    ++m_visitedTabCount;
}

void UIEventProcessor::decrementVisitedTabCount(bool hasAnswered)
{
    --m_visitedTabCount;
    m_notificationCount -= hasAnswered ? 1 : 0;
}

void UIEventProcessor::resetNotificationCount()
{
    m_notificationCount = 0;
}

bool UIEventProcessor::incrementNotificationCount()
{
    ++m_notificationCount;
    return m_visitedTabCount != 0 && m_notificationCount % m_visitedTabCount == 0;
}

bool UIEventProcessor::displayDialog(DialogId id, const ListOfFeaturesRef& features,
                                     HWND parent) const
{
    return m_popupLauncher.displayDialog(id, features, parent, false);
}

bool UIEventProcessor::displayCustomDialog(DialogId id, const ListOfFeaturesRef& features,
                                           HWND parent, void* param) const
{
    return m_popupLauncher.launch(id, features, parent, param);
}

bool UIEventProcessor::displayPropertySheet(DialogId id, const ListOfFeaturesRef& features,
                                            HWND parent) const
{
    return m_popupLauncher.launchPropertySheet(id, features, parent);
}

void UIEventProcessor::notifyDataModel(DataModelIds::EventEnum event, void* data)
{
    m_featureServices.GetNotificationSink().SendNotification(
        EventNotification(EventId(event), data));
}

void UIEventProcessor::notifyDataModel(DataModelIds::EventEnum event,
                                       const FeatureIdWithContext& feature, void* data)
{
    m_featureServices.GetNotificationSink().SendNotification(
        EventWithFeatureNotification(EventId(event), feature, data));
}

#pragma once

#include <windows.h>

#include "datamodelids.h"
#include "dialogid.h"
#include "featureidwithcontext.h"
#include "listoffeaturesref.h"
#include "uiapi.h"

class FeatureServices;
class ProductData;
class UIPopupLauncher;

/// The one object through which tabs, molecules and controls ask for a popup dialog and tell the
/// data model that something happened in the UI. It also counts pages and their Apply
/// notifications, so that one Apply of a whole sheet becomes one event. UI thread only.
class O7UI_API UIEventProcessor
{
public:
    /// All three are borrowed and must outlive the processor.
    UIEventProcessor(UIPopupLauncher& popupLauncher, FeatureServices& featureServices,
                     ProductData& productData);
    UIEventProcessor(const UIEventProcessor&) = delete;
    UIEventProcessor& operator=(const UIEventProcessor&) = delete;
    virtual ~UIEventProcessor();

    /// One more page has got its window.
    void incrementVisitedTabCount();
    /// A page has lost its window. @param hasAnswered  its Apply is among those that are counted.
    void decrementVisitedTabCount(bool hasAnswered);
    /// A new round begins: the Apply of no page has been counted.
    void resetNotificationCount();
    /// Counts one page's Apply.
    /// @return true exactly when the new count is a multiple of the number of visited pages; false
    ///         while no page has been visited.
    bool incrementNotificationCount();

    /// Shows a dialog over a list of features. @return true when it ended with OK; false otherwise,
    /// and for an id that has no description.
    bool displayDialog(DialogId id, const ListOfFeaturesRef& features, HWND parent) const;
    /// The same with a parameter for the dialog, which is borrowed while the dialog is open.
    bool displayCustomDialog(DialogId id, const ListOfFeaturesRef& features, HWND parent,
                             void* param) const;

    /// Shows a popup tab set over a list of features. @return as displayDialog().
    bool displayPropertySheet(DialogId id, const ListOfFeaturesRef& features, HWND parent) const;

    /// Sends an event to the data model. @param data  borrowed for the duration of the call; its
    /// type is fixed by the event.
    void notifyDataModel(DataModelIds::EventEnum event, void* data);
    void notifyDataModel(DataModelIds::EventEnum event, const FeatureIdWithContext& feature,
                         void* data);

    UIPopupLauncher& getPopupLauncher() const { return m_popupLauncher; }
    FeatureServices& getFeatureServices() const { return m_featureServices; }

private:
    UIPopupLauncher& m_popupLauncher;
    FeatureServices& m_featureServices;
    ProductData& m_productData;
    int m_visitedTabCount = 0;
    int m_notificationCount = 0;
};

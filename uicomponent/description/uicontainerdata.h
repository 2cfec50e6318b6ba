#pragma once

#include <cstdint>

#include "uicolumndata.h"
#include "uidatalist.h"
#include "uidialogactiondata.h"
#include "uifeatureobserverdata.h"
#include "uirecords.h"
#include "uisimplefeaturedata.h"

/// One page: a tab, a dialog, or the inside of a Container molecule.
class UIContainerData
{
public:
    /// @param modeValue  the number of the mode the interface is built for, handed down to the
    ///                   molecules: it decides which of them get their nested container.
    UIContainerData(const UIContainerRecord& record, std::uint32_t modeValue);
    UIContainerData(const UIContainerData&) = delete;
    UIContainerData& operator=(const UIContainerData&) = delete;
    virtual ~UIContainerData();

    const UIContainerRecord& getRecord() const { return *m_record; }

    std::uint32_t getId() const { return m_record->id; }
    std::uint32_t getTitle() const { return m_record->title; }  ///< String number.
    std::int32_t getWidth() const { return m_record->width; }   ///< Dialog units.
    std::int32_t getHeight() const { return m_record->height; } ///< Dialog units.
    bool validatesOnLeave() const { return m_record->validateOnLeave; }
    std::uint32_t getHelpContext() const { return m_record->helpContext; } ///< 0: no help.

    const UIDataList<UIColumnData>& getColumns() const { return m_columns; }
    const UIDataList<UIDialogActionData>& getDialogActions() const { return m_dialogActions; }
    const UIDataList<UISimpleFeatureData>& getSimpleFeatures() const { return m_simpleFeatures; }
    const UIDataList<UIFeatureObserverData>& getFeatureObservers() const
    {
        return m_featureObservers;
    }

private:
    const UIContainerRecord* m_record;
    UIDataList<UIColumnData> m_columns;
    UIDataList<UIDialogActionData> m_dialogActions;
    UIDataList<UISimpleFeatureData> m_simpleFeatures;
    UIDataList<UIFeatureObserverData> m_featureObservers;
};

#pragma once

#include <cstdint>
#include <memory>

#include "uicontroldata.h"
#include "uidatalist.h"
#include "uirecords.h"

class UIContainerData;

/// One molecule: the controls that are bound to one feature, or a group of child molecules, or a
/// whole nested container.
class UIMoleculeData
{
public:
    /// A molecule of kind Container gets its nested container only for the mode values 2, 3 and 4,
    /// which are those of UIMode, and for 72; so one description serves modes with and without
    /// the nested page. Children and nested containers are built with the same mode value.
    UIMoleculeData(const UIMoleculeRecord& record, std::uint32_t modeValue);
    UIMoleculeData(const UIMoleculeData&) = delete;
    UIMoleculeData& operator=(const UIMoleculeData&) = delete;
    virtual ~UIMoleculeData();

    const UIMoleculeRecord& getRecord() const { return *m_record; }

    UIMoleculeKind getKind() const { return m_record->kind; }
    std::uint32_t getTitle() const { return m_record->title; } ///< Caption's string number.
    bool hasFeatureState() const { return m_record->featureState > 0; }
    /// Room in dialog units for a label beside its box, in whatever column it stands; 0: the
    /// column decides.
    std::int32_t getLabelWidth() const { return m_record->labelWidth; }
    std::uint32_t getIndent() const { return m_record->indent; }
    bool hasRaisedHeight() const { return m_record->raisedHeight; }
    bool hasOwnFeatureList() const { return m_record->ownFeatureList; }

    /// The feature the molecule is bound to: that of its first control that names one, other than
    /// a text. kNoFeature when it is bound to nothing.
    DataModelIds::tagFeatureEnum getFeature() const;

    const UIDataList<UIControlData>& getControls() const { return m_controls; }
    const UIDataList<UIMoleculeData>& getChildren() const { return m_children; }
    const UIContainerData* getNestedContainer() const { return m_nested.get(); } ///< Or null.

    /// The first control of that description class, or null.
    template <class Data> const Data* findControl() const
    {
        for (const auto& control : m_controls) {
            if (const auto* found = dynamic_cast<const Data*>(control.get()))
                return found;
        }
        return nullptr;
    }

private:
    const UIMoleculeRecord* m_record;
    std::unique_ptr<UIContainerData> m_nested;
    UIDataList<UIMoleculeData> m_children;
    UIDataList<UIControlData> m_controls;
};

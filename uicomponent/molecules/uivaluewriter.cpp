#include "uivaluewriter.h"

#include "booleanfeatureref.h"
#include "dimensionfeatureref.h"
#include "featureref.h"
#include "featureservices.h"
#include "integerfeatureref.h"
#include "optionfeatureref.h"
#include "rangefeatureref.h"
#include "stringfeatureref.h"

bool UIValueWriter::SetOption(const FeatureIdWithContext& id, DataModelIds::tagValueEnum value)
{
    return m_featureServices.GetOptionFeatureRef(id).SetValue(ValueId(value));
}

bool UIValueWriter::SetOptionByName(const FeatureIdWithContext& id, const CXString& valueName)
{
    auto feature = m_featureServices.GetOptionFeatureRef(id);
    return feature.SetValue(valueName).GetValueEnum() != DataModelIds::kNoValue;
}

bool UIValueWriter::SetInteger(const FeatureIdWithContext& id, int value)
{
    return m_featureServices.GetListOfFeaturesFor(id).GetIntegerFeature(id).SetValue(value);
}

bool UIValueWriter::SetString(const FeatureIdWithContext& id, const CXString& value)
{
    return m_featureServices.GetListOfFeaturesFor(id).GetStringFeature(id).SetValue(value);
}

bool UIValueWriter::SetRange(const FeatureIdWithContext& id, int low, int high)
{
    return m_featureServices.GetListOfFeaturesFor(id).GetRangeFeature(id).SetValue(low, high);
}

bool UIValueWriter::SetDimension(const FeatureIdWithContext& id, const Dimension& value)
{
    return m_featureServices.GetListOfFeaturesFor(id).GetDimensionFeature(id).SetValue(value);
}

bool UIValueWriter::SetIsSpecified(const FeatureIdWithContext& id, bool specified)
{
    const auto feature = m_featureServices.GetFeatureRef(id);
    return feature && feature->SetIsSpecified(specified);
}

bool UIValueWriter::SetBoolean(const FeatureIdWithContext& id, bool value)
{
    return m_featureServices.GetListOfFeaturesFor(id).GetBooleanFeature(id).SetValue(value);
}

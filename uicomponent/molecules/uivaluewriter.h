#pragma once

#include "datamodelids.h"
#include "featureidwithcontext.h"

class CXString;
class Dimension;
class FeatureServices;

/// The object through which molecules write into the data model. The order of the operations is
/// fixed: the first sets an option, the eighth a boolean. Each returns false when the product has
/// no such feature.
class UIValueWriter
{
public:
    explicit UIValueWriter(FeatureServices& featureServices) : m_featureServices(featureServices) {}
    UIValueWriter(const UIValueWriter&) = delete;
    UIValueWriter& operator=(const UIValueWriter&) = delete;

    virtual bool SetOption(const FeatureIdWithContext& id, DataModelIds::tagValueEnum value);
    virtual bool SetOptionByName(const FeatureIdWithContext& id, const CXString& valueName);
    virtual bool SetInteger(const FeatureIdWithContext& id, int value);
    virtual bool SetString(const FeatureIdWithContext& id, const CXString& value);
    virtual bool SetRange(const FeatureIdWithContext& id, int low, int high);
    virtual bool SetDimension(const FeatureIdWithContext& id, const Dimension& value);
    virtual bool SetIsSpecified(const FeatureIdWithContext& id, bool specified);
    virtual bool SetBoolean(const FeatureIdWithContext& id, bool value);
    virtual ~UIValueWriter() = default;

private:
    FeatureServices& m_featureServices;
};

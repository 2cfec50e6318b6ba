#include "unitsinuse.h"

#include "featureservices.h"
#include "tables/productids.h"
#include "uiregionalsettings.h"

bool o7::showsMillimetres(FeatureServices& featureServices, const UIRegionalSettings& regional)
{
    ValueId units;
    featureServices.GetOptionFeatureRef(FeatureIdWithContext{FeatureId(kMeasurementUnits)})
        .GetValue(units, FeatureRef::kDoNotAssertIfUnsupported);
    const auto value = units.GetValueEnum();
    if (value == kUnitsMillimetres || value == kUnitsInches)
        return value == kUnitsMillimetres;
    return regional.metric;
}

#include "uidimensionspinmolecule.h"

#include "dimensionfeatureref.h"
#include "featureservices.h"
#include "integerfeatureref.h"
#include "numberranges.h"
#include "optionfeatureref.h"
#include "tables/productids.h"
#include "uiservices.h"
#include "uispincontroldata.h"
#include "uistringnumbers.h"
#include "uivaluewriter.h"
#include "unitsinuse.h"

namespace {

std::int64_t countOf(int value, Dimension::UnitsEnum units)
{
    return Dimension(value, units).GetCount();
}

} // namespace

UIDimensionSpinMolecule::~UIDimensionSpinMolecule() = default;

void UIDimensionSpinMolecule::InitializeFromDescription()
{
    UISpinMolecule::InitializeFromDescription();
    ObserveFeature(FeatureIdWithContext{FeatureId(o7::kMeasurementUnits)});
}

bool UIDimensionSpinMolecule::IsMetric() const
{
    return o7::showsMillimetres(GetSite().featureServices,
                                GetSite().services.getRegionalSettings());
}

std::optional<Dimension::UnitsEnum> UIDimensionSpinMolecule::StoredUnits() const
{
    const auto features = GetSite().featureServices.GetListOfFeaturesFor(GetBoundFeature());
    return features.GetIntegerFeature(GetBoundFeature()).GetRangeCapabilities()->GetUnits();
}

CXString UIDimensionSpinMolecule::GetUnitText(bool metric) const
{
    const CXString own = UISpinMolecule::GetUnitText(metric);
    return own.IsEmpty() ? LoadText(metric ? O7STR_U_MILLIMETRE : O7STR_U_INCH) : own;
}

UINumberRules UIDimensionSpinMolecule::MakeRules()
{
    const bool metric = IsMetric();
    m_shownFor = {GetSite().services.getRegionalSettings().decimalSeparator, metric};
    UINumberRules rules;
    rules.isLength = true;
    rules.units = metric ? Dimension::UnitsEnum::Millimetre : Dimension::UnitsEnum::Inch;
    rules.decimalSeparator = m_shownFor.decimalSeparator;
    if (const UISpinControlData* data = GetSpinData()) {
        rules.digits = data->getDigits(metric);
        rules.increment = data->getIncrement(metric);
    }
    rules.unitText = GetUnitText(metric);

    const auto features = GetSite().featureServices.GetListOfFeaturesFor(GetBoundFeature());
    if (const auto stored = StoredUnits()) {
        rules.grid = countOf(1, *stored);
        const auto numbers = features.GetIntegerFeature(GetBoundFeature()).GetRangeCapabilities();
        rules.ranges = o7::numberRanges(*numbers, rules.grid);
        rules.supported = o7::supportedRanges(*numbers, rules.grid);
        return rules;
    }
    Dimension low;
    Dimension high;
    const auto lengths =
        features.GetDimensionFeature(GetBoundFeature()).GetRangeOfDimensionCapabilities();
    if (lengths->GetRangeValues(low, high))
        rules.ranges = {{low.GetCount(), high.GetCount()}};
    if (lengths->GetSupportedValues(low, high))
        rules.supported = {{low.GetCount(), high.GetCount()}};
    return rules;
}

std::optional<std::int64_t> UIDimensionSpinMolecule::ReadNumber() const
{
    const auto features = GetSite().featureServices.GetListOfFeaturesFor(GetBoundFeature());
    Dimension length;
    if (features.GetDimensionFeature(GetBoundFeature())
            .GetValue(length, FeatureRef::kDoNotAssertIfUnsupported) ||
        features.GetIntegerFeature(GetBoundFeature())
            .GetDimensionValue(length, FeatureRef::kDoNotAssertIfUnsupported))
        return length.GetCount();
    return std::nullopt;
}

bool UIDimensionSpinMolecule::WriteNumber(std::int64_t value)
{
    if (const auto stored = StoredUnits())
        return UISpinMolecule::WriteNumber(value / countOf(1, *stored));
    const auto units =
        m_shownFor.metric ? Dimension::UnitsEnum::Millimetre : Dimension::UnitsEnum::Inch;
    return GetSite().valueWriter.SetDimension(GetBoundFeature(),
                                              Dimension::FromCount(value, units));
}

void UIDimensionSpinMolecule::FollowUnits()
{
    const UIRegionalSettings wanted{GetSite().services.getRegionalSettings().decimalSeparator,
                                    IsMetric()};
    if (!(wanted == m_shownFor))
        RenewRules();
}

void UIDimensionSpinMolecule::LoadValue()
{
    FollowUnits();
    UISpinMolecule::LoadValue();
}

CXString UIDimensionSpinMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIDimensionSpinMolecule:UISpinMolecule:UIFeatureMolecule:UIMolecule");
}

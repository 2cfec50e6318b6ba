#include "uiservices.h"

#include "dialogconversion.h"
#include "featureservices.h"
#include "productdata.h"

namespace {

constexpr auto kFeatureHelpFile = static_cast<DataModelIds::tagFeatureEnum>(696);

} // namespace

UIServices::UIServices()
    : m_dialogConversion(new DialogConversion), m_regionalSettings(UIRegionalSettings::current())
{
}

UIServices::UIServices(const UIServices& other) noexcept = default;

UIServices& UIServices::operator=(const UIServices& other) noexcept = default;

UIServices::~UIServices()
{
    delete m_dialogConversion;
}

CXString UIServices::GetHelpFile(FeatureServices& featureServices, ProductData& /*productData*/)
{
    CXString file;
    featureServices.GetFullListOfFeatures()
        .GetStringFeature(FeatureIdWithContext(kFeatureHelpFile))
        .GetValue(file, FeatureRef::kDoNotAssertIfUnsupported);
    return file;
}

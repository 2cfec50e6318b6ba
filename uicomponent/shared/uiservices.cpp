#include "uiservices.h"

#include "boxplacement.h"
#include "dialogconversion.h"
#include "featureservices.h"
#include "productdata.h"

namespace {

constexpr auto kFeatureHelpFile = static_cast<DataModelIds::tagFeatureEnum>(696);

bool isWrittenFromRightToLeft(const CXString& language)
{
    constexpr DWORD kRightToLeft = 1;
    DWORD layout = 0;
    return !language.IsEmpty() &&
           GetLocaleInfoEx(language.c_str(), LOCALE_IREADINGLAYOUT | LOCALE_RETURN_NUMBER,
                           reinterpret_cast<wchar_t*>(&layout),
                           sizeof layout / sizeof(wchar_t)) > 0 &&
           layout == kRightToLeft;
}

} // namespace

UIServices::UIServices(const CXString& language)
    : m_dialogConversion(new DialogConversion),
      m_regionalSettings(UIRegionalSettings::current()),
      m_rightToLeft(isWrittenFromRightToLeft(language))
{
}

UIServices::UIServices(const UIServices& other) noexcept = default;

UIServices& UIServices::operator=(const UIServices& other) noexcept = default;

UIServices::~UIServices()
{
    delete m_dialogConversion;
}

int UIServices::showMessage(HWND owner, const CXString& text, const CXString& title,
                            UINT flags) const
{
    const UINT direction = m_rightToLeft ? MB_RTLREADING | MB_RIGHT : 0U;
    const o7::BoxPlacement placement(owner);
    return MessageBoxW(owner, text.c_str(), title.c_str(), flags | direction);
}

CXString UIServices::GetHelpFile(FeatureServices& featureServices, ProductData& /*productData*/)
{
    CXString file;
    featureServices.GetFullListOfFeatures()
        .GetStringFeature(FeatureIdWithContext(kFeatureHelpFile))
        .GetValue(file, FeatureRef::kDoNotAssertIfUnsupported);
    return file;
}

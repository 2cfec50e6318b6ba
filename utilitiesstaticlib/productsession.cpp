#include "productsession.h"

#include <windows.h>

#include <optional>
#include <string>
#include <utility>

#include "longerstringloader.h"

namespace o7 {

// Declared in the order of dependence, so that each outlives what borrows from it.
struct ProductSession::Parts
{
    CXString wantedLanguage;
    std::shared_ptr<const ProductPackage> package;
    std::optional<ProductData> productData;
    std::unique_ptr<ProductStringLoader> strings;
    std::unique_ptr<IDataModel> model;
};

ProductSession::ProductSession() : m_parts(std::make_unique<Parts>())
{
}
ProductSession::~ProductSession() = default;

std::unique_ptr<ProductSession> ProductSession::open(const std::filesystem::path& package,
                                                     const CXString& language,
                                                     std::vector<CXString>& errors,
                                                     TextLength length)
{
    std::vector<PackageError> faults;
    std::shared_ptr<const ProductPackage> loaded = LoadProductPackage(package, faults);
    for (const PackageError& fault : faults) {
        errors.push_back(CXString::FromUtf8(fault.ToString()));
    }
    return loaded ? open(std::move(loaded), language, length) : nullptr;
}

std::unique_ptr<ProductSession> ProductSession::open(std::shared_ptr<const ProductPackage> package,
                                                     const CXString& language, TextLength length)
{
    std::unique_ptr<ProductSession> session(new ProductSession);
    Parts& parts = *session->m_parts;
    parts.package = std::move(package);
    const ProductInfo& info = parts.package->GetProductInfo();
    const CXString folder(parts.package->GetFolder().wstring());
    parts.wantedLanguage = language.IsEmpty() ? desktopLanguage() : language;
    parts.productData.emplace(folder, info);
    if (length == TextLength::Longer)
        parts.strings = std::make_unique<LongerStringLoader>(info.controllerFamily, folder,
                                                             parts.wantedLanguage);
    else
        parts.strings = std::make_unique<ProductStringLoader>(info.controllerFamily, folder,
                                                              parts.wantedLanguage);
    parts.model = CreateDataModel(*parts.package, *parts.strings);
    return session;
}

ProductData& ProductSession::productData()
{
    return *m_parts->productData;
}

ProductStringLoader& ProductSession::strings()
{
    return *m_parts->strings;
}

IDataModel& ProductSession::model()
{
    return *m_parts->model;
}

FeatureServices& ProductSession::featureServices()
{
    return *m_parts->model;
}

CXString ProductSession::language() const
{
    return m_parts->strings->GetLanguage();
}

bool ProductSession::languageFellBack() const
{
    return language() != m_parts->wantedLanguage;
}

std::filesystem::path
ProductSession::jobTicketPath(const std::filesystem::path& userDirectory) const
{
    const CXString& id = m_parts->package->GetProductInfo().id;
    return userDirectory / (std::wstring(id.c_str()) + L".ojtf");
}

CXString desktopLanguage()
{
    wchar_t name[LOCALE_NAME_MAX_LENGTH] = L"";
    const LCID locale = MAKELCID(GetUserDefaultUILanguage(), SORT_DEFAULT);
    if (GetLocaleInfoW(locale, LOCALE_SISO639LANGNAME, name, LOCALE_NAME_MAX_LENGTH) == 0) {
        return L"en";
    }
    return name;
}

} // namespace o7

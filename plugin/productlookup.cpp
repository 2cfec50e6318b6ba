#include "productlookup.h"

#include <algorithm>
#include <system_error>
#include <vector>

#include "dlldelayloader.h"
#include "packagecache.h"
#include "printerstandin.h"
#include "printerstore.h"
#include "printsystemrecord.h"
#include "productfeatures.h"
#include "throworvik.h"

namespace o7 {
namespace {

namespace fs = std::filesystem;

constexpr wchar_t kPackageFile[] = L"package.json";

bool isFile(const fs::path& path)
{
    std::error_code error;
    return fs::is_regular_file(path, error);
}

fs::path firstPackage(const fs::path& products)
{
    std::vector<fs::path> found;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(products, error)) {
        if (isFile(entry.path() / kPackageFile)) {
            found.push_back(entry.path() / kPackageFile);
        }
    }
    const auto first = std::ranges::min_element(found);
    return first == found.end() ? fs::path() : *first;
}

} // namespace

fs::path findPackage(const fs::path& folder, const fs::path& dataFile)
{
    const fs::path products = folder / L"products";
    if (dataFile.has_stem()) {
        fs::path named = products / dataFile.stem() / kPackageFile;
        if (isFile(named)) {
            return named;
        }
    }
    const fs::path flat = folder / kPackageFile;
    return isFile(flat) ? flat : firstPackage(products);
}

fs::path driverDataFile(HANDLE printer)
{
    if (printer == nullptr) {
        return {};
    }
    const PrintSystemRecord<DRIVER_INFO_3W> driver([=](BYTE* buffer, DWORD size, DWORD* needed) {
        return GetPrinterDriverW(printer, nullptr, 3, buffer, size, needed);
    });
    return driver.get() == nullptr || driver.get()->pDataFile == nullptr
               ? fs::path()
               : fs::path(driver.get()->pDataFile);
}

std::unique_ptr<ProductSession> openProductOf(HANDLE printer, const wchar_t* printerName)
{
    constexpr wchar_t kName[] = L"OrvikException";
    const PrinterStandIn* const standIn = printer == nullptr ? printerStandIn() : nullptr;
    const std::wstring folder = folderOfThisModule();
    const fs::path package = standIn != nullptr ? fs::path(standIn->package())
                                                : findPackage(folder, driverDataFile(printer));
    if (package.empty()) {
        throwOrvik(GetOrvikException, kName, {L"o7::openProductOf"},
                   L"There is no product package in %s.", folder.c_str());
    }
    std::vector<PackageError> errors;
    const auto loaded = cachedPackage(package, errors);
    if (!loaded) {
        CXString text;
        for (const PackageError& error : errors) {
            text += CXString::FromUtf8(error.ToString());
            text += L"\n";
        }
        throwOrvik(GetOrvikException, kName, {L"o7::openProductOf"}, L"%s", text.c_str());
    }
    auto session = ProductSession::open(loaded, standIn != nullptr ? standIn->language() : L"");
    loadDeviceSettings(printer, session->model());
    if (printerName != nullptr && *printerName != L'\0') {
        session->model().GetOptionFeatureRef(kPrinterName).SetValue(CXString(printerName));
        session->model().CommitAccepted();
    }
    return session;
}

} // namespace o7

#include "productlookup.h"

#include <winspool.h>

#include <algorithm>
#include <cstddef>
#include <system_error>
#include <vector>

#include "devicesettings.h"
#include "dlldelayloader.h"
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
        const fs::path named = products / dataFile.stem() / kPackageFile;
        if (isFile(named)) {
            return named;
        }
    }
    const fs::path flat = folder / kPackageFile;
    return isFile(flat) ? flat : firstPackage(products);
}

fs::path driverDataFile(HANDLE printer)
{
    DWORD needed = 0;
    if (printer == nullptr || GetPrinterDriverW(printer, nullptr, 3, nullptr, 0, &needed) ||
        GetLastError() != ERROR_INSUFFICIENT_BUFFER) {
        return {};
    }
    std::vector<std::max_align_t> buffer(needed / sizeof(std::max_align_t) + 1);
    auto* const info = reinterpret_cast<DRIVER_INFO_3W*>(buffer.data());
    if (!GetPrinterDriverW(printer, nullptr, 3, reinterpret_cast<BYTE*>(info), needed, &needed) ||
        info->pDataFile == nullptr) {
        return {};
    }
    return info->pDataFile;
}

std::unique_ptr<ProductSession> openProductOf(HANDLE printer)
{
    constexpr wchar_t kName[] = L"OrvikException";
    const std::wstring folder = folderOfThisModule();
    const fs::path package = findPackage(folder, driverDataFile(printer));
    if (package.empty()) {
        throwOrvik(GetOrvikException, kName, {L"o7::openProductOf"},
                   L"There is no product package in %s.", folder.c_str());
    }
    std::vector<CXString> errors;
    auto session = ProductSession::open(package, CXString(), errors);
    if (!session) {
        CXString text;
        for (const CXString& error : errors) {
            text += error;
            text += L"\n";
        }
        throwOrvik(GetOrvikException, kName, {L"o7::openProductOf"}, L"%s", text.c_str());
    }
    loadDeviceSettings(printer, session->model());
    return session;
}

} // namespace o7

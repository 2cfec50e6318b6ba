#include <windows.h>

#include <objbase.h>

#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "console.h"
#include "cxstring.h"
#include "galleryrun.h"
#include "packagecheckrun.h"
#include "previewoptions.h"
#include "previewrun.h"
#include "storyfiles.h"

namespace {

std::filesystem::path programFolder()
{
    std::wstring path(MAX_PATH, L'\0');
    // The name does not tell its length beforehand; a full buffer means that it was cut off.
    for (;;) {
        const DWORD length =
            GetModuleFileNameW(nullptr, path.data(), static_cast<DWORD>(path.size()));
        if (length < path.size()) {
            path.resize(length);
            return std::filesystem::path(path).parent_path();
        }
        path.resize(path.size() * 2);
    }
}

/// Pictures are written through COM objects of this thread.
class ComApartment
{
public:
    ComApartment() : m_entered(SUCCEEDED(CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED))) {}
    ComApartment(const ComApartment&) = delete;
    ComApartment& operator=(const ComApartment&) = delete;
    ~ComApartment()
    {
        if (m_entered) {
            CoUninitialize();
        }
    }

private:
    bool m_entered;
};

o7::ExitCode runPreview(const std::vector<std::wstring>& words)
{
    const o7::ParsedOptions parsed = o7::parsePreviewOptions(words);
    if (!parsed.error.empty()) {
        o7::printError(parsed.error + L"\n\n" + std::wstring(o7::previewUsage()));
        return o7::ExitCode::BadInput;
    }
    if (parsed.options.help) {
        o7::print(o7::previewUsage());
        return o7::ExitCode::Done;
    }
    if (!parsed.options.checkedPackage.empty()) {
        const std::filesystem::path products(parsed.options.productsDirectory);
        return o7::runPackageCheck(parsed.options,
                                   products.empty() ? programFolder() / "products" : products);
    }
    const ComApartment apartment;
    if (parsed.options.gallery) {
        return o7::runGallery(parsed.options);
    }
    if (!parsed.options.stories.empty()) {
        return o7::runStoryFiles(parsed.options, programFolder());
    }
    return o7::PreviewRun(parsed.options, programFolder()).run();
}

} // namespace

int wmain(int argc, wchar_t** argv)
{
    try {
        return static_cast<int>(runPreview({argv + 1, argv + argc}));
    } catch (const std::exception& error) {
        o7::printError(CXString(error.what()).View());
        return static_cast<int>(o7::ExitCode::Failed);
    }
}

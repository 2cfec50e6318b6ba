#include "packagecheckrun.h"

#include "console.h"
#include "packagecheck.h"
#include "productcatalogue.h"
#include "productstringloader.h"

namespace o7 {
namespace {

namespace fs = std::filesystem;

/// What the string module of a language holds: every number that has a text.
std::optional<PackageTexts> builtTexts(const fs::path& folder, const std::string& language)
{
    constexpr unsigned kPastNumbers = 0x10000;
    const CXString wanted = CXString::FromUtf8(language);
    const ProductStringLoader loader(0, CXString(folder.wstring()), wanted);
    if (loader.GetLanguage() != wanted) {
        return std::nullopt;
    }
    const fs::path module = folder / (L"strings-" + std::wstring(wanted.View()) + L".dll");
    PackageTexts texts;
    for (unsigned number = 0; number < kPastNumbers; ++number) {
        const CXString text = loader.LoadStringW(number);
        if (text != CXString::Formatted(L"#%u", number)) {
            texts[number] = {text.ToUtf8(), module, 0};
        }
    }
    return texts;
}

void printAll(const std::vector<PackageError>& errors, const wchar_t* prefix)
{
    for (const PackageError& error : errors) {
        printError(prefix + std::wstring(CXString::FromUtf8(error.ToString()).View()));
    }
}

std::wstring counted(std::size_t count, const wchar_t* what)
{
    return std::to_wstring(count) + L" " + what + (count == 1 ? L"" : L"s");
}

} // namespace

ExitCode runPackageCheck(const PreviewOptions& options, const fs::path& products)
{
    const ProductCatalogue catalogue(products);
    const fs::path package =
        catalogue.find(options.checkedPackage).value_or(options.checkedPackage);
    const PackageReport report = checkPackage(package, builtTexts);
    if (!report.found) {
        printError(L"There is no package \"" + options.checkedPackage + L"\".\n" +
                   catalogue.unknownProductText(options.checkedPackage));
        return ExitCode::BadInput;
    }
    printAll(report.mistakes, L"");
    printAll(report.hints, L"hint: ");
    print(report.file.wstring() + L": " + counted(report.mistakes.size(), L"mistake") + L", " +
          counted(report.hints.size(), L"hint") + L".");
    return report.mistakes.empty() ? ExitCode::Done : ExitCode::Failed;
}

} // namespace o7

// Makes a printer that uses the plug-in: copies its files into the printer-driver directory through
// the print system, adds the driver and a printer, and makes it the default. A second run replaces
// the files and leaves the printer as it is.
//
//   o7install FOLDER [--product NAME] [--printer NAME] [--port PORT] [--driver FILE]
//
// FOLDER holds the modules and products\NAME. The driver that really renders is named by --driver;
// the files of the product lie flat beside the modules, as the print system copies files without
// their folders.

#include <windows.h>

#include <winspool.h>

#include <cstdio>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;

constexpr DWORD kDriverVersion = 3;
/// Take the files from where their paths say (the toolchain's headers do not have it).
constexpr DWORD kCopyFromDirectory = 0x10;
constexpr wchar_t kEnvironment[] = L"Windows x64";
constexpr const wchar_t* kModules[] = {L"o7plugQK.dll", L"o7plimQK.dll", L"o7guiQK.dll",
                                       L"o7coreQK.dll", L"o7utilQK.dll"};
/// Taken along when there: the UI loads it late, and not every product has it.
constexpr wchar_t kOptionalModule[] = L"o7comsQK.dll";

struct Options
{
    fs::path folder;
    std::wstring product = L"office-c430";
    std::wstring printer = L"Orvik Office C430";
    std::wstring port = L"LPT1:";
    std::wstring driver = L"wineps.drv";
};

[[noreturn]] void fail(const std::string& step)
{
    const DWORD code = GetLastError();
    throw std::runtime_error(step + " failed with error " + std::to_string(code) + ".");
}

Options parse(int count, wchar_t** words)
{
    Options options;
    struct Row
    {
        const wchar_t* name;
        std::wstring* field;
    };
    const Row rows[] = {{L"--product", &options.product},
                        {L"--printer", &options.printer},
                        {L"--port", &options.port},
                        {L"--driver", &options.driver}};
    for (int i = 1; i < count; ++i) {
        const std::wstring word = words[i];
        std::wstring* field = nullptr;
        for (const Row& row : rows) {
            if (word == row.name) {
                field = row.field;
            }
        }
        if (field != nullptr && i + 1 < count) {
            *field = words[++i];
        } else if (field == nullptr && options.folder.empty() && !word.starts_with(L"--")) {
            options.folder = word;
        } else {
            throw std::invalid_argument("usage: o7install FOLDER [--product NAME] "
                                        "[--printer NAME] [--port PORT] [--driver FILE]");
        }
    }
    if (options.folder.empty()) {
        throw std::invalid_argument("the folder with the modules is missing");
    }
    options.folder = fs::absolute(options.folder);
    return options;
}

void requireFile(const fs::path& file)
{
    if (!fs::is_regular_file(file)) {
        throw std::runtime_error("There is no file " + file.string() + ".");
    }
}

/// Everything the plug-in needs beside itself, by full path.
std::vector<fs::path> dependentFiles(const Options& options)
{
    std::vector<fs::path> files;
    for (const wchar_t* module : kModules) {
        files.push_back(options.folder / module);
        requireFile(files.back());
    }
    if (fs::is_regular_file(options.folder / kOptionalModule)) {
        files.push_back(options.folder / kOptionalModule);
    }
    const fs::path product = options.folder / L"products" / options.product;
    requireFile(product / L"package.json");
    for (const auto& entry : fs::directory_iterator(product)) {
        if (entry.is_regular_file()) {
            files.push_back(entry.path());
        }
    }
    return files;
}

/// Full paths separated by zeros and ended by an empty one, as the print system takes them.
std::wstring multiString(const std::vector<fs::path>& files)
{
    std::wstring text;
    for (const fs::path& file : files) {
        text += file.wstring();
        text += L'\0';
    }
    return text;
}

/// A bare name means a file of the system.
fs::path renderingDriver(const std::wstring& file)
{
    wchar_t system[MAX_PATH];
    if (GetSystemDirectoryW(system, MAX_PATH) == 0) {
        fail("Asking for the system directory");
    }
    return fs::path(system) / file; // an absolute path stays itself
}

void addDriver(const Options& options)
{
    std::wstring dependent = multiString(dependentFiles(options));
    std::wstring name = options.printer;
    std::wstring driver = renderingDriver(options.driver).wstring();
    std::wstring data =
        (options.folder / L"products" / options.product / L"package.json").wstring();
    std::wstring plugin = (options.folder / kModules[0]).wstring();
    DRIVER_INFO_3W info{};
    info.cVersion = kDriverVersion;
    info.pName = name.data();
    info.pEnvironment = const_cast<wchar_t*>(kEnvironment);
    info.pDriverPath = driver.data();
    info.pDataFile = data.data();
    info.pConfigFile = plugin.data();
    info.pDependentFiles = dependent.data();
    info.pDefaultDataType = const_cast<wchar_t*>(L"RAW");
    if (!AddPrinterDriverExW(nullptr, 3, reinterpret_cast<BYTE*>(&info),
                             APD_COPY_ALL_FILES | kCopyFromDirectory)) {
        fail("Adding the printer driver");
    }
}

void addPrinter(const Options& options)
{
    std::wstring name = options.printer;
    std::wstring port = options.port;
    PRINTER_INFO_2W info{};
    info.pPrinterName = name.data();
    info.pPortName = port.data();
    info.pDriverName = name.data();
    info.pPrintProcessor = const_cast<wchar_t*>(L"WinPrint");
    info.pDatatype = const_cast<wchar_t*>(L"RAW");
    HANDLE printer = AddPrinterW(nullptr, 2, reinterpret_cast<BYTE*>(&info));
    if (printer != nullptr) {
        ClosePrinter(printer);
    } else if (GetLastError() != ERROR_PRINTER_ALREADY_EXISTS) {
        fail("Adding the printer");
    }
    if (!SetDefaultPrinterW(name.c_str())) {
        fail("Making the printer the default one");
    }
}

/// The plug-in answers through the print system: the one proof that the installation is whole.
LONG settingsSize(const Options& options)
{
    std::wstring name = options.printer;
    HANDLE printer = nullptr;
    if (!OpenPrinterW(name.data(), &printer, nullptr)) {
        fail("Opening the printer");
    }
    const LONG size = DocumentPropertiesW(nullptr, printer, name.data(), nullptr, nullptr, 0);
    ClosePrinter(printer);
    if (size < static_cast<LONG>(sizeof(DEVMODEW))) {
        throw std::runtime_error("The plug-in does not answer (DocumentProperties gave " +
                                 std::to_string(size) + ").");
    }
    return size;
}

} // namespace

int wmain(int count, wchar_t** words)
{
    try {
        const Options options = parse(count, words);
        addDriver(options);
        addPrinter(options);
        std::printf("%ls is installed on %ls; its settings take %ld bytes.\n",
                    options.printer.c_str(), options.port.c_str(), settingsSize(options));
        return 0;
    } catch (const std::invalid_argument& error) {
        std::fprintf(stderr, "o7install: %s\n", error.what());
        return 2;
    } catch (const std::exception& error) {
        std::fprintf(stderr, "o7install: %s\n", error.what());
        return 1;
    }
}

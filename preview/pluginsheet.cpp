#include "pluginsheet.h"

#include <stdexcept>
#include <utility>

#include "dlldelayloader.h"
#include "documentsettings.h"
#include "driverentries.h"
#include "operatingsystem.h"
#include "printerddi.h"
#include "themescope.h"

namespace o7 {
namespace {

using ShowSheet = LONG(WINAPI*)(HWND, PFNPROPSHEETUI, LPARAM, LPDWORD);

/// What the print system loads, and the module behind it that has the stand-in.
constinit DllDelayLoader g_plugin(L"o7plugQK.dll");
constinit DllDelayLoader g_workingModule(kPluginModule);

/// A function of the plug-in.
template <class Function> Function* entry(DllDelayLoader& module, const char* name)
{
    auto* const function = module.function<Function*>(name);
    if (function == nullptr) {
        throw std::runtime_error(std::string("The driver's plug-in has no ") + name +
                                 " beside this program (error " + std::to_string(GetLastError()) +
                                 ").");
    }
    return function;
}

void setStandIn(PrinterStandIn* standIn)
{
    entry<decltype(O7SetPrinterStandIn)>(g_workingModule, "O7SetPrinterStandIn")(standIn);
}

auto* documentEntry()
{
    return entry<decltype(DrvDocumentPropertySheets)>(g_plugin, "DrvDocumentPropertySheets");
}

DEVMODEW* devModeIn(std::vector<std::uint8_t>& bytes)
{
    return bytes.empty() ? nullptr : reinterpret_cast<DEVMODEW*>(bytes.data());
}

} // namespace

PluginSheet::PluginSheet(PrinterStandIn& standIn, std::wstring printerName)
    : m_printerName(std::move(printerName))
{
    setStandIn(&standIn);
}

PluginSheet::~PluginSheet()
{
    setStandIn(nullptr);
}

std::vector<std::uint8_t> PluginSheet::newDocument(const std::vector<std::uint8_t>& settings)
{
    DocumentPropertyHeader header{};
    header.cbSize = sizeof header;
    header.pszPrinterName = m_printerName.data();
    const LONG size = documentEntry()(nullptr, reinterpret_cast<LPARAM>(&header));
    if (size < static_cast<LONG>(kPublicPartSize)) {
        throw std::runtime_error("The driver's plug-in states no size for its settings.");
    }
    std::vector<std::uint8_t> in = settings;
    std::vector<std::uint8_t> out(static_cast<std::size_t>(size));
    header.pdmIn = devModeIn(in);
    header.pdmOut = devModeIn(out);
    header.cbOut = static_cast<DWORD>(out.size());
    header.fMode = DM_OUT_BUFFER | (in.empty() ? 0U : DWORD{DM_IN_BUFFER});
    if (documentEntry()(nullptr, reinterpret_cast<LPARAM>(&header)) < 0) {
        throw std::runtime_error("The driver's plug-in makes no settings for a new document.");
    }
    return out;
}

bool PluginSheet::showDocument(HWND owner, std::vector<std::uint8_t>& document, DWORD furtherMode)
{
    DocumentPropertyHeader header{};
    header.cbSize = sizeof header;
    header.pszPrinterName = m_printerName.data();
    // Both buffers belong to the application that a real sheet is opened by.
    std::vector<std::uint8_t> out(document.size());
    header.pdmIn = devModeIn(document);
    header.pdmOut = devModeIn(out);
    header.cbOut = static_cast<DWORD>(out.size());
    header.fMode = DM_IN_BUFFER | DM_OUT_BUFFER | DM_IN_PROMPT | furtherMode;
    show(owner, documentEntry(), &header);
    // Whether OK was pressed is not told by every system's result, so what was written counts.
    if (header.pdmOut->dmSize == 0) {
        return false;
    }
    document = std::move(out);
    return true;
}

void PluginSheet::showDevice(HWND owner)
{
    DevicePropertyHeader header{sizeof header, 0, nullptr, m_printerName.data()};
    show(owner, entry<decltype(DrvDevicePropertySheets)>(g_plugin, "DrvDevicePropertySheets"),
         &header);
}

void PluginSheet::show(HWND owner, PFNPROPSHEETUI entry, void* header)
{
    const ThemeScope theme; // the sheet stands for one in a program that has the theme
    const SystemLibrary library = OperatingSystem::LoadSystemLibrary(L"compstui.dll");
    const auto show = library.function<ShowSheet>("CommonPropertySheetUIW");
    if (!show) {
        throw std::runtime_error("This system has no common property sheet (compstui.dll).");
    }
    DWORD result = 0;
    const LONG shown = show(owner, entry, reinterpret_cast<LPARAM>(header), &result);
    if (shown < 0 && shown != ERR_CPSUI_NO_PROPSHEETPAGE) { // no page: nothing to show, no fault
        throw std::runtime_error("The common property sheet refused with code " +
                                 std::to_string(shown) + ".");
    }
}

} // namespace o7

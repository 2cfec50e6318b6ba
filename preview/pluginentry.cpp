#include "pluginentry.h"

#include <limits>
#include <stdexcept>
#include <utility>

#include "devmodebytes.h"
#include "dlldelayloader.h"
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

/// Every setting of a model, whatever the size.
bool copySettings(const IDataModel& from, IDataModel& to)
{
    std::vector<std::uint8_t> block;
    return from.ExportSettings(block, std::numeric_limits<std::uint32_t>::max()) &&
           to.ImportSettings(block.data(), block.size());
}

} // namespace

PluginEntry::PluginEntry(ProductSession& session, std::filesystem::path package, UIMode mode,
                         PagesAdded pagesAdded)
    : m_session(session),
      m_package(package.wstring()),
      m_language(session.language()),
      m_mode(mode),
      m_pagesAdded(std::move(pagesAdded))
{
    setStandIn(this);
}

PluginEntry::~PluginEntry()
{
    setStandIn(nullptr);
}

bool PluginEntry::run(HWND owner)
{
    const ThemeScope theme; // the sheet stands for one in a program that has the theme
    std::wstring name(m_session.productData().GetModelName().View());
    return m_mode == UIMode::DeviceSettings ? runDevice(owner, name.data())
                                            : runDocument(owner, name.data());
}

bool PluginEntry::runDocument(HWND owner, LPWSTR printerName)
{
    auto* const plugin =
        entry<decltype(DrvDocumentPropertySheets)>(g_plugin, "DrvDocumentPropertySheets");
    DocumentPropertyHeader header{};
    header.cbSize = sizeof header;
    header.pszPrinterName = printerName;
    const LONG size = plugin(nullptr, reinterpret_cast<LPARAM>(&header));
    if (size < static_cast<LONG>(kDevModeSize)) {
        throw std::runtime_error("The driver's plug-in states no size for its settings.");
    }
    // Both buffers belong to the application that a real sheet is opened by.
    std::vector<std::uint8_t> in(static_cast<std::size_t>(size));
    std::vector<std::uint8_t> out(in.size());
    header.pdmIn = reinterpret_cast<DEVMODEW*>(in.data());
    header.pdmOut = reinterpret_cast<DEVMODEW*>(out.data());
    if (!writeDevMode(m_session.model(), printerName, bufferOf(*header.pdmIn))) {
        throw std::runtime_error("The settings are more than a document can carry.");
    }
    header.cbOut = static_cast<DWORD>(out.size());
    header.fMode = DM_IN_BUFFER | DM_OUT_BUFFER | DM_IN_PROMPT;
    if (m_mode == UIMode::PrintingDefaults) {
        header.fMode |= kUserDefaults;
    }
    showSheet(owner, plugin, &header);
    if (header.pdmOut->dmSize == 0) {
        return false;
    }
    mergeDevMode(m_session.model(), bytesOf(*header.pdmOut));
    return true;
}

bool PluginEntry::runDevice(HWND owner, LPWSTR printerName)
{
    DevicePropertyHeader header{sizeof header, 0, nullptr, printerName};
    showSheet(owner, entry<decltype(DrvDevicePropertySheets)>(g_plugin, "DrvDevicePropertySheets"),
              &header);
    return m_deviceStored;
}

void PluginEntry::showSheet(HWND owner, PFNPROPSHEETUI entry, void* header) const
{
    const SystemLibrary library = OperatingSystem::LoadSystemLibrary(L"compstui.dll");
    const auto show = library.function<ShowSheet>("CommonPropertySheetUIW");
    if (!show) {
        throw std::runtime_error("This system has no common property sheet (compstui.dll).");
    }
    // Whether OK was pressed is not told by every system's result, so what was written counts.
    DWORD result = 0;
    const LONG shown = show(owner, entry, reinterpret_cast<LPARAM>(header), &result);
    if (shown < 0 && shown != ERR_CPSUI_NO_PROPSHEETPAGE) { // no page: nothing to show, no fault
        throw std::runtime_error("The common property sheet refused with code " +
                                 std::to_string(shown) + ".");
    }
}

/// The plug-in has a model of its own, which begins with the defaults.
void PluginEntry::loadDeviceSettings(IDataModel& model)
{
    copySettings(m_session.model(), model);
    const OptionFeatureRef family =
        m_session.model().GetOptionFeatureRef(DataModelIds::kFeatureControllerFamily);
    model.GetOptionFeatureRef(DataModelIds::kFeatureControllerFamily).SetValue(family.GetValue());
    model.CommitAccepted();
}

bool PluginEntry::storeDeviceSettings(const IDataModel& model)
{
    m_deviceStored = copySettings(model, m_session.model());
    return m_deviceStored;
}

} // namespace o7

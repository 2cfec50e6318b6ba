#include "pluginentry.h"

#include <limits>
#include <stdexcept>
#include <utility>
#include <vector>

#include "devmodebytes.h"
#include "printerddi.h"

namespace o7 {
namespace {

/// Every setting of a model, whatever the size.
bool copySettings(const IDataModel& from, IDataModel& to)
{
    std::vector<std::uint8_t> block;
    return from.ExportSettings(block, std::numeric_limits<std::uint32_t>::max()) &&
           to.ImportSettings(block.data(), block.size());
}

} // namespace

PluginEntry::PluginEntry(ProductSession& session, const std::filesystem::path& package, UIMode mode,
                         PagesAdded pagesAdded)
    : m_session(session),
      m_package(package.wstring()),
      m_language(session.language()),
      m_mode(mode),
      m_pagesAdded(std::move(pagesAdded)),
      m_sheet(*this, std::wstring(session.productData().GetModelName().View()))
{
}

bool PluginEntry::run(HWND owner)
{
    if (m_mode != UIMode::DeviceSettings) {
        return runDocument(owner);
    }
    m_sheet.showDevice(owner);
    return m_deviceStored;
}

bool PluginEntry::runDocument(HWND owner)
{
    std::vector<std::uint8_t> document = m_sheet.newDocument();
    auto& devMode = *reinterpret_cast<DEVMODEW*>(document.data());
    if (!writeDevMode(m_session.model(), m_sheet.printerName().c_str(), bufferOf(devMode))) {
        throw std::runtime_error("The settings are more than a document can carry.");
    }
    const DWORD mode = m_mode == UIMode::PrintingDefaults ? kUserDefaults : 0;
    if (!m_sheet.showDocument(owner, document, mode)) {
        return false;
    }
    mergeDevMode(m_session.model(), document);
    return true;
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

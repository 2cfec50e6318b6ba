#pragma once

#include <windows.h>

#include <prsht.h>

#include <compstui.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

#include "printerstandin.h"
#include "productsession.h"
#include "uimode.h"

class UIManager;

namespace o7 {

/// Shows a product's pages through the driver's plug-in, exactly as the print system does: asks the
/// plug-in for the size of its DEVMODE and for defaults, hands settings in, lets it add its pages
/// to the system's common property sheet (`CommonPropertySheetUIW` of compstui.dll), and takes back
/// what it wrote. In place of an installed printer the session says what the printer is like.
class PluginEntry : private PrinterStandIn
{
public:
    /// Called while a sheet is open: its pages and their manager, which belongs to the plug-in.
    using PagesAdded = std::function<void(UIManager&)>;

    /// @param session  the product and its settings; gets back what was accepted.
    /// @param package  the product's folder, for the plug-in to open by itself.
    PluginEntry(ProductSession& session, std::filesystem::path package, UIMode mode,
                PagesAdded pagesAdded);
    ~PluginEntry();
    PluginEntry(const PluginEntry&) = delete;
    PluginEntry& operator=(const PluginEntry&) = delete;

    /// Modal.
    /// @return whether settings were accepted, with OK or Apply.
    /// @throws std::runtime_error when plug-in or print system refuse, with the reason as far as
    ///         they tell it. What goes wrong inside the plug-in, the plug-in shows.
    bool run(HWND owner);

private:
    const wchar_t* package() const override { return m_package.c_str(); }
    const wchar_t* language() const override { return m_language.c_str(); }
    void loadDeviceSettings(IDataModel& model) override;
    bool storeDeviceSettings(const IDataModel& model) override;
    void pagesAdded(UIManager& manager) override { m_pagesAdded(manager); }

    bool runDocument(HWND owner, LPWSTR printerName);
    bool runDevice(HWND owner, LPWSTR printerName);
    void showSheet(HWND owner, PFNPROPSHEETUI entry, void* header) const;

    ProductSession& m_session;
    std::wstring m_package;
    CXString m_language;
    UIMode m_mode;
    PagesAdded m_pagesAdded;
    bool m_deviceStored = false;
};

} // namespace o7

#pragma once

#include <windows.h>

#include <prsht.h>

#include <compstui.h>

#include <cstdint>
#include <string>
#include <vector>

#include "printerstandin.h"

namespace o7 {

/// The driver's plug-in, called exactly as the print system calls it, for a printer that the
/// stand-in describes instead of an installed one: asks it for the size of its DEVMODE and for
/// defaults, hands settings in, lets it add its pages to the system's common property sheet
/// (`CommonPropertySheetUIW` of compstui.dll). One object at a time.
///
/// Everything throws std::runtime_error when plug-in or print system refuse, with the reason as far
/// as they tell it. What goes wrong inside the plug-in, the plug-in shows.
class PluginSheet
{
public:
    /// @param standIn  borrowed.
    PluginSheet(PrinterStandIn& standIn, std::wstring printerName);
    ~PluginSheet();
    PluginSheet(const PluginSheet&) = delete;
    PluginSheet& operator=(const PluginSheet&) = delete;

    /// A DEVMODE as the plug-in makes it for a new document.
    /// @param settings  merged into it; empty: the printer's defaults.
    std::vector<std::uint8_t> newDocument(const std::vector<std::uint8_t>& settings = {});

    /// Shows the pages for a document. Modal.
    /// @param document  a DEVMODE; gets what the plug-in wrote, if it wrote.
    /// @param furtherMode  bits of DocumentPropertyHeader::fMode beside those of buffers and
    /// prompt.
    /// @return whether the plug-in wrote, for OK or Apply.
    bool showDocument(HWND owner, std::vector<std::uint8_t>& document, DWORD furtherMode = 0);

    /// Shows the pages for the device. Modal; what is accepted, the stand-in hears.
    void showDevice(HWND owner);

    const std::wstring& printerName() const { return m_printerName; }

private:
    static void show(HWND owner, PFNPROPSHEETUI entry, void* header);

    std::wstring m_printerName;
};

} // namespace o7

#pragma once

class IDataModel;
class UIManager;

namespace o7 {

/// Stands for the printer in a process that has none: a host that shows a product's pages through
/// the driver's entries without installing anything (the preview). It answers what otherwise the
/// print system would, for every call that comes without a printer handle.
class PrinterStandIn
{
public:
    /// The product's package file or its folder.
    virtual const wchar_t* package() const = 0;
    /// "de", "en", …; empty takes the language of the user's desktop.
    virtual const wchar_t* language() const = 0;
    /// Gives the model the device settings that the printer would have.
    virtual void loadDeviceSettings(IDataModel& model) = 0;
    /// Keeps the accepted device settings; false when it cannot.
    virtual bool storeDeviceSettings(const IDataModel& model) = 0;
    /// The pages of a sheet were handed to the print system; the manager is borrowed until the
    /// sheet is gone.
    virtual void pagesAdded(UIManager& manager) = 0;

    PrinterStandIn(const PrinterStandIn&) = delete;
    PrinterStandIn& operator=(const PrinterStandIn&) = delete;

protected:
    PrinterStandIn() = default;
    ~PrinterStandIn() = default;
};

/// The stand-in of this process; null, as in every real driver: there is none.
PrinterStandIn* printerStandIn() noexcept;

/// @param standIn  borrowed until null takes its place.
void setPrinterStandIn(PrinterStandIn* standIn) noexcept;

} // namespace o7

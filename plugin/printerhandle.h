#pragma once

#include <windows.h>

#include <winspool.h>

namespace o7 {

/// An open printer.
class PrinterHandle
{
public:
    /// Null when there is no printer of that name; nothing is opened for a null name.
    explicit PrinterHandle(const wchar_t* name)
    {
        if (name != nullptr && !OpenPrinterW(const_cast<wchar_t*>(name), &m_printer, nullptr)) {
            m_printer = nullptr;
        }
    }
    PrinterHandle(const PrinterHandle&) = delete;
    PrinterHandle& operator=(const PrinterHandle&) = delete;
    ~PrinterHandle()
    {
        if (m_printer != nullptr) {
            ClosePrinter(m_printer);
        }
    }

    HANDLE get() const { return m_printer; }

private:
    HANDLE m_printer = nullptr;
};

} // namespace o7

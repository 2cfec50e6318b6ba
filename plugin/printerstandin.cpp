#include "printerstandin.h"

#include <atomic>

namespace o7 {
namespace {

std::atomic<PrinterStandIn*> g_standIn = nullptr;

} // namespace

PrinterStandIn* printerStandIn() noexcept
{
    return g_standIn;
}

void setPrinterStandIn(PrinterStandIn* standIn) noexcept
{
    g_standIn = standIn;
}

} // namespace o7

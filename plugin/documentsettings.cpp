#include "documentsettings.h"

#include <vector>

#include "publicfields.h"

namespace o7 {
namespace {

bool takePrivatePart(IDataModel& model, std::span<const std::uint8_t> part, SettingsScope scope)
{
    const auto block = readPrivatePart(part);
    if (block.empty()) {
        return false;
    }
    return model.ImportSettings(block.data(), block.size(), scope);
}

} // namespace

bool writeDevMode(IDataModel& model, const CXString& printerName,
                  std::span<std::uint8_t, kDevModeSize> devMode, SettingsScope scope)
{
    writePublicPart(devMode.first<kPublicPartSize>(), printerName,
                    publicFields(model.GetFullListOfFeatures()), kPrivatePartSize);
    std::vector<std::uint8_t> block;
    const bool exported = model.ExportSettings(block, kPrivateBlockCapacity, scope);
    return writePrivatePart(devMode.last<kPrivatePartSize>(), block) && exported;
}

void mergeDevMode(IDataModel& model, std::span<const std::uint8_t> devMode, SettingsScope scope)
{
    const auto parts = readDevMode(devMode);
    if (!parts) {
        return;
    }
    const bool own = takePrivatePart(model, parts->privatePart, scope);
    followPublicFields(model.GetFullListOfFeatures(), parts->fields, own);
    model.CommitAccepted();
}

} // namespace o7

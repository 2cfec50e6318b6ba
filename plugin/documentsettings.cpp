#include "documentsettings.h"

#include <utility>
#include <vector>

#include "publicfields.h"

namespace o7 {
namespace {

using DeviceValues = std::vector<std::pair<IFeatureNode::Ptr, FeatureValue>>;

DeviceValues deviceValues(IDataModel& model)
{
    DeviceValues values;
    const auto top = model.GetFullListOfFeatures().GetNode();
    for (std::size_t i = 0; i < top->GetNumChildren(); ++i) {
        const auto feature = top->GetChild(i);
        FeatureValue value;
        if (feature->GetCapabilities()->IsDeviceFeature() && feature->GetValue(value)) {
            values.emplace_back(feature, value);
        }
    }
    return values;
}

void restore(const DeviceValues& values)
{
    for (const auto& [node, value] : values) {
        node->SetValue(value);
    }
}

bool takePrivatePart(IDataModel& model, std::span<const std::uint8_t> part)
{
    const auto block = readPrivatePart(part);
    if (block.empty()) {
        return false;
    }
    const DeviceValues device = deviceValues(model);
    const bool taken = model.ImportSettings(block.data(), block.size());
    if (taken) {
        restore(device);
    }
    return taken;
}

} // namespace

bool writeDevMode(IDataModel& model, const CXString& printerName,
                  std::span<std::uint8_t, kDevModeSize> devMode)
{
    writePublicPart(devMode.first<kPublicPartSize>(), printerName,
                    publicFields(model.GetFullListOfFeatures()), kPrivatePartSize);
    std::vector<std::uint8_t> block;
    const bool exported = model.ExportSettings(block, kPrivateBlockCapacity);
    return writePrivatePart(devMode.last<kPrivatePartSize>(), block) && exported;
}

void mergeDevMode(IDataModel& model, std::span<const std::uint8_t> devMode)
{
    const auto parts = readDevMode(devMode);
    if (!parts) {
        return;
    }
    const bool own = takePrivatePart(model, parts->privatePart);
    followPublicFields(model.GetFullListOfFeatures(), parts->fields, own);
    model.CommitAccepted();
}

} // namespace o7

#include "documentsettings.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <utility>
#include <vector>

#include "productfeatures.h"
#include "publicfields.h"

namespace o7 {
namespace {

constexpr WORD kDriverVersion = 0x0100;
/// The smallest DEVMODE in use reaches as far as the fields that stand for features.
constexpr std::size_t kSmallestPublicPart = offsetof(DEVMODEW, dmFormName);
constexpr std::size_t kPublicPartWithMedia =
    offsetof(DEVMODEW, dmMediaType) + sizeof(DEVMODEW::dmMediaType);

using DeviceValues = std::vector<std::pair<IFeatureNode::Ptr, FeatureValue>>;

DeviceValues deviceValues(IDataModel& model)
{
    DeviceValues values;
    const ListOfFeaturesRef features = model.GetFullListOfFeatures();
    for (int number = kFirstDeviceFeature; number <= kLastDeviceFeature; ++number) {
        const FeatureId id(static_cast<DataModelIds::tagFeatureEnum>(number));
        const auto feature = features.GetFeature(FeatureIdWithContext(id));
        FeatureValue value;
        if (feature->GetNode() && feature->GetNode()->GetValue(value)) {
            values.emplace_back(feature->GetNode(), value);
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

/// The public part as today's structure, whatever size the caller's has; what it lacks is 0 and
/// not marked as set.
DEVMODEW publicPart(const DEVMODEW& devMode)
{
    DEVMODEW known{};
    std::memcpy(&known, &devMode, std::min<std::size_t>(devMode.dmSize, sizeof known));
    if (devMode.dmSize < kPublicPartWithMedia) {
        known.dmFields &= ~static_cast<DWORD>(DM_MEDIATYPE);
    }
    return known;
}

std::span<const std::uint8_t> privatePart(const DEVMODEW& devMode)
{
    return {reinterpret_cast<const std::uint8_t*>(&devMode) + devMode.dmSize,
            devMode.dmDriverExtra};
}

} // namespace

bool writeDevMode(IDataModel& model, const wchar_t* printerName, DEVMODEW& devMode)
{
    auto* const bytes = reinterpret_cast<std::uint8_t*>(&devMode);
    std::memset(bytes, 0, kDevModeSize);
    if (printerName != nullptr) {
        lstrcpynW(devMode.dmDeviceName, printerName, CCHDEVICENAME);
    }
    devMode.dmSpecVersion = DM_SPECVERSION;
    devMode.dmDriverVersion = kDriverVersion;
    devMode.dmSize = sizeof(DEVMODEW);
    devMode.dmDriverExtra = static_cast<WORD>(kPrivatePartSize);
    writePublicFields(model.GetFullListOfFeatures(), devMode);

    std::vector<std::uint8_t> block;
    const bool exported = model.ExportSettings(block, kPrivateBlockCapacity);
    const std::span<std::uint8_t, kPrivatePartSize> part(bytes + sizeof(DEVMODEW),
                                                         kPrivatePartSize);
    return writePrivatePart(part, block) && exported;
}

void mergeDevMode(IDataModel& model, const DEVMODEW& devMode)
{
    if (devMode.dmSize < kSmallestPublicPart) {
        return;
    }
    const DeviceValues device = deviceValues(model);
    const auto block = readPrivatePart(privatePart(devMode));
    if (!block.empty()) {
        model.ImportSettings(block.data(), block.size());
        restore(device);
    }
    readPublicFields(model.GetFullListOfFeatures(), publicPart(devMode));
    model.CommitAccepted();
}

} // namespace o7

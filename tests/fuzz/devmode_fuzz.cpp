// A DEVMODE from an application: whatever it holds, the model ends in settings that can be written
// into a DEVMODE and read again as the same.
#include "documentsettings.h"
#include "fuzzmodel.h"
#include "testpackage.h"

#include "../../modules/core/crc32.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;
using DevMode = std::array<std::uint8_t, o7::kDevModeSize>;

std::unique_ptr<IDataModel> Model()
{
    static const auto kPackage = [] {
        std::vector<o7::PackageError> errors;
        auto package = o7::ParseProductPackage(o7::test::kTestPackage, "fuzz.json", errors);
        if (!package)
            std::abort();
        return package;
    }();
    return o7::CreateDataModel(*kPackage, o7::fuzz::Strings());
}

Bytes Settings(const IDataModel& model)
{
    Bytes block;
    if (!model.ExportSettings(block, o7::kPrivateBlockCapacity))
        std::abort();
    return block;
}

void Merge(std::span<const std::uint8_t> bytes)
{
    const auto model = Model();
    o7::mergeDevMode(*model, bytes);
    if (model->IsModified())
        std::abort();
    o7::fuzz::WalkThrough(*model->GetFullListOfFeatures().GetNode());
    DevMode written;
    written.fill(0xCD);
    if (!o7::writeDevMode(*model, L"Fuzz", written))
        std::abort();
    const auto again = Model();
    o7::mergeDevMode(*again, written);
    DevMode twice;
    twice.fill(0x11);
    if (Settings(*again) != Settings(*model) || !o7::writeDevMode(*again, L"Fuzz", twice) ||
        twice != written)
        std::abort();
}

/// A DEVMODE of ours whose public part begins as the input does, and whose private part holds the
/// rest as the payload of a block: behind a checksum nothing would ever get through.
Bytes Sealed(const std::uint8_t* data, std::size_t size)
{
    constexpr std::size_t kBlockHeader = 20;
    constexpr std::size_t kFieldsEnd = o7::kFormNameAt - o7::kFieldsAt;
    Bytes devMode(o7::kDevModeSize);
    o7::writeDevMode(*Model(), L"Fuzz", std::span<std::uint8_t, o7::kDevModeSize>(devMode));
    const std::size_t fields = std::min(size, kFieldsEnd);
    std::copy_n(data, fields, devMode.begin() + o7::kFieldsAt);
    const std::size_t payload = std::min(size - fields, o7::kPrivateBlockCapacity - kBlockHeader);
    Bytes block = Settings(*Model());
    block.resize(kBlockHeader);
    block.insert(block.end(), data + fields, data + fields + payload);
    const auto put = [&](std::size_t at, std::uint32_t value) {
        for (std::size_t i = 0; i < 4; ++i)
            block[at + i] = static_cast<std::uint8_t>(value >> (8 * i));
    };
    put(12, static_cast<std::uint32_t>(payload));
    put(16, o7::Crc32(data + fields, payload));
    o7::writePrivatePart(std::span(devMode).last<o7::kPrivatePartSize>(), block);
    return devMode;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    Merge({data, size});
    if (data != nullptr)
        Merge(Sealed(data, size));
    return 0;
}

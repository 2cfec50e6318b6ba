// A settings block: taken, and then the same after another round, or refused and nothing changed.
#include "fuzzmodel.h"

#include "../../modules/core/crc32.h"

#include <cstdlib>
#include <vector>

namespace {

using Bytes = std::vector<std::uint8_t>;

constexpr std::size_t kHeader = 20;
constexpr auto kScope = o7::SettingsScope::Document;

Bytes Exported(const IDataModel& model)
{
    Bytes block;
    // Whatever was taken, it fits.
    if (!model.ExportSettings(block, o7::kSettingsBlockLimit, kScope))
        std::abort();
    return block;
}

/// A block of that version around the payload.
Bytes Sealed(std::uint32_t version, Bytes block, const std::uint8_t* data, std::size_t size)
{
    block.resize(kHeader);
    block.insert(block.end(), data, data + size);
    const auto put = [&](std::size_t at, std::uint32_t value) {
        for (std::size_t i = 0; i < 4; ++i)
            block[at + i] = static_cast<std::uint8_t>(value >> (8 * i));
    };
    put(4, version);
    put(12, static_cast<std::uint32_t>(size));
    put(16, o7::Crc32(data, size));
    return block;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // The input is the payload: behind a checksum nothing would ever get through.
    for (const std::uint32_t version : {1U, 2U}) {
        const auto model = o7::CreateDataModel(o7::fuzz::Package(), o7::fuzz::Strings());
        const Bytes defaults = Exported(*model);
        const Bytes block = Sealed(version, defaults, data, size);
        const bool taken = model->ImportSettings(block.data(), block.size(), kScope);
        o7::fuzz::WalkThrough(*model->GetFullListOfFeatures().GetNode());
        const Bytes first = Exported(*model);
        if (!taken && first != defaults)
            std::abort();
        const auto other = o7::CreateDataModel(o7::fuzz::Package(), o7::fuzz::Strings());
        if (!other->ImportSettings(first.data(), first.size(), kScope) || Exported(*other) != first)
            std::abort();
        // And the bytes as they are, header included.
        model->ImportSettings(data, size);
    }
    return 0;
}

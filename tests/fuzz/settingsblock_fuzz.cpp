// A settings block: taken, and then the same after another round, or refused and nothing changed.
#include "fuzzmodel.h"

#include "../../modules/core/crc32.h"

#include <cstdlib>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    // The input is the payload: behind a checksum nothing would ever get through.
    constexpr std::size_t kHeader = 20;
    const auto model = o7::CreateDataModel(o7::fuzz::Package(), o7::fuzz::Strings());
    std::vector<std::uint8_t> block;
    if (!model->ExportSettings(block) || block.size() < kHeader)
        std::abort();
    const std::vector<std::uint8_t> defaults = block;
    block.resize(kHeader);
    block.insert(block.end(), data, data + size);
    const auto put = [&](std::size_t at, std::uint32_t value) {
        for (std::size_t i = 0; i < 4; ++i)
            block[at + i] = static_cast<std::uint8_t>(value >> (8 * i));
    };
    put(12, static_cast<std::uint32_t>(size));
    put(16, o7::Crc32(data, size));

    const bool taken = model->ImportSettings(block.data(), block.size());
    o7::fuzz::WalkThrough(*model->GetFullListOfFeatures().GetNode());
    std::vector<std::uint8_t> first;
    std::vector<std::uint8_t> second;
    model->ExportSettings(first, size + defaults.size() + 65536);
    if (!taken && first != defaults)
        std::abort();
    const auto other = o7::CreateDataModel(o7::fuzz::Package(), o7::fuzz::Strings());
    if (!other->ImportSettings(first.data(), first.size()) ||
        !other->ExportSettings(second, first.size()) || first != second)
        std::abort();
    // And the bytes as they are, header included.
    model->ImportSettings(data, size);
    return 0;
}

// Feeds arbitrary bytes to everything of the utility module that reads outside data, and checks
// what must hold for any input.

#include "bytebuffer.h"
#include "number.h"

#include <cstdlib>

namespace {

void require(bool holds)
{
    if (!holds) {
        std::abort();
    }
}

void readStream(const ByteBuffer& stream)
{
    std::size_t position = 0;
    ByteBuffer rebuilt;
    for (ByteBuffer entry; entry.initializeFromByteStream(stream, position);) {
        entry.persistToByteStream(rebuilt);
        require(entry.getAsStringValue().GetLength() <= static_cast<int>(entry.size()));
    }
    require(position <= stream.size());
    require(rebuilt == ByteBuffer(stream.data(), position));
}

void readTexts(const std::uint8_t* data, std::size_t size)
{
    const CXString wide = CXString::FromUtf16Le(data, size);
    require(wide.ToUtf16Le() == std::vector<std::uint8_t>(data, data + (size - size % 2)));
    const CXString text =
        CXString::FromUtf8(std::string_view(reinterpret_cast<const char*>(data), size));
    require(CXString::FromUtf8(text.ToUtf8()) == text);

    Number number;
    if (Number::TryParse(text, number)) {
        Number again;
        require(Number::TryParse(number.GetStringValue(9), again) && again == number);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    readStream(ByteBuffer(data, size));
    readTexts(data, size);
    return 0;
}

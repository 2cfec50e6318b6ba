// Feeds every file of the folders given on the command line through a fuzz target, so that what a
// fuzzer once found stays found without one.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

void feed(const std::filesystem::path& file)
{
    // The name goes out first: a crash in the target then says which file did it.
    std::printf("%s\n", file.string().c_str());
    std::fflush(stdout);
    std::ifstream in(file, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(in),
                                  std::istreambuf_iterator<char>()};
    const std::vector<std::uint8_t> data(bytes.begin(), bytes.end());
    LLVMFuzzerTestOneInput(data.data(), data.size());
}

} // namespace

int main(int argc, char** argv)
{
    std::size_t fed = 0;
    for (int i = 1; i < argc; ++i) {
        if (!std::filesystem::is_directory(argv[i])) {
            std::fprintf(stderr, "no such folder: %s\n", argv[i]);
            return 1;
        }
        for (const auto& entry : std::filesystem::directory_iterator(argv[i])) {
            if (entry.is_regular_file()) {
                feed(entry.path());
                ++fed;
            }
        }
    }
    LLVMFuzzerTestOneInput(nullptr, 0);
    if (fed == 0) {
        std::fprintf(stderr, "the corpus is empty\n");
        return 1;
    }
    return 0;
}

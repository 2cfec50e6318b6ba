// A product package: either a model that answers everything, or errors.
#include "fuzzmodel.h"

#include <cstdlib>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    std::vector<o7::PackageError> errors;
    const auto package = o7::ParseProductPackage(text, "fuzz.json", errors);
    if ((package == nullptr) == errors.empty())
        std::abort();
    if (package) {
        const auto model = o7::CreateDataModel(*package, o7::fuzz::Strings());
        o7::fuzz::WalkThrough(*model->GetFullListOfFeatures().GetNode());
    }
    return 0;
}

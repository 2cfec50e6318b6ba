#include "measurements.h"
#include "report.h"
#include "syntheticproduct.h"

#include <malloc.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <stdexcept>
#include <string>

namespace o7::bench {
namespace {

std::filesystem::path LargestPackage()
{
    std::filesystem::path largest;
    std::uintmax_t size = 0;
    for (const auto& entry : std::filesystem::directory_iterator(O7_PRODUCTS_DIR)) {
        const auto file = entry.path() / "package.json";
        if (std::filesystem::exists(file) && std::filesystem::file_size(file) > size) {
            size = std::filesystem::file_size(file);
            largest = file;
        }
    }
    return largest;
}

/// Reading the file's bytes alone: what no package can be loaded without.
std::size_t ReadBytes(const std::filesystem::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(stream), {}).size();
}

void MeasureLoading(Report& report)
{
    const auto file = LargestPackage();
    SyntheticProduct::NoStrings strings;
    std::size_t features = 0;
    std::size_t constraints = 0;
    std::size_t bytes = 0;
    Figure timed{"package", "loading " + file.parent_path().filename().string(), "ms", {}, {}, {}};
    timed.goal = {Goal::ValueAtMost, 20};
    for (int run = 0; run < kRuns; ++run) {
        timed.runs.push_back(
            NanosecondsPerCall(1,
                               [&](int) {
                                   std::vector<PackageError> errors;
                                   const auto package = LoadProductPackage(file, errors);
                                   if (!package)
                                       throw std::runtime_error(errors.front().ToString());
                                   features = package->GetFeatureCount();
                                   constraints = package->GetConstraintCount();
                                   CreateDataModel(*package, strings);
                               }) /
            1e6);
        timed.baseline.push_back(NanosecondsPerCall(1, [&](int) { bytes = ReadBytes(file); }) /
                                 1e6);
    }
    report.add(timed);
    report.note("the largest package with its model: " + std::to_string(features) + " features, " +
                std::to_string(constraints) + " constraints, " + std::to_string(bytes) +
                " bytes; baseline: reading the bytes");
}

double BytesInUse()
{
    return static_cast<double>(mallinfo2().uordblks);
}

double BytesOf(int features, int constraints)
{
    const double before = BytesInUse();
    const SyntheticProduct product(features, constraints);
    return BytesInUse() - before - static_cast<double>(product.RuleBytes());
}

void MeasureMemory(Report& report)
{
    const double without = BytesOf(1000, 0);
    const double with = BytesOf(1000, 20000);
    report.add(
        {"package", "memory of a feature with 4 options", "bytes", {without / 1000}, {}, {}});
    report.add({"package", "memory of a constraint", "bytes", {(with - without) / 20000}, {}, {}});
    report.note("memory: heap of description and model together");
}

} // namespace

void MeasurePackage(Report& report)
{
    MeasureLoading(report);
    MeasureMemory(report);
}

} // namespace o7::bench

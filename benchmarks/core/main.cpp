// o7bench-native: measures portable code on this host. Names select measurements; --list prints
// them; --json FILE appends one object per figure.
#include "measurements.h"
#include "report.h"

#include <cstdio>
#include <exception>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct Measurement
{
    std::string_view name;
    void (*measure)(o7::bench::Report& report);
};

constexpr Measurement kMeasurements[] = {
    {"constraints", o7::bench::MeasureConstraints},
    {"notify", o7::bench::MeasureNotify},
    {"package", o7::bench::MeasurePackage},
};

int Run(const std::vector<std::string_view>& words)
{
    std::vector<std::string_view> names;
    std::string json;
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "--list") {
            for (const Measurement& row : kMeasurements)
                std::printf("%s\n", row.name.data());
            return 0;
        }
        if (words[i] == "--json" && i + 1 < words.size())
            json = words[++i];
        else
            names.push_back(words[i]);
    }
    for (const std::string_view name : names) {
        bool known = false;
        for (const Measurement& row : kMeasurements)
            known = known || row.name == name;
        if (!known) {
            std::fprintf(stderr, "no measurement \"%s\"\n", std::string(name).c_str());
            return 2;
        }
    }
    o7::bench::Report report(json);
    for (const Measurement& row : kMeasurements) {
        bool wanted = names.empty();
        for (const std::string_view name : names)
            wanted = wanted || row.name == name;
        if (wanted)
            row.measure(report);
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    try {
        return Run({argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        return 1;
    }
}

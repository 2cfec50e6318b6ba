// o7bench.exe: measures the UI module under Windows or Wine. Names select measurements; --list
// prints them; --json FILE appends one object per figure. (--first FILE is the program's own use:
// it opens one sheet and ends with the microseconds that took.)

#include <windows.h>

#include <cstdio>
#include <exception>
#include <filesystem>
#include <string>
#include <vector>

#include "controlsbench.h"
#include "pagesbench.h"
#include "report.h"
#include "routingbench.h"
#include "sheetbench.h"

namespace {

constexpr struct
{
    const wchar_t* name;
    void (*measure)(o7::bench::Report&, const std::wstring&);
} kMeasurements[] = {
    {L"raw-sheet", &o7::bench::benchRawSheet}, {L"pages", &o7::bench::benchPages},
    {L"greying", &o7::bench::benchGreying},    {L"controls", &o7::bench::benchControls},
    {L"routing", &o7::bench::benchRouting},
};

std::wstring productFolder()
{
    std::wstring program(32768, L'\0');
    program.resize(GetModuleFileNameW(nullptr, program.data(), static_cast<DWORD>(program.size())));
    return (std::filesystem::path(program).parent_path() / L"products" / L"office-c430").wstring();
}

int measure(const std::vector<std::wstring>& names, const std::wstring& json)
{
    o7::bench::Report report(std::filesystem::path(json).string());
    for (const auto& row : kMeasurements)
        for (const std::wstring& name : names)
            if (name == row.name)
                row.measure(report, productFolder());
    return 0;
}

int run(int count, wchar_t** words)
{
    std::vector<std::wstring> names;
    std::wstring json;
    for (int index = 1; index < count; ++index) {
        const std::wstring word = words[index];
        if (word == L"--list") {
            for (const auto& row : kMeasurements)
                std::printf("%ls\n", row.name);
            return 0;
        }
        if (word == L"--first" && index + 1 < count)
            return static_cast<int>(o7::bench::firstOpening(productFolder(), words[index + 1]));
        if (word == L"--json" && index + 1 < count)
            json = words[++index];
        else
            names.push_back(word);
    }
    if (names.empty())
        for (const auto& row : kMeasurements)
            names.emplace_back(row.name);
    return measure(names, json);
}

} // namespace

int wmain(int count, wchar_t** words)
{
    try {
        return run(count, words);
    } catch (const std::exception& exception) {
        std::fprintf(stderr, "o7bench: %s\n", exception.what());
        return 1;
    }
}

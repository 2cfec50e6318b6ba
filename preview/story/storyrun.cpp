#include "storyrun.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <system_error>

#include "runfolder.h"
#include "storyparser.h"

namespace o7::story {
namespace {

namespace fs = std::filesystem;

std::string utf8(const fs::path& path)
{
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::vector<std::string> productsIn(const fs::path& folder)
{
    std::vector<std::string> names;
    std::error_code error;
    for (const auto& entry : fs::directory_iterator(folder, error)) {
        if (fs::is_regular_file(entry.path() / "package.json", error)) {
            names.push_back(utf8(entry.path().filename()));
        }
    }
    std::ranges::sort(names);
    return names;
}

std::optional<std::string> contentOf(const fs::path& file)
{
    std::ifstream stream(file, std::ios::binary);
    if (!stream || fs::is_directory(file)) {
        return std::nullopt;
    }
    return std::string(std::istreambuf_iterator<char>(stream), {});
}

/// Nothing, after every mistake of every file was told, when one cannot be read.
std::optional<std::vector<Story>> readAll(const StoryRun& run)
{
    const std::vector<std::string> products = productsIn(run.products);
    std::vector<Story> stories;
    bool readable = !run.files.empty();
    if (run.files.empty()) {
        run.printError("No story was named.");
    }
    if (products.empty()) {
        run.printError("There is no product in " + utf8(run.products) + ".");
        readable = false;
    }
    for (const fs::path& file : run.files) {
        const auto text = contentOf(file);
        if (!text) {
            run.printError(utf8(file) + ": the file cannot be read");
            readable = false;
            continue;
        }
        ParsedStory parsed = parseStory(*text, utf8(file), products);
        for (const Mistake& mistake : parsed.mistakes) {
            run.printError(mistake.toString());
        }
        readable = readable && parsed.mistakes.empty();
        stories.push_back(std::move(parsed.story));
    }
    return readable ? std::optional(std::move(stories)) : std::nullopt;
}

} // namespace

int runStories(const StoryRun& run)
{
    constexpr int kPassed = 0;
    constexpr int kFailed = 1;
    constexpr int kUnreadable = 2;
    const auto stories = readAll(run);
    if (!stories) {
        return kUnreadable;
    }
    const RunFolder folder;
    StoryPlayer player(run.stages, folder.path(), run.print);
    for (const Story& story : *stories) {
        player.play(story);
    }
    return player.finish().failed == 0 ? kPassed : kFailed;
}

} // namespace o7::story

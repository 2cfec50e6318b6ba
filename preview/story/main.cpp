// Plays stories on the data model alone, where there is no window:
//
//   o7story [--products DIR] FILE...
//
// Stories of every other entry are played by o7preview.

#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "modelstages.h"
#include "scripttexts.h"
#include "stepfailure.h"
#include "storyrun.h"

namespace {

using namespace o7::story;

int play(const std::vector<std::string>& words)
{
    StoryRun run;
    run.products = "products";
    for (std::size_t i = 0; i < words.size(); ++i) {
        if (words[i] == "--products" && i + 1 < words.size()) {
            run.products = words[++i];
        } else {
            run.files.emplace_back(words[i]);
        }
    }
    ModelStages models(run.products, [](const auto& product, const auto& language) {
        return ScriptTexts::read(product, language);
    });
    run.stages = [&](const Session& session, const std::filesystem::path& store) {
        if (session.entry != Entry::Model) {
            throw StepFailure("Entry " + std::string(entryName(session.entry)) +
                              " has windows; ./run --story plays it.");
        }
        return models.make(session, store);
    };
    run.print = [](const std::string& line) { std::printf("%s\n", line.c_str()); };
    run.printError = [](const std::string& line) { std::fprintf(stderr, "%s\n", line.c_str()); };
    return runStories(run);
}

} // namespace

int main(int count, char** words)
{
    try {
        return play({words + 1, words + count});
    } catch (const std::exception& error) {
        std::fprintf(stderr, "o7story: %s\n", error.what());
        return 1;
    }
}

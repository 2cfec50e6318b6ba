#include "storyfiles.h"

#include <memory>
#include <string>

#include "console.h"
#include "crashreport.h"
#include "cxstring.h"
#include "modelstages.h"
#include "productstringloader.h"
#include "storyrun.h"
#include "windowstages.h"

namespace o7 {
namespace {

namespace fs = std::filesystem;

/// The texts of a language as the build made them; null when the product has others only.
std::unique_ptr<IStringSource> textsOf(const fs::path& product, const std::string& language)
{
    const CXString wanted = CXString::FromUtf8(language);
    auto texts = std::make_unique<ProductStringLoader>(0, CXString(product.wstring()), wanted);
    return texts->GetLanguage() == wanted ? std::move(texts) : nullptr;
}

} // namespace

ExitCode runStoryFiles(const PreviewOptions& options, const fs::path& programFolder)
{
    story::StoryRun run;
    run.files.assign(options.stories.begin(), options.stories.end());
    run.products = options.productsDirectory.empty() ? programFolder / "products"
                                                     : fs::path(options.productsDirectory);
    story::ModelStages models(run.products, textsOf);
    run.stages = [&](const story::Session& session, const fs::path& store) {
        if (session.entry != story::Entry::Model) {
            return story::makeWindowStage(session, run.products, programFolder, store);
        }
        return models.make(session, store);
    };
    run.print = [](const std::string& line) { print(CXString::FromUtf8(line).View()); };
    run.printError = [](const std::string& line) { printError(CXString::FromUtf8(line).View()); };
    const story::CrashReport crashes(run.print);
    return static_cast<ExitCode>(story::runStories(run));
}

} // namespace o7

#pragma once

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>

#include "modelstage.h"

namespace o7::story {

/// Makes the stages of entry `model`; packages and texts are read once.
class ModelStages
{
public:
    /// The texts of the product in this folder; null when there are none in the language.
    using TextsOf = std::function<std::unique_ptr<IStringSource>(
        const std::filesystem::path& product, const std::string& language)>;

    /// @param products  the folder that holds the packages.
    ModelStages(std::filesystem::path products, TextsOf texts);

    /// @throws StepFailure with what is wrong with package or language.
    std::unique_ptr<StoryStage> make(const Session& session, const std::filesystem::path& store);

private:
    std::shared_ptr<const ProductPackage> package(const std::string& product);
    std::shared_ptr<IStringSource> texts(const std::string& product, const std::string& language);

    std::filesystem::path m_products;
    TextsOf m_textsOf;
    std::map<std::string, std::shared_ptr<const ProductPackage>> m_packages;
    std::map<std::pair<std::string, std::string>, std::shared_ptr<IStringSource>> m_texts;
};

} // namespace o7::story

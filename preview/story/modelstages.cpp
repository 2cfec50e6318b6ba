#include "modelstages.h"

#include <vector>

#include "stepfailure.h"

namespace o7::story {

ModelStages::ModelStages(std::filesystem::path products, TextsOf texts)
    : m_products(std::move(products)), m_textsOf(std::move(texts))
{
}

std::unique_ptr<StoryStage> ModelStages::make(const Session& session,
                                              const std::filesystem::path& store)
{
    return std::make_unique<ModelStage>(
        ModelStage::Product{package(session.product), texts(session.product, session.language)},
        session, store);
}

std::shared_ptr<const ProductPackage> ModelStages::package(const std::string& product)
{
    auto& package = m_packages[product];
    if (!package) {
        std::vector<PackageError> errors;
        package = LoadProductPackage(m_products / product, errors);
        if (!package) {
            throw StepFailure("The package cannot be used: " + errors.front().ToString());
        }
    }
    return package;
}

std::shared_ptr<IStringSource> ModelStages::texts(const std::string& product,
                                                  const std::string& language)
{
    auto& texts = m_texts[{product, language}];
    if (!texts) {
        texts = m_textsOf(m_products / product, language);
        if (!texts) {
            throw StepFailure(product + " has no texts in the language \"" + language + "\".");
        }
    }
    return texts;
}

} // namespace o7::story

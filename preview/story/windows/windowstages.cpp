#include "windowstages.h"

#include <stdexcept>

#include "driverhost.h"
#include "editorstage.h"
#include "hostedstage.h"
#include "otherwindow.h"
#include "previewhost.h"
#include "productcatalogue.h"

namespace o7::story {

std::unique_ptr<StoryStage> makeWindowStage(const Session& session,
                                            const std::filesystem::path& products,
                                            const std::filesystem::path& programs,
                                            const std::filesystem::path& store)
{
    const ProductCatalogue catalogue(products);
    const auto package = catalogue.find(wide(session.product));
    if (!package || session.product.empty()) {
        throw std::runtime_error(utf8(catalogue.unknownProductText(wide(session.product))));
    }
    switch (session.entry) {
    case Entry::InApp:
        return std::make_unique<EditorStage>(programs, session);
    case Entry::Cpsui:
        return std::make_unique<HostedStage>(
            std::make_shared<DriverHost>(*package, session, store));
    case Entry::Sheet:
    case Entry::Child:
    case Entry::Dialog:
        return std::make_unique<HostedStage>(
            std::make_shared<PreviewHost>(*package, session, store));
    case Entry::Model:
        break;
    }
    throw std::runtime_error("The entry \"model\" has no window.");
}

} // namespace o7::story

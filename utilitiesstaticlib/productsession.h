#pragma once

#include <filesystem>
#include <memory>
#include <vector>

#include "cxstring.h"
#include "datamodelfactory.h"
#include "productdata.h"
#include "productstringloader.h"

namespace o7 {

/// Whether a product's texts are shown as they are, or lengthened to see what becomes of the pages.
enum class TextLength
{
    AsWritten,
    Longer, ///< by a third, see longerText
};

/// Everything that has to stand behind a preferences UI for one product: its description, its
/// texts in one language and a data model with its defaults. A host (the driver's plug-in, the
/// preview) opens one, hands `productData()`, `featureServices()` and `strings()` to `UIManager`,
/// and destroys the session after the manager. One thread uses it.
class ProductSession
{
public:
    /// Reads a product package.
    /// @param package   the package file, or the folder that holds it as `package.json`. The string
    ///                  modules `strings-<language>.dll` are looked for in the same folder.
    /// @param language  "de", "en", …; empty takes the language of the user's desktop. A language
    ///                  that the product does not have falls back to English (`languageFellBack`).
    /// @param errors    receives a sentence "file:line: text" for everything that is wrong.
    /// @return null when anything is wrong: nothing is loaded by halves.
    static std::unique_ptr<ProductSession> open(const std::filesystem::path& package,
                                                const CXString& language,
                                                std::vector<CXString>& errors,
                                                TextLength length = TextLength::AsWritten);

    /// The same with a package that is loaded already, which may serve several sessions.
    static std::unique_ptr<ProductSession> open(std::shared_ptr<const ProductPackage> package,
                                                const CXString& language,
                                                TextLength length = TextLength::AsWritten);

    ProductSession(const ProductSession&) = delete;
    ProductSession& operator=(const ProductSession&) = delete;
    ~ProductSession();

    ProductData& productData();
    ProductStringLoader& strings();
    IDataModel& model();
    FeatureServices& featureServices();

    /// The language the texts are really in.
    CXString language() const;
    /// True when that is not the language asked for.
    bool languageFellBack() const;

    /// Where this product's accepted settings are kept between two openings by a host that has no
    /// other place for them: `<userDirectory>\<product id>.ojtf`.
    std::filesystem::path jobTicketPath(const std::filesystem::path& userDirectory) const;

private:
    ProductSession();

    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

/// The two-letter code of the language of the user's desktop, "en" when the system has no answer.
CXString desktopLanguage();

} // namespace o7

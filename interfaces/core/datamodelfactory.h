// What a host (the driver shell, the preview) calls to get a data model from a product package.
#pragma once

#include "coreapi.h"
#include "idatamodel.h"
#include "istringsource.h"
#include "productdata.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace o7 {

/// One fault of a product package.
struct PackageError
{
    std::filesystem::path file;
    unsigned line = 0;   ///< Counted from 1; 0 when the fault is the file as a whole.
    std::string message; ///< What was found and what was expected; English, UTF-8.

    /// "<file>:<line>: <message>".
    O7CORE_API std::string ToString() const;
};

/// A complete, checked description of a product. Immutable; one can serve many data models and
/// must outlive none of them.
class ProductPackage
{
public:
    virtual ~ProductPackage() = default;

    /// Identity and files of the product, for ProductData.
    virtual const ProductInfo& GetProductInfo() const = 0;
    /// The folder that holds package.json.
    virtual const std::filesystem::path& GetFolder() const = 0;
    /// Those inside lists included, each once.
    virtual std::size_t GetFeatureCount() const = 0;
    virtual std::size_t GetConstraintCount() const = 0;
    /// Every string number that the package refers to, in rising order: what a translation must
    /// have.
    virtual std::vector<unsigned> GetStringNumbers() const = 0;
};

/// Reads and checks "package.json" of this folder (or the file itself). Null, and at least one
/// error, when anything is wrong; nothing is half-loaded.
O7CORE_API std::unique_ptr<ProductPackage> LoadProductPackage(const std::filesystem::path& path,
                                                              std::vector<PackageError>& errors);

/// The same for tools that check a package while it is written: with errors it still hands out what
/// could be read, if that is of the right shape at all. Such a package (`validated` is false) is
/// good for its lists of numbers only: no data model can be made of it.
O7CORE_API std::unique_ptr<ProductPackage> InspectProductPackage(const std::filesystem::path& path,
                                                                 std::vector<PackageError>& errors);

/// As LoadProductPackage, from a text in memory; `path` is what the errors name.
O7CORE_API std::unique_ptr<ProductPackage> ParseProductPackage(std::string_view text,
                                                               const std::filesystem::path& path,
                                                               std::vector<PackageError>& errors);

/// The JSON Schema that packages are checked against, as text.
O7CORE_API std::string_view GetProductPackageSchema();

/// A data model with every feature at its default, which is also its accepted value. `strings` is
/// borrowed for the life of the model.
O7CORE_API std::unique_ptr<IDataModel> CreateDataModel(const ProductPackage& package,
                                                       IStringSource& strings);

} // namespace o7

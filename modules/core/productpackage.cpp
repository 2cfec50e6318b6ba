#include "loadedpackage.h"

#include "datamodel.h"
#include "packagereader.h"
#include "schemavalidator.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <set>
#include <system_error>

namespace o7 {
namespace {

constexpr std::uintmax_t kLargestPackage = 8U << 20U;

void AddFaults(const std::vector<JsonFault>& faults, const std::filesystem::path& file,
               std::vector<PackageError>& errors)
{
    for (const JsonFault& fault : faults)
        errors.push_back({file, fault.line, fault.message});
}

const LocatedJson& Schema()
{
    static const auto kSchema = std::get<LocatedJson>(ParseLocatedJson(GetProductPackageSchema()));
    return kSchema;
}

void CollectStrings(const FeatureDescription& feature, std::set<unsigned>& numbers);

void CollectStrings(const ListDescription& list, std::set<unsigned>& numbers)
{
    for (const FeatureDescription& feature : list.features)
        CollectStrings(feature, numbers);
    for (const ConstraintDescription& constraint : list.constraints)
        numbers.insert(constraint.reason);
}

void CollectStrings(const FeatureDescription& feature, std::set<unsigned>& numbers)
{
    if (!feature.IsPrivate())
        numbers.insert(kFeatureStringBase + static_cast<unsigned>(feature.number));
    for (const OptionDescription& option : feature.options)
        numbers.insert(kValueStringBase + static_cast<unsigned>(option.number));
    if (feature.list)
        CollectStrings(*feature.list, numbers);
    if (feature.item)
        CollectStrings(*feature.item, numbers);
}

const ListDescription* ListIn(const FeatureDescription& feature)
{
    return feature.list ? feature.list.get() : feature.item ? feature.item->list.get() : nullptr;
}

std::size_t CountFeatures(const ListDescription& list)
{
    std::size_t count = list.features.size();
    for (const FeatureDescription& feature : list.features) {
        if (const auto* inner = ListIn(feature))
            count += CountFeatures(*inner);
    }
    return count;
}

void CollectConstraintIds(const ListDescription& list, std::set<std::string_view>& ids)
{
    for (const ConstraintDescription& constraint : list.constraints)
        ids.insert(constraint.id);
    for (const FeatureDescription& feature : list.features) {
        if (const auto* inner = ListIn(feature))
            CollectConstraintIds(*inner, ids);
    }
}

} // namespace

LoadedPackage::LoadedPackage(ProductDescription product)
    : m_product(std::make_shared<const ProductDescription>(std::move(product)))
{
}

std::size_t LoadedPackage::GetFeatureCount() const
{
    return CountFeatures(m_product->root);
}

std::size_t LoadedPackage::GetConstraintCount() const
{
    std::set<std::string_view> ids;
    CollectConstraintIds(m_product->root, ids);
    return ids.size();
}

std::vector<unsigned> LoadedPackage::GetStringNumbers() const
{
    std::set<unsigned> numbers;
    CollectStrings(m_product->root, numbers);
    return {numbers.begin(), numbers.end()};
}

std::string PackageError::ToString() const
{
    const std::u8string name = file.generic_u8string();
    std::string text(name.begin(), name.end());
    if (line != 0)
        text.append(":").append(std::to_string(line));
    return text.append(": ").append(message);
}

namespace {

enum class Faulty
{
    Refuse,
    HandOut, ///< as far as it was read
};

std::unique_ptr<ProductPackage> Parse(std::string_view text, const std::filesystem::path& path,
                                      std::vector<PackageError>& errors, Faulty faulty)
{
    const auto parsed = ParseLocatedJson(text);
    if (const auto* fault = std::get_if<JsonFault>(&parsed)) {
        errors.push_back({path, fault->line, fault->message});
        return nullptr;
    }
    const auto& document = std::get<LocatedJson>(parsed);
    std::vector<JsonFault> faults = SchemaValidator(Schema()).Check(document);
    if (!faults.empty()) {
        AddFaults(faults, path, errors);
        return nullptr;
    }
    ProductDescription product = PackageReader(faults).Read(document);
    AddFaults(faults, path, errors);
    if (!faults.empty() && faulty == Faulty::Refuse)
        return nullptr;
    product.folder = path.parent_path();
    product.info.validated = faults.empty();
    return std::make_unique<LoadedPackage>(std::move(product));
}

std::unique_ptr<ProductPackage> Load(const std::filesystem::path& path,
                                     std::vector<PackageError>& errors, Faulty faulty)
{
    std::error_code ignored;
    const auto file = std::filesystem::is_directory(path, ignored) ? path / "package.json" : path;
    const auto size = std::filesystem::file_size(file, ignored);
    if (ignored || size > kLargestPackage) {
        errors.push_back({file, 0,
                          ignored ? "cannot be read: " + ignored.message()
                                  : "is larger than 8 MiB, expected a product package"});
        return nullptr;
    }
    std::ifstream stream(file, std::ios::binary);
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    if (!stream) {
        errors.push_back({file, 0, "cannot be read"});
        return nullptr;
    }
    return Parse(text, file, errors, faulty);
}

} // namespace

std::unique_ptr<ProductPackage> ParseProductPackage(std::string_view text,
                                                    const std::filesystem::path& path,
                                                    std::vector<PackageError>& errors)
{
    return Parse(text, path, errors, Faulty::Refuse);
}

std::unique_ptr<ProductPackage> LoadProductPackage(const std::filesystem::path& path,
                                                   std::vector<PackageError>& errors)
{
    return Load(path, errors, Faulty::Refuse);
}

std::unique_ptr<ProductPackage> InspectProductPackage(const std::filesystem::path& path,
                                                      std::vector<PackageError>& errors)
{
    return Load(path, errors, Faulty::HandOut);
}

std::unique_ptr<IDataModel> CreateDataModel(const ProductPackage& package, IStringSource& strings)
{
    return std::make_unique<DataModel>(dynamic_cast<const LoadedPackage&>(package).GetDescription(),
                                       strings);
}

} // namespace o7

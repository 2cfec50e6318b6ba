#pragma once

#include "datamodelfactory.h"
#include "description.h"

#include <memory>

namespace o7 {

/// The product package that this module makes and takes: a shared, immutable description.
class LoadedPackage : public ProductPackage
{
public:
    explicit LoadedPackage(ProductDescription product);

    const ProductInfo& GetProductInfo() const override { return m_product->info; }
    const std::filesystem::path& GetFolder() const override { return m_product->folder; }
    std::size_t GetFeatureCount() const override;
    std::size_t GetConstraintCount() const override;
    std::vector<unsigned> GetStringNumbers() const override;

    const std::shared_ptr<const ProductDescription>& GetDescription() const { return m_product; }

private:
    std::shared_ptr<const ProductDescription> m_product;
};

} // namespace o7

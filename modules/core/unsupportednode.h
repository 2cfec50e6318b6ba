#pragma once

#include "ifeaturenode.h"

#include <utility>

namespace o7 {

/// Stands for a feature that the product does not have.
class UnsupportedNode final : public IFeatureNode
{
public:
    explicit UnsupportedNode(FeatureIdWithContext id) : m_id(std::move(id)) {}

    FeatureKind GetKind() const override { return FeatureKind::Unsupported; }
    const FeatureIdWithContext& GetId() const override { return m_id; }
    bool IsSpecified() const override { return false; }
    bool SetIsSpecified(bool) override { return false; }
    bool GetValue(FeatureValue&) const override { return false; }
    bool GetDefaultValue(FeatureValue&) const override { return false; }
    bool SetValue(const FeatureValue&) override { return false; }
    std::unique_ptr<CapabilitiesNode> GetCapabilities() const override { return nullptr; }
    Ptr FindFeature(const FeatureId& feature) const override;
    Ptr FindFromTop(const FeatureIdWithContext& feature) const override;
    std::size_t GetNumChildren() const override { return 0; }
    Ptr GetChild(std::size_t) const override { return nullptr; }
    FeatureKind GetItemKind() const override { return FeatureKind::Unsupported; }
    Ptr CreateItem() override { return nullptr; }
    bool DeleteItems(const std::vector<std::size_t>&) override { return false; }
    bool CopyFrom(const IFeatureNode&) override { return false; }
    bool RestoreToDefaultValue() override { return false; }
    void ReportUnsupported() const override;

private:
    FeatureIdWithContext m_id;
};

} // namespace o7

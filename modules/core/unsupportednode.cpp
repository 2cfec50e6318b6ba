#include "unsupportednode.h"

#include "trace.h"

namespace o7 {

IFeatureNode::Ptr UnsupportedNode::FindFeature(const FeatureId& feature) const
{
    return std::make_shared<UnsupportedNode>(FeatureIdWithContext(m_id, feature));
}

IFeatureNode::Ptr UnsupportedNode::FindFromTop(const FeatureIdWithContext& feature) const
{
    return std::make_shared<UnsupportedNode>(feature);
}

void UnsupportedNode::ReportUnsupported() const
{
    trace(CXString(L"Not supported by this product: ") + m_id.Dump(true));
}

} // namespace o7

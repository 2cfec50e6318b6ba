#pragma once

#include "capabilitiesnode.h"
#include "featureidwithcontext.h"
#include "featurevalue.h"

#include <cstddef>
#include <memory>
#include <vector>

/// One feature inside a data model: what the feature references stand on. A data model implements
/// this class once; the references turn its generic values into typed ones.
/// Used on the model's thread only. References share ownership, so a node outlives a deletion and
/// even its data model; it then answers as unsupported.
class IFeatureNode
{
public:
    using Ptr = std::shared_ptr<IFeatureNode>;

    virtual ~IFeatureNode() = default;

    virtual o7::FeatureKind GetKind() const = 0;

    /// The feature, with the lists around it, name and number filled in.
    virtual const FeatureIdWithContext& GetId() const = 0;

    virtual bool IsSpecified() const = 0;
    /// Marks the feature as unspecified, or as specified with its last value. False when refused.
    virtual bool SetIsSpecified(bool specified) = 0;

    /// False when the feature has no value to give: unsupported, a list, or unspecified (an
    /// unspecified option feature gives value 5001 and true).
    virtual bool GetValue(o7::FeatureValue& value) const = 0;
    /// What it would have after RestoreToDefaultValue(); false when that is none.
    virtual bool GetDefaultValue(o7::FeatureValue& value) const = 0;
    /// False, and nothing changed, when the value is of the wrong kind, not one of the options,
    /// out of range, currently disabled or hidden by a constraint, or the feature is read-only.
    virtual bool SetValue(const o7::FeatureValue& value) = 0;

    /// A snapshot of limits and constraint state, of the class that fits the kind
    /// (OptionCapability, RangeCapability, RangeOfDimensionCapability, StringCapability,
    /// ListOfFeaturesCapability, ListOfValuesCapability, else CapabilitiesNode). Null for an
    /// unsupported feature.
    virtual std::unique_ptr<CapabilitiesNode> GetCapabilities() const = 0;

    /// The feature of this list of features. Never null: an unknown feature gives a node of kind
    /// Unsupported.
    virtual Ptr FindFeature(const FeatureId& feature) const = 0;
    /// The same, looked up from the top of the model along the id's context.
    virtual Ptr FindFromTop(const FeatureIdWithContext& feature) const = 0;

    /// Members of a list of features, or items of a list of values.
    virtual std::size_t GetNumChildren() const = 0;
    /// Null when the index is out of range.
    virtual Ptr GetChild(std::size_t index) const = 0;

    /// What the items of a list of values are: Option or ListOfFeatures; Unsupported elsewhere.
    virtual o7::FeatureKind GetItemKind() const = 0;

    /// A list of values gets a new item at its end, with default values; null when refused.
    virtual Ptr CreateItem() = 0;
    /// Deletes all of these items or, when one index is out of range, none and answers false.
    virtual bool DeleteItems(const std::vector<std::size_t>& indices) = 0;

    /// Takes over the values of `source`: feature by feature for lists, matched by number. False
    /// when the kinds differ.
    virtual bool CopyFrom(const IFeatureNode& source) = 0;
    virtual bool RestoreToDefaultValue() = 0;

    /// Records a diagnostic: somebody read a feature that this product should have but has not.
    virtual void ReportUnsupported() const = 0;
};

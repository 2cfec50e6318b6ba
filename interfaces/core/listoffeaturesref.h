#pragma once

#include "booleanfeatureref.h"
#include "dimensionfeatureref.h"
#include "featureref.h"
#include "integerfeatureref.h"
#include "listoffeaturescapability.h"
#include "listofvaluesref.h"
#include "optionfeatureref.h"
#include "rangefeatureref.h"
#include "resolutionfeatureref.h"
#include "stringfeatureref.h"

#include <memory>

/// The container through which features are found. An id without context is looked up in this very
/// list; an id with context is looked up from the top of the data model. A feature that the product
/// does not have, or that is of another kind, gives a reference whose reads answer false.
class ListOfFeaturesRef : public FeatureRef
{
public:
    using FeatureRef::FeatureRef;

    // Each takes a FeatureId or a FeatureIdWithContext (a feature number converts to the latter).
    template <typename Id> OptionFeatureRef GetOptionFeature(const Id& id) const
    {
        return Find<OptionFeatureRef>(id);
    }
    template <typename Id> IntegerFeatureRef GetIntegerFeature(const Id& id) const
    {
        return Find<IntegerFeatureRef>(id);
    }
    template <typename Id> StringFeatureRef GetStringFeature(const Id& id) const
    {
        return Find<StringFeatureRef>(id);
    }
    template <typename Id> BooleanFeatureRef GetBooleanFeature(const Id& id) const
    {
        return Find<BooleanFeatureRef>(id);
    }
    template <typename Id> RangeFeatureRef GetRangeFeature(const Id& id) const
    {
        return Find<RangeFeatureRef>(id);
    }
    template <typename Id> DimensionFeatureRef GetDimensionFeature(const Id& id) const
    {
        return Find<DimensionFeatureRef>(id);
    }
    template <typename Id> ResolutionFeatureRef GetResolutionFeature(const Id& id) const
    {
        return Find<ResolutionFeatureRef>(id);
    }
    template <typename Id> ListOfFeaturesRef GetListOfFeatures(const Id& id) const
    {
        return Find<ListOfFeaturesRef>(id);
    }
    template <typename Id> ListOfValuesRef GetListOfValues(const Id& id) const
    {
        return Find<ListOfValuesRef>(id);
    }

    /// The feature as the reference class that fits its kind, owned by the caller; never null.
    std::unique_ptr<FeatureRef> GetFeature(const FeatureIdWithContext& id) const
    {
        return MakeRef(FindNode(id));
    }

    /// The feature whose defaults apply to `id`: the feature itself at the top level; for a feature
    /// inside an item of a list of values the feature of the same number in the nearest enclosing
    /// list that has it, because a new item starts as a variation of the job; else itself.
    FeatureIdWithContext GetAppropriateFeatureForDefaults(const FeatureIdWithContext& id) const
    {
        const auto node = FindNode(id);
        if (!node || node->GetKind() == o7::FeatureKind::Unsupported)
            return id;
        const FeatureIdWithContext& full = node->GetId();
        bool inItem = false;
        for (const auto* list = full.GetContextPtr(); list != nullptr;
             list = list->GetContextPtr()) {
            if (list->GetFeatureId().GetItem() != FeatureId::kNoItem)
                inItem = true;
        }
        if (!inItem)
            return full;
        for (const auto* list = full.GetContextPtr(); list != nullptr;) {
            list = list->GetContextPtr();
            const auto outer = list != nullptr ? FeatureIdWithContext(*list, full.GetFeatureId())
                                               : FeatureIdWithContext(full.GetFeatureId());
            const auto found = GetNode()->FindFromTop(outer);
            if (found && found->GetKind() == node->GetKind())
                return found->GetId();
        }
        return full;
    }

    /// Takes over every value of `source` whose number this list has too; false when this list or
    /// the source designates nothing.
    bool CopyFrom(const ListOfFeaturesRef& source)
    {
        return GetNode() && source.GetNode() && GetNode()->CopyFrom(*source.GetNode());
    }

    /// Never null; without entries when the list is unsupported.
    std::unique_ptr<ListOfFeaturesCapability> GetListOfFeaturesCapabilities() const
    {
        return CapabilitiesAs<ListOfFeaturesCapability>();
    }

    /// A node as the reference class that fits its kind; a plain FeatureRef for null.
    static std::unique_ptr<FeatureRef> MakeRef(const IFeatureNode::Ptr& node)
    {
        switch (node ? node->GetKind() : o7::FeatureKind::Unsupported) {
        case o7::FeatureKind::Option:
            return std::make_unique<OptionFeatureRef>(node);
        case o7::FeatureKind::Integer:
            return std::make_unique<IntegerFeatureRef>(node);
        case o7::FeatureKind::String:
            return std::make_unique<StringFeatureRef>(node);
        case o7::FeatureKind::Boolean:
            return std::make_unique<BooleanFeatureRef>(node);
        case o7::FeatureKind::Range:
            return std::make_unique<RangeFeatureRef>(node);
        case o7::FeatureKind::Dimension:
            return std::make_unique<DimensionFeatureRef>(node);
        case o7::FeatureKind::Resolution:
            return std::make_unique<ResolutionFeatureRef>(node);
        case o7::FeatureKind::ListOfFeatures:
            return std::make_unique<ListOfFeaturesRef>(node);
        case o7::FeatureKind::ListOfValues:
            return std::make_unique<ListOfValuesRef>(node);
        case o7::FeatureKind::Unsupported:
            break;
        }
        return std::make_unique<FeatureRef>(node);
    }

private:
    IFeatureNode::Ptr FindNode(const FeatureIdWithContext& id) const
    {
        if (!GetNode())
            return nullptr;
        return id.GetContextPtr() == nullptr ? GetNode()->FindFeature(id.GetFeatureId())
                                             : GetNode()->FindFromTop(id);
    }

    template <typename Ref> Ref Find(const FeatureIdWithContext& id) const
    {
        return Ref(FindNode(id));
    }

    template <typename Ref> Ref Find(const FeatureId& id) const
    {
        return Ref(GetNode() ? GetNode()->FindFeature(id) : nullptr);
    }
};

inline ListOfFeaturesRef ListOfValuesRef::GetListOfFeatures(std::size_t index) const
{
    return ListOfFeaturesRef(ItemOfKind(index, o7::FeatureKind::ListOfFeatures));
}

inline ListOfFeaturesRef ListOfValuesRef::CreateListOfFeatures()
{
    return ListOfFeaturesRef(Create(o7::FeatureKind::ListOfFeatures));
}

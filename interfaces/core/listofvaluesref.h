#pragma once

#include "featureref.h"
#include "listofvaluescapability.h"
#include "optionfeatureref.h"

#include <cstddef>
#include <vector>

class ListOfFeaturesRef;

/// A feature that holds a growing list of items: option features, or lists of features (special
/// pages, named papers, recipients).
class ListOfValuesRef : public FeatureRef
{
public:
    using FeatureRef::FeatureRef;

    std::size_t GetNumItems() const { return GetNode() ? GetNode()->GetNumChildren() : 0; }

    /// The item at this index; designates nothing when the index is out of range or the item is
    /// of the other kind.
    OptionFeatureRef GetOptionFeature(std::size_t index) const
    {
        return OptionFeatureRef(ItemOfKind(index, o7::FeatureKind::Option));
    }
    inline ListOfFeaturesRef GetListOfFeatures(std::size_t index) const;

    /// How much the list takes, and whether and why not a further item.
    std::unique_ptr<ListOfValuesCapability> GetListOfValuesCapabilities() const
    {
        return CapabilitiesAs<ListOfValuesCapability>();
    }

    /// Appends an item with default values; designates nothing when refused (unsupported,
    /// read-only, full, no room in a document, or items are of the other kind).
    OptionFeatureRef CreateOptionFeature()
    {
        return OptionFeatureRef(Create(o7::FeatureKind::Option));
    }
    inline ListOfFeaturesRef CreateListOfFeatures();

    /// False, and nothing deleted, when an index is out of range.
    bool DeleteItem(std::size_t index) { return DeleteSpecificItems({index}); }
    bool DeleteSpecificItems(const std::vector<std::size_t>& indices)
    {
        return GetNode() && GetNode()->DeleteItems(indices);
    }
    bool DeleteAllItems()
    {
        std::vector<std::size_t> all(GetNumItems());
        for (std::size_t i = 0; i < all.size(); ++i)
            all[i] = i;
        return DeleteSpecificItems(all);
    }

private:
    IFeatureNode::Ptr ItemOfKind(std::size_t index, o7::FeatureKind kind) const
    {
        auto item = GetNode() ? GetNode()->GetChild(index) : nullptr;
        return item && item->GetKind() == kind ? item : nullptr;
    }
    IFeatureNode::Ptr Create(o7::FeatureKind kind)
    {
        if (!GetNode() || GetNode()->GetItemKind() != kind)
            return nullptr;
        return GetNode()->CreateItem();
    }
};

#include "listoffeaturesref.h"

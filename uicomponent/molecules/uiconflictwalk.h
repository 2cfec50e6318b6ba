#pragma once

#include <windows.h>

#include <cstddef>
#include <optional>
#include <vector>

#include "featureidwithcontext.h"

class FeatureServices;
class UIMolecule;
class UIMoleculeContainer;

/// The way from conflict to conflict through the containers of one sheet or dialog: in their order,
/// and in the Tab order inside each. A page needs no window to be on the way.
class UIConflictWalk
{
public:
    using Containers = std::vector<const UIMoleculeContainer*>;

    /// Posted to the window that walks (VK_F8); WPARAM: backwards.
    static constexpr UINT kMessage = WM_APP + 8;

    /// A place on the way; molecule -1 stands before the first of its container.
    struct Place
    {
        std::ptrdiff_t container = 0;
        std::ptrdiff_t molecule = -1;
        bool operator<(const Place& other) const
        {
            return container != other.container ? container < other.container
                                                : molecule < other.molecule;
        }
    };

    /// The features in conflict that are not hidden, as they stand in the product.
    static std::vector<FeatureIdWithContext> conflicts(FeatureServices& featureServices);

    /// The containers are borrowed.
    UIConflictWalk(FeatureServices& featureServices, Containers containers);

    /// The next place with a conflict after (or before) a place; behind the last comes the first.
    /// Nothing when there is no conflict, or none that is shown here.
    std::optional<Place> next(const Place& from, bool backwards) const;
    /// The place in a container that has the keyboard focus now.
    Place placeOfFocus(std::size_t container) const;
    UIMolecule& moleculeAt(const Place& place) const;

private:
    Containers m_containers;
    std::vector<Place> m_stops; ///< in order
};

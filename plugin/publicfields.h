#pragma once

#include <windows.h>

#include <vector>

#include "listoffeaturesref.h"

namespace o7 {

/// The fields of a DEVMODE that every application knows, kept in step with the features that mean
/// the same.

/// Writes the fields that stand for features of this product and sets their bits in `dmFields`.
void writePublicFields(const ListOfFeaturesRef& features, DEVMODEW& devMode);

/// Lets the features follow the fields whose bits are set. A field that already says what its
/// feature says changes nothing, so that a finer setting (colour "automatic" under "colour")
/// survives; an unknown number, and a value that a constraint forbids, leave the feature as it is.
void readPublicFields(const ListOfFeaturesRef& features, const DEVMODEW& devMode);

/// The numbers that a field can say for a product, in the product's order: papers for
/// DM_PAPERSIZE, bins for DM_DEFAULTSOURCE, and so on; without repetition.
struct FieldChoice
{
    short number;
    CXString name;
};
std::vector<FieldChoice> fieldChoices(const ListOfFeaturesRef& features, DWORD field);

/// Largest value of the copies feature; 1 when the product has none.
int mostCopies(const ListOfFeaturesRef& features);

} // namespace o7

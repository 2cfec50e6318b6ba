#pragma once

#include "devmodelayout.h"
#include "documentvalues.h"
#include "listoffeaturesref.h"

namespace o7 {

/// The fields of a DEVMODE that every application knows, kept in step with the features that mean
/// the same.

/// The fields as the features have them; the bits of those that the product has and that are in
/// force (not cleared, not hidden) are set. The
/// paper's lengths are always filled in, and marked as set for papers that the system has no number
/// for.
PublicFields publicFields(const ListOfFeaturesRef& features);

/// Lets the features follow the fields that are set. A field that already says what its feature
/// says changes nothing, so that a finer setting (colour "automatic" under "colour") survives; an
/// unknown number, a value that a constraint forbids, and a feature that is greyed or hidden as a
/// whole, leave it as it is: a program can set nothing that a person cannot.
/// @param inStep  the fields were written together with the settings that the features have now, so
///                a field that differs was changed since. It decides which of number, lengths and
///                name of the paper is meant. Without it the lengths come first and the name last.
void followPublicFields(const ListOfFeaturesRef& features, const PublicFields& fields, bool inStep);

/// The feature that a field stands for; null for a product without it.
OptionFeatureRef featureOf(const ListOfFeaturesRef& features, DocumentField field);

/// Lengths in tenths of a millimetre.
struct PaperSize
{
    int width = 0;
    int height = 0;
};

/// The size of a paper of this product. For papers without one in the package (custom sizes, a
/// roll) it is what the custom lengths say. Zeros when nothing is known of it.
PaperSize sizeOfPaper(const ListOfFeaturesRef& features, const ValueId& paper);

/// The smallest or the largest custom size; zeros for a product without custom sizes.
PaperSize customLimit(const ListOfFeaturesRef& features, bool largest);

} // namespace o7

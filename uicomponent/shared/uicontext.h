#pragma once

class FeatureServices;
class ProductData;
class ProductStringLoader;

/// What every object of one UI may ask for. Plain references: the UI manager owns the record, the
/// caller of the entry operation everything it names.
struct UIContext
{
    FeatureServices& featureServices;
    ProductStringLoader& strings;
    ProductData& productData;
};

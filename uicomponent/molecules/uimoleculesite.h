#pragma once

#include <windows.h>

class FeatureServices;
class ProductStringLoader;
class UIServices;
class UIValueWriter;

/// What a molecule needs from the page it stands on. Everything is borrowed and outlives it.
struct UIMoleculeSite
{
    UIServices& services;
    FeatureServices& featureServices;
    const ProductStringLoader& strings;
    UIValueWriter& valueWriter;
};

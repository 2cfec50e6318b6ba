#pragma once

#include <windows.h>

#include "listoffeaturesref.h"

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
    /// The list that the page or dialog works on: the job's, or one special page, one named paper.
    /// Molecules whose description says so look their features up in it.
    ListOfFeaturesRef features{};
};

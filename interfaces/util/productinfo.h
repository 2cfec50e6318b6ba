#pragma once
// ProductInfo: what is known of a product, as read from its package.

#include "cxstring.h"

#include <vector>

struct ProductInfo
{
    CXString id;                     ///< the name by which the product is chosen (its folder)
    CXString modelName;              ///< as shown to people
    CXString uniqueId;               ///< four-character code of the model family
    int controllerFamily = 0;        ///< a value enum, 8430 to 8434 for the known families
    std::vector<CXString> languages; ///< "en", "de" ...
    CXString helpFile;               ///< relative to the product folder, as the following
    CXString urlFile;
    CXString resourceFolder; ///< pictures
    bool validated = false;  ///< the package passed every check
};

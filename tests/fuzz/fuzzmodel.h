#pragma once

#include "datamodelfactory.h"

#include <memory>

namespace o7::fuzz {

/// Every text is its number.
class NumberStrings : public IStringSource
{
public:
    CXString LoadStringW(unsigned id) const override { return CXString::Formatted(L"#%u", id); }
};

/// The strings of all models here.
NumberStrings& Strings();

/// A small product with features of every kind.
const ProductPackage& Package();

/// Asks a model for everything it can answer, so that a broken one shows.
void WalkThrough(const IFeatureNode& list);

} // namespace o7::fuzz

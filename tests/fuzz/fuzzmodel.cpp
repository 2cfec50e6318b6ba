#include "fuzzmodel.h"

#include <cstdlib>
#include <vector>

namespace o7::fuzz {
namespace {

// The package fuzzer has the same text for a seed.
constexpr std::string_view kPackage = R"({"formatVersion":1,
"product":{"version":2,"id":"f","modelName":"F","uniqueId":"FUZZ","controllerFamily":8430,"languages":["en"]},
"features":[
{"enum":100,"name":"odrv-a","kind":"option","default":"x","flags":["userDefinedValues"],
 "options":[{"enum":6001,"name":"x"},{"enum":6002,"name":"y"}]},
{"enum":101,"name":"odrv-b","kind":"integer","default":1,"range":{"min":1,"max":99}},
{"enum":102,"name":"odrv-c","kind":"boolean","default":true},
{"enum":103,"name":"odrv-d","kind":"string","default":"","maxLength":8},
{"enum":104,"name":"odrv-e","kind":"range","default":[2,5],"range":{"min":1,"max":500}},
{"enum":105,"name":"odrv-f","kind":"dimension","unit":"mm","default":210,
 "range":{"min":98.4,"max":330.2}},
{"enum":106,"name":"odrv-g","kind":"list","features":[
 {"enum":107,"name":"odrv-h","kind":"integer","default":0,"range":{"min":-5,"max":5}}]},
{"enum":108,"name":"odrv-i","kind":"values","maxItems":3,"item":{"kind":"list","features":[
 {"enum":100,"name":"odrv-a","kind":"option","default":"x","options":[{"enum":6001,"name":"x"}]}],
 "constraints":[{"id":"k","when":[{"feature":"odrv-c","is":[true]}],
  "effect":{"feature":100,"kind":"disable"},"reason":60001}]}},
{"enum":109,"name":"odrv-j","kind":"resolution","default":[600,600,1]},
{"enum":110,"name":"odrv-k","kind":"string","maxLength":8,"flags":["secret"]},
{"enum":111,"name":"odrv-l","kind":"values","maxItems":1000,"item":{"kind":"list","features":[
 {"enum":112,"name":"odrv-m","kind":"string","default":"","maxLength":200,"former":[{"until":1,"enum":113}]}]}}],
"constraints":[{"id":"l","when":[{"feature":"odrv-b","compare":"less","value":3}],
 "effect":{"feature":"odrv-c","kind":"clear"},"reason":60000}]})";

} // namespace

NumberStrings& Strings()
{
    static NumberStrings strings;
    return strings;
}

const ProductPackage& Package()
{
    static const auto kLoaded = [] {
        std::vector<PackageError> errors;
        auto package = ParseProductPackage(kPackage, "fuzz.json", errors);
        if (!package)
            std::abort();
        return package;
    }();
    return *kLoaded;
}

void WalkThrough(const IFeatureNode& list)
{
    for (std::size_t i = 0; i < list.GetNumChildren(); ++i) {
        const auto child = list.GetChild(i);
        FeatureValue value;
        child->GetValue(value);
        const auto capabilities = child->GetCapabilities();
        const InterpretedState& state = capabilities->GetInterpretedState();
        const bool limited = state.IsDisabled() || state.IsCleared() || state.IsHidden();
        if (limited == state.GetReason().IsEmpty())
            std::abort();
        WalkThrough(*child);
    }
}

} // namespace o7::fuzz

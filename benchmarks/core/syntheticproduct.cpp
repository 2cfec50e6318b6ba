#include "syntheticproduct.h"

#include <algorithm>
#include <stdexcept>
#include <string>

namespace o7::bench {
namespace {

std::string FeatureText(int index)
{
    const std::string number = std::to_string(SyntheticProduct::kFirstFeature + index);
    std::string options;
    for (int option = 0; option < SyntheticProduct::kOptions; ++option) {
        options.append(option == 0 ? "" : ",").append("{\"enum\":");
        options.append(std::to_string(SyntheticProduct::kFirstValue + option));
        options.append(",\"name\":\"v").append(std::to_string(option)).append("\"}");
    }
    return "{\"enum\":" + number + ",\"name\":\"odrv-f" + number +
           "\",\"kind\":\"option\",\"default\":\"v0\",\"options\":[" + options + "]}";
}

std::string RuleText(int index, const SyntheticProduct::Rule& rule)
{
    return "{\"id\":\"c" + std::to_string(index) + "\",\"when\":[{\"feature\":" +
           std::to_string(SyntheticProduct::kFirstFeature + rule.cause) + ",\"is\":[\"v" +
           std::to_string(rule.causeValue) + "\"]}],\"effect\":{\"feature\":" +
           std::to_string(SyntheticProduct::kFirstFeature + rule.target) + ",\"options\":[\"v" +
           std::to_string(rule.targetValue) + "\"],\"kind\":\"disable\"},\"reason\":60000}";
}

} // namespace

SyntheticProduct::SyntheticProduct(int features, int constraints)
{
    std::string text = R"({"formatVersion":1,"product":{"id":"bench","modelName":"Bench",
        "uniqueId":"BNCH","controllerFamily":8430,"languages":["en"]},"features":[)";
    for (int i = 0; i < features; ++i)
        text.append(i == 0 ? "" : ",").append(FeatureText(i));
    text += "],\"constraints\":[";
    for (int i = 0; i < constraints; ++i) {
        // Each feature's rules lead to different ones. The last option is never disabled, so that a
        // change is never refused.
        const int round = i / features;
        const int step = 1 + (i * 7 + round * 131) % std::max(1, features - 1);
        m_rules.push_back(
            {i % features, 1 + round % 3, (i + step) % features, 1 + round / 3 % (kOptions - 2)});
        text.append(i == 0 ? "" : ",").append(RuleText(i, m_rules.back()));
    }
    text += "]}";
    std::vector<PackageError> errors;
    const auto package = ParseProductPackage(text, "bench.json", errors);
    if (!package)
        throw std::runtime_error(errors.front().ToString());
    m_model = CreateDataModel(*package, m_strings);
}

FeatureIdWithContext SyntheticProduct::Feature(int index) const
{
    return static_cast<DataModelIds::tagFeatureEnum>(kFirstFeature + index);
}

ValueId SyntheticProduct::Value(int option) const
{
    return static_cast<DataModelIds::tagValueEnum>(kFirstValue + option);
}

CXString SyntheticProduct::NoStrings::LoadStringW(unsigned id) const
{
    return CXString::Formatted(L"#%u", id);
}

} // namespace o7::bench

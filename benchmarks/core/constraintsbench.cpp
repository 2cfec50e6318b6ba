#include "measurements.h"
#include "report.h"
#include "syntheticproduct.h"

#include <algorithm>
#include <array>
#include <string>

namespace o7::bench {
namespace {

constexpr int kFeatures = 100;
constexpr int kConstraints = 300;
constexpr int kCalls = 20000;

/// The raw baseline: the same rules over plain numbers without an index, all looked at after each
/// change.
class PlainRules
{
public:
    explicit PlainRules(const std::vector<SyntheticProduct::Rule>& rules)
        : m_rules(rules), m_active(rules.size())
    {
    }

    void Change(int feature, int value)
    {
        m_values.at(static_cast<std::size_t>(feature)) = value;
        for (std::size_t i = 0; i < m_rules.size(); ++i)
            m_active[i] =
                m_values[static_cast<std::size_t>(m_rules[i].cause)] == m_rules[i].causeValue;
    }
    bool IsAnyActive() const
    {
        return std::find(m_active.begin(), m_active.end(), 1) != m_active.end();
    }

private:
    const std::vector<SyntheticProduct::Rule>& m_rules;
    std::array<int, kFeatures> m_values{};
    std::vector<char> m_active;
};

} // namespace

void MeasureConstraints(Report& report)
{
    SyntheticProduct product(kFeatures, kConstraints);
    std::vector<OptionFeatureRef> features;
    for (int i = 0; i < kFeatures; ++i)
        features.push_back(product.Model().GetOptionFeatureRef(product.Feature(i)));
    // Back and forth between the first option and the last, which nothing disables.
    const auto change = [&](int i) {
        const int option = i / kFeatures % 2 == 0 ? SyntheticProduct::kOptions - 1 : 0;
        features[static_cast<std::size_t>(i % kFeatures)].SetValue(product.Value(option));
    };

    Figure counted{"constraints", "evaluated / dependent", "per change", {}, {}, {}};
    counted.goal = {Goal::RatioAtMost, 1.0};
    for (int feature = 0; feature < kFeatures; ++feature) {
        const auto before = product.Model().GetEvaluationCount();
        change(feature);
        counted.runs.push_back(static_cast<double>(product.Model().GetEvaluationCount() - before));
        const auto& rules = product.Rules();
        counted.baseline.push_back(static_cast<double>(std::count_if(
            rules.begin(), rules.end(), [&](const auto& rule) { return rule.cause == feature; })));
    }
    report.add(counted);

    PlainRules plain(product.Rules());
    Figure timed{"constraints", "100 features, 300 rules", "ns/change", {}, {}, {}};
    for (int run = 0; run < kRuns; ++run) {
        timed.runs.push_back(NanosecondsPerCall(kCalls, [&](int i) { change(i + kFeatures); }));
        timed.baseline.push_back(NanosecondsPerCall(kCalls, [&](int i) {
            plain.Change(i % kFeatures,
                         i / kFeatures % 2 == 0 ? SyntheticProduct::kOptions - 1 : 0);
        }));
    }
    report.add(timed);
    // Asking keeps the compiler from leaving the baseline's work out.
    report.note(std::string("baseline: all rules over plain numbers, without an index; active: ") +
                (plain.IsAnyActive() ? "some" : "none"));
}

} // namespace o7::bench

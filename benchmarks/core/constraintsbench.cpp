#include "measurements.h"
#include "report.h"
#include "syntheticproduct.h"

#include <algorithm>
#include <string>

namespace o7::bench {
namespace {

struct Size
{
    int features;
    int constraints;
};

constexpr Size kSizes[] = {{50, 200}, {200, 1000}, {500, 5000}, {1000, 20000}};

/// Steps through all features again and again, in an order that no cache foresees better than a
/// person's: each time the first option against the last, which nothing disables.
struct Walk
{
    int features;

    int Feature(int call) const { return call * 7 % features; }
    int Option(int call) const
    {
        return call / features % 2 == 0 ? SyntheticProduct::kOptions - 1 : 0;
    }
};

/// The raw baseline: the same rules over plain numbers without an index, all looked at after each
/// change.
class PlainRules
{
public:
    PlainRules(const std::vector<SyntheticProduct::Rule>& rules, int features)
        : m_rules(rules), m_values(static_cast<std::size_t>(features)), m_active(rules.size())
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
    std::vector<int> m_values;
    std::vector<char> m_active;
};

std::string NameOf(const Size& size)
{
    return std::to_string(size.features) + " features, " + std::to_string(size.constraints) +
           " rules";
}

std::vector<OptionFeatureRef> FeaturesOf(SyntheticProduct& product, int count)
{
    std::vector<OptionFeatureRef> features;
    features.reserve(static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        features.push_back(product.Model().GetOptionFeatureRef(product.Feature(i)));
    return features;
}

void CountEvaluations(Report& report)
{
    constexpr Size kSize = kSizes[1];
    SyntheticProduct product(kSize.features, kSize.constraints);
    auto features = FeaturesOf(product, kSize.features);
    Figure counted{"constraints", "evaluated / dependent", "per change", {}, {}, {}};
    counted.goal = {Goal::RatioAtMost, 1.0};
    for (int feature = 0; feature < kSize.features; ++feature) {
        const auto before = product.Model().GetEvaluationCount();
        features[static_cast<std::size_t>(feature)].SetValue(product.Value(3));
        counted.runs.push_back(static_cast<double>(product.Model().GetEvaluationCount() - before));
        const auto& rules = product.Rules();
        counted.baseline.push_back(static_cast<double>(std::count_if(
            rules.begin(), rules.end(), [&](const auto& rule) { return rule.cause == feature; })));
    }
    report.add(counted);
}

/// One change with its cascade and its transaction.
Figure MeasureChange(const Size& size, bool& anyActive)
{
    constexpr int kCalls = 20000;
    SyntheticProduct product(size.features, size.constraints);
    auto features = FeaturesOf(product, size.features);
    PlainRules plain(product.Rules(), size.features);
    const Walk walk{size.features};
    Figure timed{"constraints", NameOf(size), "ns/change", {}, {}, {}};
    const int plainCalls = std::max(200, 4'000'000 / size.constraints / 10);
    for (int run = 0; run < kRuns; ++run) {
        timed.runs.push_back(NanosecondsPerCall(kCalls, [&](int i) {
            const auto transaction = product.Model().OpenTransaction();
            features[static_cast<std::size_t>(walk.Feature(i))].SetValue(
                product.Value(walk.Option(i)));
            transaction->Close(true);
        }));
        timed.baseline.push_back(NanosecondsPerCall(
            plainCalls, [&](int i) { plain.Change(walk.Feature(i), walk.Option(i)); }));
    }
    anyActive = anyActive || plain.IsAnyActive();
    return timed;
}

/// Asking what a change would break, and how that can be settled.
void MeasureConflicts(Report& report)
{
    constexpr Size kSize = kSizes[3];
    constexpr int kCalls = 5000;
    SyntheticProduct product(kSize.features, kSize.constraints);
    auto features = FeaturesOf(product, kSize.features);
    // One feature in four has chosen something, as far as that clashes with nothing; the others
    // are asked about.
    constexpr int kChosen = 4;
    for (std::size_t i = 0; i < features.size(); i += kChosen) {
        features[i].SetValue(product.Value(2));
        if (!product.Model().GetFeaturesInConflict().empty())
            features[i].SetValue(product.Value(0));
    }
    std::vector<SyntheticProduct::Rule> clashing;
    for (const auto& rule : product.Rules()) {
        const auto& target = features[static_cast<std::size_t>(rule.target)];
        if (rule.cause % kChosen != 0 && target.GetValue() == product.Value(rule.targetValue))
            clashing.push_back(rule);
    }
    std::size_t conflicts = 0;
    std::size_t alternatives = 0;
    int asked = 0;
    Figure timed{"constraints", "conflicts of a change, " + NameOf(kSize), "ns", {}, {}, {}};
    timed.goal = {Goal::ValueAtMost, 5000};
    for (int run = 0; run < kRuns; ++run) {
        timed.runs.push_back(NanosecondsPerCall(kCalls, [&](int i) {
            const auto& rule = clashing[static_cast<std::size_t>(i * 7) % clashing.size()];
            const auto proposal = product.Model().ProposeChange(product.Feature(rule.cause),
                                                                product.Value(rule.causeValue));
            conflicts += proposal.conflicts.size();
            alternatives += proposal.alternatives.size();
            ++asked;
        }));
    }
    report.add(timed);
    const auto each = [&](std::size_t count) {
        return std::to_string(static_cast<double>(count) / asked).substr(0, 4);
    };
    report.note(each(conflicts) + " conflicts and " + each(alternatives) +
                " alternatives for each change asked about");
}

void MeasureRollback(Report& report)
{
    constexpr Size kSize = kSizes[3];
    constexpr int kChanges = 10000;
    SyntheticProduct product(kSize.features, kSize.constraints);
    auto features = FeaturesOf(product, kSize.features);
    const Walk walk{kSize.features};
    Figure timed{"constraints", "taking back 10000 changes / making them", "ns/change", {}, {}, {}};
    timed.goal = {Goal::RatioAtMost, 1.5};
    for (int run = 0; run < kRuns; ++run) {
        const auto transaction = product.Model().OpenTransaction();
        timed.baseline.push_back(NanosecondsPerCall(kChanges, [&](int i) {
            features[static_cast<std::size_t>(walk.Feature(i))].SetValue(
                product.Value(walk.Option(i)));
        }));
        timed.runs.push_back(NanosecondsPerCall(1, [&](int) { transaction->Close(false); }) /
                             kChanges);
    }
    report.add(timed);
}

} // namespace

void MeasureConstraints(Report& report)
{
    CountEvaluations(report);
    bool anyActive = false;
    Figure smallest;
    Figure largest;
    for (const Size& size : kSizes) {
        Figure figure = MeasureChange(size, anyActive);
        if (&size == std::begin(kSizes))
            smallest = figure;
        if (&size == std::end(kSizes) - 1) {
            figure.goal = {Goal::ValueAtMost, 1000};
            largest = figure;
        }
        report.add(figure);
    }
    // Asking keeps the compiler from leaving the baseline's work out.
    report.note(std::string("baseline: all rules over plain numbers, without an index; active: ") +
                (anyActive ? "some" : "none"));
    largest.parameters = "largest model / smallest model";
    largest.baseline = smallest.runs;
    largest.goal = {Goal::RatioAtMost, 5};
    report.add(largest);
    MeasureConflicts(report);
    MeasureRollback(report);
}

} // namespace o7::bench

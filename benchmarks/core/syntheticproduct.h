#pragma once

#include "datamodelfactory.h"
#include "istringsource.h"

#include <chrono>
#include <memory>
#include <vector>

namespace o7::bench {

/// A made-up product: option features 100, 101, ... with four options each, and constraints spread
/// evenly over them, so that each feature is read by `constraints / features` of them.
class SyntheticProduct
{
public:
    static constexpr int kFirstFeature = 100;
    static constexpr int kFirstValue = 6000;
    static constexpr int kOptions = 4;

    /// One constraint as plain numbers: while `cause` has `causeValue`, one option of `target` is
    /// disabled. Counted from 0.
    struct Rule
    {
        int cause;
        int causeValue;
        int target;
        int targetValue;
    };

    SyntheticProduct(int features, int constraints);

    IDataModel& Model() { return *m_model; }
    const std::vector<Rule>& Rules() const { return m_rules; }
    /// Memory of the list of rules, which is no part of the model.
    std::size_t RuleBytes() const { return m_rules.capacity() * sizeof(Rule); }
    FeatureIdWithContext Feature(int index) const;
    ValueId Value(int option) const;

    class NoStrings : public IStringSource
    {
    public:
        CXString LoadStringW(unsigned id) const override;
    };

private:
    NoStrings m_strings;
    std::vector<Rule> m_rules;
    std::unique_ptr<IDataModel> m_model;
};

/// Nanoseconds per call of `action(i)`, over `calls` calls.
template <typename Action> double NanosecondsPerCall(int calls, const Action& action)
{
    const auto start = std::chrono::steady_clock::now();
    for (int i = 0; i < calls; ++i)
        action(i);
    const std::chrono::duration<double, std::nano> taken = std::chrono::steady_clock::now() - start;
    return taken.count() / calls;
}

} // namespace o7::bench

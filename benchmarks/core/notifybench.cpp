#include "measurements.h"
#include "report.h"
#include "syntheticproduct.h"

#include "notificationbundle.h"

#include <memory>

namespace o7::bench {
namespace {

class Counter : public IObserver
{
public:
    void ProcessNotification(const INotification&, unsigned int) override { ++m_calls; }
    long Calls() const { return m_calls; }

private:
    long m_calls = 0;
};

/// The cost of a change that `count` observers are told of, less that of one nobody is told of,
/// per observer; against calling the observers directly.
Figure MeasureObservers(int count)
{
    constexpr int kCalls = 5000;
    constexpr auto kAll = SettingsInstanceId(DataModelIds::kSettingsCurrent);
    SyntheticProduct product(2, 0);
    std::vector<std::unique_ptr<IObserver>> observers;
    for (int i = 0; i < count; ++i) {
        observers.push_back(std::make_unique<Counter>());
        product.Model().RegisterObserver(*observers.back(), kAll, product.Feature(0),
                                         DataModelIds::kObserverFeature);
    }
    auto watched = product.Model().GetOptionFeatureRef(product.Feature(0));
    auto unwatched = product.Model().GetOptionFeatureRef(product.Feature(1));
    const NotificationBundle bundle;
    Figure figure{"notify", std::to_string(count) + " observers", "ns/observer", {}, {}, {}};
    for (int run = 0; run < kRuns; ++run) {
        const double told =
            NanosecondsPerCall(kCalls, [&](int i) { watched.SetValue(product.Value(i % 2)); });
        const double silent =
            NanosecondsPerCall(kCalls, [&](int i) { unwatched.SetValue(product.Value(i % 2)); });
        figure.runs.push_back((told - silent) / count);
        figure.baseline.push_back(NanosecondsPerCall(kCalls,
                                                     [&](int) {
                                                         for (const auto& observer : observers)
                                                             observer->ProcessNotification(bundle,
                                                                                           0);
                                                     }) /
                                  count);
    }
    for (const auto& observer : observers)
        product.Model().UnregisterObserver(*observer, kAll, product.Feature(0),
                                           DataModelIds::kObserverFeature);
    return figure;
}

} // namespace

void MeasureNotify(Report& report)
{
    report.add(MeasureObservers(1));
    report.add(MeasureObservers(100));
    Figure thousand = MeasureObservers(1000);
    thousand.goal = {Goal::RatioAtMost, 2};
    report.add(thousand);
}

} // namespace o7::bench

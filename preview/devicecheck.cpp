#include "devicecheck.h"

#include <algorithm>
#include <memory>
#include <optional>
#include <set>

#include "listofvaluesref.h"
#include "optioncapability.h"
#include "rangecapability.h"

namespace o7 {
namespace {

using Node = IFeatureNode::Ptr;

std::string nameOf(const IFeatureNode& feature)
{
    return feature.GetId().Dump(false).ToUtf8();
}

std::string nameOf(const FeatureValue& value)
{
    const auto* option = std::get_if<ValueId>(&value);
    const auto* flag = std::get_if<bool>(&value);
    const auto* number = std::get_if<int>(&value);
    return option != nullptr   ? option->GetValueName().ToUtf8()
           : flag != nullptr   ? (*flag ? "true" : "false")
           : number != nullptr ? std::to_string(*number)
                               : "its value";
}

/// The values that there are to choose from; of a number its bounds.
std::vector<FeatureValue> valuesOf(const IFeatureNode& feature)
{
    std::vector<FeatureValue> values;
    const auto capabilities = feature.GetCapabilities();
    if (const auto* options = dynamic_cast<const OptionCapability*>(capabilities.get())) {
        for (std::size_t i = 0; i < options->GetNumberOfValues(); ++i) {
            values.emplace_back(options->GetOptionWithState(i).GetValueId());
        }
    } else if (feature.GetKind() == FeatureKind::Boolean) {
        values = {true, false};
    } else if (feature.GetKind() == FeatureKind::Integer) {
        int low = 0;
        int high = 0;
        const auto* range = dynamic_cast<const RangeCapability*>(capabilities.get());
        if (range != nullptr && range->GetRangeValues(low, high)) {
            values = {low, high};
        }
    }
    return values;
}

FeatureValue valueOf(const IFeatureNode& feature)
{
    FeatureValue value;
    feature.GetValue(value);
    return value;
}

bool isGrey(const InterpretedState& state)
{
    return (state.IsDisabled() || state.IsHidden()) && !state.IsCleared();
}

class DevicePlay
{
public:
    explicit DevicePlay(IDataModel& model) : m_model(model)
    {
        collect(*model.GetFullListOfFeatures().GetNode());
        model.CommitAccepted(); // with an item in each list
    }

    std::vector<std::string> run()
    {
        for (const Node& device : m_device) {
            const auto values = valuesOf(*device);
            for (const FeatureValue& before : values) {
                for (const FeatureValue& after : values) {
                    if (before != after) {
                        change(*device, before, after);
                    }
                }
            }
        }
        return std::move(m_findings);
    }

private:
    void collect(IFeatureNode& list)
    {
        for (std::size_t i = 0; i < list.GetNumChildren(); ++i) {
            const Node feature = list.GetChild(i);
            if (feature->GetKind() == FeatureKind::ListOfValues) {
                feature->CreateItem();
            }
            const auto capabilities = feature->GetCapabilities();
            if (!capabilities->IsStateOnlyFeature() && !capabilities->IsReadOnly()) {
                (capabilities->IsDeviceFeature() ? m_device : m_document).push_back(feature);
            }
            collect(*feature);
        }
    }

    /// Plays the settings that this change of the device greys as a whole.
    void change(IFeatureNode& device, const FeatureValue& before, const FeatureValue& after)
    {
        std::set<const IFeatureNode*> free;
        if (!start(device, before)) {
            return;
        }
        for (const Node& feature : m_document) {
            if (!isGrey(feature->GetCapabilities()->GetInterpretedState())) {
                free.insert(feature.get());
            }
        }
        device.SetValue(after);
        std::vector<Node> greyed;
        for (const Node& feature : m_document) {
            if (free.contains(feature.get()) && ruleOfTheDevice(*feature)) {
                greyed.push_back(feature);
            }
        }
        for (const Node& feature : greyed) {
            play(*feature, device, before, after);
        }
        m_model.RevertToAccepted();
    }

    bool start(IFeatureNode& device, const FeatureValue& value)
    {
        m_model.RevertToAccepted();
        return valueOf(device) == value || device.SetValue(value);
    }

    /// The rule that greys the feature as a whole and asks of nothing but the device.
    std::optional<std::string> ruleOfTheDevice(const IFeatureNode& feature)
    {
        if (!isGrey(feature.GetCapabilities()->GetInterpretedState())) {
            return std::nullopt;
        }
        for (const StateReason& reason : m_model.GetStateReasons(feature.GetId(), ValueId())) {
            const bool greys =
                reason.effect == EffectKind::Disable || reason.effect == EffectKind::Hide;
            const bool ofDevice = std::ranges::all_of(reason.causes, [&](const auto& cause) {
                return m_model.GetFeatureRef(cause)->GetCapabilities()->IsDeviceFeature();
            });
            if (greys && ofDevice) {
                return reason.id;
            }
        }
        return std::nullopt;
    }

    void play(IFeatureNode& feature, IFeatureNode& device, const FeatureValue& before,
              const FeatureValue& after)
    {
        start(device, after);
        const FeatureValue usual = valueOf(feature);
        for (const FeatureValue& value : valuesOf(feature)) {
            if (value == usual || !start(device, before) || !feature.SetValue(value)) {
                continue;
            }
            device.SetValue(after);
            const auto rule = ruleOfTheDevice(feature);
            const bool conflict = feature.GetCapabilities()->GetInterpretedState().HasCbrBtnMsg();
            if (rule && !conflict && valueOf(feature) == value &&
                m_told.insert(*rule + ' ' + nameOf(feature)).second) {
                m_findings.push_back(*rule + ": with " + nameOf(device) + " " + nameOf(after) +
                                     ", " + nameOf(feature) + " stays " + nameOf(value) +
                                     " and cannot be changed; let the rule force or clear it");
                return;
            }
        }
    }

    IDataModel& m_model; ///< borrowed
    std::vector<Node> m_device;
    std::vector<Node> m_document;
    std::set<std::string> m_told; ///< Rules with their features: each is told once.
    std::vector<std::string> m_findings;
};

} // namespace

std::vector<std::string> findValuesLeftInForce(const ProductPackage& package, IStringSource& texts)
{
    const auto model = CreateDataModel(package, texts);
    return DevicePlay(*model).run();
}

} // namespace o7

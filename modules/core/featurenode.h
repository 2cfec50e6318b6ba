#pragma once

#include "constraint.h"
#include "deliverylist.h"
#include "description.h"
#include "ifeaturenode.h"

#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace o7 {

class DataModel;
struct Registration;

/// One feature of the in-memory model. Owns its members or items; everything that changes it goes
/// through the model, which keeps transactions, constraints and observers in step.
class FeatureNode final : public IFeatureNode, public std::enable_shared_from_this<FeatureNode>
{
public:
    /// Model, parent and description are borrowed; the model calls Abandon() before it goes.
    FeatureNode(DataModel& model, FeatureNode* parent, const FeatureDescription& description,
                FeatureIdWithContext id);

    FeatureKind GetKind() const override;
    const FeatureIdWithContext& GetId() const override { return m_id; }
    bool IsSpecified() const override;
    bool SetIsSpecified(bool specified) override;
    bool GetValue(FeatureValue& value) const override;
    bool GetDefaultValue(FeatureValue& value) const override;
    bool SetValue(const FeatureValue& value) override;
    std::unique_ptr<CapabilitiesNode> GetCapabilities() const override;
    Ptr FindFeature(const FeatureId& feature) const override;
    Ptr FindFromTop(const FeatureIdWithContext& feature) const override;
    std::size_t GetNumChildren() const override;
    Ptr GetChild(std::size_t index) const override;
    FeatureKind GetItemKind() const override;
    Ptr CreateItem() override;
    bool DeleteItems(const std::vector<std::size_t>& indices) override;
    bool CopyFrom(const IFeatureNode& source) override;
    bool RestoreToDefaultValue() override;
    void ReportUnsupported() const override {}

    // For the rest of the module.
    const FeatureDescription& Description() const { return *m_description; }
    FeatureNode* Parent() const { return m_parent; }
    /// It, or a list around it, reports a state of the device.
    bool IsStateOnly() const { return m_stateOnly; }
    std::vector<std::shared_ptr<FeatureNode>>& Children() { return m_children; }
    const std::vector<std::shared_ptr<FeatureNode>>& Children() const { return m_children; }

    /// The member of this list with this number or name, or the item with this key; null otherwise.
    FeatureNode* FindChild(const FeatureId& feature) const;

    /// What is stored, whether specified or not.
    const FeatureValue& StoredValue() const { return m_value; }
    bool StoredSpecified() const { return m_specified; }
    /// Whether it has the default, whatever that becomes; of use only where defaults adapt.
    bool FollowsDefault() const { return m_followsDefault; }
    void Store(FeatureValue value, bool specified, bool followsDefault);
    /// What a governing setting makes of it meanwhile; monostate: nothing does.
    const FeatureValue& ForcedValue() const { return m_forced; }
    bool IsForced() const { return m_forced.index() != 0; }
    void Force(FeatureValue value);
    /// What holds: what is forced, else what is stored.
    const FeatureValue& PresentValue() const { return IsForced() ? m_forced : m_value; }
    bool PresentSpecified() const { return m_specified || IsForced(); }
    unsigned PresentCode() const { return IsForced() ? m_forcedCode : m_code; }
    /// The value is given away; Store() has to follow.
    FeatureValue Release() { return std::move(m_value); }
    /// What the default is now; monostate: unspecified.
    const FeatureValue& CurrentDefault() const;
    bool HasStored(const FeatureValue& value, bool specified) const
    {
        return m_specified == specified && m_value == value;
    }

    /// What constraints read: null without a value (unspecified or cleared); an unspecified option
    /// feature counts as having value 5001.
    const FeatureValue* EffectiveValue() const;
    /// Cleared as a whole, with a list around it, or its present value.
    bool IsCleared() const;

    /// Whether the values have codes, and the code of what is read.
    bool IsCoded() const { return m_coded; }
    unsigned EffectiveCode() const;

    /// Active constraints disable, clear or hide the feature, or a list around it, as a whole.
    bool IsLimitedWhole() const;
    /// What is chosen for it counts for nothing now: limited as a whole, or cleared.
    bool IsIdle() const;
    /// It needs a value: always, or because an active constraint says so.
    bool IsRequired() const;
    /// An active constraint keeps this value from being chosen.
    bool IsBlocked(const FeatureValue& value) const;
    /// Active constraints leave nothing to choose but what it has.
    bool IsLastChoice() const;

    /// Builds the members below a list; for a list of values builds nothing.
    void BuildMembers();
    /// A new item for this list of values, not yet in it: with the key that a former one had, or
    /// (SettingsSnapshot::kNewItem) with one that none had.
    std::shared_ptr<FeatureNode> MakeItem(int key);

    /// Detached nodes (deleted items) answer as unsupported until they are attached again.
    void SetAttached(bool attached);
    /// The model is going: from now on the node is unsupported for good.
    void Abandon();

    /// A condition that reads this feature.
    struct Reader
    {
        Constraint* constraint;
        std::uint64_t holdsFor; ///< Codes, where the feature has them.
        std::uint32_t condition;
        bool holds;
        bool changes; ///< In the round of questions under way.
    };

    /// An active constraint with this target, and what is often asked of it.
    struct ActiveEffect
    {
        Constraint* constraint;
        std::uint64_t codes; ///< That it affects, where the feature has codes.
        bool whole;
        bool blocks;
        bool hit; ///< As in the constraint.
    };

    // Links kept by the constraint engine, the change log and the notifier.
    std::vector<Reader> readers;
    std::vector<Constraint*> defaultRows; ///< In their order.
    std::vector<Constraint*> effects;     ///< All constraints with this feature as target.
    std::vector<std::unique_ptr<Constraint>> constraints; ///< Those declared here.
    std::unique_ptr<DeliveryList> delivery;               ///< Null until somebody registered.
    std::vector<FeatureValue> choices;                    ///< Kept by Choices().
    unsigned activeClears = 0;                            ///< How many of the active effects clear.
    unsigned wholeLimits = 0;                             ///< How many of them limit it whole.
    unsigned rank = 0;        ///< Above those whose clearing or value can change this one's.
    bool isWayOut = false;    ///< A reason that was read sends the person to it.
    bool isLinked = false;    ///< The engine knows it and its constraints.
    bool isPending = false;   ///< Its readers have to look again.
    bool isUnsettled = false; ///< Its default, or what is forced, may have changed.

    // One line of memory for what a change of another feature touches here.
    alignas(64) std::vector<ActiveEffect> activeEffects; ///< In no order.
    std::vector<std::shared_ptr<Registration>> registrations;
    std::uint64_t dirtyLevel = 0; ///< Transaction level that has this node noted as changed ...
    std::uint32_t dirtyIndex = 0; ///< ... and where in its list.

private:
    bool m_specified = true;
    bool m_followsDefault = false;
    bool m_coded = false;
    bool m_stateOnly = false;
    std::uint8_t m_code = 0;
    std::uint8_t m_forcedCode = 0;

    bool IsAlive() const { return m_model != nullptr && m_attached; }

    DataModel* m_model;
    FeatureNode* m_parent;
    const FeatureDescription* m_description;
    FeatureIdWithContext m_id;
    std::vector<std::shared_ptr<FeatureNode>> m_children;
    FeatureValue m_value;
    FeatureValue m_forced;
    bool m_attached = true;
    int m_nextItem = 0;
};

} // namespace o7

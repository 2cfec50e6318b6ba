#include "featurenode.h"

#include "datamodel.h"
#include "settingssnapshot.h"
#include "unsupportednode.h"
#include "valuecode.h"

#include <algorithm>
#include <utility>

namespace o7 {
namespace {

/// What a feature holds before it was ever specified.
FeatureValue InitialValue(const FeatureDescription& description)
{
    if (description.defaultValue.index() != 0)
        return description.defaultValue;
    const int lowest = description.ranges.empty() ? 0 : description.ranges.front().GetLowerBound();
    switch (description.kind) {
    case FeatureKind::Option:
        for (const OptionDescription& option : description.options) {
            if (option.number != DataModelIds::kValueUnspecified)
                return ValueId(option.number, description.Id(), option.name, CXString());
        }
        break;
    case FeatureKind::Integer:
        return lowest;
    case FeatureKind::String:
        return CXString();
    case FeatureKind::Boolean:
        return false;
    case FeatureKind::Range:
        return RangeOfInteger(lowest, lowest);
    case FeatureKind::Dimension:
        return description.limits ? description.limits->first : Dimension(0, *description.units);
    case FeatureKind::Resolution:
    case FeatureKind::ListOfFeatures:
    case FeatureKind::ListOfValues:
    case FeatureKind::Unsupported:
        break;
    }
    return {};
}

bool IsList(FeatureKind kind)
{
    return kind == FeatureKind::ListOfFeatures || kind == FeatureKind::ListOfValues;
}

const FeatureValue& UnspecifiedOption()
{
    static const FeatureValue kValue = ValueId(DataModelIds::kValueUnspecified);
    return kValue;
}

} // namespace

FeatureNode::FeatureNode(DataModel& model, FeatureNode* parent,
                         const FeatureDescription& description, FeatureIdWithContext id)
    : m_followsDefault(!description.defaults.empty()),
      m_coded(HasCodes(description)),
      m_stateOnly(description.flags.stateOnly || (parent != nullptr && parent->m_stateOnly)),
      m_model(&model),
      m_parent(parent),
      m_description(&description),
      m_id(std::move(id))
{
    Store(InitialValue(description),
          IsList(description.kind) || description.defaultValue.index() != 0, m_followsDefault);
}

FeatureKind FeatureNode::GetKind() const
{
    return IsAlive() ? m_description->kind : FeatureKind::Unsupported;
}

bool FeatureNode::IsSpecified() const
{
    return IsAlive() && PresentSpecified();
}

bool FeatureNode::SetIsSpecified(bool specified)
{
    return IsAlive() && m_model->SetSpecified(*this, specified);
}

bool FeatureNode::GetValue(FeatureValue& value) const
{
    if (!IsAlive() || IsList(m_description->kind))
        return false;
    const bool option = m_description->kind == FeatureKind::Option;
    if (!PresentSpecified() && !option)
        return false;
    const FeatureValue& present = PresentSpecified() ? PresentValue() : UnspecifiedOption();
    value = option ? m_model->Interpreter().Complete(*this, std::get<ValueId>(present)) : present;
    return value.index() != 0;
}

bool FeatureNode::GetDefaultValue(FeatureValue& value) const
{
    if (!IsAlive() || IsList(m_description->kind))
        return false;
    value = CurrentDefault();
    // With its own value at the default, restoring it would leave what is forced.
    if (IsForced() && HasStored(value.index() != 0 ? value : m_value, value.index() != 0))
        value = m_forced;
    if (m_description->kind == FeatureKind::Option) {
        const auto& found = value.index() != 0 ? value : UnspecifiedOption();
        value = m_model->Interpreter().Complete(*this, std::get<ValueId>(found));
    }
    return value.index() != 0;
}

bool FeatureNode::SetValue(const FeatureValue& value)
{
    return IsAlive() && m_model->SetValue(*this, value);
}

std::unique_ptr<CapabilitiesNode> FeatureNode::GetCapabilities() const
{
    return IsAlive() ? m_model->Capabilities(*this) : nullptr;
}

IFeatureNode::Ptr FeatureNode::FindFeature(const FeatureId& feature) const
{
    auto* child = IsAlive() ? FindChild(feature) : nullptr;
    if (child != nullptr)
        return child->shared_from_this();
    return std::make_shared<UnsupportedNode>(
        m_parent != nullptr ? FeatureIdWithContext(m_id, feature) : FeatureIdWithContext(feature));
}

IFeatureNode::Ptr FeatureNode::FindFromTop(const FeatureIdWithContext& feature) const
{
    auto* found = IsAlive() ? m_model->FindNode(feature) : nullptr;
    if (found != nullptr)
        return found->shared_from_this();
    return std::make_shared<UnsupportedNode>(feature);
}

std::size_t FeatureNode::GetNumChildren() const
{
    return IsAlive() ? m_children.size() : 0;
}

IFeatureNode::Ptr FeatureNode::GetChild(std::size_t index) const
{
    return index < GetNumChildren() ? m_children[index] : nullptr;
}

FeatureKind FeatureNode::GetItemKind() const
{
    return IsAlive() && m_description->item ? m_description->item->kind : FeatureKind::Unsupported;
}

IFeatureNode::Ptr FeatureNode::CreateItem()
{
    return IsAlive() ? m_model->CreateItem(*this) : nullptr;
}

bool FeatureNode::DeleteItems(const std::vector<std::size_t>& indices)
{
    return IsAlive() && m_model->DeleteItems(*this, indices);
}

bool FeatureNode::CopyFrom(const IFeatureNode& source)
{
    return IsAlive() && m_model->CopyFrom(*this, source);
}

bool FeatureNode::RestoreToDefaultValue()
{
    return IsAlive() && m_model->RestoreToDefault(*this);
}

FeatureNode* FeatureNode::FindChild(const FeatureId& feature) const
{
    // An item is named by its list's id and a key; elsewhere the key must agree (there is none).
    if (m_description->kind == FeatureKind::ListOfValues) {
        for (const auto& child : m_children) {
            if (child->m_id.GetFeatureId().GetItem() == feature.GetItem())
                return child.get();
        }
        return nullptr;
    }
    if (feature.GetItem() != FeatureId::kNoItem || !m_description->list)
        return nullptr;
    if (feature.GetFeatureEnum() != DataModelIds::kFeatureByName) {
        const std::size_t index = m_description->list->IndexOf(feature.GetFeatureEnum());
        return index < m_children.size() ? m_children[index].get() : nullptr;
    }
    for (const auto& child : m_children) {
        if (child->m_id.GetFeatureId() == feature)
            return child.get();
    }
    return nullptr;
}

void FeatureNode::Store(FeatureValue value, bool specified, bool followsDefault)
{
    m_value = std::move(value);
    m_specified = specified;
    m_followsDefault = followsDefault;
    if (m_coded)
        m_code = static_cast<std::uint8_t>(CodeOf(*m_description, m_value));
}

void FeatureNode::Force(FeatureValue value)
{
    m_forced = std::move(value);
    if (m_coded)
        m_forcedCode = static_cast<std::uint8_t>(CodeOf(*m_description, m_forced));
}

const FeatureValue& FeatureNode::CurrentDefault() const
{
    for (const Constraint* row : defaultRows) {
        if (row->active)
            return m_description->defaults[static_cast<std::size_t>(row->defaultRow)].value;
    }
    return m_description->defaultValue;
}

bool FeatureNode::IsCleared() const
{
    const bool here =
        activeClears != 0 &&
        std::any_of(activeEffects.begin(), activeEffects.end(), [&](const auto& effect) {
            return effect.constraint->kind == EffectKind::Clear &&
                   (effect.whole || effect.constraint->Affects(PresentValue()));
        });
    return here || (m_parent != nullptr && m_parent->IsCleared());
}

const FeatureValue* FeatureNode::EffectiveValue() const
{
    if (IsCleared())
        return nullptr;
    if (PresentSpecified())
        return &PresentValue();
    return m_description->kind == FeatureKind::Option ? &UnspecifiedOption() : nullptr;
}

unsigned FeatureNode::EffectiveCode() const
{
    if (IsCleared())
        return kCodeNothing;
    if (PresentSpecified())
        return PresentCode();
    return m_description->kind == FeatureKind::Option ? CodeOf(*m_description, UnspecifiedOption())
                                                      : kCodeNothing;
}

bool FeatureNode::IsLimitedWhole() const
{
    return wholeLimits != 0 || (m_parent != nullptr && m_parent->IsLimitedWhole());
}

bool FeatureNode::IsIdle() const
{
    return IsLimitedWhole() || IsCleared();
}

bool FeatureNode::IsRequired() const
{
    const auto requires_ = [](const ActiveEffect& effect) {
        return effect.constraint->kind == EffectKind::Require;
    };
    return m_description->flags.required ||
           (std::any_of(activeEffects.begin(), activeEffects.end(), requires_) && !IsIdle());
}

bool FeatureNode::IsLastChoice() const
{
    const bool flag = m_description->kind == FeatureKind::Boolean;
    if (!m_coded || !PresentSpecified())
        return false;
    std::uint64_t blocked = 0;
    for (const ActiveEffect& effect : activeEffects)
        blocked |= !effect.whole && effect.blocks ? effect.codes : 0;
    unsigned left = 0;
    const std::size_t values = flag ? 2 : m_description->options.size();
    for (unsigned code = 0; code < values; ++code)
        left += IsInMask(blocked, code) ? 0 : 1;
    return blocked != 0 && left == 1 && !IsInMask(blocked, PresentCode());
}

bool FeatureNode::IsBlocked(const FeatureValue& value) const
{
    const unsigned code = m_coded ? CodeOf(*m_description, value) : 0;
    return std::any_of(activeEffects.begin(), activeEffects.end(), [&](const auto& effect) {
        return !effect.whole && effect.blocks &&
               (m_coded ? IsInMask(effect.codes, code) : effect.constraint->Affects(value));
    });
}

void FeatureNode::BuildMembers()
{
    if (!m_description->list)
        return;
    m_children.reserve(m_description->list->features.size());
    for (const FeatureDescription& member : m_description->list->features) {
        auto id = m_parent != nullptr ? FeatureIdWithContext(m_id, member.Id())
                                      : FeatureIdWithContext(member.Id());
        m_children.push_back(std::make_shared<FeatureNode>(*m_model, this, member, std::move(id)));
        m_children.back()->BuildMembers();
    }
}

std::shared_ptr<FeatureNode> FeatureNode::MakeItem(int key)
{
    const int number = key == SettingsSnapshot::kNewItem ? m_nextItem : key;
    FeatureIdWithContext id = m_id;
    id.SetFeatureId(FeatureId(m_description->number, m_description->name, number));
    m_nextItem = std::max(m_nextItem, number + 1);
    auto item = std::make_shared<FeatureNode>(*m_model, this, *m_description->item, std::move(id));
    item->BuildMembers();
    return item;
}

void FeatureNode::SetAttached(bool attached)
{
    m_attached = attached;
    for (const auto& child : m_children)
        child->SetAttached(attached);
}

void FeatureNode::Abandon()
{
    m_model = nullptr;
    for (const auto& child : m_children)
        child->Abandon();
}

} // namespace o7

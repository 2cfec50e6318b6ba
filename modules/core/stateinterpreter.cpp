#include "stateinterpreter.h"

#include "choices.h"
#include "listoffeaturescapability.h"
#include "openranges.h"
#include "rangecapability.h"
#include "rangeofdimensioncapability.h"
#include "stringcapability.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string>
#include <utility>

namespace o7 {
namespace {

/// Puts texts in place of {0} to {3}; what was put in is not looked at again.
CXString FillIn(const CXString& pattern, const std::array<CXString, 4>& texts)
{
    std::wstring filled;
    const std::wstring_view from = pattern.View();
    for (std::size_t i = 0; i < from.size(); ++i) {
        const bool placeholder = from[i] == L'{' && i + 2 < from.size() && from[i + 2] == L'}' &&
                                 from[i + 1] >= L'0' && from[i + 1] <= L'3';
        if (placeholder) {
            filled += texts[static_cast<std::size_t>(from[i + 1] - L'0')].View();
            i += 2;
        } else {
            filled += from[i];
        }
    }
    return CXString(std::wstring_view(filled));
}

/// What a constraint does to the item it affects as a whole: a feature, or one option.
void AddEffect(EffectKind kind, const CXString& reason, InterpretedState& state)
{
    switch (kind) {
    case EffectKind::Disable:
    case EffectKind::Force:
        state.Disable(reason);
        state.AddInfo(reason);
        break;
    case EffectKind::Clear:
        state.Disable(reason);
        state.Clear(reason);
        state.AddInfo(reason);
        break;
    case EffectKind::Hide:
        state.Hide(reason);
        break;
    case EffectKind::Info:
    case EffectKind::Require:
        state.AddInfo(reason);
        break;
    case EffectKind::Conflict:
        state.AddConflict(reason);
        break;
    }
}

/// The units that the person has chosen for lengths; nothing: as in the system.
std::optional<bool> IsMetric(const FeatureNode& feature)
{
    constexpr auto kUnits = static_cast<FeatureEnum>(3047);
    constexpr auto kMillimetres = static_cast<ValueEnum>(5230);
    constexpr auto kInches = static_cast<ValueEnum>(5231);
    const FeatureNode* top = &feature;
    while (top->Parent() != nullptr)
        top = top->Parent();
    const FeatureNode* units = top->FindChild(FeatureId(kUnits));
    const auto* value = units != nullptr ? units->EffectiveValue() : nullptr;
    const auto* chosen = value != nullptr ? std::get_if<ValueId>(value) : nullptr;
    if (chosen == nullptr ||
        (chosen->GetValueEnum() != kMillimetres && chosen->GetValueEnum() != kInches))
        return {};
    return chosen->GetValueEnum() == kMillimetres;
}

/// Whether a person can give the feature of a condition a value with which it no longer holds.
bool IsOpen(const Constraint::Cause& cause)
{
    FeatureNode& feature = *cause.feature;
    feature.isWayOut = true;
    if (!IsPersons(feature) || feature.IsLimitedWhole())
        return false;
    const auto& choices = Choices(feature);
    return std::any_of(choices.begin(), choices.end(), [&](const FeatureValue& value) {
        return value.index() != 0 && IsFree(feature, value) && !cause.test.Matches(value);
    });
}

/// In "Reason.{?0} Way out." what follows the mark stays only while the numbered condition can be
/// lifted.
CXString WithOpenWayOut(const CXString& text, const Constraint& constraint)
{
    constexpr std::wstring_view kMark = L"{?";
    constexpr std::size_t kLength = 4;
    const std::wstring_view whole = text.View();
    const std::size_t at = whole.find(kMark);
    if (at == std::wstring_view::npos || at + kLength > whole.size())
        return text;
    const auto number = static_cast<std::size_t>(whole[at + kMark.size()] - L'0');
    std::wstring shown(whole.substr(0, at));
    if (number >= constraint.when.size() || IsOpen(constraint.when[number]))
        shown += whole.substr(at + kLength);
    return CXString(std::wstring_view(shown));
}

/// The numbers that can be chosen now.
std::vector<RangeOfInteger> OpenNumbers(const FeatureNode& feature)
{
    std::vector<NumberRange> all;
    for (const RangeOfInteger& range : feature.Description().ranges)
        all.push_back({range.GetLowerBound(), range.GetUpperBound()});
    std::vector<RangeOfInteger> open;
    for (const NumberRange& range : OpenRanges(feature, std::move(all)))
        open.emplace_back(static_cast<int>(range.low), static_cast<int>(range.high));
    return open;
}

/// The same for lengths, from the shortest to the longest.
std::unique_ptr<CapabilitiesNode> LengthCapability(const FeatureNode& feature,
                                                   const CapabilitiesNode& base)
{
    const FeatureDescription& description = feature.Description();
    if (!description.limits)
        return std::make_unique<RangeOfDimensionCapability>(base);
    const auto& [low, high] = *description.limits;
    const auto open = OpenRanges(feature, {{low.GetCount(), high.GetCount()}});
    return std::make_unique<RangeOfDimensionCapability>(
        base, Dimension::FromCount(open.front().low, low.GetUnits()),
        Dimension::FromCount(open.back().high, high.GetUnits()), std::pair(low, high));
}

} // namespace

std::vector<const Constraint*> ActiveInOrder(const FeatureNode& feature)
{
    std::vector<const Constraint*> active;
    for (const auto& effect : feature.activeEffects)
        active.push_back(effect.constraint);
    std::sort(active.begin(), active.end(), ComesBefore);
    return active;
}

const CXString& StateInterpreter::Text(unsigned number)
{
    const auto known = m_texts.find(number);
    if (known != m_texts.end())
        return known->second;
    return m_texts.emplace(number, m_strings.LoadStringW(number)).first->second;
}

CXString StateInterpreter::FeatureName(const FeatureNode& feature)
{
    return Text(kFeatureStringBase + static_cast<unsigned>(feature.Description().number));
}

ValueId StateInterpreter::Complete(const FeatureNode& feature, const ValueId& value)
{
    const FeatureId& id = feature.GetId().GetFeatureId();
    if (value.GetValueEnum() == DataModelIds::kValueFirstUserText &&
        !value.GetValueName().IsEmpty()) {
        bool listed = false;
        for (const OptionDescription& option : feature.Description().options)
            listed = listed || option.number == value.GetValueEnum();
        if (!listed)
            return ValueId(value.GetValueEnum(), id, value.GetValueName(), value.GetValueName());
    }
    CXString name = value.GetValueName();
    for (const OptionDescription& option : feature.Description().options) {
        if (option.number == value.GetValueEnum())
            name = option.name;
    }
    return ValueId(value.GetValueEnum(), id, name,
                   Text(kValueStringBase + static_cast<unsigned>(value.GetValueEnum())));
}

CXString StateInterpreter::ValueText(const FeatureNode& feature, const FeatureValue& value)
{
    if (const auto* option = std::get_if<ValueId>(&value))
        return Complete(feature, *option).GetDisplayString();
    if (const auto* number = std::get_if<int>(&value))
        return Number(*number).GetStringValue();
    if (const auto* text = std::get_if<CXString>(&value))
        return *text;
    if (const auto* length = std::get_if<Dimension>(&value))
        return LengthText(feature, *length);
    return {};
}

CXString StateInterpreter::LengthText(const FeatureNode& feature, const Dimension& length) const
{
    const bool metric = IsMetric(feature).value_or(m_lengths.metric);
    const auto units = metric ? Dimension::UnitsEnum::Millimetre : Dimension::UnitsEnum::Inch;
    // A no-break space keeps number and unit together.
    return length.GetStringValue(units, metric ? 1 : 2, m_lengths.decimalSeparator, true) +
           L"\u00a0" + (metric ? m_lengths.millimetre : m_lengths.inch);
}

CXString StateInterpreter::AffectedText(const Constraint& constraint)
{
    CXString all;
    std::vector<FeatureValue> values = constraint.affected.values;
    // Of options "none of these" means all others.
    if (constraint.affected.comparison == DataModelIds::kNotEqual) {
        values.clear();
        for (const OptionDescription& option : constraint.target->Description().options) {
            if (constraint.Affects(ValueId(option.number)))
                values.emplace_back(ValueId(option.number));
        }
    }
    for (const FeatureValue& value : values) {
        const CXString text = ValueText(*constraint.target, value);
        if (!all.IsEmpty() && !text.IsEmpty())
            all += L", ";
        all += text;
    }
    return all;
}

CXString StateInterpreter::Reason(const Constraint& constraint, const ValueId* option)
{
    const FeatureNode& cause = *constraint.when.front().feature;
    CXString reason = WithOpenWayOut(Text(constraint.reason), constraint);
    // Most reasons are whole sentences.
    if (reason.View().find(L'{') != std::wstring_view::npos)
        reason = FillIn(
            reason, {FeatureName(cause), FeatureName(*constraint.target),
                     ValueText(cause, cause.PresentSpecified()
                                          ? cause.PresentValue()
                                          : FeatureValue(ValueId(DataModelIds::kValueUnspecified))),
                     option != nullptr ? Complete(*constraint.target, *option).GetDisplayString()
                                       : AffectedText(constraint)});
    // A translation may hold an empty text; a reason is never empty.
    return reason.IsBlank() ? CXString::Formatted(L"#%u", constraint.reason) : reason;
}

FeatureValue StateInterpreter::Shown(const FeatureNode& feature, const FeatureValue& value)
{
    const auto* option = std::get_if<ValueId>(&value);
    return option != nullptr ? FeatureValue(Complete(feature, *option)) : value;
}

FeatureValue StateInterpreter::ShownPresent(const FeatureNode& feature)
{
    return feature.PresentSpecified() ? Shown(feature, feature.PresentValue()) : FeatureValue();
}

void StateInterpreter::AddValueEffect(const FeatureNode& feature, const Constraint& constraint,
                                      InterpretedState& state)
{
    const FeatureValue& value = feature.PresentValue();
    const bool hit = constraint.hit;
    const auto* option = std::get_if<ValueId>(&value);
    if (hit) {
        const CXString reason = Reason(constraint, option);
        // The user's own choice is one that another choice rules out.
        if (constraint.IsBroken())
            state.AddConflict(reason);
        if (constraint.kind == EffectKind::Clear)
            state.Clear(reason);
        if (constraint.kind == EffectKind::Info || constraint.kind == EffectKind::Clear)
            state.AddInfo(reason);
        return;
    }
    if (constraint.kind == EffectKind::Disable || constraint.kind == EffectKind::Clear)
        state.AddInfo(Reason(constraint));
    if (constraint.Blocks() && feature.IsLastChoice())
        state.Disable(Reason(constraint));
}

InterpretedState StateInterpreter::FeatureState(const FeatureNode& feature)
{
    InterpretedState state;
    const auto add = [&](const Constraint& constraint) {
        // What counts for nothing is in no conflict.
        if (constraint.kind != EffectKind::Conflict || !feature.IsIdle())
            AddEffect(constraint.kind, Reason(constraint), state);
    };
    if (IsLocked(feature))
        AddEffect(EffectKind::Disable, LockReason(), state);
    for (const Constraint* constraint : ActiveInOrder(feature)) {
        if (constraint->whole)
            add(*constraint);
        else
            AddValueEffect(feature, *constraint, state);
    }
    for (const FeatureNode* list = feature.Parent(); list != nullptr; list = list->Parent()) {
        for (const Constraint* constraint : ActiveInOrder(*list))
            add(*constraint);
    }
    return state;
}

InterpretedState StateInterpreter::OptionState(const FeatureNode& feature, const ValueId& option)
{
    return OptionState(ActiveInOrder(feature), option);
}

InterpretedState StateInterpreter::OptionState(const std::vector<const Constraint*>& active,
                                               const ValueId& option)
{
    InterpretedState state;
    for (const Constraint* constraint : active) {
        if (!constraint->whole && constraint->Affects(option))
            AddEffect(constraint->kind, Reason(*constraint, &option), state);
    }
    return state;
}

InterpretedState StateInterpreter::UnspecifiedState(const FeatureNode& feature,
                                                    const InterpretedState& state)
{
    InterpretedState unspecified = OptionState(feature, ValueId(DataModelIds::kValueUnspecified));
    if (state.IsDisabled())
        unspecified.Disable(state.GetReason());
    if (feature.IsRequired())
        unspecified.Disable(FeatureName(feature));
    return unspecified;
}

std::unique_ptr<CapabilitiesNode> StateInterpreter::Capabilities(const FeatureNode& feature)
{
    const FeatureDescription& description = feature.Description();
    const InterpretedState state = FeatureState(feature);
    CapabilityFlags flags = description.flags;
    flags.required = feature.IsRequired();
    auto base = std::make_unique<CapabilitiesNode>(flags, state, UnspecifiedState(feature, state));
    switch (description.kind) {
    case FeatureKind::Option:
        return OptionCapabilities(feature, *base);
    case FeatureKind::Integer:
        return std::make_unique<RangeCapability>(*base, OpenNumbers(feature), description.units,
                                                 description.ranges);
    case FeatureKind::Range:
        return std::make_unique<RangeCapability>(*base, description.ranges, description.units);
    case FeatureKind::Dimension:
        return LengthCapability(feature, *base);
    case FeatureKind::ListOfFeatures: {
        std::vector<JobTicketTravel> travel;
        for (const FeatureDescription& member : description.list->features)
            travel.push_back({member.Id(), member.IsKept() && member.savedInTicket,
                              member.IsKept() && member.loadedFromTicket});
        return std::make_unique<ListOfFeaturesCapability>(*base, std::move(travel));
    }
    case FeatureKind::String:
        return std::make_unique<StringCapability>(*base, description.maxLength);
    case FeatureKind::Boolean:
    case FeatureKind::Resolution:
    case FeatureKind::ListOfValues:
    case FeatureKind::Unsupported:
        break;
    }
    return base;
}

std::unique_ptr<CapabilitiesNode> StateInterpreter::OptionCapabilities(const FeatureNode& feature,
                                                                       const CapabilitiesNode& base)
{
    const FeatureDescription& description = feature.Description();
    std::vector<OptionWithState> options;
    options.reserve(description.options.size() + 1);
    const auto active = ActiveInOrder(feature);
    bool currentListed = false;
    for (const OptionDescription& option : description.options) {
        const ValueId value = Complete(feature, ValueId(option.number));
        std::optional<MediaSize> size;
        if (option.size)
            size = MediaSize{option.size->first, option.size->second};
        options.emplace_back(value, OptionState(active, value), size);
        currentListed = currentListed || FeatureValue(value) == feature.PresentValue();
    }
    // The user's own value has to be in the list that shows it as chosen.
    const auto* current = std::get_if<ValueId>(&feature.PresentValue());
    if (!currentListed && description.userDefinedValues && feature.PresentSpecified() &&
        current != nullptr) {
        const ValueId value = Complete(feature, *current);
        options.emplace_back(value, OptionState(active, value));
    }
    return std::make_unique<OptionCapability>(base, std::move(options),
                                              description.userDefinedValues);
}

} // namespace o7

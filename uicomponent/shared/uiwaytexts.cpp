#include "uiwaytexts.h"

#include <algorithm>
#include <string>

#include "featureservices.h"
#include "integerfeatureref.h"
#include "uistringnumbers.h"
#include "unitsinuse.h"

/// The numbers of one way to say it, by what the setting is or becomes.
struct UIWayTexts::Patterns
{
    unsigned on;
    unsigned off;
    unsigned value;
    unsigned untold; ///< a text that was typed is not repeated: it may be a secret
    unsigned empty;
};

namespace {

constexpr int kMetricDigits = 1;
constexpr int kInchDigits = 2;

} // namespace

CXString UIWayTexts::verb(const o7::SettingChange& change) const
{
    constexpr Patterns kVerbs{O7STR_W_TURN_ON, O7STR_W_TURN_OFF, O7STR_W_SET, O7STR_W_CHANGE,
                              O7STR_W_LEAVE_EMPTY};
    return worded(change.feature, change.after, kVerbs);
}

CXString UIWayTexts::outcome(const o7::Consequence& consequence) const
{
    constexpr Patterns kOutcomes{O7STR_W_IS_ON, O7STR_W_IS_OFF, O7STR_W_BECOMES, O7STR_W_CHANGES,
                                 O7STR_W_IS_EMPTY};
    if (losesItsEffect(consequence))
        return filledIn(
            O7STR_W_NOT_APPLIED,
            {m_strings.LoadStringW(o7::kFeatureStringBase +
                                   static_cast<unsigned>(consequence.feature.GetFeatureEnum()))});
    if (consequence.before == consequence.after)
        return {};
    return worded(consequence.feature, consequence.after, kOutcomes);
}

/// Only what a person has chosen can be lost.
bool UIWayTexts::losesItsEffect(const o7::Consequence& consequence) const
{
    const auto isWithout = [](const InterpretedState& state) {
        return state.IsCleared() || state.IsHidden();
    };
    if (isWithout(consequence.stateBefore) || !isWithout(consequence.stateAfter))
        return false;
    const auto node = m_featureServices.GetFeatureRef(consequence.feature)->GetNode();
    o7::FeatureValue standard;
    return node && (!node->GetDefaultValue(standard) || standard != consequence.before);
}

CXString UIWayTexts::worded(const FeatureIdWithContext& feature, const o7::FeatureValue& value,
                            const Patterns& patterns) const
{
    const CXString name = m_strings.LoadStringW(o7::kFeatureStringBase +
                                                static_cast<unsigned>(feature.GetFeatureEnum()));
    if (value.index() == 0)
        return filledIn(patterns.empty, {name});
    if (const bool* on = std::get_if<bool>(&value))
        return filledIn(*on ? patterns.on : patterns.off, {name});
    const CXString text = valueText(feature, value);
    return text.IsEmpty() ? filledIn(patterns.untold, {name})
                          : filledIn(patterns.value, {name, text});
}

CXString UIWayTexts::sentence(const o7::Alternative& alternative,
                              const std::vector<o7::Consequence>& consequences) const
{
    const o7::SettingChange& first = alternative.changes.front();
    CXString text = verb(first);
    for (const o7::Consequence& consequence : consequences) {
        const CXString more =
            consequence.feature == first.feature ? CXString() : outcome(consequence);
        if (!more.IsEmpty())
            text += m_strings.LoadStringW(O7STR_W_SEPARATOR) + more;
    }
    return text;
}

std::vector<CXString> UIWayTexts::lines(const o7::Alternative& alternative,
                                        const std::vector<o7::Consequence>& consequences) const
{
    const auto& changes = alternative.changes;
    std::vector<CXString> all;
    all.reserve(changes.size() + consequences.size());
    for (const o7::SettingChange& change : changes)
        all.push_back(verb(change));
    for (const o7::Consequence& consequence : consequences) {
        const bool isSaid = std::any_of(changes.begin(), changes.end(), [&](const auto& change) {
            return change.feature == consequence.feature;
        });
        if (const CXString text = isSaid ? CXString() : outcome(consequence); !text.IsEmpty())
            all.push_back(text);
    }
    return all;
}

CXString UIWayTexts::valueText(const FeatureIdWithContext& feature,
                               const o7::FeatureValue& value) const
{
    if (const auto* option = std::get_if<ValueId>(&value))
        return option->GetDisplayString();
    if (const auto* length = std::get_if<Dimension>(&value))
        return lengthText(*length);
    if (const auto* range = std::get_if<RangeOfInteger>(&value))
        return CXString::Formatted(L"%d\u2013%d", range->GetLowerBound(), range->GetUpperBound());
    if (const auto* resolution = std::get_if<o7::Resolution>(&value))
        return CXString::Formatted(L"%d \u00D7 %d", resolution->horizontal, resolution->vertical);
    if (const auto* number = std::get_if<int>(&value)) {
        const auto limits = m_featureServices.GetFeatureRef(feature)->GetCapabilities();
        const auto* range = dynamic_cast<const RangeCapability*>(limits.get());
        if (range && range->GetUnits())
            return lengthText(Dimension(*number, *range->GetUnits()));
        return CXString(std::wstring_view(std::to_wstring(*number)));
    }
    return {};
}

CXString UIWayTexts::lengthText(const Dimension& length) const
{
    const bool metric = o7::showsMillimetres(m_featureServices, m_regional);
    const auto units = metric ? Dimension::UnitsEnum::Millimetre : Dimension::UnitsEnum::Inch;
    return length.GetStringValue(units, metric ? kMetricDigits : kInchDigits,
                                 m_regional.decimalSeparator, true) +
           L" " + m_strings.LoadStringW(metric ? O7STR_U_MILLIMETRE : O7STR_U_INCH);
}

/// Puts texts in place of {0} and {1}; what was put in is not looked at again.
CXString UIWayTexts::filledIn(unsigned pattern, std::initializer_list<CXString> texts) const
{
    const CXString loaded = m_strings.LoadStringW(pattern);
    const std::wstring_view from = loaded.View();
    std::wstring filled;
    for (std::size_t at = 0; at < from.size(); ++at) {
        const auto place = at + 2 < from.size() && from[at] == L'{' && from[at + 2] == L'}'
                               ? static_cast<std::size_t>(from[at + 1] - L'0')
                               : texts.size();
        if (place < texts.size()) {
            filled += std::data(texts)[place].View();
            at += 2;
        } else {
            filled += from[at];
        }
    }
    return CXString(std::wstring_view(filled));
}

#pragma once

#include <cstdint>
#include <functional>
#include <optional>

#include "uinumberrules.h"
#include "uitypedfield.h"
#include "uiunitnames.h"

class UISpinControl;
class UITextControl;

/// A box for a number or a length, with or without arrows, and the text of its unit behind it. The
/// value is a whole number or, for a length, a count of Dimension; see UINumberRules.
class UINumberField : public UITypedField
{
public:
    UINumberField();
    ~UINumberField() override;

    /// Writes a value into the model and shows what was read back.
    /// @return false when the model did not take it.
    using Writer = std::function<bool(std::int64_t)>;
    void SetWriter(Writer writer) { m_write = std::move(writer); }
    /// Where the rules come from; asked whenever they are needed, for what can be chosen changes
    /// with other settings. Before the box exists they decide on its width.
    using RulesSource = std::function<UINumberRules()>;
    void SetRules(RulesSource source);
    /// Asks for them once more. When values are written otherwise by now, shows the value anew.
    void RenewRules();
    const UINumberRules& GetRules() const { return m_rules; }

    /// @param width  room in dialog units; the box takes what its values need of it
    void Create(UIPageWindow& page, const Surroundings& surroundings, POINT location, long width,
                bool hasArrows);
    /// The room that the unit behind the box needs, in dialog units; the box leaves it that.
    void SetUnitWidth(long width) { m_unitWidth = width; }
    /// The room that box and arrows want, in dialog units.
    long GetWantedWidth(bool hasArrows) const;
    void Move(POINT delta) override;
    void Enable(bool enabled) override;
    void Show(bool shown) override;
    bool HandleMessage(const _UIWindowsMessage& message) override;

    /// Shows the model's value; nothing shows an empty box. A text that was typed for the same
    /// value stays as it is.
    void ShowValue(std::optional<std::int64_t> value);
    std::optional<std::int64_t> GetValue() const { return m_value; }
    /// What the typed text comes to, whether the model has it or not; nothing when it is no allowed
    /// value.
    std::optional<std::int64_t> GetTypedValue() const;
    /// A line with the allowed values.
    void DumpRange() const;

    static constexpr long kHeight = 14; ///< dialog units

protected:
    Verdict Take(const CXString& text) override;
    CXString PresentText() const override;
    CXString PresentTextInSentence() const override;
    void KeepAsOrigin() override { m_origin = m_value; }
    /// Brings the value that stood here before the person typed back into the model.
    void GiveBack();
    /// The allowed value that the text stands for, if it does.
    std::optional<std::int64_t> ValueOf(const CXString& text) const;

private:
    UINumberRules::Reading Read(const CXString& text) const;
    CXString FaultSentence(UINumberRules::Fault fault, const CXString& text) const;
    CXString RangeText() const;
    void StepBy(int steps);
    std::optional<std::int64_t> StepFrom(int steps) const;
    void PlaceArrows();
    const UIUnitNames& Names() const;

    RulesSource m_rulesSource;
    UINumberRules m_rules;
    Writer m_write;
    std::unique_ptr<UISpinControl> m_arrows;
    std::unique_ptr<UITextControl> m_unit;
    long m_unitWidth = 0;
    bool m_isShown = false; ///< a value, or that there is none
    std::optional<std::int64_t> m_value;
    std::optional<std::int64_t> m_origin; ///< what the person has settled on before
    mutable std::optional<UIUnitNames> m_names;
};

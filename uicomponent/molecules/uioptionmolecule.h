#pragma once

#include <memory>
#include <vector>

#include "uifeaturemolecule.h"
#include "valueid.h"

class OptionCapability;

/// A molecule that lets the person choose one option of an option feature: what combo box, list and
/// radio buttons have in common. It reads the options in the order of the capability, and writes a
/// choice in a transaction; what is shown afterwards is what was read back, not what was clicked.
///
/// The entry for "unspecified" (value 5001) goes by the unspecified state of the feature and is
/// written like every other: that makes the feature unspecified. The entry for "no value" (value 1)
/// writes nothing. A value that exists only by its name is an option as long as the page is open,
/// also after another one was chosen.
class UIOptionMolecule : public UIFeatureMolecule
{
public:
    using UIFeatureMolecule::UIFeatureMolecule;
    ~UIOptionMolecule() override;

    CXString GetObserverClassNameHeirarchy() const override;

protected:
    struct Option
    {
        ValueId value;
        CXString text;
        CXString reason; ///< why it cannot be taken, is hidden or clashes; empty when nothing does
        bool unavailable = false;
        bool hidden = false;
        bool conflict = false; ///< clashes with another choice
    };

    void LoadValue() override;
    void ShowState(const InterpretedState& state, bool enabled) override;

    /// The reasons of options that are not to be seen, and the clash of the present one, belong to
    /// what the mark of the molecule says.
    void CompleteState(const CapabilitiesNode& capabilities,
                       InterpretedState& state) const override;

    /// False while there are no controls yet: nothing is read then.
    virtual bool HasControls() const = 0;
    // After each reading these are called in this order. Each compares with what is shown.

    /// Shows GetOptions(): which there are, their texts, and which can be taken.
    virtual void ShowOptions() = 0;
    /// Shows which option is the present one. @param option  index in GetOptions(); -1: none, also
    /// while the feature is cleared
    virtual void ShowChoice(int option) = 0;
    /// @param enabled  the feature as a whole
    virtual void EnableControls(bool enabled) = 0;

    /// The user chose an option: writes it, unless it cannot be taken, and shows what was read
    /// back.
    void Choose(int option);

    /// Never null; without options when the feature cannot be read.
    std::unique_ptr<OptionCapability> ReadCapability() const;
    /// All that the feature has now, the hidden ones too.
    std::vector<Option> ReadOptions(const OptionCapability& capability) const;
    const std::vector<Option>& GetOptions() const { return m_options; }
    const Option& GetOption(int option) const
    {
        return m_options[static_cast<std::size_t>(option)];
    }
    /// Whether the value is one that a person has named.
    static bool IsByName(const ValueId& value);
    /// Index of the option with that value; -1 without one.
    int FindOption(const ValueId& value) const;
    bool IsPresent(const Option& option) const { return option.value == m_value; }
    /// The text of the option now shown as chosen; empty when cleared or without a value.
    CXString ShownText() const;
    /// One line per option: text, state and reason.
    void DumpOptions() const;
    static void DumpOption(const Option& option, const CXString& text);

private:
    ValueId ReadValue() const;
    bool Write(const ValueId& value) const;
    void KeepNamedOptions(const OptionCapability& capability, std::vector<Option>& options) const;
    void ShowValue();

    std::vector<Option> m_options;
    ValueId m_value; ///< as last read
    bool m_cleared = false;
};

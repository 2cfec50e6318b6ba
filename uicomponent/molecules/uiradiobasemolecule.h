#pragma once

#include <memory>
#include <vector>

#include "uikinds.h"
#include "uimoleculelabel.h"
#include "uioptionmolecule.h"

class UIRadioButtonControl;
class UITextControl;

/// Base of the molecules that show the options of an option feature as radio buttons: a Windows
/// group with one tab stop, in which the arrow keys move and choose. A disabled option is grey and
/// tells why under the pointer; the molecule's mark tells it to the keyboard. A hidden option
/// leaves the group, unless it is the present value: what is chosen is always seen. The heading
/// stands above the buttons, or to their left in a column with a label width.
///
/// Buttons stand below each other, or in two columns where many short texts allow it; those that
/// look like push buttons, or are pictures, stand side by side.
class UIRadioBaseMolecule : public UIOptionMolecule
{
public:
    UIRadioBaseMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UIRadioBaseMolecule() override;

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void MoveControls(POINT delta) override;
    void CreateControls(UIPageWindow& page) override;
    void InitializeFromDescription() override;
    void DumpControls() const override;
    void Show(bool shown) override;
    bool Focus() override;
    void FitTexts(const UITextRuler& ruler, long width) override;
    long GetWantedLabelWidth(const UITextRuler& ruler) const override;
    HWND InfoAnchor() const override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    /// One radio button.
    struct Choice
    {
        ValueId value; ///< "no value" while a spare button stands for nothing
        CXString text; ///< with its mnemonic
        CXString tip;  ///< shown under the pointer while the button is grey
        std::unique_ptr<UIRadioButtonControl> button;
        long lines = 1;
        int option = -1; ///< index in GetOptions(); -1: not among them
        bool shown = true;
        int picture = 0; ///< in place of the text; resource number, 0: none
        int checkedPicture = 0;
    };

    /// Adds the choices, in the order in which they stand.
    /// @param capability  without options when the feature cannot be read
    virtual void AddChoices(const OptionCapability& capability) = 0;
    /// Lets a subclass bring the choices in line with the options before they are shown.
    virtual void MatchChoices() {}

    bool HasControls() const override { return m_area != nullptr; }
    void ShowOptions() override;
    void ShowChoice(int option) override;
    void EnableControls(bool enabled) override;

    std::vector<Choice>& GetChoices() { return m_choices; }
    Choice& AddChoice(const ValueId& value, const CXString& text);
    /// Gives the button of the choice its text, for the eye and for screen readers.
    void ShowText(Choice& choice);

private:
    bool IsSideBySide() const { return m_kind != UIControlKind::Radio; }
    bool HasPictures() const;
    long ColumnGap() const;
    long RowGap() const;
    long HeightOf(const Choice& choice) const;
    long ButtonWidth(long room) const;
    std::size_t ColumnsFor(long room, long width) const;
    template <class Place> long ForEachPlace(long width, const Place& place);
    POINT FirstPlace() const;
    void UpdateMinimumHeight();
    void PlaceButtons();
    void ShowTip(Choice& choice, const CXString& tip);
    bool CanTake(const Choice& choice, bool enabled) const;
    CXString ReasonOf(const Choice& choice, bool enabled) const;
    UIRadioButtonControl* FindTabStop(bool enabled) const;
    void ChooseTabStop(bool enabled);

    UIMoleculeLabel m_label;
    std::vector<Choice> m_choices;
    /// Behind the buttons: ends their group, is what the mark stands beside, and is never seen.
    std::unique_ptr<UITextControl> m_area;
    UIControlKind m_kind = UIControlKind::Radio;
    std::size_t m_columns = 1;
    long m_widest = 0; ///< text, in dialog units; 0 while not measured
    bool m_isShown = true;
};

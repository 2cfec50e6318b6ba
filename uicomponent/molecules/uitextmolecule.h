#pragma once

#include <memory>

#include "uimolecule.h"

class UITextControl;

/// A line or a short paragraph of explanation, bound to no feature.
class UITextMolecule : public UIMolecule
{
public:
    UITextMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UITextMolecule() override;

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void MoveControls(POINT delta) override;
    void CreateControls(UIPageWindow& page) override;
    void InitializeFromDescription() override;
    void DumpControls() const override;
    void Show(bool shown) override;
    void FitTexts(const UITextRuler& ruler, long width) override;
    CXString GetObserverClassNameHeirarchy() const override;

private:
    std::unique_ptr<UITextControl> m_text;
    unsigned m_number = 0;
    long m_lines = 1; ///< that the description promises it
    bool m_bold = false;
};

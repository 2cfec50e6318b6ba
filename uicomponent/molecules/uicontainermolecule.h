#pragma once

#include <memory>
#include <vector>

#include "uimolecule.h"

class UIContainer;

/// A molecule that holds a whole nested container: its columns stand side by side inside the
/// molecule's place. In modes for which the description has no nested container it takes no room.
class UIContainerMolecule : public UIMolecule
{
public:
    UIContainerMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UIContainerMolecule() override;

    void MoveControls(POINT delta) override;
    void SetPositionAndWidth(POINT position, long width) override;
    void CreateControls(UIPageWindow& page) override;
    void InitializeFromDescription() override;
    void Inner(std::vector<UIMolecule*>& molecules) override;
    void FitTexts(const UITextRuler& ruler, long width) override;
    CXString GetObserverClassNameHeirarchy() const override;

private:
    void UpdateMinimumHeight();

    std::unique_ptr<UIContainer> m_nested;
};

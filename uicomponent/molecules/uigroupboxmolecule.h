#pragma once

#include <memory>
#include <vector>

#include "uimolecule.h"
#include "uimoleculegaps.h"

class UIGroupBoxControl;

/// A frame with a caption and other molecules inside, stacked from top to bottom. The frame is a
/// molecule without a feature; the ones inside belong to it, but the page drives them like all
/// others (Inner).
class UIGroupBoxMolecule : public UIMolecule
{
public:
    UIGroupBoxMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UIGroupBoxMolecule() override;

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void MoveControls(POINT delta) override;
    void SetPositionAndWidth(POINT position, long width) override;
    void CreateControls(UIPageWindow& page) override;
    void InitializeFromDescription() override;
    void DumpControls() const override;
    void Inner(std::vector<UIMolecule*>& molecules) override;
    void Show(bool shown) override;
    void FitTexts(const UITextRuler& ruler, long width) override;
    long GetWantedLabelWidth(const UITextRuler& ruler) const override;
    CXString GetObserverClassNameHeirarchy() const override;

private:
    void UpdateMinimumHeight();

    std::unique_ptr<UIGroupBoxControl> m_frame;
    std::vector<std::unique_ptr<UIMolecule>> m_inner;
    UIMoleculeGaps m_gaps;
};

#pragma once

#include <memory>

#include "uimolecule.h"

class UITextControl;

/// One line that says how the settings stand: what is in conflict, or differs from the defaults.
/// Bound to no feature: whoever watches the settings tells it. Too long a text ends in dots and has
/// a tip with the whole; reasons are behind the mark at its end, for mouse and keyboard.
class UIStatusMolecule : public UIMolecule
{
public:
    /// What the line says.
    struct Status
    {
        CXString text;
        CXString reasons;      ///< one line each; empty: there is no mark
        CXString reasonsTitle; ///< what they are about
        bool inConflict = false;
    };

    UIStatusMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UIStatusMolecule() override;

    /// Shows it; nothing is painted for what is shown already. A conflict that was not there is
    /// announced to screen readers (EVENT_SYSTEM_ALERT).
    void SetStatus(const Status& status);

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void MoveControls(POINT delta) override;
    void CreateControls(UIPageWindow& page) override;
    void InitializeFromDescription() override;
    void DumpControls() const override;
    void Show(bool shown) override;
    HWND InfoAnchor() const override;
    CXString GetInfoText() const override { return m_status.reasons; }
    CXString GetInfoTitle(const FeatureIdWithContext& feature) const override;
    CXString GetObserverClassNameHeirarchy() const override;

private:
    std::unique_ptr<UITextControl> m_text;
    Status m_status;
};

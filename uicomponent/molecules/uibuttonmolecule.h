#pragma once

#include <cstdint>
#include <functional>
#include <memory>

#include "uimolecule.h"

class UIButtonControl;

/// A push button that reports the action of its record to whoever serves it; without somebody, it
/// does nothing. Stands at the right of its column, as wide as its text needs.
class UIButtonMolecule : public UIMolecule
{
public:
    UIButtonMolecule(const UIMoleculeData& data, const UIMoleculeSite& site);
    ~UIButtonMolecule() override;

    std::uint32_t GetAction() const { return m_action; }
    /// Called with every press, on the page's thread.
    void SetPressed(std::function<void()> pressed) { m_pressed = std::move(pressed); }
    /// A button that is disabled while it has the keyboard hands it on.
    void SetEnabled(bool enabled);

    bool HandleMessage(const _UIWindowsMessage& message) override;
    void MoveControls(POINT delta) override;
    void CreateControls(UIPageWindow& page) override;
    void InitializeFromDescription() override;
    void FitTexts(const UITextRuler& ruler, long width) override;
    void DumpControls() const override;
    void Show(bool shown) override;
    HWND InfoAnchor() const override;
    CXString GetObserverClassNameHeirarchy() const override;

private:
    std::unique_ptr<UIButtonControl> m_button;
    std::function<void()> m_pressed;
    CXString m_label;
    std::uint32_t m_action = 0;
    long m_buttonWidth = 0; ///< dialog units; 0: the column's
};

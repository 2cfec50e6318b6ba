#pragma once

#include <windows.h>

#include <memory>

#include "cxstring.h"
#include "featureidwithcontext.h"
#include "interpretedstate.h"
#include "uimoleculesite.h"
#include "uipagewindow.h"
#include "uiwindowsmessage.h"

class UICheckBoxControl;
class UICheckControlData;
class UITextRuler;

/// The check box that turns the other controls of a molecule on. It stands for a boolean feature of
/// its own or, when its record names the molecule's own feature, for whether that is specified.
/// A molecule without such a record has a switch that does not exist and is always on.
class UIMoleculeSwitch
{
public:
    explicit UIMoleculeSwitch(const UIMoleculeSite& site);
    ~UIMoleculeSwitch();
    UIMoleculeSwitch(const UIMoleculeSwitch&) = delete;
    UIMoleculeSwitch& operator=(const UIMoleculeSwitch&) = delete;

    /// @param feature  the one of the record, with its context
    void Set(const FeatureIdWithContext& feature, const CXString& text);
    /// Tells which feature the molecule is bound to, once that is known.
    void SetMoleculeFeature(const FeatureIdWithContext& feature);
    bool Exists() const { return m_exists; }
    /// Whether it stands for a feature of its own, which has to be observed.
    bool HasOwnFeature() const { return m_exists && m_ownFeature; }
    const FeatureIdWithContext& GetFeature() const { return m_feature; }
    const CXString& GetText() const { return m_text; }
    /// Counts the lines of the text for the width that box and text get.
    void Fit(const UITextRuler& ruler, long width);
    long GetHeight() const;
    /// The width that the box with its text wants.
    long GetWantedWidth(const UITextRuler& ruler) const;

    /// Dialog units.
    void Create(UIPageWindow& page, POINT place, long width);
    void Move(POINT delta);
    void Show(bool shown);
    /// Shows the state of its own feature as every control does.
    /// @param enabled  whether the molecule's feature is; counts for a switch that stands for it
    void ShowState(bool enabled, bool forceDisabled);
    /// Adds what limits the box by its own feature to what the molecule says of itself.
    void AddReason(InterpretedState& state) const;
    /// Reads and shows the value.
    void Load();
    bool IsOn() const { return !m_exists || m_on; }
    /// @return true when the message was a click, which is written by then.
    bool HandleMessage(const _UIWindowsMessage& message);
    /// Moves the keyboard focus to the box. @return false when it cannot take it.
    bool Focus() const;
    /// One line.
    void Dump() const;

private:
    bool Read() const;
    bool CanBeTurned() const;
    InterpretedState OwnState() const;

    const UIMoleculeSite& m_site;
    FeatureIdWithContext m_feature;
    CXString m_text;
    long m_lines = 1;
    bool m_exists = false;
    bool m_ownFeature = true;
    bool m_on = false;
    bool m_shown = true;   ///< with the molecule
    bool m_hidden = false; ///< by its own feature
    bool m_cleared = false;
    std::unique_ptr<UICheckBoxControl> m_check;
};

#pragma once

#include <functional>

#include "uimolecule.h"

/// A molecule that is bound to one feature: the protocol that all of them follow alike.
/// Connecting registers for the feature (settings instance 23001, kind 26010) and loads value and
/// state; notifications reload the one or the other; disconnecting is the exact inverse.
/// A subclass adds reading, showing and writing.
class UIFeatureMolecule : public UIMolecule
{
public:
    using UIMolecule::UIMolecule;
    ~UIFeatureMolecule() override;

    void ConnectToDataModel() override;
    void DisconnectFromDataModel() override;
    /// Reads value and state again; the first time after a connect they are fresh and stay.
    void Refresh() override;
    // Both take effect at once, also while connected.
    void SetShownOnPage(bool shown) override;
    void SetForceDisabled(bool disabled) override;
    void CollectSettings(SetOfSettingIds& settings) const override;
    void ProcessNotification(const INotification& notification, unsigned int kind) override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    /// Reads the value and shows it. Safe to repeat; never writes.
    virtual void LoadValue() = 0;
    /// Enables, clears and fills the controls from the state. Safe to repeat; never writes.
    virtual void ShowState(const InterpretedState& state, bool enabled) = 0;

    /// A feature beside the bound one that the molecule shows as well: its changes load value and
    /// state again. For InitializeFromDescription.
    void AddFurtherFeature(const FeatureIdWithContext& feature);
    /// One that the molecule only follows: it is no setting of its own, and is where it is named.
    void ObserveFeature(const FeatureIdWithContext& feature);
    /// Writes in a transaction, and shows what is read back before it is committed.
    /// @param write  false: the model has refused, and what is shown stays.
    bool WriteAndReadBack(const std::function<bool()>& write);
    /// Reads the state of the feature and shows it.
    void LoadState();
    /// The state last shown, for descriptions.
    const InterpretedState& GetState() const { return m_state; }
    bool IsEnabled() const { return m_enabled; }
    /// "hidden", or "enabled" or "disabled" with ", cleared" and the mark that is shown, ",
    /// conflict".
    CXString StateText() const;

private:
    void ProcessChange(const INotification& notification);
    template <class Do> void ForObserved(const Do& act) const;
    template <class Load> void KeepFocusWhile(const Load& load);
    void ShowReasonTip();
    void ShowOrHide(bool shown);
    void HandOnFocus();

    std::vector<FeatureIdWithContext> m_furtherFeatures;
    std::vector<FeatureIdWithContext> m_observedOnly;
    InterpretedState m_state;
    CXString m_reasonTip; ///< what the tip of the greyed control says now
    bool m_connected = false;
    bool m_fresh = false; ///< loaded by the connect and not looked at by a refresh yet
    bool m_enabled = true;
    bool m_shown = true;
};

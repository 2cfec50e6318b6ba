#pragma once

#include "uiregionalsettings.h"
#include "uispinmolecule.h"

/// A box for a length with arrows: of a dimension feature, or of an integer feature that counts a
/// length. Shown in the units of feature 3047 or, when that says so or does not exist, of the
/// person's locale; what is stored stays as it is when the units change.
class UIDimensionSpinMolecule : public UISpinMolecule
{
public:
    using UISpinMolecule::UISpinMolecule;
    ~UIDimensionSpinMolecule() override;

    void InitializeFromDescription() override;
    CXString GetObserverClassNameHeirarchy() const override;

protected:
    void LoadValue() override;
    UINumberRules MakeRules() override;
    CXString GetUnitText(bool metric) const override;
    std::optional<std::int64_t> ReadNumber() const override;
    bool WriteNumber(std::int64_t value) override;

private:
    bool IsMetric() const;
    /// The unit that an integer feature counts; nothing for a dimension feature.
    std::optional<Dimension::UnitsEnum> StoredUnits() const;
    void FollowUnits();

    UIRegionalSettings m_shownFor; ///< what the rules were made for
};

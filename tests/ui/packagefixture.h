#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "datamodelfactory.h"
#include "moleculedialog.h"
#include "observercount.h"
#include "uifixture.h"

namespace o7::test {

/// Base of tests that open pages of their own description over a data model of their own.
class PackageFixture : public UIFixture
{
protected:
    /// Before all else: the model from the text of a product package.
    void load(std::string_view package);

    std::unique_ptr<MoleculeDialog> open(const UIContainerRecord& record,
                                         const ListOfFeaturesRef& features = {});
    /// The molecule of a dialog that a window belongs to; null when there is none.
    static UIMolecule* ownerOf(const MoleculeDialog& dialog, HWND window);
    /// The value as a text: a number, a length in hundredths of a millimetre, a range, a text.
    std::string value(DataModelIds::tagFeatureEnum feature);
    void set(DataModelIds::tagFeatureEnum feature, const FeatureValue& value);
    void setOption(DataModelIds::tagFeatureEnum feature, int option);

    std::unique_ptr<ProductPackage> m_package;
    std::unique_ptr<IDataModel> m_model;
    std::unique_ptr<ObserverCount> m_services;
};

} // namespace o7::test

#include "packagefixture.h"

#include "dimension.h"
#include "input.h"
#include "uimolecule.h"

namespace o7::test {

void PackageFixture::load(std::string_view package)
{
    UIFixture::SetUp();
    std::vector<PackageError> errors;
    m_package = ParseProductPackage(package, "test.json", errors);
    ASSERT_TRUE(m_package) << (errors.empty() ? "" : errors.front().ToString());
    m_model = CreateDataModel(*m_package, session().strings());
    m_services = std::make_unique<ObserverCount>(*m_model);
}

std::unique_ptr<MoleculeDialog> PackageFixture::open(const UIContainerRecord& record,
                                                     const ListOfFeaturesRef& features)
{
    return std::make_unique<MoleculeDialog>(session().productData(), *m_services,
                                            session().strings(), record, features);
}

UIMolecule* PackageFixture::ownerOf(const MoleculeDialog& dialog, HWND window)
{
    for (UIMolecule* molecule : dialog.molecules())
        if (molecule->OwnsControl(window))
            return molecule;
    return nullptr;
}

std::string PackageFixture::value(DataModelIds::tagFeatureEnum feature)
{
    const auto any = m_model->GetFeatureRef(FeatureIdWithContext{FeatureId(feature)});
    FeatureValue stored;
    if (!any->GetNode()->GetValue(stored))
        return "none";
    if (const auto* length = std::get_if<Dimension>(&stored))
        return length->GetStringValue(Dimension::UnitsEnum::Millimetre, 2).ToUtf8();
    if (const auto* range = std::get_if<RangeOfInteger>(&stored))
        return std::to_string(range->GetLowerBound()) + "-" +
               std::to_string(range->GetUpperBound());
    if (const auto* string = std::get_if<CXString>(&stored))
        return string->ToUtf8();
    if (const auto* flag = std::get_if<bool>(&stored))
        return *flag ? "yes" : "no";
    if (const auto* option = std::get_if<ValueId>(&stored))
        return option->GetValueName().ToUtf8();
    return std::to_string(std::get<int>(stored));
}

void PackageFixture::set(DataModelIds::tagFeatureEnum feature, const FeatureValue& value)
{
    ASSERT_TRUE(m_model->GetFeatureRef(FeatureIdWithContext{FeatureId(feature)})
                    ->GetNode()
                    ->SetValue(value));
    pumpMessages();
}

void PackageFixture::setOption(DataModelIds::tagFeatureEnum feature, int option)
{
    set(feature, ValueId(static_cast<DataModelIds::tagValueEnum>(option)));
}

} // namespace o7::test

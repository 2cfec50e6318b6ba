#pragma once

#include <windows.h>

#include <memory>
#include <string>
#include <vector>

#include "listoffeaturesref.h"
#include "uicontainerdata.h"
#include "uidialogprocedure.h"
#include "uimessagemanager.h"
#include "uirecords.h"
#include "uiservices.h"

class FeatureServices;
class ProductData;
class ProductStringLoader;
class UIMolecule;
class UIPopupDialog;
struct UIContext;

namespace o7::test {

/// Molecules of the caller's own description on a dialog that is shown without a loop of its own,
/// on the calling thread: for tests that look at molecules while they give real input
/// (winsupport/input.h). Gone with this object.
class MoleculeDialog
{
public:
    /// Everything is borrowed. @param features  what the dialog works on; the job's list if left
    /// out
    MoleculeDialog(ProductData& productData, FeatureServices& featureServices,
                   ProductStringLoader& strings, const UIContainerRecord& description,
                   const ListOfFeaturesRef& features = {});
    ~MoleculeDialog();
    MoleculeDialog(const MoleculeDialog&) = delete;
    MoleculeDialog& operator=(const MoleculeDialog&) = delete;

    HWND window() const { return m_window; }
    /// Those inside groups included, in Tab order.
    const std::vector<UIMolecule*>& molecules() const;
    /// The child window that stands so many places behind the first, in Tab order.
    HWND child(int index) const;
    /// What the dialog says of itself in a snapshot.
    std::wstring dump() const;

private:
    UIServices m_services;
    UIMessageManager m_messages;
    UIDialogRecord m_record;
    std::unique_ptr<UIContext> m_context;
    UIContainerData m_data;
    std::unique_ptr<UIPopupDialog> m_dialog;
    HWND m_window = nullptr;
};

} // namespace o7::test

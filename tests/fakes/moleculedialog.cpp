#include "moleculedialog.h"

#include "featureservices.h"
#include "input.h"
#include "isolationaware.h"
#include "productstringloader.h"
#include "uicontext.h"
#include "uidialogtemplate.h"
#include "uidump.h"
#include "uimode.h"
#include "uipopupdialog.h"

namespace o7::test {

MoleculeDialog::MoleculeDialog(ProductData& productData, FeatureServices& featureServices,
                               ProductStringLoader& strings, const UIContainerRecord& description,
                               const ListOfFeaturesRef& features)
    : m_services(strings.GetLanguage()),
      m_record{&m_messages},
      m_context(new UIContext{featureServices, strings, productData}),
      m_data(description, static_cast<std::uint32_t>(UIMode::CompactDialog)),
      m_dialog(std::make_unique<UIPopupDialog>(
          featureServices, *m_context, m_services,
          features.IsSupported() ? features : featureServices.GetFullListOfFeatures(), m_data, true,
          nullptr))
{
    m_messages.append(UIMessageKind::Dialog, *m_dialog);
    UIDialogTemplate shape(IsolationAware::moduleInstance());
    shape.setSize(description.width, description.height);
    shape.makePopup(false);
    if (m_services.isRightToLeft())
        shape.mirror();
    const IsolationAware::ActivationScope scope;
    m_window = CreateDialogIndirectParamW(IsolationAware::moduleInstance(), shape.get(), nullptr,
                                          &UIDialogProcedure::dialogProcedure,
                                          reinterpret_cast<LPARAM>(&m_record));
    ShowWindow(m_window, SW_SHOW);
    SetForegroundWindow(m_window);
    pumpMessages(); // shown, and the focus where the dialog wants it at first
}

MoleculeDialog::~MoleculeDialog()
{
    DestroyWindow(m_window);
}

const std::vector<UIMolecule*>& MoleculeDialog::molecules() const
{
    return m_dialog->getMolecules();
}

HWND MoleculeDialog::child(int index) const
{
    HWND window = GetWindow(m_window, GW_CHILD);
    for (; window && index > 0; --index)
        window = GetWindow(window, GW_HWNDNEXT);
    return window;
}

std::wstring MoleculeDialog::dump() const
{
    std::wstring text;
    const UIDump collector(text);
    m_dialog->dump();
    return text;
}

} // namespace o7::test

#include "uimoleculecontainer.h"

#include <algorithm>

#include "iuicontainercompanion.h"
#include "textmeasure.h"
#include "trace.h"
#include "uicontainer.h"
#include "uilayoutmanager.h"
#include "uimolecule.h"
#include "uiservices.h"
#include "uitextruler.h"
#include "uitooltips.h"
#include "uiwholetexttips.h"

UIMoleculeContainer::UIMoleculeContainer(FeatureServices& featureServices,
                                         const ProductStringLoader& strings, UIServices& services,
                                         const ListOfFeaturesRef& features)
    : m_valueWriter(featureServices),
      m_site{services, featureServices, strings, m_valueWriter, features}
{
}

UIMoleculeContainer::~UIMoleculeContainer()
{
    releaseMolecules();
}

void UIMoleculeContainer::buildFrom(const UIContainerData& data, long extraHeight)
{
    m_container = std::make_unique<UIContainer>(data, m_site);
    m_layout = std::make_unique<UILayoutManager>(*m_container, extraHeight);
    m_molecules = m_container->getMolecules();
    m_wanted.clear();
    m_wanted.add(WM_MOUSEMOVE);
    m_wanted.add(WM_SETCURSOR);
    for (const UIMolecule* molecule : m_molecules)
        molecule->CollectWantedMessages(m_wanted);
}

void UIMoleculeContainer::releaseMolecules()
{
    UIMoleculeContainer::disconnectAll(); // named: the destructor comes here too
    m_molecules.clear();
    m_layout.reset();
    m_container.reset(); // the controls' tips go with them, so the tip window goes after them
    m_toolTips.reset();
}

bool UIMoleculeContainer::createOn(HWND)
{
    return true;
}

bool UIMoleculeContainer::initialize(HWND window)
{
    if (!createOn(window))
        return false;
    m_page.window = window;
    m_toolTips = std::make_unique<UIToolTips>(window);
    m_look.themeChanged();
    m_page.look = &m_look;
    m_page.font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
    const bool someTextIsCut = fitTexts();
    createControls();
    if (someTextIsCut)
        o7::addWholeTextTips(m_page, *m_toolTips);
    connectAll();
    refreshAll();
    return true;
}

void UIMoleculeContainer::makeBoldFont()
{
    LOGFONTW font{};
    if (!GetObjectW(m_page.font, sizeof font, &font))
        return;
    font.lfWeight = FW_BOLD;
    m_boldFont.reset(CreateFontIndirectW(&font));
    m_page.boldFont = m_boldFont.get();
}

bool UIMoleculeContainer::fitTexts() const
{
    const o7::TextMeasure measure(m_page.font);
    return m_layout->fitTexts(UITextRuler(measure, getServices().getDialogConversion()));
}

void UIMoleculeContainer::createControls()
{
    makeBoldFont();
    for (UIMolecule* molecule : m_molecules) {
        molecule->SetToolTips(m_toolTips.get());
        const int firstId = m_page.nextId;
        molecule->CreateControls(m_page);
        molecule->SetControlIds(firstId, m_page.nextId);
        if (molecule->LacksControl())
            o7::trace(CXString::Formatted(L"the control of %s could not be created",
                                          molecule->GetDumpDisplayString(false).c_str()));
    }
}

void UIMoleculeContainer::connectAll()
{
    m_connected = true;
    for (UIMolecule* molecule : m_molecules)
        molecule->ConnectToDataModel();
    if (m_companion)
        m_companion->moleculesConnected(*this);
}

void UIMoleculeContainer::disconnectAll()
{
    if (!m_connected)
        return;
    m_connected = false;
    for (UIMolecule* molecule : m_molecules)
        molecule->DisconnectFromDataModel();
}

void UIMoleculeContainer::collectSettings(SetOfSettingIds& settings) const
{
    for (const UIMolecule* molecule : m_molecules)
        molecule->CollectSettings(settings);
}

bool UIMoleculeContainer::anyFeatureState() const
{
    for (const UIMolecule* molecule : m_molecules)
        if (molecule->GetFeatureState() == 1)
            return true;
    return false;
}

void UIMoleculeContainer::refreshAll()
{
    for (UIMolecule* molecule : m_molecules)
        molecule->Refresh();
}

void UIMoleculeContainer::leavePageAll()
{
    for (UIMolecule* molecule : m_molecules)
        molecule->LeavePage();
}

bool UIMoleculeContainer::hasPendingInput() const
{
    return std::any_of(m_molecules.begin(), m_molecules.end(),
                       [](const UIMolecule* molecule) { return molecule->HasPendingInput(); });
}

bool UIMoleculeContainer::validateAll()
{
    for (UIMolecule* molecule : m_molecules)
        if (!molecule->Validate())
            return false;
    return true;
}

UIMolecule* UIMoleculeContainer::findMolecule(const FeatureIdWithContext& feature) const
{
    const auto found =
        std::find_if(m_molecules.begin(), m_molecules.end(), [&](const UIMolecule* molecule) {
            return molecule->GetBoundFeature() == feature;
        });
    return found != m_molecules.end() ? *found : nullptr;
}

bool UIMoleculeContainer::offerToMolecules(const _UIWindowsMessage& message) const
{
    if (!m_wanted.wants(message.message))
        return false;
    if (message.message == WM_MOUSEMOVE || message.message == WM_SETCURSOR) {
        if (m_toolTips) // over a disabled control the mouse belongs to the page
            m_toolTips->relayMouse(message);
        return false;
    }
    // Without a window it comes from a menu or an accelerator. A control that could not be created
    // has no window either, and must not take it for its own.
    if (message.message == WM_COMMAND && !message.lParam)
        return false;
    for (UIMolecule* molecule : m_molecules)
        if (molecule->HandleMessage(message))
            return true;
    return false;
}

void UIMoleculeContainer::dumpMolecules() const
{
    for (const UIMolecule* molecule : m_molecules)
        molecule->DumpControls();
}

#include "uimoleculecontainer.h"

#include <algorithm>

#include "iuicontainercompanion.h"
#include "productstringloader.h"
#include "textmeasure.h"
#include "trace.h"
#include "uicontainer.h"
#include "uilayoutmanager.h"
#include "uimolecule.h"
#include "uiservices.h"
#include "uistringnumbers.h"
#include "uitextruler.h"
#include "uitooltips.h"
#include "uiwholetexttips.h"
#include "windowtext.h"

namespace {

// Posted to the own window once the controls are there, or are not.
constexpr UINT kTellMissing = WM_APP + 11;

} // namespace

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
    m_wanted.add(kTellMissing);
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
    m_missing.Empty();
    makeBoldFont();
    for (UIMolecule* molecule : m_molecules) {
        molecule->SetToolTips(m_toolTips.get());
        const int firstId = m_page.nextId;
        molecule->CreateControls(m_page);
        molecule->SetControlIds(firstId, m_page.nextId);
        if (!molecule->LacksControl())
            continue;
        o7::trace(CXString::Formatted(L"the control of %s could not be created",
                                      molecule->GetDumpDisplayString(false).c_str()));
        if (!m_missing.IsEmpty())
            m_missing += getStrings().LoadStringW(O7STR_S_SEPARATOR);
        m_missing += getStrings().GetStringForFeature(molecule->GetBoundFeature().GetFeatureEnum());
    }
    if (!m_missing.IsEmpty())
        PostMessageW(m_page.window, kTellMissing, 0, 0);
}

/// A gap in the page would look as if there were no such setting.
void UIMoleculeContainer::tellMissing() const
{
    const CXString text =
        CXString::Formatted(getStrings().LoadStringW(O7STR_M_NOT_SHOWN).c_str(), m_missing.c_str());
    const HWND window = GetAncestor(m_page.window, GA_ROOT);
    getServices().showMessage(window, text, o7::windowText(window), MB_ICONWARNING);
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
    if (message.message == kTellMissing && message.window == m_page.window) {
        tellMissing();
        return true;
    }
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

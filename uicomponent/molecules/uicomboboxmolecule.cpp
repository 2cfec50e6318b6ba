#include "uicomboboxmolecule.h"

#include <algorithm>
#include <utility>

#include "uicomboboxcontrol.h"
#include "uicombocontroldata.h"

namespace {

// Dialog units.
constexpr long kListHeight = 12;       // closed, at least
constexpr long kRaisedListHeight = 21; // with room for a button beside it
constexpr long kBoxHeight = 14;        // closed, as drawn

} // namespace

UIComboBoxMolecule::UIComboBoxMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIComboListBaseMolecule(data, site)
{
}

UIComboBoxMolecule::~UIComboBoxMolecule() = default;

long UIComboBoxMolecule::ReadListRecord(const UIControlData& control, bool raised)
{
    // A List record in a molecule of this kind says only which feature.
    const auto* combo = dynamic_cast<const UIComboControlData*>(&control);
    if (!combo)
        return std::max(raised ? kRaisedListHeight : kListHeight, kBoxHeight);
    SetDisabledOptions(combo->getDisabledOptions());
    return std::max({raised ? kRaisedListHeight : kListHeight,
                     static_cast<long>(combo->getMinimumHeight()), kBoxHeight});
}

void UIComboBoxMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    const RECT box = CreateLabel(page, kBoxHeight);
    m_combo = std::make_unique<UIComboBoxControl>(page.window, page.takeId(), GetSite().services,
                                                  page.font, POINT{box.left, box.top},
                                                  SIZE{box.right - box.left, kBoxHeight});
    PrepareList();
}

UIEntryListControl* UIComboBoxMolecule::List() const
{
    return m_combo.get();
}

void UIComboBoxMolecule::FillTogether(const std::function<void()>& fill)
{
    const UIComboBoxControl::Fill filling(*m_combo);
    fill();
}

bool UIComboBoxMolecule::HandleNotification(int notification)
{
    switch (notification) {
    case CBN_SELCHANGE:
        // In an open list it is not a choice yet: Escape goes back to what was there.
        if (!SendMessageW(m_combo->UIControl::getHwnd(), CB_GETDROPPEDSTATE, 0, 0))
            ChooseEntry(m_combo->getSelection(true));
        return true;
    case CBN_DROPDOWN:
        // A list that was not open is cancelled as well, when the focus goes with its page.
        m_choiceCancelled = false;
        return false;
    case CBN_SELENDCANCEL:
        m_choiceCancelled = true;
        return true;
    case CBN_CLOSEUP:
        // The mouse moves the selection of an open list without a word. Not every system tells when
        // Enter then takes it, or puts it back when Escape does not.
        if (std::exchange(m_choiceCancelled, false))
            ShowLastEntry();
        else
            ChooseEntry(m_combo->getSelection(true));
        return true;
    default:
        return false;
    }
}

void UIComboBoxMolecule::LookChanged()
{
    if (m_combo)
        m_combo->repaint(true);
}

CXString UIComboBoxMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIComboBoxMolecule:") +
           UIComboListBaseMolecule::GetObserverClassNameHeirarchy();
}

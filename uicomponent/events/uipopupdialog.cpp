#include "uipopupdialog.h"

#include <algorithm>

#include "dialogconversion.h"
#include "productstringloader.h"
#include "requiredsettings.h"
#include "textmeasure.h"
#include "tipplacement.h"
#include "uibuttoncontrol.h"
#include "uiconflictwalk.h"
#include "uicontainerdata.h"
#include "uicontext.h"
#include "uicontrol.h"
#include "uidump.h"
#include "uilayoutmanager.h"
#include "uimolecule.h"
#include "uiservices.h"
#include "uistringnumbers.h"
#include "uitextruler.h"

namespace {

// Dialog units.
constexpr long kButtonWidth = 50;
constexpr long kButtonHeight = 14;
constexpr long kButtonGap = 4;
constexpr long kButtonPadding = 8; // what a button is wider than its text
constexpr long kButtonRow = kButtonHeight + UILayoutManager::kMargin;

} // namespace

UIPopupDialog::UIPopupDialog(FeatureServices& featureServices, UIContext& context,
                             UIServices& services, const ListOfFeaturesRef& features,
                             const UIContainerData& data, bool wholeUi, void* param)
    : UIMoleculeContainer(featureServices, context.strings, services, features),
      m_data(data),
      m_wholeUi(wholeUi),
      m_param(param),
      m_question(featureServices, context.strings, services, UIMode::CompactDialog)
{
    buildFrom(data, data.getDialogActions().empty() ? 0 : kButtonRow);
    getLayout().layOut();
}

UIPopupDialog::~UIPopupDialog() = default;

bool UIPopupDialog::createOn(HWND window)
{
    getServices().getDialogConversion().initDialogConversions(window);
    return true;
}

bool UIPopupDialog::handleMessage(const _UIWindowsMessage& message)
{
    if (message.message == WM_INITDIALOG && !getWindow())
        return open(message);
    if (message.window != getWindow())
        return false;
    switch (message.message) {
    case WM_COMMAND:
        return processCommand(message) || offerToMolecules(message);
    case WM_CLOSE:
        EndDialog(getWindow(), 0);
        return true;
    case UIConflictWalk::kMessage:
        goToConflict(message.wParam != 0);
        return true;
    case WM_DESTROY: { // the controls go while their windows still exist
        const UIControl::ParentGoes going(message.window);
        m_conflictKey.reset();
        releaseMolecules();
        m_buttons.clear();
        return false;
    }
    default:
        return offerToMolecules(message);
    }
}

bool UIPopupDialog::open(const _UIWindowsMessage& message)
{
    const HWND window = message.window;
    SetWindowTextW(window, getStrings().LoadStringW(m_data.getTitle()).c_str());
    if (!initialize(window))
        return false;
    createButtons();
    m_conflictKey.emplace(window, WORD{VK_F8}, window, UIConflictWalk::kMessage);
    placeOnScreen();
    focusFirst();
    // What the procedure answers for a claimed message would give the focus back to a window that
    // the template does not have; the focus is set, so the message is left to the default.
    return false;
}

void UIPopupDialog::createButtons()
{
    const o7::TextMeasure measure(getPage().font);
    const UITextRuler ruler(measure, getServices().getDialogConversion());
    const auto& actions = m_data.getDialogActions();
    long width = kButtonWidth; // the same for all
    for (const auto& action : actions)
        width = std::max(width, ruler.WidthOf(getStrings().LoadStringW(action->getLabel())) +
                                    kButtonPadding);
    const auto count = static_cast<long>(actions.size());
    long x =
        m_data.getWidth() - UILayoutManager::kMargin - count * width - (count - 1) * kButtonGap;
    const long y = m_data.getHeight() - UILayoutManager::kMargin - kButtonHeight;
    for (const auto& action : actions) {
        auto button = std::make_unique<UIButtonControl>(
            getWindow(), static_cast<int>(action->getControlId()), getServices(), getPage().font,
            POINT{x, y}, SIZE{width, kButtonHeight}, action->isDefault());
        SetWindowTextW(button->getHwnd(), getStrings().LoadStringW(action->getLabel()).c_str());
        m_buttons.push_back(std::move(button));
        x += width + kButtonGap;
    }
}

void UIPopupDialog::focusFirst() const
{
    if (const HWND first = GetNextDlgTabItem(getWindow(), nullptr, FALSE))
        PostMessageW(getWindow(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(first), TRUE);
}

void UIPopupDialog::placeOnScreen() const
{
    o7::centreOver(getWindow(), m_wholeUi ? nullptr : GetWindow(getWindow(), GW_OWNER));
}

bool UIPopupDialog::processCommand(const _UIWindowsMessage& message)
{
    if (HIWORD(message.wParam) != BN_CLICKED)
        return false;
    switch (LOWORD(message.wParam)) {
    case IDOK:
        if (validateAll() && isAgreed())
            EndDialog(getWindow(), 1);
        return true;
    case IDCANCEL:
        EndDialog(getWindow(), 0);
        return true;
    default:
        return false;
    }
}

void UIPopupDialog::goToConflict(bool backwards) const
{
    const UIConflictWalk walk(getFeatureServices(), {this});
    const auto next = walk.next(walk.placeOfFocus(0), backwards);
    if (!next) {
        MessageBeep(MB_OK);
        return;
    }
    walk.moleculeAt(*next).Focus();
    walk.moleculeAt(*next).OfferWaysOut();
}

bool UIPopupDialog::isAgreed()
{
    if (!m_wholeUi)
        return true; // the sheet or dialog around it asks
    const auto missing =
        o7::findMissing(getFeatureServices(), [this](const FeatureIdWithContext& feature) {
            return findMolecule(feature) != nullptr;
        });
    if (missing) {
        goTo(*missing);
        const CXString name = getStrings().GetStringForFeature(missing->GetFeatureEnum());
        const CXString text = CXString::Formatted(
            getStrings().LoadStringW(O7STR_M_VALUE_MISSING).c_str(), name.c_str());
        getServices().showMessage(getWindow(), text, name, MB_ICONWARNING);
        return false;
    }
    switch (m_question.ask(getWindow(), UIConflictWalk::conflicts(getFeatureServices()))) {
    case UIConflictQuestion::Answer::GoOn:
        return true;
    case UIConflictQuestion::Answer::Settled:
        return isAgreed();
    case UIConflictQuestion::Answer::GoBack:
        break;
    }
    goTo(m_question.getFirst());
    return false;
}

void UIPopupDialog::goTo(const FeatureIdWithContext& feature) const
{
    if (UIMolecule* const molecule = findMolecule(feature))
        molecule->Focus();
}

void UIPopupDialog::dump() const
{
    UIDump::line(std::wstring(L"dialog \"") + getStrings().LoadStringW(m_data.getTitle()).c_str() +
                 L"\"");
    const UIDump::Level inner;
    dumpMolecules();
}

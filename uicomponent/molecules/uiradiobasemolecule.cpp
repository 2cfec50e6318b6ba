#include "uiradiobasemolecule.h"

#include <algorithm>

#include "optioncapability.h"
#include "uicontroldata.h"
#include "uidump.h"
#include "uimoleculedata.h"
#include "uimoleculedump.h"
#include "uiradiobuttoncontrol.h"
#include "uitextcontrol.h"
#include "uitextruler.h"
#include "uitooltips.h"
#include "windowtext.h"

namespace {

// Dialog units.
constexpr long kButtonHeight = 10;
constexpr long kRowGap = 2;
constexpr long kColumnGap = 6;
constexpr long kCircle = 12;    // the circle of a button and the gap behind it
constexpr long kBesideDrop = 2; // of the first button beside a heading
constexpr long kPushHeight = 14;
constexpr long kPushMargin = 8; // of the text in a push-like button, both sides together
constexpr long kPushGap = 4;
constexpr SIZE kPictureSize{28, 24};

constexpr long kMostLines = 2;
constexpr std::size_t kFewChoices = 3; // stand below each other whatever their texts

} // namespace

UIRadioBaseMolecule::UIRadioBaseMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIOptionMolecule(data, site)
{
}

UIRadioBaseMolecule::~UIRadioBaseMolecule()
{
    for (const Choice& choice : m_choices)
        if (choice.button && GetToolTips())
            GetToolTips()->setTip(choice.button->getHwnd(), CXString());
}

void UIRadioBaseMolecule::InitializeFromDescription()
{
    for (const auto& control : GetData().getControls()) {
        switch (control->getKind()) {
        case UIControlKind::Text:
            m_label.Set(LoadText(control->getLabel()), GetLabelWidth());
            break;
        case UIControlKind::Radio:
        case UIControlKind::RadioPush:
        case UIControlKind::RadioImage:
            SetBoundFeature(FeatureIdWithContext(FeatureId(control->getFeature())));
            m_kind = control->getKind();
            break;
        default:
            break;
        }
    }
    AddChoices(*ReadCapability());
    if (IsSideBySide())
        m_columns = std::max<std::size_t>(1, m_choices.size());
    UpdateMinimumHeight();
}

UIRadioBaseMolecule::Choice& UIRadioBaseMolecule::AddChoice(const ValueId& value,
                                                            const CXString& text)
{
    Choice& choice = m_choices.emplace_back();
    choice.value = value;
    choice.text = text;
    return choice;
}

bool UIRadioBaseMolecule::HasPictures() const
{
    return std::any_of(m_choices.begin(), m_choices.end(),
                       [](const Choice& choice) { return choice.picture != 0; });
}

long UIRadioBaseMolecule::ColumnGap() const
{
    return IsSideBySide() ? kPushGap : kColumnGap;
}

long UIRadioBaseMolecule::RowGap() const
{
    return IsSideBySide() ? kPushGap : kRowGap;
}

long UIRadioBaseMolecule::HeightOf(const Choice& choice) const
{
    if (IsSideBySide())
        return HasPictures() ? kPictureSize.cy : kPushHeight;
    return kButtonHeight + (choice.lines - 1) * UITextRuler::kLineHeight;
}

/// The width that each button gets of the room for all.
long UIRadioBaseMolecule::ButtonWidth(long room) const
{
    if (HasPictures())
        return kPictureSize.cx;
    const long columns = static_cast<long>(m_columns);
    const long share = (room - (columns - 1) * ColumnGap()) / columns;
    return m_kind == UIControlKind::RadioPush && m_widest ? std::min(share, m_widest + kPushMargin)
                                                          : share;
}

/// How many buttons of that width stand side by side.
std::size_t UIRadioBaseMolecule::ColumnsFor(long room, long width) const
{
    const long fitting = (room + ColumnGap()) / (width + ColumnGap());
    return static_cast<std::size_t>(
        std::clamp(fitting, 1L, std::max(1L, static_cast<long>(m_choices.size()))));
}

/// Calls place(choice, x, y) for the buttons that are shown, row by row, and returns the height of
/// all rows. Dialog units, from the corner of the first button.
template <class Place> long UIRadioBaseMolecule::ForEachPlace(long width, const Place& place)
{
    std::size_t column = 0;
    long y = 0;
    long rowHeight = 0;
    for (Choice& choice : m_choices) {
        if (!choice.shown)
            continue;
        if (column == m_columns) {
            column = 0;
            y += rowHeight + RowGap();
            rowHeight = 0;
        }
        place(choice, static_cast<long>(column) * (width + ColumnGap()), y);
        rowHeight = std::max(rowHeight, HeightOf(choice));
        ++column;
    }
    return y + rowHeight;
}

void UIRadioBaseMolecule::UpdateMinimumHeight()
{
    const long buttons = ForEachPlace(0, [](const Choice&, long, long) {});
    const long drop = m_label.GetBesideWidth() ? kBesideDrop : 0;
    SetMinimumExtent({0, m_label.GetHeightAbove() + drop + buttons});
}

void UIRadioBaseMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    m_label.Fit(ruler, width - kInfoLane);
    m_widest = 0;
    for (const Choice& choice : m_choices)
        m_widest = std::max(m_widest, ruler.WidthOf(choice.text));
    const long room = width - kInfoLane - m_label.GetBesideWidth();
    const long around = IsSideBySide() ? kPushMargin : kCircle;
    if (HasPictures())
        m_columns = ColumnsFor(room, kPictureSize.cx);
    else if (IsSideBySide())
        m_columns = ColumnsFor(room, m_widest + around);
    else if (m_choices.size() > kFewChoices)
        m_columns = std::min<std::size_t>(2, ColumnsFor(room, m_widest + around));
    else
        m_columns = 1;
    const long mostLines = IsSideBySide() ? 1 : ruler.GetFit().mostLines;
    for (Choice& choice : m_choices)
        if (!choice.picture)
            choice.lines = ruler.LinesOf(choice.text, ButtonWidth(room) - around, mostLines);
    UpdateMinimumHeight();
}

long UIRadioBaseMolecule::GetWantedLabelWidth(const UITextRuler& ruler) const
{
    return m_label.GetWantedWidth(ruler);
}

POINT UIRadioBaseMolecule::FirstPlace() const
{
    const POINT place = GetPosition();
    const long beside = m_label.GetBesideWidth();
    return {place.x + beside, place.y + m_label.GetHeightAbove() + (beside ? kBesideDrop : 0)};
}

void UIRadioBaseMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    UIServices& services = GetSite().services;
    m_label.Create(page, services, GetPosition(), GetContentWidth());
    const POINT first = FirstPlace();
    const long width = ButtonWidth(GetContentWidth() - m_label.GetBesideWidth());
    ForEachPlace(width, [&](Choice& choice, long x, long y) {
        const DWORD group = x == 0 && y == 0 ? WS_GROUP : 0;
        const DWORD look =
            (IsSideBySide() ? BS_PUSHLIKE : 0) | (choice.lines > 1 ? BS_MULTILINE : 0);
        choice.button = std::make_unique<UIRadioButtonControl>(
            page.window, page.takeId(), services, page.font, POINT{first.x + x, first.y + y},
            SIZE{width, HeightOf(choice)}, group | look);
        ShowText(choice);
        if (choice.picture)
            choice.button->setPictures(choice.picture, choice.checkedPicture);
    });
    m_area = std::make_unique<UITextControl>(
        page.window, page.takeId(), services, page.font, POINT{GetPosition().x, GetPosition().y},
        SIZE{GetContentWidth(), kButtonHeight}, WS_GROUP | WS_DISABLED, false, nullptr);
}

void UIRadioBaseMolecule::ShowText(Choice& choice)
{
    choice.button->setText(choice.text);
    const CXString text = o7::withoutMnemonics(choice.text);
    // A button alone does not say what it is a choice of.
    const CXString heading = o7::spokenName(m_label.GetText());
    choice.button->setAccessibleName(heading.IsEmpty() ? text : heading + L": " + text);
    if (choice.picture && GetToolTips())
        GetToolTips()->setTip(choice.button->getHwnd(), text);
}

bool UIRadioBaseMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    if (message.message == WM_COMMAND) {
        const HWND sender = reinterpret_cast<HWND>(message.lParam);
        const auto clicked =
            std::find_if(m_choices.begin(), m_choices.end(), [&](const Choice& choice) {
                return sender && choice.button && choice.button->getHwnd() == sender;
            });
        if (clicked != m_choices.end()) {
            if (HIWORD(message.wParam) == BN_CLICKED &&
                clicked->button->getCheck() == BST_UNCHECKED)
                Choose(clicked->option);
            return true;
        }
    }
    return ProcessCommonMessage(message);
}

void UIRadioBaseMolecule::MoveControls(POINT delta)
{
    m_label.Move(delta);
    for (Choice& choice : m_choices)
        if (choice.button)
            choice.button->move(delta, false);
    if (m_area)
        m_area->move(delta, false);
}

void UIRadioBaseMolecule::ShowOptions()
{
    MatchChoices();
    bool moved = false;
    for (Choice& choice : m_choices) {
        choice.option = FindOption(choice.value);
        const bool shown = choice.option < 0 ? GetOptions().empty()
                                             : !GetOption(choice.option).hidden ||
                                                   IsPresent(GetOption(choice.option));
        moved |= shown != choice.shown;
        choice.shown = shown;
    }
    if (moved)
        PlaceButtons();
}

// Hidden buttons leave no hole.
void UIRadioBaseMolecule::PlaceButtons()
{
    const POINT first = FirstPlace();
    const long width = ButtonWidth(GetContentWidth() - m_label.GetBesideWidth());
    ForEachPlace(width, [&](Choice& choice, long x, long y) {
        choice.button->setLocation({first.x + x, first.y + y});
        if (GetToolTips() && !choice.tip.IsEmpty())
            GetToolTips()->setAreaTip(choice.button->getHwnd(), choice.tip);
    });
    for (const Choice& choice : m_choices)
        choice.button->setShow(m_isShown && choice.shown);
}

void UIRadioBaseMolecule::ShowChoice(int option)
{
    for (Choice& choice : m_choices)
        choice.button->setCheck(option >= 0 && choice.option == option ? BST_CHECKED
                                                                       : BST_UNCHECKED);
}

/// Whether the button can be pressed. @param enabled  the feature as a whole
bool UIRadioBaseMolecule::CanTake(const Choice& choice, bool enabled) const
{
    if (!enabled || !choice.shown)
        return false;
    return choice.option < 0 ||
           !(GetOption(choice.option).unavailable || GetOption(choice.option).hidden);
}

void UIRadioBaseMolecule::EnableControls(bool enabled)
{
    m_label.Enable(enabled);
    bool focusLost = false;
    for (Choice& choice : m_choices) {
        const HWND button = choice.button->getHwnd();
        const bool canTake = CanTake(choice, enabled);
        focusLost |= !canTake && IsWindowEnabled(button) && GetFocus() == button;
        choice.button->setEnable(canTake);
        ShowTip(choice, canTake ? CXString() : ReasonOf(choice, enabled));
    }
    ChooseTabStop(enabled);
    if (focusLost && enabled)
        Focus();
}

CXString UIRadioBaseMolecule::ReasonOf(const Choice& choice, bool enabled) const
{
    if (choice.option >= 0 && !GetOption(choice.option).reason.IsEmpty())
        return GetOption(choice.option).reason;
    return enabled ? CXString() : GetState().GetReason();
}

// A disabled window lets the pointer through to the page, which has the tip instead.
void UIRadioBaseMolecule::ShowTip(Choice& choice, const CXString& tip)
{
    const CXString wanted = choice.shown ? tip : CXString();
    if (!GetToolTips() || wanted == choice.tip)
        return;
    choice.tip = wanted;
    GetToolTips()->setAreaTip(choice.button->getHwnd(), wanted);
}

/// The chosen button, or the first when that one cannot be reached; null when none can.
UIRadioButtonControl* UIRadioBaseMolecule::FindTabStop(bool enabled) const
{
    UIRadioButtonControl* first = nullptr;
    for (const Choice& choice : m_choices) {
        if (!CanTake(choice, enabled))
            continue;
        if (choice.button->getCheck() == BST_CHECKED)
            return choice.button.get();
        if (!first)
            first = choice.button.get();
    }
    return first;
}

void UIRadioBaseMolecule::ChooseTabStop(bool enabled)
{
    const UIRadioButtonControl* const stop = FindTabStop(enabled);
    for (const Choice& choice : m_choices)
        choice.button->setTabStop(stop && choice.button.get() == stop);
}

bool UIRadioBaseMolecule::Focus()
{
    const UIRadioButtonControl* const target = HasControls() ? FindTabStop(IsEnabled()) : nullptr;
    if (!target)
        return UIOptionMolecule::Focus();
    SendMessageW(GetPage(), WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(target->getHwnd()), TRUE);
    return GetFocus() == target->getHwnd();
}

void UIRadioBaseMolecule::Show(bool shown)
{
    UIOptionMolecule::Show(shown);
    m_isShown = shown;
    m_label.Show(shown);
    for (const Choice& choice : m_choices)
        if (choice.button)
            choice.button->setShow(shown && choice.shown);
}

HWND UIRadioBaseMolecule::InfoAnchor() const
{
    return m_area ? m_area->getHwnd() : nullptr;
}

void UIRadioBaseMolecule::DumpControls() const
{
    const Choice* chosen = nullptr;
    for (const Choice& choice : m_choices)
        if (choice.button && choice.button->getCheck() == BST_CHECKED)
            chosen = &choice;
    o7::dumpControl(L"radio buttons", m_label.GetText(),
                    chosen ? o7::withoutMnemonics(chosen->text) : CXString(), StateText(),
                    GetInfoText());
    const UIDump::Level inner;
    for (const Choice& choice : m_choices)
        if (choice.option >= 0)
            DumpOption(GetOption(choice.option), choice.text);
}

CXString UIRadioBaseMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIRadioBaseMolecule:UIOptionMolecule:UIFeatureMolecule:UIMolecule");
}

#include "uinumberfield.h"

#include <commctrl.h>

#include <algorithm>
#include <utility>

#include "uidump.h"
#include "uieditcontrol.h"
#include "uiservices.h"
#include "uispincontrol.h"
#include "uistringnumbers.h"
#include "uitextcontrol.h"

namespace {

// Dialog units.
constexpr long kLeastWidth = 40;
constexpr long kNarrowWidth = 32; // where the unit needs the room
constexpr long kDigitWidth = 5;
constexpr long kInnerMargins = 6;
constexpr long kArrowsWidth = 11;
constexpr long kUnitGap = 3;
constexpr long kUnitDrop = 3; // of a text of one line behind the box
constexpr long kTextHeight = 8;

// More than any number needs: a longer text is wrong, and is said to be.
constexpr int kTextLimit = 64;

struct Sentence
{
    UINumberRules::Fault fault;
    unsigned number;
};
constexpr Sentence kSentences[] = {
    {UINumberRules::Fault::Empty, O7STR_M_MISSING},
    {UINumberRules::Fault::NotANumber, O7STR_M_NOT_A_NUMBER},
    {UINumberRules::Fault::UnknownUnit, O7STR_M_UNKNOWN_UNIT},
    {UINumberRules::Fault::NotWhole, O7STR_M_NOT_WHOLE},
    {UINumberRules::Fault::OutOfRange, O7STR_M_OUT_OF_RANGE},
    {UINumberRules::Fault::NotNow, O7STR_M_REFUSED},
};

/// The text for a sentence: on one line, and not endless.
CXString quoted(const CXString& text)
{
    constexpr int kLongest = 24;
    return text.GetLength() > kLongest ? text.Left(kLongest) + L"\u2026" : text;
}

} // namespace

UINumberField::UINumberField() = default;
UINumberField::~UINumberField() = default;

void UINumberField::SetRules(RulesSource source)
{
    m_rulesSource = std::move(source);
    RenewRules();
}

void UINumberField::RenewRules()
{
    UINumberRules rules = m_rulesSource();
    if (rules == m_rules)
        return;
    const bool looksOther = !rules.writesLike(m_rules);
    m_rules = std::move(rules);
    if (!GetEdit())
        return;
    if (looksOther) {
        if (m_unit)
            m_unit->setLabelText(m_rules.unitText);
        DropPending();
    }
    PlaceArrows();
}

long UINumberField::GetWantedWidth(bool hasArrows) const
{
    const long text = kDigitWidth * m_rules.longestText() + kInnerMargins;
    return std::max(kLeastWidth, text + (hasArrows ? kArrowsWidth : 0));
}

void UINumberField::Create(UIPageWindow& page, const Surroundings& surroundings, POINT location,
                           long width, bool hasArrows)
{
    const long unitRoom = m_unitWidth ? m_unitWidth + kUnitGap : 0;
    const long most = std::max(width - unitRoom, std::min(width, kNarrowWidth));
    const long boxWidth = std::min(most, GetWantedWidth(hasArrows));
    const long editWidth = hasArrows ? boxWidth - kArrowsWidth : boxWidth;
    UIServices& services = surroundings.site.services;
    const DWORD alignment = services.isRightToLeft() ? ES_RIGHT : ES_LEFT;
    CreateBox(page, surroundings, {location, {editWidth, kHeight}, alignment, kTextLimit});
    GetEdit()->keepUnmirrored();
    if (hasArrows) {
        m_arrows = std::make_unique<UISpinControl>(page.window, page.takeId(), services, page.font,
                                                   POINT{location.x + editWidth, location.y},
                                                   SIZE{kArrowsWidth, kHeight}, 0, true, 0, 0);
    }
    const long unitX = boxWidth + kUnitGap;
    if (m_rules.unitText.IsEmpty() || unitX >= width)
        return;
    m_unit = std::make_unique<UITextControl>(page.window, page.takeId(), services, page.font,
                                             POINT{location.x + unitX, location.y + kUnitDrop},
                                             SIZE{width - unitX, kTextHeight},
                                             SS_NOTIFY | SS_NOPREFIX, true, page.boldFont);
    m_unit->setLabelText(m_rules.unitText);
}

void UINumberField::Move(POINT delta)
{
    UITypedField::Move(delta);
    if (m_arrows)
        m_arrows->move(delta, false);
    if (m_unit)
        m_unit->move(delta, false);
}

void UINumberField::Enable(bool enabled)
{
    UITypedField::Enable(enabled);
    if (m_arrows)
        m_arrows->setEnable(enabled);
    if (m_unit)
        m_unit->setEnable(enabled);
}

void UINumberField::Show(bool shown)
{
    UITypedField::Show(shown);
    if (m_arrows)
        m_arrows->setShow(shown);
    if (m_unit)
        m_unit->setShow(shown);
}

void UINumberField::ShowValue(std::optional<std::int64_t> value)
{
    if (value == m_value && m_isShown)
        return;
    m_isShown = true; // the arrows of an empty box have to be placed as well
    m_value = value;
    m_origin = value;
    DropPending();
    PlaceArrows();
}

// The arrows keep the ends and the place in the last digit shown, as screen readers tell them.
void UINumberField::PlaceArrows()
{
    if (!m_arrows)
        return;
    const auto ends = m_rules.ranges.empty()
                          ? std::pair(UD_MINVAL, UD_MAXVAL)
                          : std::pair(m_rules.position(m_rules.ranges.front().low),
                                      m_rules.position(m_rules.ranges.back().high));
    m_arrows->setRange(ends.first, ends.second);
    m_arrows->setPosition(m_rules.position(m_value.value_or(0)));
    // The arrows stand before the box's procedure from now on, which makes each of its messages
    // dearer; so they are not introduced before the box is made.
    m_arrows->setBuddy(GetHwnd());
}

CXString UINumberField::PresentText() const
{
    return m_value ? m_rules.text(*m_value) : CXString();
}

CXString UINumberField::PresentTextInSentence() const
{
    return m_value ? m_rules.textWithUnit(*m_value) : CXString();
}

const UIUnitNames& UINumberField::Names() const
{
    if (!m_names) {
        m_names.emplace();
        m_names->add(String(O7STR_U_MILLIMETRE_WORDS), {Dimension::UnitsEnum::Millimetre, 1});
        m_names->add(String(O7STR_U_CENTIMETRE_WORDS), {Dimension::UnitsEnum::Millimetre, 10});
        m_names->add(String(O7STR_U_INCH_WORDS), {Dimension::UnitsEnum::Inch, 1});
        m_names->add(String(O7STR_U_POINT_WORDS), {Dimension::UnitsEnum::Point, 1});
    }
    return *m_names;
}

// The text that stood there stands for the value that stood there, though it shows it rounded.
UINumberRules::Reading UINumberField::Read(const CXString& text) const
{
    if (m_origin && text == m_rules.text(*m_origin) && m_rules.allows(*m_origin))
        return {UINumberRules::Fault::None, *m_origin};
    return m_rules.read(text, Names());
}

std::optional<std::int64_t> UINumberField::ValueOf(const CXString& text) const
{
    const auto reading = Read(text);
    return reading.fault == UINumberRules::Fault::None ? std::optional(reading.value)
                                                       : std::nullopt;
}

std::optional<std::int64_t> UINumberField::GetTypedValue() const
{
    return ValueOf(GetText());
}

UITypedField::Verdict UINumberField::Take(const CXString& text)
{
    if (!m_value && text.IsEmpty())
        return {.taken = true};
    RenewRules();
    const auto reading = Read(text);
    if (reading.fault != UINumberRules::Fault::None) {
        GiveBack();
        const bool outOfRange = reading.fault == UINumberRules::Fault::OutOfRange;
        return {.fault = FaultSentence(reading.fault, text),
                .correction = outOfRange ? m_rules.text(reading.value) : CXString()};
    }
    if (reading.value == m_value)
        return {.taken = true};
    const auto before = std::exchange(m_value, reading.value); // what is told meanwhile is no news
    if (!m_write(reading.value)) {
        m_value = before;
        GiveBack();
        return {.fault = RefusedSentence()};
    }
    PlaceArrows();
    return {.taken = true};
}

// On the way to a text that is no value, its beginning may have been one.
void UINumberField::GiveBack()
{
    if (!m_origin || m_value == m_origin)
        return;
    const auto before = std::exchange(m_value, m_origin);
    if (!m_write(*m_origin))
        m_value = before;
    PlaceArrows();
}

CXString UINumberField::FaultSentence(UINumberRules::Fault fault, const CXString& text) const
{
    const auto* row =
        std::find_if(std::begin(kSentences), std::end(kSentences),
                     [fault](const Sentence& sentence) { return sentence.fault == fault; });
    CXString sentence =
        fault == UINumberRules::Fault::NotNow
            ? RefusedSentence()
            : CXString::Formatted(String(row->number).c_str(), quoted(text).c_str());
    if (!m_rules.ranges.empty())
        sentence +=
            L"\n" + CXString::Formatted(String(O7STR_M_ALLOWED).c_str(), RangeText().c_str());
    return sentence;
}

CXString UINumberField::RangeText() const
{
    CXString text;
    for (const auto& range : m_rules.ranges) {
        if (!text.IsEmpty())
            text += L", ";
        const CXString low =
            m_rules.isLength ? m_rules.textWithUnit(range.low) : m_rules.text(range.low);
        text += CXString::Formatted(String(O7STR_M_RANGE_PART).c_str(), low.c_str(),
                                    m_rules.textWithUnit(range.high).c_str());
    }
    return text;
}

void UINumberField::DumpRange() const
{
    if (UIDump::isCollecting() && !m_rules.ranges.empty())
        UIDump::line((L"- " + RangeText()).View());
}

bool UINumberField::HandleMessage(const _UIWindowsMessage& message)
{
    if (message.message == WM_SETTINGCHANGE && GetEdit()) {
        GetSite().services.setRegionalSettings(UIRegionalSettings::current());
        RenewRules();
        return false; // the other fields have to know as well
    }
    if (m_arrows && message.message == WM_NOTIFY && message.lParam) {
        const auto& header = *reinterpret_cast<const NMHDR*>(message.lParam);
        if (header.hwndFrom != m_arrows->getHwnd() || header.code != UDN_DELTAPOS)
            return false;
        StepBy(reinterpret_cast<const NMUPDOWN*>(message.lParam)->iDelta);
        // The arrows are placed by what the model takes.
        SetWindowLongPtrW(message.window, DWLP_MSGRESULT, TRUE);
        message.result = TRUE;
        return true;
    }
    return UITypedField::HandleMessage(message);
}

void UINumberField::StepBy(int steps)
{
    if (!IsWindowEnabled(GetHwnd()))
        return;
    RenewRules();
    const auto next = StepFrom(steps);
    if (!next)
        return;
    HideTip();
    ShowText(m_rules.text(*next));
    Retake();
    GetEdit()->selectAll();
}

/// Nothing when what stands in the box is no number that could be counted from.
std::optional<std::int64_t> UINumberField::StepFrom(int steps) const
{
    using Fault = UINumberRules::Fault;
    if (!IsPending() && m_value)
        return m_rules.step(*m_value, steps);
    const auto reading = Read(GetText());
    if (reading.fault == Fault::Empty) // begins where the values do
        return m_rules.nearest(m_value.value_or(0));
    const bool isNumber = reading.fault == Fault::None || reading.fault == Fault::OutOfRange ||
                          reading.fault == Fault::NotNow;
    return isNumber ? std::optional(m_rules.step(reading.value, steps)) : std::nullopt;
}

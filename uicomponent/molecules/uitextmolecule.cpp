#include "uitextmolecule.h"

#include "uicontroldata.h"
#include "uimoleculedata.h"
#include "uimoleculedump.h"
#include "uitextcontrol.h"
#include "uitextcontroldata.h"
#include "uitextruler.h"

namespace {

constexpr long kMostLines = 6; // a longer text is no explanation beside a setting any more

} // namespace

UITextMolecule::UITextMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIMolecule(data, site)
{
}

UITextMolecule::~UITextMolecule() = default;

void UITextMolecule::InitializeFromDescription()
{
    for (const auto& control : GetData().getControls()) {
        if (control->getKind() != UIControlKind::Text)
            continue;
        const auto& text = static_cast<const UITextControlData&>(*control);
        m_number = text.getLabel();
        m_bold = text.isBold();
        m_lines = static_cast<long>(text.getLines());
    }
    SetMinimumExtent({0, m_lines * UITextRuler::kLineHeight});
}

void UITextMolecule::FitTexts(const UITextRuler& ruler, long width)
{
    // Where labels have to keep to one line, a paragraph keeps to the lines that it was promised.
    const long most = ruler.GetFit().mostLines > 1 ? kMostLines : m_lines;
    SetMinimumExtent(
        {0, ruler.LinesOf(LoadText(m_number), width, most) * UITextRuler::kLineHeight});
}

void UITextMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    m_text = std::make_unique<UITextControl>(
        page.window, page.takeId(), GetSite().services, page.font, GetPosition(),
        SIZE{GetWidth(), GetMinimumHeight()}, SS_NOPREFIX, true, page.boldFont);
    m_text->setLabelText(LoadText(m_number));
    if (m_bold)
        m_text->boldText(true);
}

void UITextMolecule::MoveControls(POINT delta)
{
    if (m_text)
        m_text->move(delta, false);
}

bool UITextMolecule::HandleMessage(const _UIWindowsMessage& message)
{
    return ProcessCommonMessage(message);
}

void UITextMolecule::Show(bool shown)
{
    UIMolecule::Show(shown);
    if (m_text)
        m_text->setShow(shown);
}

void UITextMolecule::DumpControls() const
{
    o7::dumpControl(L"text", LoadText(m_number), CXString(), CXString(), CXString());
}

CXString UITextMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UITextMolecule:UIMolecule");
}

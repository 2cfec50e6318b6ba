#include "gallerypage.h"

#include <uxtheme.h>

#include <algorithm>
#include <utility>

#include "cxstring.h"
#include "dialogconversion.h"
#include "gallerytemplate.h"
#include "uidump.h"
#include "uiguard.h"
#include "uiradiobuttoncontrol.h"
#include "uitextcontrol.h"
#include "uiwindowsmessage.h"

namespace o7 {
namespace {

// All in dialog units.
constexpr LONG kMargin = 7;
constexpr LONG kNameWidth = 60;
constexpr LONG kColumnPitch = 50;
constexpr LONG kColumnWidth = 46;
constexpr LONG kTextHeight = 8;
constexpr LONG kRowGap = 7;

constexpr wchar_t kNoSuchState[] = L"\u2013";
constexpr wchar_t kLongText[] = L"Keep the order of pages";

LONG columnLeft(int column)
{
    return kMargin + kNameWidth + column * kColumnPitch;
}

LONG heightOf(const GallerySection& section)
{
    LONG height = kMargin + kTextHeight + kRowGap;
    for (const GalleryKind& kind : section.kinds) {
        height += kind.size.cy + kRowGap;
    }
    return height;
}

/// What a dialog procedure answers directly, instead of through DWLP_MSGRESULT.
bool isAnsweredDirectly(UINT message)
{
    return (message >= WM_CTLCOLORMSGBOX && message <= WM_CTLCOLORSTATIC) ||
           message == WM_COMPAREITEM || message == WM_VKEYTOITEM || message == WM_CHARTOITEM;
}

CXString textFor(const GalleryKind& kind, GalleryState state)
{
    if (state == GalleryState::Truncated) {
        return kLongText;
    }
    CXString text = kind.text;
    if (state != GalleryState::Normal && kind.text[0] == L'&') {
        text.Replace(L"&", L""); // no letter twice on a page
    }
    return text;
}

} // namespace

GalleryPage::GalleryPage(HWND parent, const GallerySection& section, const Look& look)
    : m_section(section), m_look(look)
{
    const DWORD visible = look.visible ? WS_VISIBLE : 0U;
    m_dialog = createDialog(parent, {0, 0}, sizeInDialogUnits(), visible, look.mirrored);
    if (m_dialog) {
        createContent();
    }
}

GalleryPage::~GalleryPage()
{
    // Windows tell their parent that they go: nobody is to be asked any more by then.
    std::exchange(m_cells, {}).clear();
    m_labels.clear();
    m_toolTips.reset();
    if (m_dialog) {
        DestroyWindow(m_dialog);
    }
}

SIZE GalleryPage::sizeInDialogUnits()
{
    LONG height = 0;
    for (const GallerySection& section : gallerySections()) {
        height = std::max(height, heightOf(section));
    }
    return {columnLeft(kGalleryStateCount - 1) + kColumnWidth + kMargin, height};
}

const GalleryCell* GalleryPage::find(const GalleryKind& kind, GalleryState state) const
{
    const auto found = std::ranges::find_if(m_cells, [&](const GalleryCell& cell) {
        return cell.kind == &kind && cell.state == state;
    });
    return found == m_cells.end() ? nullptr : &*found;
}

std::wstring GalleryPage::dumpText() const
{
    std::wstring text;
    const UIDump collector(text);
    UIDump::line(m_section.title);
    for (const GalleryCell& cell : m_cells) {
        UIDump::line(std::wstring(cell.kind->name) + L", " + galleryStateName(cell.state));
        const UIDump::Level level;
        cell.sample.control->dump();
    }
    return text;
}

HWND GalleryPage::createDialog(HWND parent, POINT location, SIZE size, DWORD style, bool mirrored)
{
    style |= WS_CHILD | DS_CONTROL;
    const DWORD exStyle = WS_EX_CONTROLPARENT | (mirrored ? DWORD{WS_EX_LAYOUTRTL} : 0U);
    return GalleryTemplate(style, exStyle, location, size, m_look.pointSize)
        .create(parent, &GalleryPage::procedure, this);
}

void GalleryPage::createContent()
{
    m_services.getDialogConversion().initDialogConversions(m_dialog);
    m_font = reinterpret_cast<HFONT>(SendMessageW(m_dialog, WM_GETFONT, 0, 0));
    LOGFONTW font{};
    GetObjectW(m_font, sizeof font, &font);
    font.lfWeight = FW_BOLD;
    m_boldFont.reset(CreateFontIndirectW(&font));
    m_toolTips = std::make_unique<UIToolTips>(m_dialog);
    for (int column = 0; column < kGalleryStateCount; ++column) {
        createLabel(galleryStateName(static_cast<GalleryState>(column)),
                    {columnLeft(column), kMargin}, {kColumnPitch, kTextHeight}, 0, true);
    }
    LONG top = kMargin + kTextHeight + kRowGap;
    for (const GalleryKind& kind : m_section.kinds) {
        createRow(kind, top);
        top += kind.size.cy + kRowGap;
    }
}

void GalleryPage::createRow(const GalleryKind& kind, LONG top)
{
    const LONG textTop =
        top + std::max<LONG>(0, (std::min<LONG>(kind.size.cy, 14) - kTextHeight) / 2);
    // Labels first: the cells of a row stand side by side for the arrow keys as well.
    createLabel(kind.name, {kMargin, textTop}, {kNameWidth - 4, kTextHeight}, WS_GROUP, false);
    for (int column = 0; column < kGalleryStateCount; ++column) {
        if (!kind.has(static_cast<GalleryState>(column))) {
            createLabel(kNoSuchState, {columnLeft(column), textTop}, {kColumnWidth, kTextHeight}, 0,
                        false);
        }
    }
    for (int column = 0; column < kGalleryStateCount; ++column) {
        if (const auto state = static_cast<GalleryState>(column); kind.has(state)) {
            createCell(kind, state, {columnLeft(column), top});
        }
    }
}

void GalleryPage::createCell(const GalleryKind& kind, GalleryState state, POINT location)
{
    HWND parent = m_dialog;
    if (state == GalleryState::RightToLeft) {
        // A small dialog of its own: layout is a matter of the parent.
        parent = createDialog(m_dialog, location, kind.size, WS_VISIBLE | WS_GROUP, true);
        location = {0, 0};
    }
    m_cells.push_back({&kind, state, {}});
    GalleryCell& cell = m_cells.back();
    GalleryPlace place = placeAt(parent, location, kind.size);
    if (state == GalleryState::Normal || parent != m_dialog) {
        place.groupStyle = WS_GROUP | WS_TABSTOP;
    }
    cell.sample.control = kind.create(place);
    show(cell);
}

void GalleryPage::createLabel(const wchar_t* text, POINT location, SIZE size, DWORD style,
                              bool bold)
{
    const GalleryPlace place = placeAt(m_dialog, location, size);
    auto label = std::make_unique<UITextControl>(place.parent, place.id, place.services, place.font,
                                                 place.location, place.size, style | SS_NOPREFIX,
                                                 true, place.boldFont);
    label->setText(text);
    label->boldText(bold);
    m_labels.push_back(std::move(label));
}

void GalleryPage::show(GalleryCell& cell)
{
    UIControl& control = *cell.sample.control;
    const CXString text = cell.kind->text ? textFor(*cell.kind, cell.state) : CXString();
    cell.kind->fill(cell.sample, text.c_str());
    switch (cell.state) {
    case GalleryState::Pressed:
        if (cell.kind->press == GalleryPress::ByMessage) {
            SendMessageW(control.getHwnd(), BM_SETSTATE, TRUE, 0);
        }
        break;
    case GalleryState::Disabled:
        control.setEnable(false);
        break;
    case GalleryState::Cleared:
        cell.kind->clear(control);
        control.setEnable(false);
        break;
    case GalleryState::Unavailable:
        cell.kind->showUnavailable(control);
        break;
    case GalleryState::Truncated:
        m_toolTips->AddToolTipAndTruncatedLabel(cell.kind->tipType, control.getHwnd(), 0,
                                                control.getDimensionInPixels(), text, m_font);
        break;
    default:
        break;
    }
}

GalleryPlace GalleryPage::placeAt(HWND parent, POINT location, SIZE size)
{
    return {parent,      m_nextId++, m_services, m_font, m_boldFont.get(),
            *m_toolTips, location,   size,       0};
}

INT_PTR CALLBACK GalleryPage::procedure(HWND window, UINT message, WPARAM wParam,
                                        LPARAM lParam) noexcept
{
    return guarded<INT_PTR>(L"GalleryPage::procedure", L"gallerypage", [&]() -> INT_PTR {
        if (message == WM_INITDIALOG) {
            SetWindowLongPtrW(window, GWLP_USERDATA, lParam);
            EnableThemeDialogTexture(window, ETDT_ENABLETAB);
            return FALSE; // the keyboard stays where it is
        }
        auto* page = reinterpret_cast<GalleryPage*>(GetWindowLongPtrW(window, GWLP_USERDATA));
        return page ? page->route(window, message, wParam, lParam) : FALSE;
    });
}

INT_PTR GalleryPage::route(HWND window, UINT message, WPARAM wParam, LPARAM lParam)
{
    if (message == WM_NCDESTROY && window == m_dialog) {
        m_dialog = nullptr;
    }
    const _UIWindowsMessage packed{UIMessageKind::Dialog, window, message, wParam, lParam, 0};
    if (message == WM_COMMAND && HIWORD(wParam) == BN_CLICKED) {
        checkOnly(reinterpret_cast<HWND>(lParam));
    }
    if (!offer(packed)) {
        return FALSE;
    }
    if (isAnsweredDirectly(message)) {
        return packed.result;
    }
    SetWindowLongPtrW(window, DWLP_MSGRESULT, packed.result);
    return TRUE;
}

/// Of the radio buttons in a row only the one that was clicked stays checked.
void GalleryPage::checkOnly(HWND radio)
{
    const auto clicked = std::ranges::find(m_cells, radio, &GalleryCell::window);
    if (clicked == m_cells.end()) {
        return;
    }
    for (const GalleryCell& cell : m_cells) {
        auto* button = dynamic_cast<UIRadioButtonControl*>(cell.sample.control.get());
        if (button && cell.kind == clicked->kind && GetParent(cell.window()) == GetParent(radio)) {
            button->setCheck(cell.window() == radio ? BST_CHECKED : BST_UNCHECKED);
        }
    }
}

bool GalleryPage::offer(const _UIWindowsMessage& message)
{
    if (m_toolTips) {
        m_toolTips->relayMouse(message);
    }
    return std::ranges::any_of(m_cells, [&](const GalleryCell& cell) {
        return cell.sample.control && cell.sample.control->handleMessage(message);
    });
}

} // namespace o7

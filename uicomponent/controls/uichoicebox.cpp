#include "uichoicebox.h"

#include <algorithm>
#include <utility>

#include "isolationaware.h"
#include "modaldialog.h"
#include "textmeasure.h"
#include "tipplacement.h"
#include "uidialogtemplate.h"
#include "uidump.h"
#include "uimessagemanager.h"
#include "uiservices.h"
#include "uiwindowsmessage.h"
#include "windowtext.h"

namespace {

// Dialog units.
constexpr LONG kMargin = 7;
constexpr LONG kGap = 4;
constexpr LONG kWidest = 260;
constexpr LONG kChoiceSign = 12; // round sign and its gap
constexpr LONG kChoiceHeight = 10;
constexpr LONG kButtonWidth = 50;
constexpr LONG kButtonHeight = 14;
constexpr LONG kButtonPadding = 8;

constexpr int kTextId = 0xFFFF; // as in a message box
constexpr int kFirstChoiceId = 1000;
constexpr UINT kWalk = WM_APP + 1;

} // namespace

UIChoiceBox::UIChoiceBox(const UIServices& services, Content content)
    : m_services(services), m_content(std::move(content))
{
}

UIChoiceBox::~UIChoiceBox() = default;

int UIChoiceBox::run(HWND owner)
{
    UIDialogTemplate dialogTemplate(IsolationAware::moduleInstance());
    dialogTemplate.makePopup(owner != nullptr);
    if (m_services.isRightToLeft())
        dialogTemplate.mirror();
    UIMessageManager messages;
    messages.append(UIMessageKind::Dialog, *this);
    const INT_PTR result =
        o7::runModalDialog(IsolationAware::moduleInstance(), dialogTemplate, owner, messages);
    return result > 0 ? static_cast<int>(result) : IDCANCEL;
}

bool UIChoiceBox::handleMessage(const _UIWindowsMessage& message)
{
    switch (message.message) {
    case WM_INITDIALOG:
        open(message.window);
        return false; // the focus is set
    case WM_COMMAND:
        if (HIWORD(message.wParam) == BN_CLICKED)
            command(LOWORD(message.wParam));
        return true;
    case WM_CLOSE:
        close(IDCANCEL);
        return true;
    case kWalk:
        PostMessageW(m_content.walker, m_content.walkMessage, message.wParam, 0);
        close(IDCANCEL);
        return true;
    case WM_DESTROY:
        m_walkKey.reset();
        return false;
    default:
        return false;
    }
}

void UIChoiceBox::open(HWND window)
{
    m_window = window;
    m_font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
    SetWindowTextW(window, m_content.title.c_str());
    placeAll(o7::TextMeasure(m_font));
    o7::centreOver(window, GetWindow(window, GW_OWNER));
    if (m_content.walker)
        m_walkKey.emplace(window, WORD{VK_F8}, window, kWalk);
    const int first = m_content.choices.empty() ? m_content.buttons.front().id : kFirstChoiceId;
    PostMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(GetDlgItem(window, first)), TRUE);
    if (m_content.sign == IDI_WARNING)
        MessageBeep(MB_ICONWARNING);
}

void UIChoiceBox::placeAll(const o7::TextMeasure& measure)
{
    const SIZE margin = pixels(kMargin, kMargin);
    const SIZE gap = pixels(kGap, kGap);
    const SIZE sign{GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON)};
    const LONG left = margin.cx + sign.cx + margin.cx;
    const LONG right = left + widthOfTexts(measure, margin.cx + sign.cx);
    const HWND picture = add(L"STATIC", {}, SS_ICON,
                             {margin.cx, margin.cy, margin.cx + sign.cx, margin.cy + sign.cy}, 0);
    SetWindowLongPtrW(picture, GWL_EXSTYLE, 0); // a sign looks the same from right to left
    SendMessageW(picture, STM_SETICON,
                 reinterpret_cast<WPARAM>(LoadImageW(nullptr, m_content.sign, IMAGE_ICON, 0, 0,
                                                     LR_SHARED | LR_DEFAULTSIZE)),
                 0);
    LONG bottom = placeText(measure, m_content.text, {left, margin.cy, right, 0}, kTextId);
    if (!m_content.choices.empty()) {
        bottom = placeText(measure, m_content.choicesLabel, {left, bottom + margin.cy, right, 0},
                           kTextId - 1);
        bottom = placeChoices(measure, {left, bottom + gap.cy, right, 0});
    }
    bottom = std::max(bottom, margin.cy + sign.cy) + margin.cy;
    placeButtons(measure, {right, bottom});
    RECT client{0, 0, right + margin.cx, bottom + pixels(0, kButtonHeight).cy + margin.cy};
    AdjustWindowRectEx(&client, static_cast<DWORD>(GetWindowLongPtrW(m_window, GWL_STYLE)), FALSE,
                       static_cast<DWORD>(GetWindowLongPtrW(m_window, GWL_EXSTYLE)));
    SetWindowPos(m_window, nullptr, 0, 0, client.right - client.left, client.bottom - client.top,
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}

/// As wide as the longest line wants to be, within bounds; never narrower than the buttons.
LONG UIChoiceBox::widthOfTexts(const o7::TextMeasure& measure, LONG besideButtons) const
{
    const LONG widest = pixels(kWidest, 0).cx;
    const LONG sign = pixels(kChoiceSign, 0).cx;
    LONG width = measure.measureWrapped(o7::withMarkedAmpersands(m_content.text).View(), widest).cx;
    width = std::max(width, measure.measure(m_content.choicesLabel.View()).cx);
    for (const CXString& choice : m_content.choices)
        width = std::max(width, sign + measure.measure(choice.View()).cx);
    const auto buttons = static_cast<LONG>(m_content.buttons.size());
    const LONG row = buttons * widthOfButton(measure) + (buttons - 1) * pixels(kGap, 0).cx;
    return std::max(std::min(width, widest), row - besideButtons);
}

/// @return the lower edge.
LONG UIChoiceBox::placeText(const o7::TextMeasure& measure, const CXString& text, RECT room,
                            int id) const
{
    const CXString marked = o7::withMarkedAmpersands(text);
    room.bottom = room.top + measure.measureWrapped(marked.View(), room.right - room.left).cy;
    add(L"STATIC", text, SS_LEFT | SS_NOPREFIX, room, id);
    return room.bottom;
}

LONG UIChoiceBox::placeChoices(const o7::TextMeasure& measure, RECT room) const
{
    const LONG sign = pixels(kChoiceSign, 0).cx;
    const SIZE line = pixels(0, kChoiceHeight);
    int id = kFirstChoiceId;
    for (const CXString& choice : m_content.choices) {
        const CXString text = o7::withMarkedAmpersands(choice);
        const LONG height = measure.measureWrapped(text.View(), room.right - room.left - sign).cy;
        room.bottom = room.top + std::max(height, line.cy);
        const DWORD first = id == kFirstChoiceId ? WS_GROUP | WS_TABSTOP : 0U;
        add(L"BUTTON", text, BS_AUTORADIOBUTTON | BS_MULTILINE | BS_TOP | first, room, id++);
        room.top = room.bottom + pixels(0, kGap).cy / 2;
    }
    CheckDlgButton(m_window, kFirstChoiceId, BST_CHECKED);
    return room.bottom;
}

LONG UIChoiceBox::widthOfButton(const o7::TextMeasure& measure) const
{
    LONG width = pixels(kButtonWidth, 0).cx;
    for (const Button& button : m_content.buttons)
        width = std::max(width, measure.measure(o7::withoutMnemonics(button.label).View()).cx +
                                    pixels(kButtonPadding, 0).cx);
    return width;
}

/// The row ends at the corner.
void UIChoiceBox::placeButtons(const o7::TextMeasure& measure, POINT corner) const
{
    const LONG width = widthOfButton(measure);
    const SIZE size = pixels(kGap, kButtonHeight);
    const auto count = static_cast<LONG>(m_content.buttons.size());
    LONG left = corner.x - count * width - (count - 1) * size.cx;
    DWORD style = BS_DEFPUSHBUTTON | WS_GROUP;
    for (const Button& button : m_content.buttons) {
        add(L"BUTTON", button.label, style | WS_TABSTOP,
            {left, corner.y, left + width, corner.y + size.cy}, button.id);
        left += width + size.cx;
        style = BS_PUSHBUTTON;
    }
    SendMessageW(m_window, DM_SETDEFID, static_cast<WPARAM>(m_content.buttons.front().id), 0);
}

/// Gone with the box.
HWND UIChoiceBox::add(const wchar_t* className, const CXString& text, DWORD style,
                      const RECT& place, int id) const
{
    const HWND window = IsolationAware::createWindow(
        0, className, WS_CHILD | WS_VISIBLE | style,
        {static_cast<int>(place.left), static_cast<int>(place.top),
         static_cast<int>(place.right - place.left), static_cast<int>(place.bottom - place.top)},
        m_window, id);
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(m_font), FALSE);
    SetWindowTextW(window, text.c_str());
    return window;
}

SIZE UIChoiceBox::pixels(LONG width, LONG height) const
{
    RECT units{0, 0, width, height};
    MapDialogRect(m_window, &units);
    return {units.right, units.bottom};
}

void UIChoiceBox::command(int id)
{
    const auto isButton = [id](const Button& button) { return button.id == id; };
    if (std::any_of(m_content.buttons.begin(), m_content.buttons.end(), isButton))
        close(id);
}

void UIChoiceBox::close(int id)
{
    for (std::size_t choice = 0; choice < m_content.choices.size(); ++choice)
        if (IsDlgButtonChecked(m_window, kFirstChoiceId + static_cast<int>(choice)) == BST_CHECKED)
            m_chosen = choice;
    EndDialog(m_window, id);
}

void UIChoiceBox::dump() const
{
    UIDump::line((CXString(L"box \"") + m_content.title + L"\"").View());
}

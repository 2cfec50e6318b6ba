#include "geometryrules.h"

#include <commctrl.h>

#include <algorithm>
#include <cwctype>

#include "windowtext.h"

namespace o7::test {

namespace {

/// What a box or a frame needs beside its text, in pixels.
constexpr LONG kCheckMark = 17;
constexpr LONG kFrameEnds = 16;
constexpr LONG kDrawnWider =
    50; // some displays draw wider than they measure: one part of that many
constexpr LONG kButtonEdges = 4;

std::string sized(const RECT& place)
{
    return std::to_string(place.left) + "," + std::to_string(place.top) + " to " +
           std::to_string(place.right) + "," + std::to_string(place.bottom);
}

bool contains(const RECT& outer, const RECT& inner)
{
    return outer.left <= inner.left && outer.top <= inner.top && outer.right >= inner.right &&
           outer.bottom >= inner.bottom;
}

} // namespace

GeometryRules::GeometryRules(HWND page, std::vector<LONG> columns,
                             std::function<CXString(HWND)> tipOf)
    : m_page(page),
      m_dc(CreateCompatibleDC(nullptr)),
      m_columns(std::move(columns)),
      m_tipOf(std::move(tipOf))
{
    collect();
}

void GeometryRules::collect()
{
    for (HWND child = GetWindow(m_page, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        Piece piece{child, {}, {}, o7::windowText(child).c_str(), GetWindowLongW(child, GWL_STYLE)};
        if ((piece.style & WS_VISIBLE) == 0)
            continue;
        wchar_t name[32] = L"";
        GetClassNameW(child, name, 32);
        piece.kind = name;
        std::transform(piece.kind.begin(), piece.kind.end(), piece.kind.begin(), std::towlower);
        GetWindowRect(child, &piece.place);
        MapWindowPoints(nullptr, m_page, reinterpret_cast<POINT*>(&piece.place), 2);
        m_pieces.push_back(std::move(piece));
    }
}

std::vector<std::string> GeometryRules::findFaults(std::set<wchar_t> takenMnemonics)
{
    m_faults.clear();
    checkPlaces();
    checkOrder();
    checkTexts();
    checkMnemonics(takenMnemonics);
    return m_faults;
}

void GeometryRules::fault(const Piece& piece, const std::string& what)
{
    m_faults.push_back(CXString(piece.kind + L" \"" + piece.text + L"\" ").ToUtf8() + what);
}

bool GeometryRules::isButton(const Piece& piece, LONG type)
{
    return piece.kind == L"button" && (piece.style & BS_TYPEMASK) == type;
}

bool GeometryRules::isFrame(const Piece& piece)
{
    return isButton(piece, BS_GROUPBOX);
}

/// The marks beside controls have texts that are read out, not drawn.
bool GeometryRules::drawsText(const Piece& piece)
{
    return piece.kind == L"static" ? (piece.style & SS_TYPEMASK) <= SS_RIGHT
                                   : piece.kind == L"button" && !isButton(piece, BS_OWNERDRAW);
}

void GeometryRules::checkPlaces()
{
    RECT room{};
    GetClientRect(m_page, &room);
    for (std::size_t i = 0; i < m_pieces.size(); ++i) {
        const Piece& piece = m_pieces[i];
        if (!contains(room, piece.place))
            fault(piece, "at " + sized(piece.place) + " runs off the page, " + sized(room));
        for (std::size_t j = i + 1; j < m_pieces.size(); ++j) {
            RECT common{};
            if (IntersectRect(&common, &piece.place, &m_pieces[j].place) &&
                !mayOverlap(piece, m_pieces[j]))
                fault(piece, "at " + sized(piece.place) + " overlaps \"" +
                                 CXString(m_pieces[j].text).ToUtf8() + "\" at " +
                                 sized(m_pieces[j].place));
        }
    }
}

/// A frame holds what stands in it; arrows stand in or at their field.
bool GeometryRules::mayOverlap(const Piece& first, const Piece& second)
{
    const auto holds = [](const Piece& frame, const Piece& other) {
        return isFrame(frame) && contains(frame.place, other.place);
    };
    return holds(first, second) || holds(second, first) || first.kind == UPDOWN_CLASSW ||
           second.kind == UPDOWN_CLASSW;
}

std::size_t GeometryRules::columnOf(const Piece& piece) const
{
    std::size_t column = 0;
    while (column + 1 < m_columns.size() && m_columns[column + 1] <= piece.place.left)
        ++column;
    return column;
}

bool GeometryRules::standsBefore(const Piece& first, const Piece& second) const
{
    if (columnOf(first) != columnOf(second))
        return columnOf(first) < columnOf(second);
    const bool sameLine =
        first.place.top < second.place.bottom && second.place.top < first.place.bottom;
    return sameLine ? first.place.left < second.place.left : first.place.top < second.place.top;
}

/// Windows stand in the order of reading: for Tab, and for labels, which name what follows them.
void GeometryRules::checkOrder()
{
    const Piece* former = nullptr;
    for (const Piece& piece : m_pieces) {
        // A mark comes after all of the setting that it explains.
        if (isFrame(piece) || isButton(piece, BS_OWNERDRAW) || piece.kind == UPDOWN_CLASSW)
            continue;
        if (former && standsBefore(piece, *former))
            fault(piece, "comes after \"" + CXString(former->text).ToUtf8() + "\" by the Tab key");
        former = &piece;
    }
}

void GeometryRules::checkTexts()
{
    for (const Piece& piece : m_pieces) {
        RECT room{};
        GetClientRect(piece.window, &room);
        if (piece.kind == L"combobox") {
            COMBOBOXINFO info{};
            info.cbSize = sizeof info;
            GetComboBoxInfo(piece.window, &info);
            checkEntries(piece, CB_GETCOUNT, CB_GETLBTEXTLEN, CB_GETLBTEXT,
                         info.rcItem.right - info.rcItem.left - 2 * GetSystemMetrics(SM_CXEDGE));
        } else if (piece.kind == L"listbox") {
            checkEntries(piece, LB_GETCOUNT, LB_GETTEXTLEN, LB_GETTEXT,
                         room.right - 2 * GetSystemMetrics(SM_CXEDGE));
        } else if (!drawsText(piece)) {
            continue;
        } else if (piece.kind == L"static") {
            const bool isOneLine = (piece.style & SS_ELLIPSISMASK) != 0;
            checkText(piece, piece.text, {room.right, room.bottom},
                      (isOneLine ? DT_SINGLELINE : DT_WORDBREAK) |
                          (piece.style & SS_NOPREFIX ? DT_NOPREFIX : 0U));
        } else if (isFrame(piece)) {
            checkText(piece, piece.text, {room.right - kFrameEnds, room.bottom}, DT_SINGLELINE);
        } else if (isButton(piece, BS_PUSHBUTTON) || isButton(piece, BS_DEFPUSHBUTTON) ||
                   (piece.style & BS_PUSHLIKE)) {
            checkText(piece, piece.text, {room.right - kButtonEdges, room.bottom}, DT_SINGLELINE);
        } else {
            checkText(piece, piece.text, {room.right - kCheckMark, room.bottom},
                      piece.style & BS_MULTILINE ? DT_WORDBREAK : DT_SINGLELINE);
        }
    }
}

void GeometryRules::checkEntries(const Piece& list, UINT count, UINT length, UINT text, LONG width)
{
    constexpr UINT kFormat = DT_SINGLELINE | DT_NOPREFIX;
    const SIZE room{width, list.place.bottom - list.place.top};
    const auto entries = static_cast<WPARAM>(SendMessageW(list.window, count, 0, 0));
    for (WPARAM entry = 0; entry < entries; ++entry) {
        std::wstring shown(static_cast<std::size_t>(SendMessageW(list.window, length, entry, 0)),
                           L'\0');
        SendMessageW(list.window, text, entry, reinterpret_cast<LPARAM>(shown.data()));
        if (findLack(list.window, shown, room, kFormat).empty())
            continue;
        if (list.kind == L"combobox") // its tip tells of the one that it shows
            SendMessageW(list.window, CB_SETCURSEL, entry, 0);
        checkText(list, shown, room, kFormat);
    }
}

std::string GeometryRules::findLack(HWND control, const std::wstring& text, SIZE room,
                                    UINT format) const
{
    const SelectedObject font(m_dc.get(),
                              reinterpret_cast<HFONT>(SendMessageW(control, WM_GETFONT, 0, 0)));
    room.cx -= room.cx / kDrawnWider;
    RECT needed{0, 0, room.cx, 0};
    DrawTextW(m_dc.get(), text.c_str(), -1, &needed, DT_CALCRECT | format);
    if (text.empty() || (needed.right <= room.cx && needed.bottom <= room.cy))
        return {};
    return "needs " + std::to_string(needed.right) + " by " + std::to_string(needed.bottom) +
           " of " + std::to_string(room.cx) + " by " + std::to_string(room.cy) + " pixels";
}

void GeometryRules::checkText(const Piece& piece, const std::wstring& text, SIZE room, UINT format)
{
    const std::string lack = findLack(piece.window, text, room, format);
    const CXString whole = o7::withoutMnemonics(CXString(text));
    if (!lack.empty() && m_tipOf(piece.window).View().find(whole.View()) == std::wstring_view::npos)
        fault(piece, "cuts \"" + CXString(text).ToUtf8() + "\", which " + lack +
                         " and has no tip that holds the whole");
}

wchar_t GeometryRules::mnemonicOf(const Piece& piece)
{
    if (!drawsText(piece) || (piece.kind == L"static" && (piece.style & SS_NOPREFIX)))
        return 0;
    for (std::size_t at = 0; at + 1 < piece.text.size(); ++at)
        if (piece.text[at] == L'&' && piece.text[++at] != L'&')
            return static_cast<wchar_t>(std::towupper(piece.text[at]));
    return 0;
}

std::set<wchar_t> GeometryRules::mnemonics() const
{
    std::set<wchar_t> letters;
    for (const Piece& piece : m_pieces)
        letters.insert(mnemonicOf(piece));
    letters.erase(0);
    return letters;
}

void GeometryRules::checkMnemonics(std::set<wchar_t>& taken)
{
    for (const Piece& piece : m_pieces) {
        const wchar_t letter = mnemonicOf(piece);
        if (letter && !taken.insert(letter).second)
            fault(piece, "takes a letter that something else has");
    }
}

} // namespace o7::test

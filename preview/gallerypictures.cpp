#include "gallerypictures.h"

#include <algorithm>
#include <array>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "picturefilename.h"
#include "windowpicture.h"

namespace o7 {
namespace {

constexpr DWORD kQuietMilliseconds = 60;
constexpr DWORD kTipMilliseconds = 5000;

POINT middleOf(const RECT& rect)
{
    return {(rect.left + rect.right) / 2, (rect.top + rect.bottom) / 2};
}

bool hasClass(HWND window, std::wstring_view name)
{
    std::array<wchar_t, 32> text{};
    GetClassNameW(window, text.data(), static_cast<int>(text.size()));
    return CompareStringOrdinal(text.data(), -1, name.data(), static_cast<int>(name.size()),
                                TRUE) == CSTR_EQUAL;
}

/// Where the mouse presses the control, on the screen.
RECT pressedPart(const GalleryCell& cell)
{
    RECT part{};
    GetWindowRect(cell.window(), &part);
    const LONG height = part.bottom - part.top;
    if (cell.kind->press == GalleryPress::AtTop) {
        part.bottom -= height / 2;
    } else if (cell.kind->press == GalleryPress::AtEnd) {
        const bool isMirrored =
            (GetWindowLongPtrW(cell.window(), GWL_EXSTYLE) & WS_EX_LAYOUTRTL) != 0;
        LONG& begin = isMirrored ? part.right : part.left;
        begin = isMirrored ? part.left + height : part.right - height;
    }
    return part;
}

BOOL CALLBACK considerTip(HWND window, LPARAM isShown)
{
    if (IsWindowVisible(window) && hasClass(window, L"tooltips_class32")) {
        *reinterpret_cast<bool*>(isShown) = true;
    }
    return TRUE;
}

bool tipIsShown()
{
    bool isShown = false;
    EnumThreadWindows(GetCurrentThreadId(), considerTip, reinterpret_cast<LPARAM>(&isShown));
    return isShown;
}

} // namespace

GalleryPictures::GalleryPictures(GalleryWindow& window, std::filesystem::path folder)
    : m_window(window), m_folder(std::move(folder))
{
}

void GalleryPictures::saveAll()
{
    for (int index = 0; index < m_window.pageCount(); ++index) {
        savePage(index);
    }
    saveOpenList();
    saveTip();
}

void GalleryPictures::savePage(int index)
{
    Pointer::park();
    m_window.selectPage(index);
    settle();
    WindowPicture picture(m_window.handle());
    if (picture.isBlank()) {
        throw std::runtime_error("Nothing was painted on the gallery's page " +
                                 std::to_string(index + 1) + ".");
    }
    for (const GalleryCell& cell : m_window.page(index).cells()) {
        if (cell.state == GalleryState::Hot) {
            Pointer::moveTo(middleOf(placeOf(cell.window())));
            add(picture, cell);
            Pointer::park();
        } else if (cell.state == GalleryState::Focused) {
            HWND before = SetFocus(cell.window());
            add(picture, cell);
            SetFocus(before);
        } else if (cell.state == GalleryState::Pressed &&
                   cell.kind->press != GalleryPress::ByMessage) {
            press(picture, cell);
        }
    }
    picture.savePng(m_folder / pictureFileName(index + 1, m_window.page(index).section().title));
}

void GalleryPictures::press(WindowPicture& picture, const GalleryCell& cell)
{
    Pointer::moveTo(middleOf(pressedPart(cell)));
    m_pointer.press();
    add(picture, cell);
    m_pointer.release();
    settle();
    SendMessageW(cell.window(), WM_CANCELMODE, 0, 0); // closes what the press has opened
    Pointer::park();
    settle();
}

void GalleryPictures::add(WindowPicture& picture, const GalleryCell& cell)
{
    settle();
    RECT area = placeOf(cell.window());
    const RECT inside = WindowPicture::place(m_window.handle());
    OffsetRect(&area, -inside.left, -inside.top);
    picture.take(WindowPicture(m_window.handle()), area);
}

void GalleryPictures::saveOpenList()
{
    int index = 0;
    const GalleryCell* cell = find(GalleryState::Unavailable, L"ComboBox", index);
    m_window.selectPage(index);
    SetFocus(cell->window());
    SendMessageW(cell->window(), CB_SHOWDROPDOWN, TRUE, 0);
    settle();
    COMBOBOXINFO info{};
    info.cbSize = sizeof info;
    if (!GetComboBoxInfo(cell->window(), &info) || !IsWindowVisible(info.hwndList)) {
        throw std::runtime_error("The gallery's list did not open.");
    }
    Pointer::moveTo(middleOf(placeOf(info.hwndList)));
    settle();
    WindowPicture(m_window.handle()).savePng(m_folder / L"gallery-open-list.png");
    SendMessageW(cell->window(), CB_SHOWDROPDOWN, FALSE, 0);
    Pointer::park();
    settle();
}

void GalleryPictures::saveTip()
{
    int index = 0;
    const GalleryCell* cell = find(GalleryState::Truncated, L"Button", index);
    m_window.selectPage(index);
    settle();
    Pointer::moveTo(middleOf(placeOf(cell->window())));
    const DWORD start = GetTickCount();
    while (!tipIsShown()) {
        if (GetTickCount() - start > kTipMilliseconds) {
            throw std::runtime_error("The gallery's tip did not come.");
        }
        settle();
    }
    settle();
    WindowPicture(m_window.handle()).savePng(m_folder / L"gallery-tip.png");
    Pointer::park();
    settle();
}

const GalleryCell* GalleryPictures::find(GalleryState state, const wchar_t* className,
                                         int& pageIndex) const
{
    for (pageIndex = 0; pageIndex < m_window.pageCount(); ++pageIndex) {
        for (const GalleryCell& cell : m_window.page(pageIndex).cells()) {
            if (cell.state == state && hasClass(cell.window(), className)) {
                return &cell;
            }
        }
    }
    throw std::runtime_error("The gallery has no control for a picture.");
}

void GalleryPictures::settle()
{
    const auto messageCame = [] {
        return MsgWaitForMultipleObjects(0, nullptr, FALSE, kQuietMilliseconds, QS_ALLINPUT) ==
               WAIT_OBJECT_0;
    };
    // Timers of open tips and carets never end: quiet is told by a time limit as well.
    const DWORD start = GetTickCount();
    while (messageCame() && GetTickCount() - start < 10 * kQuietMilliseconds) {
        MSG message{};
        while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
            m_window.dispatch(message);
        }
    }
}

RECT GalleryPictures::placeOf(HWND window)
{
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

} // namespace o7

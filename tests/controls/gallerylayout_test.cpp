// The gallery as a page of real controls: everything fits at each size of the font, and the
// keyboard goes through it in reading order.

#include "gallerypage.h"
#include "input.h"
#include "resourceguard.h"
#include "textmeasure.h"
#include "windowtext.h"

#include "dialogconversion.h"

#include <commctrl.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>

namespace {

using o7::GalleryCell;
using o7::GalleryPage;
using o7::GalleryState;

/// The resolution holds for a whole process; the same growth of all units comes from the font.
constexpr WORD kPointSizes[] = {8, 10, 12, 16}; // as 96, 120, 144 and 192 dpi

/// A frame for one page.
class Frame
{
public:
    Frame()
        : m_window(CreateWindowExW(0, L"#32770", L"Frame", WS_POPUP | WS_VISIBLE, 0, 0, 1600, 1100,
                                   nullptr, nullptr, nullptr, nullptr))
    {
    }
    HWND get() const { return m_window.get(); }

private:
    o7::UniqueWindow m_window;
};

RECT screenPlace(HWND window)
{
    RECT place{};
    GetWindowRect(window, &place);
    return place;
}

bool contains(const RECT& outer, const RECT& inner)
{
    return inner.left >= outer.left && inner.top >= outer.top && inner.right <= outer.right &&
           inner.bottom <= outer.bottom;
}

bool hasClass(HWND window, const wchar_t* name)
{
    wchar_t text[64];
    GetClassNameW(window, text, 64);
    return CompareStringOrdinal(text, -1, name, -1, TRUE) == CSTR_EQUAL;
}

/// What the control needs for its text at the least; nothing where it has none, or cuts it off and
/// says so.
SIZE neededSize(const GalleryCell& cell)
{
    const HWND window = cell.window();
    if (!cell.kind->text || cell.state == GalleryState::Truncated ||
        cell.state == GalleryState::Cleared) {
        return {};
    }
    if (hasClass(window, L"Button")) {
        SIZE ideal{};
        SendMessageW(window, BCM_GETIDEALSIZE, 0, reinterpret_cast<LPARAM>(&ideal));
        return ideal;
    }
    const auto font = reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
    return o7::TextMeasure(font).measure(o7::withoutMnemonics(o7::windowText(window)).View());
}

/// Entries are as high as the font of the list.
void expectHeightOfFont(HWND list)
{
    const auto font = reinterpret_cast<HFONT>(SendMessageW(list, WM_GETFONT, 0, 0));
    const auto height = static_cast<LRESULT>(o7::TextMeasure(font).fontHeight());
    if (hasClass(list, L"ComboBox")) {
        // Some systems count the border lines of the closed field in.
        const LRESULT field = SendMessageW(list, CB_GETITEMHEIGHT, static_cast<WPARAM>(-1), 0);
        EXPECT_TRUE(field >= height && field <= height + 2);
        EXPECT_EQ(height, SendMessageW(list, CB_GETITEMHEIGHT, 0, 0));
    } else if (hasClass(list, L"ListBox")) {
        EXPECT_EQ(height, SendMessageW(list, LB_GETITEMHEIGHT, 0, 0));
    }
}

class GalleryLayout : public testing::TestWithParam<std::tuple<WORD, bool>>
{
protected:
    GalleryPage::Look look() const
    {
        // Not shown: nothing of this is a matter of painting, which takes most of the time.
        return {.pointSize = std::get<0>(GetParam()),
                .mirrored = std::get<1>(GetParam()),
                .visible = false};
    }
};

TEST_P(GalleryLayout, NothingIsClippedOrCovered)
{
    const Frame frame;
    for (const o7::GallerySection& section : o7::gallerySections()) {
        SCOPED_TRACE(testing::Message() << section.title);
        const GalleryPage page(frame.get(), section, look());
        ASSERT_NE(nullptr, page.handle());
        const RECT inside = screenPlace(page.handle());
        const auto& cells = page.cells();
        for (const GalleryCell& cell : cells) {
            SCOPED_TRACE(testing::Message()
                         << cell.kind->name << ", " << o7::galleryStateName(cell.state));
            ASSERT_NE(nullptr, cell.window());
            const RECT place = screenPlace(cell.window());
            EXPECT_TRUE(contains(inside, place));
            RECT client{};
            GetClientRect(cell.window(), &client);
            const SIZE needed = neededSize(cell);
            EXPECT_LE(needed.cx, client.right);
            EXPECT_LE(std::wstring_view(cell.kind->name) == L"Group box" ? 0 : needed.cy,
                      client.bottom);
            expectHeightOfFont(cell.window());
            for (const GalleryCell& other : cells) {
                RECT common{};
                const RECT otherPlace = screenPlace(other.window());
                EXPECT_TRUE(&other == &cell || !IntersectRect(&common, &place, &otherPlace))
                    << "covers " << testing::Message() << other.kind->name;
            }
        }
    }
}

TEST_P(GalleryLayout, TabGoesInReadingOrder)
{
    const Frame frame;
    const bool mirrored = look().mirrored;
    for (const o7::GallerySection& section : o7::gallerySections()) {
        SCOPED_TRACE(testing::Message() << section.title);
        const GalleryPage page(frame.get(), section, look());
        std::vector<HWND> visited;
        HWND window = GetNextDlgTabItem(page.handle(), nullptr, FALSE);
        const HWND first = window;
        do {
            visited.push_back(window);
            window = GetNextDlgTabItem(page.handle(), window, FALSE);
        } while (window != first && visited.size() < 200);

        std::vector<HWND> expected;
        for (const GalleryCell& cell : page.cells()) {
            const LONG_PTR style = GetWindowLongPtrW(cell.window(), GWL_STYLE);
            if ((style & WS_TABSTOP) != 0 && (style & WS_DISABLED) == 0) {
                expected.push_back(cell.window());
            }
        }
        EXPECT_EQ(expected, visited);
        for (std::size_t i = 1; i < visited.size(); ++i) {
            const RECT before = screenPlace(visited[i - 1]);
            const RECT place = screenPlace(visited[i]);
            const bool sameRow = place.top < before.bottom && before.top < place.bottom;
            EXPECT_TRUE(sameRow
                            ? (mirrored ? place.right <= before.left : place.left >= before.right)
                            : place.top >= before.bottom);
        }
    }
}

TEST_P(GalleryLayout, ArrowsGoThroughARadioGroup)
{
    const Frame frame;
    const GalleryPage page(frame.get(), o7::gallerySections().front(), look());
    std::vector<HWND> group;
    for (const GalleryCell& cell : page.cells()) {
        if (std::wstring_view(cell.kind->name) == L"Radio button" &&
            cell.state != GalleryState::RightToLeft && IsWindowEnabled(cell.window())) {
            group.push_back(cell.window());
        }
    }
    ASSERT_GE(group.size(), 3U);
    ShowWindow(page.handle(), SW_SHOW); // what cannot be seen takes no keys
    for (const HWND button : group) {
        SendMessageW(button, BM_SETCHECK, button == group.front() ? BST_CHECKED : BST_UNCHECKED, 0);
    }
    SetForegroundWindow(frame.get());
    SetFocus(group.front());
    for (std::size_t i = 1; i <= group.size(); ++i) {
        o7::test::sendKey(VK_DOWN);
        const HWND expected = group[i % group.size()]; // and round again
        EXPECT_EQ(expected, GetFocus());
        for (const HWND button : group) {
            EXPECT_EQ(button == expected ? BST_CHECKED : BST_UNCHECKED,
                      SendMessageW(button, BM_GETCHECK, 0, 0));
        }
    }
    o7::test::sendKey(VK_UP);
    EXPECT_EQ(group.back(), GetFocus());
}

INSTANTIATE_TEST_SUITE_P(Sizes, GalleryLayout,
                         testing::Combine(testing::ValuesIn(kPointSizes), testing::Bool()),
                         [](const auto& row) {
                             return std::to_string(std::get<0>(row.param)) + "pt" +
                                    (std::get<1>(row.param) ? "Mirrored" : "");
                         });

void expectNothingLeftBehind(int times, const std::function<void()>& cycle)
{
    for (int i = 0; i < 5; ++i) { // what the system makes once and keeps
        cycle();
        o7::test::pumpMessages();
    }
    const o7::test::ResourceGuard guard;
    for (int i = 0; i < times; ++i) {
        cycle();
        o7::test::pumpMessages();
    }
}

TEST(Gallery, WholePagesLeaveNothingBehind)
{
    const Frame frame;
    expectNothingLeftBehind(20, [&] {
        for (const o7::GallerySection& section : o7::gallerySections()) {
            const GalleryPage page(frame.get(), section, {.visible = false});
            ASSERT_NE(nullptr, page.handle());
        }
    });
}

} // namespace

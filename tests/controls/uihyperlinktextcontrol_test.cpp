// The link: its look in each state, pointer and keyboard.

#include "uihyperlinktextcontrol.h"

#include "cxstring.h"
#include "input.h"
#include "pixels.h"
#include "testpage.h"

#include <gtest/gtest.h>

#include <memory>

namespace {

using o7::test::Canvas;
using o7::test::TestPage;

constexpr int kId = 78;

class Link : public testing::Test
{
protected:
    Link()
    {
        m_page.onMessage = [this](const _UIWindowsMessage& message) {
            m_link.handleMessage(message);
        };
        static_cast<ITextControl&>(m_link).setText(L"Order supplies");
    }
    HWND window() { return m_link.UIControl::getHwnd(); }

    /// Whether a colour is among the pixels.
    bool shows(COLORREF colour)
    {
        const SIZE size = m_link.UIControl::getDimensionInPixels();
        Canvas canvas(size.cx, size.cy, RGB(1, 2, 3));
        DRAWITEMSTRUCT item{};
        item.hwndItem = window();
        item.hDC = canvas.dc();
        item.rcItem = canvas.area();
        const _UIWindowsMessage draw{UIMessageKind::TabPage, m_page.page(), WM_DRAWITEM, kId,
                                     reinterpret_cast<LPARAM>(&item)};
        EXPECT_TRUE(m_link.handleMessage(draw));
        bool found = false;
        for (int y = 0; y < size.cy; ++y) {
            for (int x = 0; x < size.cx; ++x) {
                found = found || canvas.at(x, y) == colour;
            }
        }
        return found;
    }

    TestPage m_page;
    UIHyperlinkTextControl m_link{m_page.page(), kId,      m_page.services(), m_page.font(),
                                  {10, 10},      {80, 10}, WS_TABSTOP};
};

TEST_F(Link, IsDrawnInTheSystemsColourOfLinksWhereThatCanBeRead)
{
    const int element = COLOR_HOTLIGHT;
    const COLORREF former = ::GetSysColor(element);
    const COLORREF readable = RGB(150, 10, 90);
    const COLORREF faint = RGB(230, 230, 230);
    ::SetSysColors(1, &element, &faint);
    EXPECT_FALSE(shows(faint));
    EXPECT_TRUE(shows(RGB(0, 0, 255)));
    ::SetSysColors(1, &element, &readable);
    EXPECT_TRUE(shows(readable));
    m_link.UIControl::setEnable(false);
    EXPECT_FALSE(shows(readable));
    EXPECT_TRUE(shows(::GetSysColor(COLOR_GRAYTEXT)));
    m_link.UIControl::setEnable(true);
    m_link.clearText();
    EXPECT_FALSE(shows(readable));
    ::SetSysColors(1, &element, &former);
}

TEST_F(Link, ActsOnPointerAndKeys)
{
    const std::vector<TestPage::Command> once{{kId, STN_CLICKED}};
    o7::test::sendClick(window());
    EXPECT_EQ(once, m_page.commands);
    EXPECT_EQ(TRUE, ::SendMessageW(window(), WM_SETCURSOR, reinterpret_cast<WPARAM>(window()),
                                   MAKELPARAM(HTCLIENT, WM_MOUSEMOVE)));
    EXPECT_EQ(::LoadCursorW(nullptr, IDC_HAND), ::GetCursor());
    ::SetFocus(window());
    for (const WORD key : {WORD{VK_RETURN}, WORD{VK_SPACE}}) {
        m_page.commands.clear();
        o7::test::sendKey(key);
        EXPECT_EQ(once, m_page.commands) << key;
    }
    m_page.commands.clear();
    o7::test::sendKey(VK_F5);
    EXPECT_TRUE(m_page.commands.empty());
}

} // namespace

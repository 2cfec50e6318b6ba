// Drawing surface and image: what their procedure answers, where pictures come from, and that no
// picture outlives its control.

#include "uiimagecontrol.h"

#include "cxstring.h"
#include "input.h"
#include "pixels.h"
#include "productdata.h"
#include "resourceguard.h"
#include "samplepictures.h"
#include "testpage.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <memory>

namespace {

using o7::test::Canvas;
using o7::test::TestPage;

constexpr int kId = 79;

/// Counts what it is asked.
class Surface : public UIDrawingSurfaceControl
{
public:
    explicit Surface(TestPage& page)
        : UIDrawingSurfaceControl(page.page(), kId, page.services(), page.font(), {10, 10},
                                  {30, 30}, 0, true)
    {
    }
    using UIDrawingSurfaceControl::setBackgroundFill;

    void draw(HWND window, HDC dc) override
    {
        ++drawn;
        RECT client{};
        ::GetClientRect(window, &client);
        ground = ::GetPixel(dc, client.right / 2, client.bottom / 2);
    }
    LRESULT processMessage(HWND /*window*/, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                           bool& handled) override
    {
        handled = message == WM_APP;
        return handled ? 42 : 0;
    }

    int drawn = 0;
    COLORREF ground = 0;
};

TEST(UIDrawingSurfaceControl, AnswersItsMessages)
{
    TestPage page;
    Surface surface(page);
    const HWND window = surface.getHwnd();
    EXPECT_EQ(0x50000100, ::GetWindowLongPtrW(window, GWL_STYLE));
    EXPECT_EQ(42, ::SendMessageW(window, WM_APP, 0, 0)) << "handled";
    EXPECT_EQ(0, ::SendMessageW(window, WM_ERASEBKGND, 0, 0));
    ::SetWindowTextW(window, L"passed on");
    EXPECT_EQ(9, ::GetWindowTextLengthW(window));

    const LPARAM inside = MAKELPARAM(HTCLIENT, WM_MOUSEMOVE);
    ::SetCursor(::LoadCursorW(nullptr, IDC_ARROW));
    surface.setCursor(CursorType::Hand);
    EXPECT_EQ(TRUE, ::SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window), inside));
    EXPECT_EQ(::LoadCursorW(nullptr, IDC_HAND), ::GetCursor());
    surface.setCursor(CursorType::Default);
    ::SendMessageW(window, WM_SETCURSOR, reinterpret_cast<WPARAM>(window), inside);
    EXPECT_NE(::LoadCursorW(nullptr, IDC_HAND), ::GetCursor());
}

TEST(UIDrawingSurfaceControl, PaintsOnceAndFillsTheGroundWhenAsked)
{
    TestPage page;
    Surface surface(page);
    o7::test::pumpUntilQuiet();
    const int element = COLOR_WINDOW;
    const COLORREF former = ::GetSysColor(element);
    surface.setBackgroundFill(true);
    for (const COLORREF colour : {RGB(90, 80, 70), former}) {
        ::SetSysColors(1, &element, &colour);
        o7::test::pumpUntilQuiet();
        surface.drawn = 0;
        ::InvalidateRect(surface.getHwnd(), nullptr, TRUE);
        ::UpdateWindow(surface.getHwnd());
        EXPECT_EQ(1, surface.drawn);
        EXPECT_EQ(colour, surface.ground);
    }
    surface.drawn = 0;
    surface.setShow(true);
    surface.setEnable(true);
    o7::test::pumpMessages();
    EXPECT_EQ(0, surface.drawn);
}

/// A product whose pictures lie in a folder of this test.
class PictureFolder
{
public:
    PictureFolder() : m_path(std::filesystem::temp_directory_path() / L"o7 pictures")
    {
        std::filesystem::create_directories(m_path / L"pics");
        write(L"two.bmp", o7::test::kTwoColours);
        write(L"broken.gif", std::string("GIF89a and no more"));
        write(L"huge.bmp", hugeBitmap());
        write(L"empty.gif", std::string());
        m_info.resourceFolder = L"pics";
        m_product = std::make_unique<ProductData>(CXString(m_path.wstring().c_str()), m_info);
    }
    ~PictureFolder() { std::filesystem::remove_all(m_path); }
    PictureFolder(const PictureFolder&) = delete;
    PictureFolder& operator=(const PictureFolder&) = delete;

    ProductData& product() { return *m_product; }

private:
    static std::string hugeBitmap()
    {
        std::string data(reinterpret_cast<const char*>(std::data(o7::test::kTwoColours)),
                         std::size(o7::test::kTwoColours));
        data[20] = 127; // half a million pixels wide
        return data;
    }
    template <class Data> void write(const wchar_t* name, const Data& data)
    {
        std::ofstream(m_path / L"pics" / name, std::ios::binary)
            .write(reinterpret_cast<const char*>(std::data(data)),
                   static_cast<std::streamsize>(std::size(data)));
    }

    std::filesystem::path m_path;
    ProductInfo m_info;
    std::unique_ptr<ProductData> m_product;
};

class Image : public testing::Test
{
protected:
    void make(bool visible = true)
    {
        m_image =
            std::make_unique<UIImageControl>(m_page.page(), kId, m_page.services(), m_page.font(),
                                             POINT{10, 10}, SIZE{40, 20}, 0, visible);
    }
    bool show(const wchar_t* file)
    {
        return m_image->setImage(m_folder.product(), ImageType::Gif, file);
    }
    IPicture* shown() { return static_cast<IPicture*>(::GetPropW(m_image->getHwnd(), L"pIpic")); }
    bool needsPaint() { return ::GetUpdateRect(m_image->getHwnd(), nullptr, FALSE) != FALSE; }
    Canvas look()
    {
        const SIZE size = m_image->getDimensionInPixels();
        Canvas canvas(size.cx, size.cy, RGB(255, 0, 255));
        m_image->draw(m_image->getHwnd(), canvas.dc());
        return canvas;
    }

    TestPage m_page;
    PictureFolder m_folder;
    std::unique_ptr<UIImageControl> m_image;
};

TEST_F(Image, ShowsAFileOfTheProductStretched)
{
    make();
    ASSERT_TRUE(show(L"two.bmp"));
    const Canvas canvas = look();
    const RECT area = canvas.area();
    EXPECT_EQ(RGB(255, 0, 0), canvas.at(area.right / 8, area.bottom / 2));
    EXPECT_EQ(RGB(0, 0, 255), canvas.at(area.right - area.right / 8, area.bottom / 2));
    EXPECT_EQ(L"image 79 \"\" file two.bmp\n", o7::test::dumpOf(*m_image));

    m_image->setEnable(false);
    const COLORREF faded = look().at(area.right / 8, area.bottom / 2);
    EXPECT_NE(RGB(255, 0, 0), faded);
    EXPECT_GT(GetGValue(faded), 50) << "the page shines through";
}

TEST_F(Image, WithoutAPictureThePageIsSeen)
{
    make();
    ASSERT_TRUE(show(L"two.bmp"));
    for (const wchar_t* file : {L"missing.gif", L"broken.gif", L"huge.bmp", L"empty.gif", L""}) {
        SCOPED_TRACE(CXString(file).ToUtf8());
        EXPECT_FALSE(show(file));
        EXPECT_EQ(nullptr, shown());
        const Canvas canvas = look();
        EXPECT_EQ(canvas.at(1, 1), canvas.at(canvas.area().right / 2, 1));
        EXPECT_NE(RGB(255, 0, 255), canvas.at(1, 1)) << "nothing left unpainted";
    }
    EXPECT_FALSE(m_image->setImage(::GetModuleHandleW(nullptr), ImageType::Jpeg, 12345));
    const ProductInfo none;
    ProductData product(L"C:\\nowhere", none);
    EXPECT_FALSE(m_image->setImage(product, ImageType::Gif, L"two.bmp"));
}

TEST_F(Image, TheSamePictureAgainRepaintsNothing)
{
    make();
    o7::test::pumpUntilQuiet();
    ASSERT_TRUE(show(L"two.bmp"));
    EXPECT_TRUE(needsPaint());
    ::ValidateRect(m_image->getHwnd(), nullptr);
    const IPicture* before = shown();
    EXPECT_TRUE(show(L"two.bmp"));
    EXPECT_FALSE(needsPaint());
    EXPECT_EQ(before, shown());
    EXPECT_FALSE(show(L"missing.gif"));
    EXPECT_TRUE(needsPaint());
}

TEST_F(Image, ReleasesItsPictureHoweverItEnds)
{
    const auto countOf = [](IPicture* picture) {
        picture->AddRef();
        return picture->Release();
    };
    for (const int end : {0, 1, 2}) {
        SCOPED_TRACE(end);
        make();
        ASSERT_TRUE(show(L"two.bmp"));
        UIImageUtility::Picture picture = shown();
        EXPECT_EQ(2U, countOf(picture.Get()));
        switch (end) {
        case 0:
            m_image.reset();
            break;
        case 1:
            show(L"missing.gif");
            break;
        default:
            m_page.destroyWindows();
            break;
        }
        EXPECT_EQ(1U, countOf(picture.Get()));
    }
    EXPECT_FALSE(show(L"two.bmp")) << "its window is gone";
    m_image.reset();
}

TEST_F(Image, LeavesNothingBehind)
{
    const auto cycle = [&] {
        make();
        show(L"two.bmp");
        look();
        show(L"broken.gif");
        m_image.reset();
    };
    for (int i = 0; i < 3; ++i) {
        cycle();
    }
    const o7::test::ResourceGuard guard;
    for (int i = 0; i < 100; ++i) {
        cycle();
    }
}

} // namespace

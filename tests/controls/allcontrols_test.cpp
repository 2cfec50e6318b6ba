// What must hold for every control alike, whatever its class: one walk over all of them each.

#include "gallerykinds.h"
#include "importpatch.h"
#include "input.h"
#include "resourceguard.h"
#include "testpage.h"

#include "icombolistcontrol.h"
#include "uibitmapbuttoncontrol.h"
#include "uiimagecontrol.h"
#include "uilistviewcontrol.h"

#include "cxstring.h"
#include "dialogconversion.h"

#include <gtest/gtest.h>

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace {

using o7::GalleryKind;
using o7::GallerySample;
using o7::test::TestPage;

constexpr int kId = 77;
constexpr int kOutOfRange[] = {-2, -1, 99, 0x7fffffff};

std::vector<const GalleryKind*> allKinds()
{
    std::vector<const GalleryKind*> kinds;
    for (const o7::GallerySection& section : o7::gallerySections()) {
        for (const GalleryKind& kind : section.kinds) {
            kinds.push_back(&kind);
        }
    }
    return kinds;
}

/// A page on which each kind can be made, with the tips that they share.
class AllControls : public testing::Test
{
protected:
    GallerySample create(const GalleryKind& kind, HWND parent)
    {
        GallerySample sample;
        sample.control = kind.create({parent, kId, m_page.services(), m_page.font(), m_page.font(),
                                      *m_tips, POINT{10, 10}, kind.size, 0});
        return sample;
    }
    GallerySample create(const GalleryKind& kind) { return create(kind, m_page.page()); }

    /// The text that the kind is shown with.
    static const wchar_t* textOf(const GalleryKind& kind) { return kind.text ? kind.text : L""; }

    /// Every operation that all controls or this kind has, with good and bad arguments.
    static void useAll(const GalleryKind& kind, GallerySample& sample)
    {
        kind.fill(sample, textOf(kind));
        UIControl& control = *sample.control;
        for (const int index : kOutOfRange) {
            useEntries(control, index);
        }
        if (auto* list = dynamic_cast<IComboListControl*>(&control)) {
            list->findItemById(99);
            list->removeAllItems();
        }
        useMissingPictures(control);
        if (kind.showUnavailable) {
            kind.showUnavailable(control);
        }
        if (kind.clear) {
            kind.clear(control);
        }
        for (const bool on : {false, true}) {
            control.setEnable(on);
            control.setShow(on);
        }
        control.move({-3, 5});
        control.setLocation({1, 2}, true);
        control.setSize({20, 10});
        o7::test::dumpOf(control);
    }

    static void useEntries(UIControl& control, int index)
    {
        if (auto* list = dynamic_cast<IComboListControl*>(&control)) {
            EXPECT_TRUE(list->getItemText(index).IsEmpty());
            EXPECT_EQ(nullptr, list->getItemData(index));
            EXPECT_FALSE(list->isItemAvailable(index));
            list->setItemUnavailable(true, index);
            list->setItemData(index, nullptr);
            list->setSelection(index);
        }
        if (auto* list = dynamic_cast<UIListViewControl*>(&control)) {
            list->selectRow(index);
            list->moveRow(0, index);
            list->moveRow(index, 0);
            list->setRowUnavailable(index, true);
            list->removeRow(index);
            EXPECT_TRUE(list->createToolTipText(index).IsEmpty());
        }
    }

    static void useMissingPictures(UIControl& control)
    {
        if (auto* button = dynamic_cast<UIBitmapButtonControl*>(&control)) {
            button->setBitmaps(9998, 9999);
        }
        if (auto* image = dynamic_cast<UIImageControl*>(&control)) {
            EXPECT_FALSE(image->setImage(GetModuleHandleW(nullptr), ImageType::Gif, 9999));
            EXPECT_FALSE(image->setImage(nullptr, ImageType::Jpeg, 0));
        }
    }

    TestPage m_page;
    std::unique_ptr<UIToolTips> m_tips = std::make_unique<UIToolTips>(m_page.page());
};

// --- standing before the window's procedure ---

/// Those whose class paints or filters messages of its window.
const std::set<std::wstring> kSubclassed{
    L"Bitmap button", L"Radio button", L"Link",     L"Edit",      L"Edit, lines", L"Drawing",
    L"Image",         L"Combo box",    L"List box", L"List view", L"Information", L"Conflict"};
constexpr UINT kProbe = WM_APP + 0x123;

/// Puts a procedure of its own under the next child of a page, as it is created, so that whoever
/// comes later stands before it; and watches its end.
class CreationWatch
{
public:
    explicit CreationWatch(HWND parent) : m_parent(parent)
    {
        s_watch = this;
        m_hook = SetWindowsHookExW(WH_CBT, &hook, nullptr, GetCurrentThreadId());
    }
    ~CreationWatch()
    {
        UnhookWindowsHookEx(m_hook);
        s_watch = nullptr;
    }
    CreationWatch(const CreationWatch&) = delete;
    CreationWatch& operator=(const CreationWatch&) = delete;

    /// A procedure that stands before all others from now on.
    void putOnTop()
    {
        m_below = reinterpret_cast<WNDPROC>(
            SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&onTop)));
    }
    void takeFromTop()
    {
        SetWindowLongPtrW(window, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(m_below));
    }
    bool bottomIsFirst() const
    {
        return GetWindowLongPtrW(window, GWLP_WNDPROC) == reinterpret_cast<LONG_PTR>(&atBottom);
    }

    HWND window = nullptr;
    std::string log; ///< 't' and 'b' for each probe, in the order in which it came by
    bool wasDestroyed = false;
    bool restoredAtEnd = false;

private:
    static LRESULT CALLBACK onTop(HWND at, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == kProbe) {
            s_watch->log += 't';
        }
        return CallWindowProcW(s_watch->m_below, at, message, wParam, lParam);
    }

    static LRESULT CALLBACK atBottom(HWND at, UINT message, WPARAM wParam, LPARAM lParam)
    {
        if (message == kProbe && wParam == 1 && lParam == 2) {
            s_watch->log += 'b';
        }
        return CallWindowProcW(s_watch->m_class, at, message, wParam, lParam);
    }

    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam)
    {
        auto* at = reinterpret_cast<HWND>(wParam);
        if (code == HCBT_CREATEWND && !s_watch->window &&
            reinterpret_cast<const CBT_CREATEWNDW*>(lParam)->lpcs->hwndParent ==
                s_watch->m_parent) {
            s_watch->window = at;
            s_watch->m_class = reinterpret_cast<WNDPROC>(
                SetWindowLongPtrW(at, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&atBottom)));
        } else if (code == HCBT_DESTROYWND && at == s_watch->window) {
            s_watch->wasDestroyed = true;
            s_watch->restoredAtEnd =
                s_watch->bottomIsFirst() && GetWindowLongPtrW(at, GWLP_USERDATA) == 0;
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline CreationWatch* s_watch = nullptr;
    HWND m_parent;
    HHOOK m_hook = nullptr;
    WNDPROC m_class = nullptr;
    WNDPROC m_below = nullptr;
};

TEST_F(AllControls, StandBeforeTheirWindowAndGiveItsProcedureBackBeforeItGoes)
{
    for (const GalleryKind* kind : allKinds()) {
        SCOPED_TRACE(testing::Message() << kind->name);
        CreationWatch watch(m_page.page());
        GallerySample sample = create(*kind);
        ASSERT_EQ(sample.control->getHwnd(), watch.window);
        EXPECT_EQ(kSubclassed.contains(kind->name), !watch.bottomIsFirst());
        watch.putOnTop();
        SendMessageW(watch.window, kProbe, 1, 2);
        EXPECT_EQ("tb", watch.log) << "passed on once, as it came";
        watch.takeFromTop();
        kind->fill(sample, textOf(*kind));
        sample.control.reset();
        EXPECT_TRUE(watch.wasDestroyed);
        // Before the others only the tip window comes, with a procedure of its own.
        EXPECT_TRUE(watch.restoredAtEnd || !kSubclassed.contains(kind->name));
    }
}

TEST_F(AllControls, LetTheirWindowGoWithThePage)
{
    std::vector<GallerySample> samples;
    for (const GalleryKind* kind : allKinds()) {
        GallerySample& sample = samples.emplace_back(create(*kind));
        kind->fill(sample, textOf(*kind));
    }
    m_page.destroyWindows();
    std::size_t index = 0;
    for (const GalleryKind* kind : allKinds()) {
        SCOPED_TRACE(testing::Message() << kind->name);
        GallerySample& sample = samples[index++];
        if (kSubclassed.contains(kind->name)) {
            EXPECT_EQ(nullptr, sample.control->getHwnd());
        }
        useAll(*kind, sample);
    }
}

// --- bad input ---

HWND WINAPI refuseWindow(DWORD, LPCWSTR, LPCWSTR, DWORD, int, int, int, int, HWND, HMENU, HINSTANCE,
                         LPVOID)
{
    SetLastError(ERROR_NOT_ENOUGH_MEMORY);
    return nullptr;
}

/// How a control is brought about that then has no window, or a good one.
enum class Trouble
{
    None,
    CreationFails,
    NoParent,
    PageGoes,
};

struct BadInputRow
{
    const char* what;
    Trouble trouble;
    std::size_t textLength; ///< 0: the text of the kind
};

constexpr BadInputRow kBadInput[] = {
    {"everything out of range", Trouble::None, 0},
    {"a text of 3,000 characters", Trouble::None, 3000},
    {"the system makes no window", Trouble::CreationFails, 0},
    {"no parent", Trouble::NoParent, 0},
    {"the page goes first", Trouble::PageGoes, 0},
};

TEST_F(AllControls, BadInputDoesNoHarmAndLeavesNothing)
{
    ShowWindow(m_page.page(), SW_HIDE);
    const auto walk = [&](const BadInputRow& row) {
        TestPage other;
        for (const GalleryKind* kind : allKinds()) {
            SCOPED_TRACE(testing::Message() << kind->name);
            GallerySample sample;
            if (row.trouble == Trouble::CreationFails) {
                const o7::test::ImportPatch patch("CreateWindowExW",
                                                  reinterpret_cast<void*>(&refuseWindow));
                ASSERT_TRUE(patch.isInPlace());
                sample = create(*kind);
            } else {
                sample = create(*kind, row.trouble == Trouble::NoParent   ? nullptr
                                       : row.trouble == Trouble::PageGoes ? other.page()
                                                                          : m_page.page());
            }
            const bool hasNone =
                row.trouble == Trouble::CreationFails || row.trouble == Trouble::NoParent;
            EXPECT_EQ(hasNone, sample.control->getHwnd() == nullptr);
            if (row.textLength != 0) {
                const std::wstring text(row.textLength, L'x');
                kind->fill(sample, text.c_str());
                sample = create(*kind);
            }
            if (row.trouble == Trouble::PageGoes) {
                DestroyWindow(sample.control->getHwnd());
            }
            useAll(*kind, sample);
        }
    };
    for (const BadInputRow& row : kBadInput) {
        SCOPED_TRACE(row.what);
        walk(row); // once for what the system keeps
        o7::test::pumpMessages();
        const o7::test::ResourceGuard guard(o7::test::ResourceGuard::Windows |
                                            o7::test::ResourceGuard::GdiObjects);
        walk(row);
    }
}

TEST_F(AllControls, AThousandTimesLeavesNothingBehind)
{
    ShowWindow(m_page.page(), SW_HIDE);
    const auto cycle = [&] {
        for (const GalleryKind* kind : allKinds()) {
            GallerySample sample = create(*kind);
            kind->fill(sample, textOf(*kind));
            if (kind->showUnavailable) {
                kind->showUnavailable(*sample.control);
            }
        }
        o7::test::pumpMessages();
    };
    for (int i = 0; i < 10; ++i) { // what the system makes once and keeps
        cycle();
    }
    const o7::test::ResourceGuard guard;
    for (int i = 0; i < 1000; ++i) {
        cycle();
    }
}

// --- nothing is painted that is painted already ---

TEST_F(AllControls, RepeatingWhatIsShownRepaintsNothing)
{
    // Filling these again adds entries; texts of these two have no operation of the class.
    const std::set<std::wstring> once{L"Combo box", L"List box",     L"Check box",
                                      L"Group box", L"Three states", L"Spin"};
    for (const GalleryKind* kind : allKinds()) {
        SCOPED_TRACE(testing::Message() << kind->name);
        GallerySample sample = create(*kind);
        kind->fill(sample, textOf(*kind));
        UIControl& control = *sample.control;
        UpdateWindow(m_page.page());
        o7::test::pumpUntilQuiet();
        RECT dirty{};
        ASSERT_FALSE(GetUpdateRect(control.getHwnd(), &dirty, FALSE));
        control.setEnable(true);
        control.setShow(true);
        control.move({0, 0});
        control.setLocation(control.getLocationInPixels(), true);
        control.setSize(control.getDimensionInPixels(), true);
        EXPECT_FALSE(GetUpdateRect(control.getHwnd(), &dirty, FALSE)) << "state and place";
        if (!once.contains(kind->name)) {
            kind->fill(sample, textOf(*kind));
            EXPECT_FALSE(GetUpdateRect(control.getHwnd(), &dirty, FALSE)) << "content";
        }
        EXPECT_FALSE(GetUpdateRect(m_page.page(), &dirty, FALSE)) << "the page behind it";
    }
}

} // namespace

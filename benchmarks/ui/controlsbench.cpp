#include "controlsbench.h"

#include <windows.h>

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "clock.h"
#include "cxstring.h"
#include "entryheight.h"
#include "gallerykinds.h"
#include "gallerytemplate.h"
#include "isolationaware.h"
#include "report.h"
#include "textmeasure.h"
#include "uicomboboxcontrol.h"
#include "uihandles.h"
#include "uiresourceids.h"
#include "uiservices.h"

#include "dialogconversion.h"

namespace o7::bench {

namespace {

// Many short turns: what else the machine does then falls into few of them, and medians pass over
// it.
constexpr int kRuns = 101;
constexpr int kBatch = 4;
constexpr int kEntries = 1000;
constexpr int kId = 1;

/// Answers what the pages of the module answer.
INT_PTR CALLBACK pageProcedure(HWND page, UINT message, WPARAM, LPARAM lParam)
{
    return message == WM_MEASUREITEM &&
           answerEntryHeight(page, *reinterpret_cast<MEASUREITEMSTRUCT*>(lParam));
}

/// A page that is not shown, as it is while a sheet makes its controls.
class Page
{
public:
    Page()
        : m_dialog(GalleryTemplate(WS_POPUP, 0, {0, 0}, {400, 300}, 8)
                       .create(nullptr, &pageProcedure, nullptr)),
          m_font(reinterpret_cast<HFONT>(SendMessageW(m_dialog.get(), WM_GETFONT, 0, 0))),
          m_toolTips(m_dialog.get())
    {
        m_services.getDialogConversion().initDialogConversions(m_dialog.get());
    }
    GalleryPlace place(SIZE size)
    {
        return {m_dialog.get(), kId,           m_services, m_font, m_font,
                m_toolTips,     POINT{10, 10}, size,       0};
    }
    HWND handle() const { return m_dialog.get(); }
    HFONT font() const { return m_font; }

private:
    UniqueWindow m_dialog;
    HFONT m_font;
    UIServices m_services;
    UIToolTips m_toolTips;
};

/// What it takes to make the window of a control once more.
struct PlainWindow
{
    std::wstring className;
    DWORD style;
    RECT place;
    int heights = 0; ///< what a combo box is told for its field and its entries; 0: nothing
};

/// The style that the next window of this thread is created with. Afterwards it would be too late
/// to ask: an empty list has put its scroll bar away.
class CreationStyle
{
public:
    CreationStyle()
        : m_hook(SetWindowsHookExW(WH_CBT, &CreationStyle::hook, nullptr, GetCurrentThreadId()))
    {
        s_style.reset();
    }
    ~CreationStyle() { UnhookWindowsHookEx(m_hook); }
    CreationStyle(const CreationStyle&) = delete;
    CreationStyle& operator=(const CreationStyle&) = delete;

    DWORD get() const { return s_style.value(); }

private:
    static LRESULT CALLBACK hook(int code, WPARAM wParam, LPARAM lParam)
    {
        if (code == HCBT_CREATEWND && !s_style) {
            s_style =
                static_cast<DWORD>(reinterpret_cast<const CBT_CREATEWNDW*>(lParam)->lpcs->style);
        }
        return CallNextHookEx(nullptr, code, wParam, lParam);
    }

    static inline std::optional<DWORD> s_style; // the hook is a plain function
    HHOOK m_hook;
};

PlainWindow plainWindowOf(Page& page, const GalleryKind& kind)
{
    const CreationStyle style;
    const std::unique_ptr<UIControl> control = kind.create(page.place(kind.size));
    std::array<wchar_t, 64> name{};
    GetClassNameW(control->getHwnd(), name.data(), static_cast<int>(name.size()));
    const POINT location = control->getLocationInPixels();
    const SIZE size = control->getDimensionInPixels();
    return {name.data(),
            style.get(),
            {location.x, location.y, location.x + size.cx, location.y + size.cy},
            0};
}

HWND makePlain(const Page& page, const PlainWindow& plain)
{
    HWND window = CreateWindowExW(
        0, plain.className.c_str(), L"", plain.style, plain.place.left, plain.place.top,
        plain.place.right - plain.place.left, plain.place.bottom - plain.place.top, page.handle(),
        reinterpret_cast<HMENU>(INT_PTR{kId}), GetModuleHandleW(nullptr), nullptr);
    SendMessageW(window, WM_SETFONT, reinterpret_cast<WPARAM>(page.font()), FALSE);
    if (plain.heights != 0) {
        SendMessageW(window, CB_SETITEMHEIGHT, static_cast<WPARAM>(-1), plain.heights);
        SendMessageW(window, CB_SETITEMHEIGHT, 0, plain.heights);
    }
    return window;
}

/// Both sides get their text by the same call.
void setText(HWND window, const GalleryKind& kind)
{
    if (kind.text) {
        SetWindowTextW(window, kind.text);
    }
}

double timeOurs(Page& page, const GalleryKind& kind)
{
    std::vector<std::unique_ptr<UIControl>> made;
    made.reserve(kBatch);
    const double start = microsecondsNow();
    for (int i = 0; i < kBatch; ++i) {
        made.push_back(kind.create(page.place(kind.size)));
        setText(made.back()->getHwnd(), kind);
    }
    return (microsecondsNow() - start) / kBatch;
}

/// The pictures without which a button that draws bitmaps is no such button.
bool hasBitmaps(const GalleryKind& kind)
{
    return kind.name == std::wstring_view(L"Bitmap button");
}

double timePlain(const Page& page, const GalleryKind& kind, const PlainWindow& plain)
{
    std::vector<UniqueWindow> made;
    std::vector<UniqueBitmap> bitmaps;
    made.reserve(kBatch);
    bitmaps.reserve(std::size_t{2} * kBatch);
    // Entered once: a program whose own manifest selects the theme has it all the time.
    const IsolationAware::ActivationScope scope;
    const double start = microsecondsNow();
    for (int i = 0; i < kBatch; ++i) {
        made.emplace_back(makePlain(page, plain));
        setText(made.back().get(), kind);
        for (const int id : {O7_BITMAP_ADD, O7_BITMAP_ADD_DISABLED}) {
            if (hasBitmaps(kind)) {
                bitmaps.emplace_back(
                    LoadBitmapW(IsolationAware::moduleInstance(), MAKEINTRESOURCEW(id)));
            }
        }
    }
    return (microsecondsNow() - start) / kBatch;
}

void addCreation(Report& report, Page& page, const GalleryKind& kind, const PlainWindow& plain)
{
    std::vector<double> ours, bare;
    timeOurs(page, kind); // what the first of a class sets up
    timePlain(page, kind, plain);
    for (int run = 0; run < kRuns; ++run) {
        ours.push_back(timeOurs(page, kind));
        bare.push_back(timePlain(page, kind, plain));
    }
    report.add({"controls",
                "creation: " + CXString(kind.name).ToUtf8() +
                    (plain.heights != 0 ? ", both told heights" : ""),
                "us",
                ours,
                bare,
                {Goal::RatioAtMost, 1.10}});
}

std::vector<CXString> entries()
{
    std::vector<CXString> texts;
    texts.reserve(kEntries);
    for (int i = 0; i < kEntries; ++i) {
        texts.push_back(CXString::Formatted(L"Entry number %d", i));
    }
    return texts;
}

void addFilling(Report& report, Page& page)
{
    const std::vector<CXString> texts = entries();
    const GalleryPlace place = page.place({46, 14});
    UIComboBoxControl ours(place.parent, place.id, place.services, place.font, place.location,
                           place.size);
    const UniqueWindow plain = [&] {
        const IsolationAware::ActivationScope scope;
        return UniqueWindow(makePlain(
            page, {L"COMBOBOX",
                   WS_CHILD | WS_VSCROLL | CBS_DROPDOWNLIST | CBS_OWNERDRAWFIXED | CBS_HASSTRINGS,
                   {0, 0, 100, 20},
                   0}));
    }();
    const auto timed = [](const std::function<void()>& fill) {
        const double start = microsecondsNow();
        fill();
        return (microsecondsNow() - start) / 1000;
    };
    std::vector<double> filled, bare;
    for (int run = 0; run < kRuns; ++run) {
        filled.push_back(timed([&] {
            const UIComboBoxControl::Fill fill(ours);
            for (const CXString& text : texts) {
                ours.addItem(text);
            }
        }));
        bare.push_back(timed([&] {
            for (const CXString& text : texts) {
                SendMessageW(plain.get(), CB_ADDSTRING, 0, reinterpret_cast<LPARAM>(text.c_str()));
            }
        }));
        ours.removeAllItems();
        SendMessageW(plain.get(), CB_RESETCONTENT, 0, 0);
    }
    report.add({"controls",
                "1,000 entries into a combo box",
                "ms",
                filled,
                bare,
                {Goal::RatioAtMost, 1.5}});
}

} // namespace

void benchControls(Report& report, const std::wstring& /*productFolder*/)
{
    Page page;
    for (const GallerySection& section : gallerySections()) {
        for (const GalleryKind& kind : section.kinds) {
            PlainWindow plain = plainWindowOf(page, kind);
            addCreation(report, page, kind, plain);
            if (kind.name == std::wstring_view(L"Combo box")) {
                plain.heights = TextMeasure(page.font()).fontHeight();
                addCreation(report, page, kind, plain);
            }
        }
    }
    addFilling(report, page);
}

} // namespace o7::bench

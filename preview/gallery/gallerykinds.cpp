#include "gallerykinds.h"

#include <array>

#include "cxstring.h"
#include "dialogconversion.h"
#include "galleryresource.h"
#include "uibitmapbuttoncontrol.h"
#include "uibuttoncontrol.h"
#include "uicheckboxcontrol.h"
#include "uicomboboxcontrol.h"
#include "uidrawingsurfacecontrol.h"
#include "uigroupboxcontrol.h"
#include "uihyperlinktextcontrol.h"
#include "uiimagecontrol.h"
#include "uiinfobuttoncontrol.h"
#include "uiresourceids.h"
#include "uiservices.h"
#include "uitextcontrol.h"

namespace o7 {
namespace {

using ControlType = UIToolTips::ControlType;

template <class... States> constexpr unsigned states(States... state)
{
    return ((1U << static_cast<int>(state)) | ...);
}
constexpr unsigned kStill =
    states(GalleryState::Normal, GalleryState::Disabled, GalleryState::RightToLeft);
constexpr unsigned kLive =
    kStill | states(GalleryState::Hot, GalleryState::Pressed, GalleryState::Focused);
constexpr unsigned kCleared = states(GalleryState::Cleared);
constexpr unsigned kLabel = states(GalleryState::Truncated);
constexpr unsigned kEntries = states(GalleryState::Unavailable, GalleryState::Truncated);

/// The least that a drawing surface can be: a bar of the system's own colours.
class ColourBar final : public UIDrawingSurfaceControl
{
public:
    explicit ColourBar(const GalleryPlace& place)
        : UIDrawingSurfaceControl(place.parent, place.id, place.services, place.font,
                                  place.location, place.size, 0, true)
    {
        setCursor(CursorType::Hand);
    }

    void draw(HWND window, HDC dc) override
    {
        constexpr std::array<int, 3> kEnabled{COLOR_HIGHLIGHT, COLOR_WINDOWTEXT, COLOR_INFOBK};
        constexpr std::array<int, 3> kDisabled{COLOR_BTNSHADOW, COLOR_GRAYTEXT, COLOR_BTNFACE};
        const auto& colours = IsWindowEnabled(window) ? kEnabled : kDisabled;
        RECT bar{};
        GetClientRect(window, &bar);
        const LONG width = bar.right;
        for (LONG i = 0; i < 3; ++i) {
            bar.left = width * i / 3;
            bar.right = width * (i + 1) / 3;
            FillRect(dc, &bar, GetSysColorBrush(colours[static_cast<std::size_t>(i)]));
        }
    }

    LRESULT processMessage(HWND window, UINT message, WPARAM /*wParam*/, LPARAM /*lParam*/,
                           bool& /*handled*/) override
    {
        if (message == WM_ENABLE) {
            InvalidateRect(window, nullptr, FALSE);
        }
        return 0;
    }
};

template <class Control> Control& as(GallerySample& sample)
{
    return static_cast<Control&>(*sample.control);
}

/// Arguments that every control begins with.
template <class Control, class... More>
std::unique_ptr<UIControl> make(const GalleryPlace& place, More... more)
{
    return std::make_unique<Control>(place.parent, place.id, place.services, place.font,
                                     place.location, place.size, more...);
}

template <bool isDefault> std::unique_ptr<UIControl> makeButton(const GalleryPlace& place)
{
    return make<UIButtonControl>(place, isDefault);
}

std::unique_ptr<UIControl> makeBitmapButton(const GalleryPlace& place)
{
    return make<UIBitmapButtonControl>(place, INT_PTR{O7_BITMAP_ADD},
                                       INT_PTR{O7_BITMAP_ADD_DISABLED});
}

template <bool threeState> std::unique_ptr<UIControl> makeCheckBox(const GalleryPlace& place)
{
    return make<UICheckBoxControl>(place, threeState);
}

std::unique_ptr<UIControl> makeGroupBox(const GalleryPlace& place)
{
    return make<UIGroupBoxControl>(place, CXString());
}

std::unique_ptr<UIControl> makeMark(const GalleryPlace& place)
{
    const RECT pixels = place.services.getDialogConversion().dialogUnitsToPixels(
        RECT{place.location.x, place.location.y, place.location.x + place.size.cx,
             place.location.y + place.size.cy});
    return std::make_unique<UIInfoButtonControl>(
        place.parent, place.id, place.services, POINT{pixels.left, pixels.top},
        SIZE{pixels.right - pixels.left, pixels.bottom - pixels.top}, &place.toolTips);
}

std::unique_ptr<UIControl> makeText(const GalleryPlace& place)
{
    return make<UITextControl>(place, DWORD{SS_LEFTNOWORDWRAP}, true, place.boldFont);
}

std::unique_ptr<UIControl> makeLink(const GalleryPlace& place)
{
    return make<UIHyperlinkTextControl>(place, DWORD{WS_TABSTOP});
}

std::unique_ptr<UIControl> makeDrawing(const GalleryPlace& place)
{
    return std::make_unique<ColourBar>(place);
}

std::unique_ptr<UIControl> makeImage(const GalleryPlace& place)
{
    return make<UIImageControl>(place, DWORD{0}, true);
}

std::unique_ptr<UIControl> makeComboBox(const GalleryPlace& place)
{
    return make<UIComboBoxControl>(place);
}

void fillWindowText(GallerySample& sample, const wchar_t* text)
{
    SetWindowTextW(sample.control->getHwnd(), text);
}

void fillButton(GallerySample& sample, const wchar_t* text)
{
    as<UIButtonControl>(sample).setButtonDisplayName(text);
}

template <int state> void fillCheckBox(GallerySample& sample, const wchar_t* text)
{
    fillWindowText(sample, text);
    as<UICheckBoxControl>(sample).setCheck(state);
}

template <std::uint32_t style> void fillMark(GallerySample& sample, const wchar_t* /*text*/)
{
    as<UIInfoButtonControl>(sample).setMessage(
        style, L"Stapling needs the office finisher, which is not installed.", L"Staple");
}

void fillBoldText(GallerySample& sample, const wchar_t* text)
{
    fillWindowText(sample, text);
    as<UITextControl>(sample).boldText(true);
}

void fillNothing(GallerySample& /*sample*/, const wchar_t* /*text*/)
{
}

void fillImage(GallerySample& sample, const wchar_t* /*text*/)
{
    as<UIImageControl>(sample).setImage(GetModuleHandleW(nullptr), ImageType::Gif,
                                        IDR_GALLERY_PICTURE);
}

/// Three entries, each with a record, so that any of them can be made unavailable.
template <class List> void fillList(GallerySample& sample, const wchar_t* text)
{
    const std::array<const wchar_t*, 3> entries{text, L"Staple", L"Booklet"};
    sample.records.resize(entries.size());
    auto& list = as<List>(sample);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        sample.records[i].id = static_cast<std::int32_t>(i);
        list.setItemData(list.addItem(entries[i]), &sample.records[i]);
    }
    list.setSelection(0);
}

void clearWindowText(UIControl& control)
{
    SetWindowTextW(control.getHwnd(), L"");
}

void clearCheckBox(UIControl& control)
{
    static_cast<UICheckBoxControl&>(control).setCheck(BST_UNCHECKED);
}

void clearImage(UIControl& control)
{
    constexpr int kNoPicture = 0;
    static_cast<UIImageControl&>(control).setImage(GetModuleHandleW(nullptr), ImageType::Gif,
                                                   kNoPicture);
}

template <class List> void clearList(UIControl& control)
{
    static_cast<List&>(control).setSelection(-1);
}

constexpr SIZE kButtonSize{46, 14};
constexpr SIZE kLineSize{46, 10};
constexpr SIZE kTextSize{46, 8};
constexpr SIZE kMarkSize{10, 10};
constexpr SIZE kFrameSize{46, 24};

// clang-format off
constexpr GalleryKind kButtons[] = {
    // name, text, size, states, how it is pressed, kind of its label, create, fill, clear
    {L"Push button", L"Save & go", kButtonSize, kLive | kLabel, GalleryPress::ByMessage,
     ControlType::Button, makeButton<false>, fillButton, nullptr},
    {L"Default button", L"Print", kButtonSize, kLive | kLabel, GalleryPress::ByMessage,
     ControlType::Button, makeButton<true>, fillButton, nullptr},
    {L"Bitmap button", nullptr, {20, 16}, kLive, GalleryPress::ByMessage,
     ControlType::Button, makeBitmapButton, fillNothing, nullptr},
    {L"Check box", L"&Collate", kLineSize, kLive | kCleared | kLabel, GalleryPress::ByMessage,
     ControlType::Button, makeCheckBox<false>, fillCheckBox<BST_CHECKED>, clearCheckBox},
    {L"Three states", L"&Rotate", kLineSize, kLive | kCleared | kLabel, GalleryPress::ByMessage,
     ControlType::Button, makeCheckBox<true>, fillCheckBox<BST_INDETERMINATE>, clearCheckBox},
    {L"Group box", L"&Paper", kFrameSize, kStill | kLabel, GalleryPress::ByMessage,
     ControlType::Button, makeGroupBox, fillWindowText, nullptr},
    {L"Information", nullptr, kMarkSize, kLive, GalleryPress::ByMessage,
     ControlType::Other, makeMark, fillMark<UIInfoButtonControl::kInformation>, nullptr},
    {L"Conflict", nullptr, kMarkSize, kLive, GalleryPress::ByMessage,
     ControlType::Other, makeMark, fillMark<UIInfoButtonControl::kConflict>, nullptr},
};

constexpr GalleryKind kTexts[] = {
    {L"Text", L"&Output:", kTextSize, kStill | kCleared | kLabel, GalleryPress::ByMessage,
     ControlType::StaticText, makeText, fillWindowText, clearWindowText},
    {L"Bold text", L"Summary", kTextSize, kStill | kCleared | kLabel, GalleryPress::ByMessage,
     ControlType::StaticText, makeText, fillBoldText, clearWindowText},
    {L"Link", L"Help", kTextSize,
     kStill | kCleared | kLabel | states(GalleryState::Hot, GalleryState::Focused),
     GalleryPress::ByMessage, ControlType::StaticText, makeLink, fillWindowText, clearWindowText},
    {L"Drawing surface", nullptr, {46, 14}, kStill, GalleryPress::ByMessage,
     ControlType::Other, makeDrawing, fillNothing, nullptr},
    {L"Image", nullptr, kFrameSize, kStill | kCleared, GalleryPress::ByMessage,
     ControlType::Other, makeImage, fillImage, clearImage},
};

constexpr GalleryKind kLists[] = {
    {L"Combo box", L"Punch", kButtonSize, kLive | kCleared | kEntries, GalleryPress::AtMiddle,
     ControlType::Other, makeComboBox, fillList<UIComboBoxControl>, clearList<UIComboBoxControl>},
};
// clang-format on

constexpr GallerySection kSections[] = {
    {L"Buttons", kButtons},
    {L"Texts and pictures", kTexts},
    {L"Lists and values", kLists},
};

constexpr std::array<const wchar_t*, kGalleryStateCount> kStateNames{
    L"Normal",  L"Hot",         L"Pressed",   L"Focused",       L"Disabled",
    L"Cleared", L"Unavailable", L"Truncated", L"Right to left",
};

} // namespace

const wchar_t* galleryStateName(GalleryState state)
{
    return kStateNames[static_cast<std::size_t>(state)];
}

std::span<const GallerySection> gallerySections()
{
    return kSections;
}

} // namespace o7

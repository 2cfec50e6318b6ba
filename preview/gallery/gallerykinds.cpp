#include "gallerykinds.h"

#include <commctrl.h>

#include <array>

#include "cxstring.h"
#include "dialogconversion.h"
#include "galleryresource.h"
#include "uibitmapbuttoncontrol.h"
#include "uibuttoncontrol.h"
#include "uicheckboxcontrol.h"
#include "uicomboboxcontrol.h"
#include "uidrawingsurfacecontrol.h"
#include "uieditcontrol.h"
#include "uigroupboxcontrol.h"
#include "uihyperlinktextcontrol.h"
#include "uiimagecontrol.h"
#include "uiinfobuttoncontrol.h"
#include "uilistboxcontrol.h"
#include "uilistviewcontrol.h"
#include "uiradiobuttoncontrol.h"
#include "uiresourceids.h"
#include "uiservices.h"
#include "uislidercontrol.h"
#include "uispincontrol.h"
#include "uitextcontrol.h"

namespace o7 {
namespace {

using ControlType = UIToolTips::ControlType;

template <class... States> constexpr unsigned states(States... state)
{
    return ((1U << static_cast<int>(state)) | ...);
}
constexpr unsigned kHot = states(GalleryState::Hot);
constexpr unsigned kPressed = states(GalleryState::Pressed);
constexpr unsigned kFocused = states(GalleryState::Focused);
constexpr unsigned kCleared = states(GalleryState::Cleared);
constexpr unsigned kLabel = states(GalleryState::Truncated);
constexpr unsigned kStill =
    states(GalleryState::Normal, GalleryState::Disabled, GalleryState::RightToLeft);
constexpr unsigned kLive = kStill | kHot | kPressed | kFocused;
constexpr unsigned kField = kStill | kFocused | kCleared;
constexpr unsigned kEntries = states(GalleryState::Unavailable, GalleryState::Truncated);

constexpr wchar_t kReason[] = L"Needs the office finisher.";
/// Of a list's entries the one that is made unavailable.
constexpr int kUnavailableEntry = 1;

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
        constexpr std::array<int, 3> kEnabled{COLOR_HIGHLIGHT, COLOR_WINDOWTEXT, COLOR_BTNSHADOW};
        constexpr std::array<int, 3> kDisabled{COLOR_BTNSHADOW, COLOR_GRAYTEXT, COLOR_BTNSHADOW};
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

std::unique_ptr<UIControl> makeRadioButton(const GalleryPlace& place)
{
    return make<UIRadioButtonControl>(place, place.groupStyle);
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

template <DWORD style> std::unique_ptr<UIControl> makeEdit(const GalleryPlace& place)
{
    return make<UIEditControl>(place, style, true, 100);
}

/// Says why its grey entry is grey.
template <class List>
std::unique_ptr<UIControl> withReasons(std::unique_ptr<UIControl> control,
                                       const GalleryPlace& place)
{
    static_cast<List&>(*control).setUnavailableReasons(&place.toolTips,
                                                       [](int) { return CXString(kReason); });
    return control;
}

std::unique_ptr<UIControl> makeComboBox(const GalleryPlace& place)
{
    return withReasons<UIComboBoxControl>(make<UIComboBoxControl>(place), place);
}

std::unique_ptr<UIControl> makeListBox(const GalleryPlace& place)
{
    return withReasons<UIListBoxControl>(
        make<UIListBoxControl>(place, DWORD{LBS_NOINTEGRALHEIGHT}, true), place);
}

std::unique_ptr<UIControl> makeListView(const GalleryPlace& place)
{
    auto list = std::make_unique<UIListViewControl>(place.parent, place.id, place.services,
                                                    place.font, place.location, place.size,
                                                    DWORD{LVS_SINGLESEL}, place.toolTips);
    list->setEnableTooltips(true);
    return list;
}

std::unique_ptr<UIControl> makeSlider(const GalleryPlace& place)
{
    return make<UISliderControl>(place, DWORD{TBS_HORZ}, 0, 10);
}

std::unique_ptr<UIControl> makeSpin(const GalleryPlace& place)
{
    return make<UISpinControl>(place, DWORD{0}, true, 1, 99);
}

void fillWindowText(GallerySample& sample, const wchar_t* text)
{
    SetWindowTextW(sample.control->getHwnd(), text);
}

void fillButton(GallerySample& sample, const wchar_t* text)
{
    as<UIButtonControl>(sample).setButtonDisplayName(text);
}

template <class Text> void fillText(GallerySample& sample, const wchar_t* text)
{
    as<Text>(sample).setText(text);
}

template <int state> void fillCheckBox(GallerySample& sample, const wchar_t* text)
{
    fillWindowText(sample, text);
    as<UICheckBoxControl>(sample).setCheck(state);
}

void fillRadioButton(GallerySample& sample, const wchar_t* text)
{
    as<UIRadioButtonControl>(sample).setText(text);
    as<UIRadioButtonControl>(sample).setCheck(BST_CHECKED);
}

template <std::uint32_t style> void fillMark(GallerySample& sample, const wchar_t* /*text*/)
{
    as<UIInfoButtonControl>(sample).setMessage(style, kReason, L"Staple");
}

void fillBoldText(GallerySample& sample, const wchar_t* text)
{
    fillText<UITextControl>(sample, text);
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

void fillListView(GallerySample& sample, const wchar_t* text)
{
    auto& list = as<UIListViewControl>(sample);
    list.setColumnsInDialogUnits({{.title = L"Finish"}});
    list.setRows({{.id = 0, .texts = {text}}, {.id = kUnavailableEntry, .texts = {L"Staple"}}});
    list.selectRow(0);
}

void fillSlider(GallerySample& sample, const wchar_t* /*text*/)
{
    as<UISliderControl>(sample).setPosition(5);
}

void clearWindowText(UIControl& control)
{
    SetWindowTextW(control.getHwnd(), L"");
}

void clearCheckBox(UIControl& control)
{
    static_cast<UICheckBoxControl&>(control).setCheck(BST_UNCHECKED);
}

void clearRadioButton(UIControl& control)
{
    static_cast<UIRadioButtonControl&>(control).setCheck(BST_UNCHECKED);
}

void clearImage(UIControl& control)
{
    constexpr int kNoPicture = 0;
    static_cast<UIImageControl&>(control).setImage(GetModuleHandleW(nullptr), ImageType::Gif,
                                                   kNoPicture);
}

/// A closed list then shows nothing, and is what it was when it is enabled again.
void clearComboBox(UIControl& control)
{
    static_cast<UIComboBoxControl&>(control).setSelection(-1);
}

void clearListBox(UIControl& control)
{
    static_cast<UIListBoxControl&>(control).removeAllItems();
}

void clearListView(UIControl& control)
{
    static_cast<UIListViewControl&>(control).removeAllRows();
}

template <class List> void showUnavailable(UIControl& control)
{
    auto& list = static_cast<List&>(control);
    list.setItemUnavailable(true, kUnavailableEntry);
    list.setSelection(kUnavailableEntry);
}

void showUnavailableRow(UIControl& control)
{
    auto& list = static_cast<UIListViewControl&>(control);
    list.setRowUnavailable(kUnavailableEntry, true);
    list.selectRow(kUnavailableEntry);
}

constexpr SIZE kButtonSize{46, 14};
constexpr SIZE kLineSize{46, 10};
constexpr SIZE kTextSize{46, 8};
constexpr SIZE kMarkSize{10, 10};
constexpr SIZE kFrameSize{46, 24};

// clang-format off
constexpr GalleryKind kButtons[] = {
    // name, text, size, states, how it is pressed, kind of its label,
    // create, fill, clear, showUnavailable
    {L"Push button", L"Save & go", kButtonSize, kLive | kLabel, GalleryPress::ByMessage,
     ControlType::Button, makeButton<false>, fillButton, nullptr, nullptr},
    {L"Default button", L"Print", kButtonSize, kLive | kLabel, GalleryPress::ByMessage,
     ControlType::Button, makeButton<true>, fillButton, nullptr, nullptr},
    {L"Bitmap button", nullptr, {20, 16}, kLive, GalleryPress::ByMessage,
     ControlType::Button, makeBitmapButton, fillNothing, nullptr, nullptr},
    {L"Check box", L"&Collate", kLineSize, kLive | kCleared | kLabel, GalleryPress::ByMessage,
     ControlType::Button, makeCheckBox<false>, fillCheckBox<BST_CHECKED>, clearCheckBox, nullptr},
    {L"Three states", L"&Rotate", kLineSize, kLive | kCleared | kLabel, GalleryPress::ByMessage,
     ControlType::Button, makeCheckBox<true>, fillCheckBox<BST_INDETERMINATE>, clearCheckBox,
     nullptr},
    {L"Radio button", L"&Duplex", kLineSize, kLive | kCleared | kLabel, GalleryPress::ByMessage,
     ControlType::Button, makeRadioButton, fillRadioButton, clearRadioButton, nullptr},
    {L"Group box", L"&Paper", kFrameSize, kStill | kLabel, GalleryPress::ByMessage,
     ControlType::Button, makeGroupBox, fillWindowText, nullptr, nullptr},
    {L"Information", nullptr, kMarkSize, kLive, GalleryPress::ByMessage,
     ControlType::Other, makeMark, fillMark<UIInfoButtonControl::kInformation>, nullptr, nullptr},
    {L"Conflict", nullptr, kMarkSize, kLive, GalleryPress::ByMessage,
     ControlType::Other, makeMark, fillMark<UIInfoButtonControl::kConflict>, nullptr, nullptr},
};

constexpr GalleryKind kTexts[] = {
    {L"Text", L"&Output:", kTextSize, kStill | kCleared | kLabel, GalleryPress::ByMessage,
     ControlType::StaticText, makeText, fillText<UITextControl>, clearWindowText, nullptr},
    {L"Bold text", L"Summary", kTextSize, kStill | kCleared | kLabel, GalleryPress::ByMessage,
     ControlType::StaticText, makeText, fillBoldText, clearWindowText, nullptr},
    {L"Link", L"Help", kTextSize, kField | kLabel | kHot, GalleryPress::ByMessage,
     ControlType::StaticText, makeLink, fillText<UIHyperlinkTextControl>, clearWindowText, nullptr},
    {L"Edit", L"Invoice", kButtonSize, kField | kLabel, GalleryPress::ByMessage,
     ControlType::Other, makeEdit<ES_AUTOHSCROLL>, fillText<UIEditControl>, clearWindowText, nullptr},
    {L"Edit, lines", L"Invoice\r\nMay", kFrameSize, kField, GalleryPress::ByMessage,
     ControlType::Other, makeEdit<ES_MULTILINE>, fillText<UIEditControl>, clearWindowText, nullptr},
    {L"Drawing", nullptr, kButtonSize, kStill, GalleryPress::ByMessage,
     ControlType::Other, makeDrawing, fillNothing, nullptr, nullptr},
    {L"Image", nullptr, kFrameSize, kStill | kCleared, GalleryPress::ByMessage,
     ControlType::Other, makeImage, fillImage, clearImage, nullptr},
};

constexpr GalleryKind kLists[] = {
    {L"Combo box", L"Punch", kButtonSize, kLive | kCleared | kEntries, GalleryPress::AtEnd,
     ControlType::Other, makeComboBox, fillList<UIComboBoxControl>, clearComboBox,
     showUnavailable<UIComboBoxControl>},
    {L"List box", L"Punch", {46, 34}, kField | kEntries, GalleryPress::ByMessage,
     ControlType::Other, makeListBox, fillList<UIListBoxControl>, clearListBox,
     showUnavailable<UIListBoxControl>},
    {L"List view", L"Punch", {46, 44}, kField | kEntries | kHot, GalleryPress::ByMessage,
     ControlType::Other, makeListView, fillListView, clearListView, showUnavailableRow},
    {L"Slider", nullptr, {46, 15}, kLive, GalleryPress::AtMiddle,
     ControlType::Other, makeSlider, fillSlider, nullptr, nullptr},
    {L"Spin", nullptr, {12, 14}, kStill | kHot | kPressed, GalleryPress::AtTop,
     ControlType::Other, makeSpin, fillNothing, nullptr, nullptr},
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

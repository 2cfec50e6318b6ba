#include "uigroupboxcontrol.h"

#include "cxstring.h"
#include "windowtext.h"

namespace {

constexpr DWORD kStyle = WS_CHILD | WS_VISIBLE | BS_GROUPBOX;
static_assert(kStyle == 0x50000007);

} // namespace

UIGroupBoxControl::UIGroupBoxControl(HWND parent, int id, UIServices& services, HFONT font,
                                     POINT location, SIZE size, const CXString& caption)
    : UIControl(parent, id, services, font, location, size, false)
{
    setVisibleFlag(true);
    createControlWindow(L"BUTTON", kStyle);
    setLabelText(caption);
}

UIGroupBoxControl::~UIGroupBoxControl() = default;

void UIGroupBoxControl::dump() const
{
    dumpWindow(L"group", {});
}

void UIGroupBoxControl::setCaption(const CXString& caption)
{
    setLabelText(caption);
}

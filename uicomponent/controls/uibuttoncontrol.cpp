#include "uibuttoncontrol.h"

#include "cxstring.h"
#include "dialogconversion.h"
#include "windowtext.h"

namespace {

constexpr DWORD kStyle = 0x50010300;        // child, visible, tab stop, text centred
constexpr DWORD kDefaultStyle = 0x50010301; // the same as default push button
constexpr LONG kTextMargin = 4;             // dialog units

} // namespace

UIButtonControl::UIButtonControl(HWND parent, int id, UIServices& services, HFONT font,
                                 POINT location, SIZE size, bool isDefault)
    : UIControl(parent, id, services, font, location, size, false)
{
    setControl(this);
    setVisibleFlag(true);
    createControlWindow(L"BUTTON", isDefault ? kDefaultStyle : kStyle);
}

UIButtonControl::~UIButtonControl() = default;

bool UIButtonControl::handleMessage(const _UIWindowsMessage& /*message*/)
{
    return false;
}

CXString UIButtonControl::getButtonDisplayName()
{
    return o7::windowText(getHwnd());
}

SIZE UIButtonControl::getTextAreaInPixels()
{
    SIZE area = getDimensionInPixels();
    area.cx -= getConversion().dialogUnitsToPixels(SIZE{kTextMargin, 0}).cx;
    return area;
}

void UIButtonControl::setButtonDisplayName(const CXString& name) const
{
    o7::setWindowTextIfDifferent(getHwnd(), o7::withMarkedAmpersands(name));
}

void UIButtonControl::dump() const
{
    dumpWindow(L"button", {});
}

#include "uidialogtemplate.h"

#include <cstring>

#include "uiresourceids.h"

namespace {

// Where the fields of a template stand, in 16-bit words. An extended template begins with its
// version and the signature 0xFFFF.
constexpr WORD kExtendedSignature = 0xFFFF;
constexpr int kSignatureWord = 1;
struct Layout
{
    int exStyle;
    int style;
    int width;
    int height;
};
constexpr Layout kExtended{4, 6, 11, 12};
constexpr Layout kPlain{2, 0, 7, 8};

constexpr DWORD kPageStyles = WS_CHILD | WS_DISABLED | DS_CONTROL;
constexpr DWORD kAreaStyles = WS_CHILD | DS_CONTROL;
constexpr DWORD kPopupStyles = WS_POPUP | WS_CAPTION | WS_SYSMENU | DS_MODALFRAME;

DWORD readLong(const WORD* at)
{
    DWORD value = 0;
    std::memcpy(&value, at, sizeof value); // templates are aligned to words only
    return value;
}

void writeLong(WORD* at, DWORD value)
{
    std::memcpy(at, &value, sizeof value);
}

} // namespace

UIDialogTemplate::UIDialogTemplate(HINSTANCE instance)
{
    const HRSRC resource =
        FindResourceW(instance, MAKEINTRESOURCEW(O7_DIALOG_EMPTY_PAGE), RT_DIALOG);
    const HGLOBAL loaded = resource ? LoadResource(instance, resource) : nullptr;
    const void* bytes = loaded ? LockResource(loaded) : nullptr;
    const DWORD size = bytes ? SizeofResource(instance, resource) : 0;
    if (!size)
        return;
    m_memory.reset(GlobalAlloc(GMEM_FIXED, size));
    if (m_memory)
        std::memcpy(m_memory.get(), bytes, size);
}

WORD* UIDialogTemplate::words() const
{
    return static_cast<WORD*>(m_memory.get()); // fixed memory: the handle is the address
}

bool UIDialogTemplate::isExtended() const
{
    return words()[kSignatureWord] == kExtendedSignature;
}

void UIDialogTemplate::setSize(long width, long height)
{
    if (!m_memory)
        return;
    const Layout& layout = isExtended() ? kExtended : kPlain;
    words()[layout.width] = static_cast<WORD>(width);
    words()[layout.height] = static_cast<WORD>(height);
}

void UIDialogTemplate::makePopup(bool owned)
{
    if (!m_memory)
        return;
    const Layout& layout = isExtended() ? kExtended : kPlain;
    WORD* const style = words() + layout.style;
    writeLong(style, (readLong(style) & ~kPageStyles) | kPopupStyles);
    addExtendedStyle(WS_EX_CONTROLPARENT | (owned ? 0U : WS_EX_APPWINDOW));
}

void UIDialogTemplate::mirror()
{
    if (m_memory)
        addExtendedStyle(WS_EX_LAYOUTRTL);
}

void UIDialogTemplate::addExtendedStyle(DWORD style)
{
    WORD* const at = words() + (isExtended() ? kExtended : kPlain).exStyle;
    writeLong(at, readLong(at) | style);
}

void UIDialogTemplate::makeArea()
{
    if (!m_memory)
        return;
    const Layout& layout = isExtended() ? kExtended : kPlain;
    WORD* const style = words() + layout.style;
    // A sheet takes the caption off its pages and enables them; here nobody does.
    writeLong(style, (readLong(style) & ~(kPageStyles | WS_CAPTION)) | kAreaStyles);
    WORD* const exStyle = words() + layout.exStyle;
    writeLong(exStyle, readLong(exStyle) | WS_EX_CONTROLPARENT);
}

const DLGTEMPLATE* UIDialogTemplate::get() const
{
    return static_cast<const DLGTEMPLATE*>(m_memory.get());
}

#pragma once

#include "uiapi.h"
#include "uihandles.h"
#include "uimessagehandler.h"

#include <windows.h>

#include <memory>
#include <vector>

class CXString;
class DialogConversion;
class UIServices;
namespace o7 {
class Accessibility;
}

/// One child window of a page or dialog: remembers where it stands, in pixels, and owns the window.
/// The base creates none; each concrete control creates its own in its constructor, at its final
/// place. Used on the page's UI thread only.
///
/// When the window could not be created the handle is null and every operation has no effect on
/// screen. The parent may be destroyed first: the control then lets its dead handle go.
class O7UI_API UIControl : public UIMessageHandler
{
public:
    /// @param parent    the page or dialog (borrowed)
    /// @param id        child-window id
    /// @param services  gives the conversion of dialog units; must outlive the control
    /// @param font      font of the parent (borrowed, must outlive the control)
    /// @param location,size  in dialog units, or in pixels when inPixels is true
    UIControl(HWND parent, int id, UIServices& services, HFONT font, POINT location, SIZE size,
              bool inPixels);
    UIControl(const UIControl&) = delete;
    UIControl& operator=(const UIControl&) = delete;
    ~UIControl() override;

    /// Not handled, unless a control overrides it.
    bool handleMessage(const _UIWindowsMessage& message) override;
    void dump() const override;

    POINT getLocationInPixels() const noexcept { return {m_x, m_y}; }
    SIZE getDimensionInPixels() const noexcept { return {m_width, m_height}; }
    HWND getHwnd() const noexcept { return m_window.get(); }
    HWND getParentHwnd() const noexcept { return m_parent; }
    int getId() const noexcept { return m_id; }
    HFONT getParentFont() const noexcept { return m_parentFont; }
    /// The owning molecule empties the control when it disables it.
    bool getClearOnDisable() const noexcept { return m_clearOnDisable; }
    bool getIsVisable() const noexcept { return m_visible; }

    /// EnableWindow; nothing happens when the window is in that state already.
    void setEnable(bool enable);
    /// ShowWindow; nothing happens on screen when the window is in that state already.
    void setShow(bool show);
    void setClearOnDisable(bool clear) noexcept { m_clearOnDisable = clear; }

    /// The text of a button or a static. While the page is not shown yet it is set without the
    /// repaint that the window would answer with. Nothing happens when the window has that text.
    void setLabelText(const CXString& text);

    /// For numbers: on a mirrored page the window itself is not, so that signs, digits and
    /// separators keep their order. Its left is left then. Right after creation.
    void keepUnmirrored() const noexcept;

    /// What screen readers say, where the window has no text of its own: the label of a list, an
    /// edit, a slider. Empty: what the system finds. Takes effect once somebody asks, so it costs
    /// nothing before.
    void setAccessibleName(const CXString& name);

    // The place changes at once, with a repaint; where the control stands already, nothing happens.

    /// Moves by a difference, in dialog units or in pixels. Negative differences convert like
    /// positive ones.
    void move(POINT delta, bool inPixels = false);
    /// Moves to a place; the size stays.
    void setLocation(POINT location, bool inPixels = false);
    /// Changes the size; the place stays.
    void setSize(SIZE size, bool inPixels = false);
    /// Has the window, or an area of it in pixels, painted anew (InvalidateRect), erased before
    /// when wanted. Without a window nothing happens: for the system that would mean the desktop.
    void repaint(bool erase, const RECT* area = nullptr) const noexcept;

    /// While it lives, controls of that parent leave their windows to it when they are destroyed:
    /// for the time of its WM_DESTROY, after which it takes them all along. Destroying each by
    /// itself would cost as much again.
    class O7UI_API ParentGoes
    {
    public:
        explicit ParentGoes(HWND parent) noexcept;
        ~ParentGoes();
        ParentGoes(const ParentGoes&) = delete;
        ParentGoes& operator=(const ParentGoes&) = delete;

    private:
        HWND m_outer;
    };

protected:
    /// Creates the window inside the module's activation context and gives it the parent's font.
    void createControlWindow(const wchar_t* className, DWORD style);
    /// The two halves of it, for a control that has something to do between them.
    void createBareWindow(const wchar_t* className, DWORD style);
    void giveFont();
    void setVisibleFlag(bool visible) noexcept { m_visible = visible; }
    DialogConversion& getConversion() const noexcept { return m_conversion; }
    /// What a WM_DRAWITEM for this control's window holds; null for every other message.
    DRAWITEMSTRUCT* itemToDraw(const _UIWindowsMessage& message) const noexcept;
    /// ROLE_SYSTEM_... for screen readers, and STATE_SYSTEM_... bits beside focused and disabled.
    void setAccessibleRole(LONG role, LONG state = 0);
    /// Its parts that cannot be chosen, for screen readers; from 1 on.
    void setUnavailableParts(std::vector<LONG> parts);
    /// Has to be told each message of a window that a derived class stands before.
    void onAccessibilityMessage(UINT message) noexcept;
    /// For WM_NCDESTROY: the handle is about to become invalid.
    void forgetWindow() noexcept { m_window.release(); }
    /// One line for dump(): kind, id, text and state of the window, then what the control adds.
    void dumpWindow(const wchar_t* kind, const CXString& addition) const;
    /// The same with another text than the window's.
    void dumpWindow(const wchar_t* kind, const CXString& text, const CXString& addition) const;

private:
    void placeWindow(POINT location, SIZE size);
    o7::Accessibility& accessibility();
    RECT toPixels(const RECT& place, bool inPixels) const;

    HWND m_parent;
    o7::UniqueWindow m_window;
    std::unique_ptr<o7::Accessibility> m_accessibility; ///< goes before the window
    DialogConversion& m_conversion;
    HFONT m_parentFont;
    int m_id;
    int m_x;
    int m_y;
    int m_width;
    int m_height;
    bool m_clearOnDisable = false;
    bool m_visible = false;
};

#include "pagecontrols.h"

#include <commctrl.h>

#include <utility>

#include "otherwindow.h"
#include "visibletext.h"

namespace o7::story {
namespace {

constexpr LONG_PTR kButtonType = 0xF; // BS_TYPEMASK
constexpr LONG_PTR kStaticType = SS_TYPEMASK;

LONG_PTR styleOf(HWND window)
{
    return GetWindowLongPtrW(window, GWL_STYLE);
}

struct GroupBox
{
    RECT area{};
    std::string caption;
};

/// Goes through the children of a page once; a text belongs to the control that follows it.
class PageReader
{
public:
    explicit PageReader(HWND page) : m_children(childrenOf(page))
    {
        for (HWND child : m_children) {
            if (hasClass(child, WC_BUTTONW) && (styleOf(child) & kButtonType) == BS_GROUPBOX) {
                GroupBox& box = m_boxes.emplace_back();
                box.caption = plainLabel(textOf(child));
                GetWindowRect(child, &box.area);
            }
        }
    }

    std::vector<PageControl> read()
    {
        for (HWND child : m_children) {
            take(child);
        }
        return std::move(m_controls);
    }

private:
    void take(HWND child)
    {
        if (hasClass(child, WC_STATICW)) {
            takeText(child);
        } else if (hasClass(child, WC_BUTTONW)) {
            takeButton(child);
        } else if (hasClass(child, WC_COMBOBOXW) || hasClass(child, WC_LISTBOXW) ||
                   hasClass(child, L"ComboLBox")) {
            addLabelled(ControlKind::List, child);
        } else if (hasClass(child, WC_EDITW)) {
            addLabelled(ControlKind::Field, child);
        } else if (hasClass(child, TRACKBAR_CLASSW)) {
            addLabelled(ControlKind::Slider, child);
        }
    }

    void takeText(HWND child)
    {
        const LONG_PTR type = styleOf(child) & kStaticType;
        const bool isText = type <= SS_RIGHT || type == SS_LEFTNOWORDWRAP || type == SS_SIMPLE;
        if (std::string text = isText ? plainLabel(textOf(child)) : std::string(); !text.empty()) {
            m_label = std::move(text);
            m_labelGroup = groupOf(child);
        }
    }

    void takeButton(HWND child)
    {
        const std::string text = plainLabel(textOf(child));
        switch (styleOf(child) & kButtonType) {
        case BS_GROUPBOX:
            m_label.clear();
            return;
        case BS_CHECKBOX:
        case BS_AUTOCHECKBOX:
        case BS_3STATE:
        case BS_AUTO3STATE:
            if (text.empty()) {
                return addLabelled(ControlKind::CheckBox, child);
            }
            add(ControlKind::CheckBox, child, text);
            m_label = text; // a field that it switches on may have no text of its own
            m_labelGroup = groupOf(child);
            return;
        case BS_RADIOBUTTON:
        case BS_AUTORADIOBUTTON:
            return takeRadio(child);
        case BS_OWNERDRAW:
            return; // signs beside a control, whose text is for screen readers
        default:
            add(ControlKind::Button, child, text);
        }
    }

    void takeRadio(HWND child)
    {
        const bool goesOn = !m_controls.empty() &&
                            m_controls.back().kind == ControlKind::RadioGroup &&
                            (styleOf(child) & WS_GROUP) == 0;
        if (!goesOn) {
            addLabelled(ControlKind::RadioGroup, child);
        }
        m_controls.back().radioButtons.push_back(child);
    }

    void addLabelled(ControlKind kind, HWND window)
    {
        const std::string group = groupOf(window);
        const bool hasLabel = !m_label.empty() && m_labelGroup == group;
        add(kind, window, hasLabel ? m_label : group);
    }

    void add(ControlKind kind, HWND window, const std::string& label)
    {
        m_controls.push_back({kind, window, groupOf(window), label, {}});
        m_label.clear();
    }

    /// The innermost group box around the middle of a control.
    std::string groupOf(HWND window) const
    {
        RECT area{};
        GetWindowRect(window, &area);
        const POINT middle{(area.left + area.right) / 2, (area.top + area.bottom) / 2};
        const GroupBox* innermost = nullptr;
        for (const GroupBox& box : m_boxes) {
            if (PtInRect(&box.area, middle) &&
                (innermost == nullptr ||
                 PtInRect(&innermost->area, {box.area.left, box.area.top}))) {
                innermost = &box;
            }
        }
        return innermost != nullptr ? innermost->caption : std::string();
    }

    std::vector<HWND> m_children;
    std::vector<GroupBox> m_boxes;
    std::vector<PageControl> m_controls;
    std::string m_label; ///< the text that waits for its control
    std::string m_labelGroup;
};

} // namespace

bool PageControl::isShown() const
{
    for (HWND button : radioButtons) {
        if (IsWindowVisible(button)) {
            return true;
        }
    }
    return IsWindowVisible(window) != FALSE;
}

std::string PageControl::fullName() const
{
    return group.empty() || group == label ? label : group + "/" + label;
}

std::vector<PageControl> controlsOf(HWND page)
{
    return PageReader(page).read();
}

} // namespace o7::story

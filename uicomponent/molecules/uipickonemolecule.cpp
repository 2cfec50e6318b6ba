#include "uipickonemolecule.h"

#include <algorithm>

#include "uilistboxcontrol.h"
#include "uilistcontroldata.h"

namespace {

// Dialog units.
constexpr long kRowHeight = 8;
constexpr long kFrame = 4; // the two borders, and what rounding may take from the rows
constexpr long kRaisedListHeight = 21;

/// Leaves a list as it is seen until all of its entries are in.
class PaintOnce
{
public:
    explicit PaintOnce(const UIListBoxControl& list) : m_list(list)
    {
        SendMessageW(m_list.UIControl::getHwnd(), WM_SETREDRAW, FALSE, 0);
    }
    ~PaintOnce()
    {
        SendMessageW(m_list.UIControl::getHwnd(), WM_SETREDRAW, TRUE, 0);
        m_list.repaint(true);
    }
    PaintOnce(const PaintOnce&) = delete;
    PaintOnce& operator=(const PaintOnce&) = delete;

private:
    const UIListBoxControl& m_list;
};

} // namespace

UIPickOneMolecule::UIPickOneMolecule(const UIMoleculeData& data, const UIMoleculeSite& site)
    : UIComboListBaseMolecule(data, site)
{
}

UIPickOneMolecule::~UIPickOneMolecule() = default;

long UIPickOneMolecule::ReadListRecord(const UIControlData& control, bool raised)
{
    long rows = UIListRecord{}.visibleRows;
    if (const auto* list = dynamic_cast<const UIListControlData*>(&control)) {
        SetDisabledOptions(list->getDisabledOptions());
        rows = static_cast<long>(list->getVisibleRows());
    }
    m_boxHeight = std::max(1L, rows) * kRowHeight + kFrame;
    return std::max(raised ? kRaisedListHeight : 0, m_boxHeight);
}

void UIPickOneMolecule::CreateControls(UIPageWindow& page)
{
    SetPage(page);
    const RECT box = CreateLabel(page, m_boxHeight);
    m_list = std::make_unique<UIListBoxControl>(page.window, page.takeId(), GetSite().services,
                                                page.font, POINT{box.left, box.top},
                                                SIZE{box.right - box.left, m_boxHeight}, 0, true);
    PrepareList();
}

UIEntryListControl* UIPickOneMolecule::List() const
{
    return m_list.get();
}

void UIPickOneMolecule::FillTogether(const std::function<void()>& fill)
{
    const PaintOnce filling(*m_list);
    fill();
}

bool UIPickOneMolecule::HandleNotification(int notification)
{
    if (notification != LBN_SELCHANGE)
        return false;
    ChooseEntry(m_list->getSelection(true));
    return true;
}

void UIPickOneMolecule::LookChanged()
{
    if (m_list)
        m_list->repaint(true);
}

CXString UIPickOneMolecule::GetObserverClassNameHeirarchy() const
{
    return CXString(L"UIPickOneMolecule:") +
           UIComboListBaseMolecule::GetObserverClassNameHeirarchy();
}

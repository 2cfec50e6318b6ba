#include "uiofftab.h"

#include "dialogconversion.h"
#include "entryheight.h"
#include "featureservices.h"
#include "isolationaware.h"
#include "productstringloader.h"
#include "trace.h"
#include "uicontainerdata.h"
#include "uicontext.h"
#include "uicontrol.h"
#include "uidialogprocedure.h"
#include "uidialogtemplate.h"
#include "uidump.h"
#include "uilayoutmanager.h"
#include "uiservices.h"

namespace {

/// The whole dialog units that fit into so many pixels.
long unitsIn(const DialogConversion& conversion, long pixels)
{
    const long units = conversion.pixelsToDialogUnits(SIZE{pixels, 0}).cx;
    return conversion.dialogUnitsToPixels(SIZE{units, 0}).cx > pixels ? units - 1 : units;
}

} // namespace

UIOffTab::UIOffTab(FeatureServices& featureServices, UIContext& context, UIServices& services)
    : UIMoleculeContainer(featureServices, context.strings, services,
                          featureServices.GetFullListOfFeatures())
{
}

UIOffTab::~UIOffTab()
{
    close();
}

void UIOffTab::close()
{
    releaseMolecules(); // while their windows exist
    if (m_area)
        DestroyWindow(m_area.get()); // lets go of it with its last message
}

bool UIOffTab::build(const UIContainerData& data)
{
    m_data = &data;
    buildFrom(data);
    const CXString misfit = getLayout().findMisfit();
    if (!misfit.IsEmpty())
        o7::trace(misfit);
    return misfit.IsEmpty();
}

long UIOffTab::getHeight() const
{
    return m_data->getHeight() - 2 * UILayoutManager::kMargin;
}

bool UIOffTab::open(HINSTANCE instance, HWND sheet, const RECT& place, HWND predecessor,
                    UIMessageManager& manager)
{
    UIDialogTemplate areaTemplate(instance);
    if (!areaTemplate.get())
        return false;
    areaTemplate.makeArea();
    if (getServices().isRightToLeft())
        areaTemplate.mirror();
    IsolationAware::ActivationScope scope;
    if (scope.isActive())
        m_area.reset(CreateDialogIndirectParamW(instance, areaTemplate.get(), sheet, nullptr, 0));
    // Without the property our procedure would swallow every message.
    if (!m_area || !SetPropW(m_area.get(), UIDialogProcedure::kManagerProperty, &manager)) {
        m_area.reset();
        return false;
    }
    SetWindowLongPtrW(m_area.get(), GWLP_WNDPROC,
                      reinterpret_cast<LONG_PTR>(&UIDialogProcedure::offTabDialogProcedure));
    getLayout().fillArea(unitsIn(getServices().getDialogConversion(), place.right - place.left));
    initialize(m_area.get());
    SetWindowPos(m_area.get(), predecessor, place.left, place.top, place.right - place.left,
                 place.bottom - place.top, SWP_NOACTIVATE | SWP_SHOWWINDOW);
    return true;
}

bool UIOffTab::handleMessage(const _UIWindowsMessage& message)
{
    if (!m_area || message.window != m_area.get())
        return m_area && offerToMolecules(message);
    message.result = answer(message);
    return true;
}

LRESULT UIOffTab::answer(const _UIWindowsMessage& message)
{
    const auto former = [&] {
        return DefDlgProcW(message.window, message.message, message.wParam, message.lParam);
    };
    switch (message.message) {
    case WM_DESTROY: { // the controls go while their windows still exist
        const UIControl::ParentGoes going(message.window);
        releaseMolecules();
        return former();
    }
    case WM_NCDESTROY:
        RemovePropW(message.window, UIDialogProcedure::kManagerProperty);
        m_area.release();
        return former();
    case WM_MEASUREITEM:
        if (o7::answerEntryHeight(message.window,
                                  *reinterpret_cast<MEASUREITEMSTRUCT*>(message.lParam)))
            return TRUE;
        break;
    default:
        break;
    }
    return offerToMolecules(message) ? message.result : former();
}

void UIOffTab::dump() const
{
    UIDump::line(L"area under the pages");
    const UIDump::Level inner;
    if (m_area)
        dumpMolecules();
    else
        UIDump::line(L"not shown");
}

#include "uireasonbox.h"

#include "productstringloader.h"
#include "uichoicebox.h"
#include "uiconflictwalk.h"
#include "uiservices.h"
#include "uistringnumbers.h"
#include "uiwaysout.h"

bool UIReasonBox::show(const UIInfoButtonControl::Reason& reason) const
{
    if (m_feature.GetFeatureEnum() == DataModelIds::kNoFeature)
        return false;
    const UIWaysOut waysOut(m_site.featureServices, m_site.strings,
                            m_site.services.getRegionalSettings());
    const auto ways = waysOut.of(m_feature);
    if (ways.empty())
        return false;
    UIChoiceBox::Content content;
    content.title = reason.title;
    content.sign = reason.style == UIInfoButtonControl::kConflict ? IDI_WARNING : IDI_INFORMATION;
    content.text = reason.text;
    content.choicesLabel = m_site.strings.LoadStringW(O7STR_W_WHAT_HELPS);
    for (const o7::WayOut& way : ways)
        content.choices.push_back(way.sentence);
    content.buttons = {{IDOK, m_site.strings.LoadStringW(O7STR_W_CARRY_OUT)},
                       {IDCANCEL, m_site.strings.LoadStringW(O7STR_W_CLOSE)}};
    content.walker = m_page;
    content.walkMessage = UIConflictWalk::kMessage;
    UIChoiceBox box(m_site.services, std::move(content));
    if (box.run(reason.owner) == IDOK)
        waysOut.carryOut(ways[box.getChosen()].alternative);
    return true;
}

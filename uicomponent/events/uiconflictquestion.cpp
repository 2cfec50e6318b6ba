#include "uiconflictquestion.h"

#include <algorithm>

#include "featureservices.h"
#include "productstringloader.h"
#include "uichoicebox.h"
#include "uiservices.h"
#include "uistringnumbers.h"
#include "uiwaysout.h"

namespace {

constexpr wchar_t kBullet[] = L"\n\u2022 ";
constexpr wchar_t kParagraph[] = L"\n\n";

} // namespace

UIConflictQuestion::UIConflictQuestion(FeatureServices& featureServices,
                                       const ProductStringLoader& strings,
                                       const UIServices& services, UIMode mode)
    : m_featureServices(featureServices), m_strings(strings), m_services(services), m_mode(mode)
{
}

std::vector<UIConflictQuestion::Conflict>
UIConflictQuestion::openOnes(const Features& conflicts) const
{
    std::vector<Conflict> open;
    for (const FeatureIdWithContext& feature : conflicts) {
        const auto capabilities = m_featureServices.GetFeatureRef(feature)->GetCapabilities();
        const CXString& sentences = capabilities->GetInterpretedState().GetCbrBtnMsg();
        if (capabilities->IsDeviceFeature() == (m_mode == UIMode::DeviceSettings) &&
            !sentences.IsEmpty())
            open.emplace_back(feature, sentences);
    }
    return open;
}

bool UIConflictQuestion::isNew(const std::vector<Conflict>& open) const
{
    return std::any_of(open.begin(), open.end(), [&](const Conflict& conflict) {
        return std::find(m_kept.begin(), m_kept.end(), conflict) == m_kept.end();
    });
}

UIConflictQuestion::Answer UIConflictQuestion::ask(HWND owner, const Features& conflicts)
{
    const auto open = openOnes(conflicts);
    if (!isNew(open)) {
        m_kept = open; // one that is gone and comes back is a new one
        return Answer::GoOn;
    }
    Features features;
    for (const Conflict& conflict : open)
        features.push_back(conflict.first);
    m_first = features.front();
    const UIWaysOut waysOut(m_featureServices, m_strings, m_services.getRegionalSettings());
    const o7::Settlement settlement = waysOut.settle(features);
    const bool canSettle = !settlement.alternative.changes.empty();

    UIChoiceBox::Content content;
    content.title = m_strings.LoadStringW(O7STR_S_CONFLICTS_TITLE);
    content.sign = IDI_WARNING;
    content.text = textOf(open, settlement);
    if (canSettle)
        content.buttons.push_back({IDOK, m_strings.LoadStringW(O7STR_W_SETTLE)});
    content.buttons.push_back({IDCANCEL, m_strings.LoadStringW(O7STR_W_GO_BACK)});
    content.buttons.push_back({IDIGNORE, m_strings.LoadStringW(O7STR_W_KEEP)});
    const int answer = UIChoiceBox(m_services, std::move(content)).run(owner);
    const bool settled = answer == IDOK && waysOut.carryOut(settlement.alternative);
    if (!settled && answer != IDIGNORE)
        return Answer::GoBack;
    m_kept = settled ? openOnes(settlement.left) : open;
    return settled ? Answer::Settled : Answer::GoOn;
}

CXString UIConflictQuestion::textOf(const std::vector<Conflict>& open,
                                    const o7::Settlement& settlement) const
{
    CXString text = m_strings.LoadStringW(O7STR_W_TOGETHER);
    for (const Conflict& conflict : open) {
        CXString sentences = conflict.second;
        sentences.Replace(CXString(L"\n"), CXString(kBullet));
        text += kBullet + sentences;
    }
    if (settlement.alternative.changes.empty())
        return text;
    text += kParagraph + m_strings.LoadStringW(O7STR_W_WOULD_SETTLE);
    for (const CXString& line : settlement.lines)
        text += kBullet + line;
    CXString names;
    for (const FeatureIdWithContext& feature : settlement.left) {
        if (!names.IsEmpty())
            names += m_strings.LoadStringW(O7STR_S_SEPARATOR);
        names += m_strings.GetStringForFeature(feature.GetFeatureEnum());
    }
    if (!names.IsEmpty())
        text += kParagraph +
                CXString::Formatted(m_strings.LoadStringW(O7STR_W_STAYS).c_str(), names.c_str());
    return text;
}

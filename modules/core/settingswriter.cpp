#include "settingswriter.h"

#include "featurenode.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace o7 {
namespace {

bool IsWritable(const FeatureNode& feature)
{
    const FeatureDescription& description = feature.Description();
    return IsLeaf(feature) && !description.flags.readOnly &&
           description.kind != FeatureKind::Resolution;
}

} // namespace

bool IsLeaf(const FeatureNode& feature)
{
    const FeatureKind kind = feature.Description().kind;
    return kind != FeatureKind::ListOfFeatures && kind != FeatureKind::ListOfValues;
}

void SettingsWriter::Write(FeatureNode& feature, FeatureValue value, bool specified,
                           bool followsDefault)
{
    if (feature.HasStored(value, specified) && (feature.FollowsDefault() || !followsDefault))
        return;
    // The record first: without it nothing may have changed.
    if (m_log.IsRecording()) {
        auto& undo = m_log.Record({ChangeLog::Undo::Kind::Value,
                                   &feature,
                                   {},
                                   feature.StoredSpecified(),
                                   feature.FollowsDefault(),
                                   nullptr,
                                   0});
        undo.value = feature.Release();
    }
    feature.Store(std::move(value), specified, followsDefault);
    m_log.Note(feature, kValueBit);
    m_engine.ValueChanged(feature);
}

bool SettingsWriter::CanTake(const FeatureNode& feature, FeatureValue& value) const
{
    const FeatureDescription& description = feature.Description();
    return IsWritable(feature) &&
           (value.index() == 0 ? !description.flags.required : description.Accepts(value));
}

void SettingsWriter::Force(FeatureNode& feature, const FeatureValue& value)
{
    const bool specified = value.index() != 0;
    Write(feature, specified ? value : feature.StoredValue(), specified, false);
}

bool SettingsWriter::SetValue(FeatureNode& feature, const FeatureValue& value)
{
    const auto* option = std::get_if<ValueId>(&value);
    if (option != nullptr && option->GetValueEnum() == DataModelIds::kValueUnspecified)
        return SetSpecified(feature, false);
    FeatureValue complete = value;
    if (!IsWritable(feature) || !feature.Description().Accepts(complete))
        return false;
    if (feature.IsForced())
        return complete == feature.PresentValue();
    if ((!feature.HasStored(complete, true) && feature.IsBlocked(complete)))
        return false;
    Write(feature, std::move(complete), true, false);
    return true;
}

bool SettingsWriter::SetSpecified(FeatureNode& feature, bool specified)
{
    if (!IsWritable(feature) || feature.IsForced())
        return specified == feature.PresentSpecified();
    const FeatureValue unspecified = ValueId(DataModelIds::kValueUnspecified);
    if (!specified && feature.StoredSpecified() &&
        (feature.Description().flags.required || feature.IsBlocked(unspecified)))
        return false;
    Write(feature, feature.StoredValue(), specified, false);
    return true;
}

void SettingsWriter::Insert(FeatureNode& list, const std::shared_ptr<FeatureNode>& item,
                            std::size_t index)
{
    list.Children().insert(list.Children().begin() + static_cast<std::ptrdiff_t>(index), item);
    item->SetAttached(true);
    m_engine.Attach(*item);
    m_log.Note(list, kValueBit);
}

void SettingsWriter::Erase(FeatureNode& list, std::size_t index)
{
    const auto at = list.Children().begin() + static_cast<std::ptrdiff_t>(index);
    const std::shared_ptr<FeatureNode> item = *at;
    list.Children().erase(at);
    m_engine.Detach(*item);
    item->SetAttached(false);
    m_log.Note(list, kValueBit);
    m_log.Bury(item);
}

void SettingsWriter::DeleteItem(FeatureNode& list, std::size_t index)
{
    if (m_log.IsRecording())
        m_log.Record({ChangeLog::Undo::Kind::ItemDeleted,
                      &list,
                      {},
                      false,
                      false,
                      list.Children()[index],
                      index});
    Erase(list, index);
}

std::shared_ptr<FeatureNode> SettingsWriter::CreateItem(FeatureNode& list)
{
    const FeatureDescription& description = list.Description();
    const std::size_t index = list.Children().size();
    if (!description.item || description.flags.readOnly || index >= description.maxItems)
        return nullptr;
    std::shared_ptr<FeatureNode> item = list.MakeItem();
    if (m_log.IsRecording())
        m_log.Record({ChangeLog::Undo::Kind::ItemCreated, &list, {}, false, false, item, index});
    Insert(list, item, index);
    return item;
}

bool SettingsWriter::DeleteItems(FeatureNode& list, std::vector<std::size_t> indices)
{
    const std::size_t count = list.Children().size();
    const bool inside = std::all_of(indices.begin(), indices.end(),
                                    [&](std::size_t index) { return index < count; });
    if (!list.Description().item || list.Description().flags.readOnly || !inside)
        return false;
    // From the back, so that the indices stay right; each one once.
    std::sort(indices.begin(), indices.end(), std::greater<>());
    indices.erase(std::unique(indices.begin(), indices.end()), indices.end());
    for (const std::size_t index : indices)
        DeleteItem(list, index);
    return true;
}

void SettingsWriter::Apply(FeatureNode& feature, const SettingsSnapshot& snapshot)
{
    if (feature.Description().item) {
        ApplyItems(feature, snapshot);
        return;
    }
    for (std::size_t i = 0; i < snapshot.children.size(); ++i)
        Apply(*feature.Children()[i], snapshot.children[i]);
    if (!IsLeaf(feature))
        return;
    const FeatureValue& wanted =
        snapshot.followsDefault ? feature.CurrentDefault() : snapshot.value;
    const bool specified = wanted.index() != 0;
    Write(feature, specified ? wanted : feature.StoredValue(), specified, snapshot.followsDefault);
}

void SettingsWriter::ApplyItems(FeatureNode& list, const SettingsSnapshot& snapshot)
{
    const auto& items = list.Children();
    const bool sameItems =
        std::equal(items.begin(), items.end(), snapshot.children.begin(), snapshot.children.end(),
                   [](const auto& item, const SettingsSnapshot& wanted) {
                       return item->GetId().GetFeatureId().GetItem() == wanted.item;
                   });
    if (!sameItems) {
        while (!items.empty())
            DeleteItem(list, items.size() - 1);
        for (std::size_t i = 0; i < snapshot.children.size(); ++i)
            CreateItem(list);
    }
    for (std::size_t i = 0; i < items.size(); ++i)
        Apply(*items[i], snapshot.children[i]);
}

bool SettingsWriter::CopyFrom(FeatureNode& feature, const IFeatureNode& source)
{
    if (source.GetKind() != feature.Description().kind || feature.Description().flags.readOnly)
        return false;
    // Read everything first: the source may lie inside what is about to change.
    SettingsSnapshot settings = CaptureSettings(feature);
    Overlay(feature.Description(), source, settings);
    Apply(feature, settings);
    return true;
}

void SettingsWriter::RestoreToDefault(FeatureNode& feature)
{
    Apply(feature, ResettableDefaults(feature));
}

void SettingsWriter::Undo(ChangeLog::Undo undo)
{
    FeatureNode& feature = *undo.feature;
    switch (undo.kind) {
    case ChangeLog::Undo::Kind::Value:
        feature.Store(std::move(undo.value), undo.specified, undo.followsDefault);
        m_log.Note(feature, kValueBit);
        m_engine.ValueChanged(feature);
        break;
    case ChangeLog::Undo::Kind::ItemCreated:
        Erase(feature, undo.index);
        break;
    case ChangeLog::Undo::Kind::ItemDeleted:
        Insert(feature, undo.item, undo.index);
        break;
    }
}

} // namespace o7

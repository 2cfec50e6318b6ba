#include "settingswriter.h"

#include "featurenode.h"
#include "room.h"

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

/// Value 5001 stands for having none, whichever way it is named.
bool IsNone(const FeatureValue& value)
{
    const auto* option = std::get_if<ValueId>(&value);
    return value.index() == 0 ||
           (option != nullptr && option->GetValueEnum() == DataModelIds::kValueUnspecified);
}

bool HasKey(const FeatureNode& item, const SettingsSnapshot& wanted)
{
    return item.GetId().GetFeatureId().GetItem() == wanted.item;
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
    const bool same = feature.HasStored(value, specified);
    if (same && feature.FollowsDefault() == followsDefault)
        return;
    // The record first: without it nothing may have changed.
    if (m_log.IsRecording() && !feature.IsStateOnly()) {
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
    if (!same)
        m_log.Note(feature, kValueBit);
    m_engine.ValueChanged(feature);
}

bool SettingsWriter::CanTake(const FeatureNode& feature, FeatureValue& value) const
{
    const FeatureDescription& description = feature.Description();
    if (!IsWritable(feature) || (!IsNone(value) && !description.Accepts(value)))
        return false;
    if (IsNone(value))
        value = {};
    return value.index() != 0 || !description.flags.required;
}

void SettingsWriter::Force(FeatureNode& feature, const FeatureValue& value)
{
    const bool specified = value.index() != 0;
    Write(feature, specified ? value : feature.StoredValue(), specified, false);
}

bool SettingsWriter::SetValue(FeatureNode& feature, const FeatureValue& value)
{
    FeatureValue wanted = value;
    if (!CanTake(feature, wanted))
        return false;
    const bool specified = wanted.index() != 0;
    if (feature.IsForced())
        return wanted == feature.PresentValue();
    if (specified ? feature.HasStored(wanted, true) : !feature.StoredSpecified())
        return true; // one that follows a default goes on following it
    if (feature.IsBlocked(specified ? wanted
                                    : FeatureValue(ValueId(DataModelIds::kValueUnspecified))))
        return false;
    Force(feature, wanted);
    return true;
}

bool SettingsWriter::SetSpecified(FeatureNode& feature, bool specified)
{
    if (feature.IsForced() || specified == feature.StoredSpecified())
        return specified == feature.PresentSpecified();
    // The value of before has to be one that can still be chosen.
    const FeatureValue wanted = specified ? feature.StoredValue() : FeatureValue();
    return specified == !IsNone(wanted) && SetValue(feature, wanted);
}

void SettingsWriter::Insert(FeatureNode& list, const std::shared_ptr<FeatureNode>& item,
                            std::size_t index)
{
    const auto at = static_cast<std::ptrdiff_t>(index);
    list.Children().insert(list.Children().begin() + at, item);
    item->SetAttached(true);
    m_log.Exhume(item);
    try {
        m_engine.Attach(*item);
    } catch (...) {
        list.Children().erase(list.Children().begin() + at);
        item->SetAttached(false);
        m_log.Bury(item);
        throw;
    }
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
    if (m_log.IsRecording() && !list.IsStateOnly())
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
    return CreateItem(list, index, SettingsSnapshot::kNewItem);
}

std::shared_ptr<FeatureNode> SettingsWriter::CreateItem(FeatureNode& list, std::size_t index,
                                                        int key)
{
    std::shared_ptr<FeatureNode> item = list.MakeItem(key);
    MakeRoom(list.Children(), list.Children().size() + 1);
    m_log.Expect(*item);
    m_log.MakeRoomForRecord();
    Insert(list, item, index);
    if (m_log.IsRecording() && !list.IsStateOnly())
        m_log.Record({ChangeLog::Undo::Kind::ItemCreated, &list, {}, false, false, item, index});
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
    // What the device reports is nobody's setting, so nothing brings it back.
    if (feature.IsStateOnly())
        return;
    if (feature.Description().item) {
        ApplyItems(feature, snapshot);
        return;
    }
    for (std::size_t i = 0; i < snapshot.children.size(); ++i)
        Apply(*feature.Children()[i], snapshot.children[i]);
    if (!IsLeaf(feature))
        return;
    bool follows = snapshot.followsDefault;
    FeatureValue wanted = follows ? feature.CurrentDefault() : snapshot.value;
    if (wanted.index() != 0 && IsNone(wanted)) {
        const bool required = feature.Description().flags.required;
        follows = required && !feature.Description().defaults.empty();
        wanted = required ? feature.CurrentDefault() : FeatureValue();
    }
    const bool specified = wanted.index() != 0;
    Write(feature, specified ? wanted : feature.StoredValue(), specified, follows);
}

void SettingsWriter::ApplyItems(FeatureNode& list, const SettingsSnapshot& snapshot)
{
    const auto& items = list.Children();
    const auto& wanted = snapshot.children;
    // Items that are still wanted stay, with all that refers to them: those of a known key by it,
    // new ones in place of what stands there.
    const bool known = std::any_of(wanted.begin(), wanted.end(), [](const auto& child) {
        return child.item != SettingsSnapshot::kNewItem;
    });
    for (std::size_t i = items.size(); known && i-- > 0;) {
        if (std::none_of(wanted.begin(), wanted.end(),
                         [&](const auto& child) { return HasKey(*items[i], child); }))
            DeleteItem(list, i);
    }
    for (std::size_t i = 0; i < wanted.size(); ++i) {
        const bool isNew = wanted[i].item == SettingsSnapshot::kNewItem;
        while (!isNew && i < items.size() && !HasKey(*items[i], wanted[i]) &&
               std::any_of(items.begin() + static_cast<std::ptrdiff_t>(i), items.end(),
                           [&](const auto& item) { return HasKey(*item, wanted[i]); }))
            DeleteItem(list, i);
        if (i >= items.size() || (!isNew && !HasKey(*items[i], wanted[i])))
            CreateItem(list, i, wanted[i].item);
        Apply(*items[i], wanted[i]);
    }
    while (items.size() > wanted.size())
        DeleteItem(list, items.size() - 1);
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

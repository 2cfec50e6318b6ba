#include "datamodel.h"

#include "trace.h"
#include "transaction.h"
#include "unsupportednode.h"

#include <algorithm>
#include <exception>
#include <functional>
#include <utility>

namespace o7 {
namespace {

/// Observers that answer a notification with a change are notified inside one another this deep;
/// beyond it changes wait for the outermost delivery.
constexpr int kDeepestDelivery = 16;
/// Observers that never stop answering each other are cut off after this many deliveries.
constexpr int kMostDeliveryRounds = 10000;

/// Adds to a counter for as long as it lives.
class Counted
{
public:
    explicit Counted(int& counter) : m_counter(counter) { ++m_counter; }
    ~Counted() { --m_counter; }
    Counted(const Counted&) = delete;
    Counted& operator=(const Counted&) = delete;

private:
    int& m_counter;
};

bool IsLeaf(const FeatureNode& feature)
{
    const FeatureKind kind = feature.Description().kind;
    return kind != FeatureKind::ListOfFeatures && kind != FeatureKind::ListOfValues;
}

/// Whether an active constraint keeps this value from being chosen.
bool IsBlocked(const FeatureNode& feature, const FeatureValue& value)
{
    return std::any_of(feature.effects.begin(), feature.effects.end(), [&](const Constraint* c) {
        return c->active && !c->AffectsWhole() && c->Blocks() && c->Affects(value);
    });
}

bool IsHiddenWhole(const FeatureNode& feature)
{
    return std::any_of(feature.effects.begin(), feature.effects.end(), [](const Constraint* c) {
        return c->active && c->AffectsWhole() && c->kind == EffectKind::Hide;
    });
}

/// Puts what `source` says over `settings`, as far as the description has and accepts it.
void Overlay(const FeatureDescription& description, const IFeatureNode& source,
             SettingsSnapshot& settings)
{
    if (description.flags.readOnly)
        return;
    if (description.item) {
        settings.children.clear();
        const std::size_t count = std::min(source.GetNumChildren(), description.maxItems);
        for (std::size_t i = 0; i < count; ++i) {
            settings.children.push_back(DefaultSettings(*description.item));
            Overlay(*description.item, *source.GetChild(i), settings.children.back());
        }
        return;
    }
    if (description.list) {
        for (std::size_t i = 0; i < settings.children.size(); ++i) {
            const FeatureDescription& member = description.list->features[i];
            const auto found = source.FindFeature(member.Id());
            if (found->GetKind() == member.kind)
                Overlay(member, *found, settings.children[i]);
        }
        return;
    }
    FeatureValue value;
    if (!source.IsSpecified())
        settings.value = description.flags.required ? settings.value : FeatureValue();
    else if (source.GetValue(value) && description.Accepts(value))
        settings.value = std::move(value);
}

FeatureNode* FindGroup(const FeatureNode& list, FeatureEnum group)
{
    for (const auto& child : list.Children()) {
        if (child->Description().kind != FeatureKind::ListOfFeatures)
            continue;
        if (child->Description().number == group)
            return child.get();
        if (auto* found = FindGroup(*child, group))
            return found;
    }
    return nullptr;
}

} // namespace

DataModel::DataModel(std::shared_ptr<const ProductDescription> product, IStringSource& strings)
    : m_product(std::move(product)),
      m_engine(m_log),
      m_interpreter(strings),
      m_self(std::make_shared<DataModel*>(this))
{
    m_rootDescription.kind = FeatureKind::ListOfFeatures;
    m_rootDescription.list = std::shared_ptr<const ListDescription>(m_product, &m_product->root);
    m_root =
        std::make_shared<FeatureNode>(*this, nullptr, m_rootDescription, FeatureIdWithContext());
    m_root->BuildMembers();
    m_engine.Attach(*m_root);
    m_log.TakeBase();
    m_accepted = CaptureSettings(*m_root);
}

DataModel::~DataModel()
{
    m_self.reset();
    m_root->Abandon();
}

FeatureNode* DataModel::FindNode(const FeatureIdWithContext& feature) const
{
    const FeatureId& id = feature.GetFeatureId();
    const auto* context = feature.GetContextPtr();
    if (context == nullptr && id.IsNone())
        return m_root.get();
    const FeatureNode* list = context != nullptr ? FindNode(*context) : m_root.get();
    if (list == nullptr)
        return nullptr;
    auto* found = list->FindChild(FeatureId(id.GetFeatureEnum(), id.GetName()));
    if (found != nullptr && id.GetItem() != FeatureId::kNoItem)
        found = found->FindChild(id);
    return found;
}

void DataModel::RegisterObserver(IObserver& observer, SettingsInstanceId instance,
                                 const FeatureIdWithContext& feature, unsigned int kind)
{
    m_notifier.Register(observer, instance.GetSettingsEnum(), feature, kind, FindNode(feature));
}

void DataModel::UnregisterObserver(IObserver& observer, SettingsInstanceId instance,
                                   const FeatureIdWithContext& feature, unsigned int kind)
{
    m_notifier.Unregister(observer, instance.GetSettingsEnum(), feature, kind);
}

void DataModel::RegisterForEvent(IObserver& observer, EventId event, unsigned int kind)
{
    m_notifier.RegisterForEvent(observer, event.GetEventEnum(), kind);
}

void DataModel::UnregisterForEvent(IObserver& observer, EventId event, unsigned int kind)
{
    m_notifier.UnregisterForEvent(observer, event.GetEventEnum(), kind);
}

bool DataModel::TestFeature(const FeatureIdWithContext& feature)
{
    const FeatureNode* node = FindNode(feature);
    if (node == nullptr)
        return false;
    for (; node != nullptr; node = node->Parent()) {
        if (IsHiddenWhole(*node))
            return false;
    }
    return true;
}

ListOfFeaturesRef DataModel::GetListOfFeaturesFor(const FeatureIdWithContext& context)
{
    FeatureNode* node = FindNode(context);
    if (node == nullptr)
        node =
            context.GetContextPtr() != nullptr ? FindNode(*context.GetContextPtr()) : m_root.get();
    while (node != nullptr && node->Description().kind != FeatureKind::ListOfFeatures)
        node = node->Parent();
    return node != nullptr ? ListOfFeaturesRef(node->shared_from_this()) : ListOfFeaturesRef();
}

std::unique_ptr<FeatureRef> DataModel::GetFeatureRef(const FeatureIdWithContext& feature)
{
    return ListOfFeaturesRef::MakeRef(m_root->FindFromTop(feature));
}

OptionFeatureRef DataModel::GetOptionFeatureRef(const FeatureIdWithContext& feature)
{
    return OptionFeatureRef(m_root->FindFromTop(feature));
}

ListOfFeaturesRef DataModel::GetFullListOfFeatures()
{
    return ListOfFeaturesRef(m_root);
}

ListOfFeaturesRef DataModel::GetListOfFeaturesByGroup(FeatureEnum group)
{
    auto* found = FindGroup(*m_root, group);
    return found != nullptr ? ListOfFeaturesRef(found->shared_from_this()) : ListOfFeaturesRef();
}

SettingsSnapshot DataModel::ResettableDefaults(const FeatureNode& feature)
{
    const FeatureDescription& description = feature.Description();
    if (!description.IsKept())
        return CaptureSettings(feature);
    if (!description.list)
        return DefaultSettings(description);
    SettingsSnapshot snapshot = CaptureSettings(feature);
    for (std::size_t i = 0; i < snapshot.children.size(); ++i)
        snapshot.children[i] = ResettableDefaults(*feature.Children()[i]);
    return snapshot;
}

template <typename Action> bool DataModel::Operate(const Action& action)
{
    bool done = false;
    {
        const Counted counted(m_operations);
        done = action();
    }
    if (m_operations == 0)
        DeliverPending();
    return done;
}

void DataModel::Write(FeatureNode& feature, FeatureValue value, bool specified)
{
    if (feature.StoredValue() == value && feature.StoredSpecified() == specified)
        return;
    m_log.Record({ChangeLog::Undo::Kind::Value, feature.shared_from_this(), feature.StoredValue(),
                  feature.StoredSpecified(), nullptr, 0});
    feature.Store(std::move(value), specified);
    m_log.Note(feature, kValueBit);
    m_engine.ValueChanged(feature);
}

bool DataModel::SetValue(FeatureNode& feature, const FeatureValue& value)
{
    const auto* option = std::get_if<ValueId>(&value);
    if (option != nullptr && option->GetValueEnum() == DataModelIds::kValueUnspecified)
        return SetSpecified(feature, false);
    const FeatureDescription& description = feature.Description();
    FeatureValue complete = value;
    if (description.flags.readOnly || description.kind == FeatureKind::Resolution ||
        !description.Accepts(complete))
        return false;
    const bool same = feature.StoredSpecified() && feature.StoredValue() == complete;
    if (!same && IsBlocked(feature, complete))
        return false;
    return Operate([&] {
        Write(feature, std::move(complete), true);
        return true;
    });
}

bool DataModel::SetSpecified(FeatureNode& feature, bool specified)
{
    const FeatureDescription& description = feature.Description();
    if (!IsLeaf(feature) || description.flags.readOnly ||
        description.kind == FeatureKind::Resolution)
        return specified == feature.StoredSpecified();
    const FeatureValue unspecified = ValueId(DataModelIds::kValueUnspecified);
    if (!specified && feature.StoredSpecified() &&
        (description.flags.required || IsBlocked(feature, unspecified)))
        return false;
    return Operate([&] {
        Write(feature, feature.StoredValue(), specified);
        return true;
    });
}

void DataModel::Insert(FeatureNode& list, const std::shared_ptr<FeatureNode>& item,
                       std::size_t index)
{
    list.Children().insert(list.Children().begin() + static_cast<std::ptrdiff_t>(index), item);
    item->SetAttached(true);
    m_engine.Attach(*item);
    m_log.Note(list, kValueBit);
}

void DataModel::Erase(FeatureNode& list, std::size_t index)
{
    const auto at = list.Children().begin() + static_cast<std::ptrdiff_t>(index);
    const std::shared_ptr<FeatureNode> item = *at;
    list.Children().erase(at);
    m_engine.Detach(*item);
    item->SetAttached(false);
    m_log.Note(list, kValueBit);
}

std::shared_ptr<FeatureNode> DataModel::CreateItem(FeatureNode& list)
{
    const FeatureDescription& description = list.Description();
    if (!description.item || description.flags.readOnly ||
        list.Children().size() >= description.maxItems)
        return nullptr;
    std::shared_ptr<FeatureNode> item = list.MakeItem();
    Operate([&] {
        const std::size_t index = list.Children().size();
        m_log.Record(
            {ChangeLog::Undo::Kind::ItemCreated, list.shared_from_this(), {}, false, item, index});
        Insert(list, item, index);
        return true;
    });
    return item;
}

bool DataModel::DeleteItems(FeatureNode& list, std::vector<std::size_t> indices)
{
    const std::size_t count = list.Children().size();
    const bool inside = std::all_of(indices.begin(), indices.end(),
                                    [&](std::size_t index) { return index < count; });
    if (!list.Description().item || list.Description().flags.readOnly || !inside)
        return false;
    // From the back, so that the indices stay right; each one once.
    std::sort(indices.begin(), indices.end(), std::greater<>());
    indices.erase(std::unique(indices.begin(), indices.end()), indices.end());
    return Operate([&] {
        for (const std::size_t index : indices) {
            m_log.Record({ChangeLog::Undo::Kind::ItemDeleted,
                          list.shared_from_this(),
                          {},
                          false,
                          list.Children()[index],
                          index});
            Erase(list, index);
        }
        return true;
    });
}

void DataModel::Apply(FeatureNode& feature, const SettingsSnapshot& snapshot)
{
    if (feature.Description().item) {
        ApplyItems(feature, snapshot);
        return;
    }
    for (std::size_t i = 0; i < snapshot.children.size(); ++i)
        Apply(*feature.Children()[i], snapshot.children[i]);
    if (!IsLeaf(feature))
        return;
    const bool specified = snapshot.value.index() != 0;
    Write(feature, specified ? snapshot.value : feature.StoredValue(), specified);
}

void DataModel::ApplyItems(FeatureNode& list, const SettingsSnapshot& snapshot)
{
    const auto& items = list.Children();
    const bool sameItems =
        std::equal(items.begin(), items.end(), snapshot.children.begin(), snapshot.children.end(),
                   [](const auto& item, const SettingsSnapshot& wanted) {
                       return item->GetId().GetFeatureId().GetItem() == wanted.item;
                   });
    if (!sameItems) {
        while (!items.empty()) {
            m_log.Record({ChangeLog::Undo::Kind::ItemDeleted,
                          list.shared_from_this(),
                          {},
                          false,
                          items.back(),
                          items.size() - 1});
            Erase(list, items.size() - 1);
        }
        for (std::size_t i = 0; i < snapshot.children.size(); ++i)
            CreateItem(list);
    }
    for (std::size_t i = 0; i < items.size(); ++i)
        Apply(*items[i], snapshot.children[i]);
}

bool DataModel::CopyFrom(FeatureNode& feature, const IFeatureNode& source)
{
    if (source.GetKind() != feature.Description().kind || feature.Description().flags.readOnly)
        return false;
    // Read everything first: the source may lie inside what is about to change.
    SettingsSnapshot settings = CaptureSettings(feature);
    Overlay(feature.Description(), source, settings);
    return Operate([&] {
        Apply(feature, settings);
        return true;
    });
}

bool DataModel::RestoreToDefault(FeatureNode& feature)
{
    return Operate([&] {
        Apply(feature, ResettableDefaults(feature));
        return true;
    });
}

std::unique_ptr<TransactionRef> DataModel::OpenTransaction(const CXString&)
{
    return std::make_unique<Transaction>(m_self, m_log.Open());
}

void DataModel::Undo(const ChangeLog::Undo& undo)
{
    FeatureNode& feature = *undo.feature;
    switch (undo.kind) {
    case ChangeLog::Undo::Kind::Value:
        feature.Store(undo.value, undo.specified);
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

bool DataModel::CloseTransaction(std::uint64_t transaction, bool commit)
{
    if (!m_log.IsOpen(transaction))
        return false;
    std::vector<Change> changes;
    for (bool last = false; !last;) {
        last = m_log.Innermost().id == transaction;
        if (!commit) {
            const auto undo = std::move(m_log.Innermost().undo);
            for (auto step = undo.rbegin(); step != undo.rend(); ++step)
                Undo(*step);
        }
        for (Change& change : m_log.Pop(commit)) {
            const auto known = std::find_if(changes.begin(), changes.end(), [&](const Change& c) {
                return c.feature == change.feature;
            });
            if (known == changes.end())
                changes.push_back(std::move(change));
            else
                known->bits |= change.bits;
        }
    }
    Deliver(std::move(changes));
    DeliverPending();
    return true;
}

void DataModel::Deliver(std::vector<Change> changes)
{
    if (changes.empty())
        return;
    if (++m_deliveryRounds > kMostDeliveryRounds) {
        trace(L"Observers answer each other without end; a notification was dropped.");
        return;
    }
    if (m_deliveryDepth >= kDeepestDelivery) {
        m_log.ReturnToBase(std::move(changes));
        return;
    }
    const Counted counted(m_deliveryDepth);
    m_notifier.Deliver(changes);
}

void DataModel::DeliverPending()
{
    while (!m_log.IsAnyOpen() && m_deliveryDepth < kDeepestDelivery) {
        auto changes = m_log.TakeBase();
        if (changes.empty())
            break;
        Deliver(std::move(changes));
    }
    if (m_deliveryDepth == 0)
        m_deliveryRounds = 0;
}

void DataModel::SettleBeforeDisplay()
{
    DeliverPending();
}

bool DataModel::IsModified() const
{
    return !SameSettings(m_rootDescription, CaptureSettings(*m_root), m_accepted);
}

void DataModel::CommitAccepted()
{
    m_accepted = CaptureSettings(*m_root);
}

void DataModel::RevertToAccepted()
{
    while (m_log.IsAnyOpen())
        CloseTransaction(m_log.Innermost().id, false);
    Operate([&] {
        Apply(*m_root, m_accepted);
        return true;
    });
}

void DataModel::Adopt(const SettingsSnapshot& settings)
{
    Operate([&] {
        Apply(*m_root, settings);
        // Accepted before anybody is told, so that an observer's answer counts as a modification.
        CommitAccepted();
        return true;
    });
}

void DataModel::SendNotification(const INotification& notification)
{
    if (const auto* event = dynamic_cast<const EventNotification*>(&notification)) {
        HandleEvent(*event);
        return;
    }
    if (const auto* bundle = dynamic_cast<const NotificationBundle*>(&notification)) {
        for (auto each = bundle->GetIterator(); each.MoreNotifications();)
            SendNotification(each.GetNext());
    }
}

void DataModel::HandleEvent(const EventNotification& event)
{
    // Observers come first: what they write when told of OK is accepted with the rest. If one of
    // them throws, the settings are accepted all the same, and then the caller learns of it.
    std::exception_ptr failure;
    try {
        m_notifier.DeliverEvent(event);
    } catch (...) {
        failure = std::current_exception();
    }
    ActOn(event.GetEventId().GetEventEnum());
    if (failure)
        std::rethrow_exception(failure);
}

void DataModel::ActOn(DataModelIds::EventEnum event)
{
    if (event == DataModelIds::kEventCancelQueried) {
        RevertToAccepted();
    } else if (event == DataModelIds::kEventOk || event == DataModelIds::kEventApply) {
        const auto result = GetOptionFeatureRef(DataModelIds::kFeatureApplyResult).GetValue();
        if (result.GetValueEnum() != DataModelIds::kValueApplyRejected)
            CommitAccepted();
    }
}

bool DataModel::AddConstraint(const ConstraintMkII& constraint)
{
    return AddConstraint({constraint.GetWhen()}, constraint.GetMustNotHold(),
                         constraint.GetOptions());
}

bool DataModel::AddConstraint(const std::vector<Condition>& when, const Condition& mustNotHold,
                              const ConstraintMkIIOptions& options)
{
    // Values are completed by the feature they are compared with, so that equal values are equal.
    const auto read = [](const FeatureNode& feature, const Condition& condition) {
        std::vector<FeatureValue> values;
        for (const ValueFactory& value : condition.GetValues().GetValues()) {
            values.push_back(value.GetValue());
            feature.Description().Accepts(values.back());
        }
        return values;
    };
    auto constraint = std::make_unique<Constraint>();
    for (const Condition& condition : when) {
        auto* cause = FindNode(condition.GetFeature());
        if (cause == nullptr || !IsLeaf(*cause))
            return false;
        constraint->when.push_back({cause->shared_from_this(), condition.GetComparison(),
                                    read(*cause, condition),
                                    condition.GetOptions().holdsWithoutValue});
    }
    auto* target = FindNode(mustNotHold.GetFeature());
    if (target == nullptr || !IsLeaf(*target) || constraint->when.empty() ||
        mustNotHold.GetValues().IsEmpty())
        return false;
    constraint->target = target->shared_from_this();
    constraint->comparison = mustNotHold.GetComparison();
    constraint->values = read(*target, mustNotHold);
    constraint->reason = options.reasonStringNumber;
    return Operate([&] {
        m_engine.Add(std::move(constraint));
        return true;
    });
}

} // namespace o7

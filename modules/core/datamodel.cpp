#include "datamodel.h"

#include "settingsblock.h"
#include "trace.h"
#include "transaction.h"

#include <algorithm>
#include <exception>
#include <new>
#include <utility>

namespace o7 {
namespace {

/// Observers that answer a notification with a change are notified inside one another this deep;
/// beyond it changes wait for the outermost delivery.
constexpr int kDeepestDelivery = 16;
/// Observers that never stop answering each other are cut off after this many deliveries.
constexpr int kMostDeliveryRounds = 10000;

bool IsHiddenWhole(const FeatureNode& feature)
{
    return std::any_of(feature.activeEffects.begin(), feature.activeEffects.end(),
                       [](const auto& effect) {
                           return effect.whole && effect.constraint->kind == EffectKind::Hide;
                       });
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
      m_writer(m_log, m_engine),
      m_interpreter(strings),
      m_self(std::make_shared<DataModel*>(this))
{
    m_rootDescription.kind = FeatureKind::ListOfFeatures;
    m_rootDescription.list = std::shared_ptr<const ListDescription>(m_product, &m_product->root);
    m_root =
        std::make_shared<FeatureNode>(*this, nullptr, m_rootDescription, FeatureIdWithContext());
    m_root->BuildMembers();
    m_room = std::make_unique<SettingsRoom>(*m_product, *m_root);
    m_log.Expect(*m_root);
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

bool DataModel::SetValue(FeatureNode& feature, const FeatureValue& value)
{
    const FeatureDescription& description = feature.Description();
    const std::size_t bytes = RoomFor(description, value);
    if (m_interpreter.IsLocked(feature) ||
        (bytes != 0 && !m_room->Take(bytes, RoomFor(description, feature.StoredValue()))))
        return false;
    return Operate([&] { return m_writer.SetValue(feature, value); });
}

bool DataModel::SetSpecified(FeatureNode& feature, bool specified)
{
    const std::size_t bytes = specified && !feature.StoredSpecified()
                                  ? RoomFor(feature.Description(), feature.StoredValue())
                                  : 0;
    if (m_interpreter.IsLocked(feature) || (bytes != 0 && !m_room->Take(bytes)))
        return false;
    return Operate([&] { return m_writer.SetSpecified(feature, specified); });
}

std::shared_ptr<FeatureNode> DataModel::CreateItem(FeatureNode& list)
{
    const auto* kind = list.Description().item.get();
    if (m_interpreter.IsLocked(list))
        return nullptr;
    if (kind != nullptr && !m_room->Take(LongestEntry(*kind, DefaultSettings(*kind))))
        return nullptr;
    std::shared_ptr<FeatureNode> item;
    Operate([&] { return (item = m_writer.CreateItem(list)) != nullptr; });
    return item;
}

bool DataModel::DeleteItems(FeatureNode& list, const std::vector<std::size_t>& indices)
{
    return !m_interpreter.IsLocked(list) &&
           Operate([&] { return m_writer.DeleteItems(list, indices); });
}

bool DataModel::CopyFrom(FeatureNode& feature, const IFeatureNode& source)
{
    if (m_interpreter.IsLocked(feature))
        return false;
    // How much comes along shows when it is there.
    const auto transaction = OpenTransaction(CXString());
    m_room->Forget();
    const bool copied = m_writer.CopyFrom(feature, source) && m_room->IsEnough();
    transaction->Close(copied);
    return copied;
}

bool DataModel::RestoreToDefault(FeatureNode& feature)
{
    return !m_interpreter.IsLocked(feature) && Operate([&] {
        m_writer.RestoreToDefault(feature);
        return true;
    });
}

std::unique_ptr<TransactionRef> DataModel::OpenTransaction(const CXString&)
{
    auto transaction = std::make_unique<Transaction>(m_self);
    transaction->Begin(m_log.Open());
    return transaction;
}

void DataModel::RollBackInnermost()
{
    auto undo = m_log.TakeUndo();
    // Taking back is not to be taken back; the level goes with what it records.
    for (auto step = undo.rbegin(); step != undo.rend(); ++step)
        m_writer.Undo(std::move(*step));
    undo.clear();
    m_log.Innermost().undo = std::move(undo);
    m_room->Forget();
}

bool DataModel::CloseTransaction(std::uint64_t transaction, bool commit)
{
    if (!m_log.IsOpen(transaction))
        return false;
    while (m_log.Innermost().id != transaction) {
        if (!commit)
            RollBackInnermost();
        // The changes of inner levels join those of the one that is closed.
        auto changes = m_log.Pop(commit);
        for (const Change& change : changes)
            m_log.Note(*change.feature, change.bits);
        m_log.Recycle(std::move(changes));
    }
    if (!commit)
        RollBackInnermost();
    Deliver(m_log.Pop(commit));
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
        m_log.ReturnToBase(changes);
        return;
    }
    const Counted counted(m_deliveryDepth);
    if (!m_notifier.Deliver(changes)) {
        m_log.ReturnToBase(changes); // to be told with the next change
        throw std::bad_alloc();
    }
    m_log.Recycle(std::move(changes));
}

void DataModel::DeliverPending()
{
    while (!m_log.IsAnyOpen() && m_deliveryDepth < kDeepestDelivery) {
        auto changes = m_log.TakeBase();
        if (changes.empty())
            break;
        Deliver(std::move(changes));
    }
    if (m_deliveryDepth == 0) {
        m_deliveryRounds = 0;
        if (!m_log.IsAnyOpen()) {
            m_engine.ForgetDetached();
            m_log.ReleaseBuried();
        }
    }
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
    m_room->Forget();
    Operate([&] {
        m_writer.Apply(*m_root, m_accepted);
        return true;
    });
}

void DataModel::Adopt(const SettingsSnapshot& settings)
{
    m_room->Forget();
    Operate([&] {
        m_writer.Apply(*m_root, settings);
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
    switch (event.GetEventId().GetEventEnum()) {
    case DataModelIds::kEventOk:
    case DataModelIds::kEventApply:
        Accept(event);
        break;
    case DataModelIds::kEventCancelQueried:
        Cancel(event);
        break;
    case DataModelIds::kEventAccepted: // not for others to say
        break;
    default:
        m_notifier.DeliverEvent(event);
        break;
    }
}

void DataModel::Accept(const EventNotification& event)
{
    // Observers come first: what they write is accepted with the rest. One that throws has not done
    // its share, so nothing is accepted.
    m_notifier.DeliverEvent(event);
    const auto result = GetOptionFeatureRef(DataModelIds::kFeatureApplyResult).GetValue();
    if (result.GetValueEnum() == DataModelIds::kValueApplyRejected)
        return;
    SettingsSnapshot before = std::exchange(m_accepted, CaptureSettings(*m_root));
    try {
        m_notifier.DeliverEvent(
            EventNotification(EventId(DataModelIds::kEventAccepted), event.GetParam()));
    } catch (...) {
        // What could not be stored must not count as kept.
        m_accepted = std::move(before);
        throw;
    }
}

void DataModel::Cancel(const EventNotification& event)
{
    // Nobody can keep a person from leaving without the changes.
    std::exception_ptr failure;
    try {
        m_notifier.DeliverEvent(event);
    } catch (...) {
        failure = std::current_exception();
    }
    RevertToAccepted();
    if (failure)
        std::rethrow_exception(failure);
}

} // namespace o7

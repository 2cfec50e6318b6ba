#pragma once

#include <functional>
#include <memory>
#include <set>
#include <string>
#include <tuple>

#include "observercount.h"

namespace o7::test {

/// A feature of a real model that writes down what is written to it, and lets a test refuse a write
/// or change what the feature can do.
class WatchedNode : public IFeatureNode
{
public:
    WatchedNode(Ptr node, std::string& log) : m_node(std::move(node)), m_log(log) {}

    std::function<bool(const FeatureValue&)> refuses;
    std::function<std::unique_ptr<CapabilitiesNode>(std::unique_ptr<CapabilitiesNode>)> changes;

    bool SetValue(const FeatureValue& value) override
    {
        const auto* option = std::get_if<ValueId>(&value);
        m_log += option ? "write " + option->GetAsCpssString().ToUtf8() + " " : "write ";
        return !(refuses && refuses(value)) && m_node->SetValue(value);
    }
    bool SetIsSpecified(bool specified) override
    {
        m_log += specified ? "specify " : "unspecify ";
        return m_node->SetIsSpecified(specified);
    }
    std::unique_ptr<CapabilitiesNode> GetCapabilities() const override
    {
        auto capabilities = m_node->GetCapabilities();
        return changes ? changes(std::move(capabilities)) : std::move(capabilities);
    }

    FeatureKind GetKind() const override { return m_node->GetKind(); }
    const FeatureIdWithContext& GetId() const override { return m_node->GetId(); }
    bool IsSpecified() const override { return m_node->IsSpecified(); }
    bool GetValue(FeatureValue& value) const override { return m_node->GetValue(value); }
    bool GetDefaultValue(FeatureValue& value) const override
    {
        return m_node->GetDefaultValue(value);
    }
    Ptr FindFeature(const FeatureId& id) const override { return m_node->FindFeature(id); }
    Ptr FindFromTop(const FeatureIdWithContext& id) const override
    {
        return m_node->FindFromTop(id);
    }
    std::size_t GetNumChildren() const override { return m_node->GetNumChildren(); }
    Ptr GetChild(std::size_t index) const override { return m_node->GetChild(index); }
    FeatureKind GetItemKind() const override { return m_node->GetItemKind(); }
    Ptr CreateItem() override { return m_node->CreateItem(); }
    bool DeleteItems(const std::vector<std::size_t>& items) override
    {
        return m_node->DeleteItems(items);
    }
    bool CopyFrom(const IFeatureNode& source) override { return m_node->CopyFrom(source); }
    bool RestoreToDefaultValue() override { return m_node->RestoreToDefaultValue(); }
    void ReportUnsupported() const override { m_node->ReportUnsupported(); }

private:
    Ptr m_node;
    std::string& m_log;
};

/// A model that writes down its transactions, counts the observers of one option feature alone, and
/// shows that as a WatchedNode.
class WatchedServices : public ObserverCount
{
public:
    WatchedServices(FeatureServices& model, const FeatureId& watched)
        : ObserverCount(model),
          m_watched(watched),
          m_node(std::make_shared<WatchedNode>(
              model.GetOptionFeatureRef(FeatureIdWithContext(watched)).GetNode(), log))
    {
    }

    /// "open write odrv-choice=b commit ", and so on, since it was emptied.
    std::string log;
    /// Registrations for the watched feature that have not been taken back.
    std::size_t observers() const { return m_observers.size(); }
    WatchedNode& node() { return *m_node; }

    void RegisterObserver(IObserver& observer, SettingsInstanceId instance,
                          const FeatureIdWithContext& feature, unsigned int kind) override
    {
        if (isWatched(feature))
            m_observers.insert({&observer, instance.GetSettingsEnum(), kind});
        ObserverCount::RegisterObserver(observer, instance, feature, kind);
    }
    void UnregisterObserver(IObserver& observer, SettingsInstanceId instance,
                            const FeatureIdWithContext& feature, unsigned int kind) override
    {
        const auto found = m_observers.find({&observer, instance.GetSettingsEnum(), kind});
        if (isWatched(feature) && found != m_observers.end())
            m_observers.erase(found);
        ObserverCount::UnregisterObserver(observer, instance, feature, kind);
    }
    std::unique_ptr<FeatureRef> GetFeatureRef(const FeatureIdWithContext& feature) override
    {
        if (isWatched(feature))
            return std::make_unique<OptionFeatureRef>(m_node);
        return ObserverCount::GetFeatureRef(feature);
    }
    OptionFeatureRef GetOptionFeatureRef(const FeatureIdWithContext& feature) override
    {
        return isWatched(feature) ? OptionFeatureRef(m_node)
                                  : ObserverCount::GetOptionFeatureRef(feature);
    }
    std::unique_ptr<TransactionRef> OpenTransaction(const CXString& purpose) override
    {
        log += "open ";
        return std::make_unique<Transaction>(ObserverCount::OpenTransaction(purpose), log);
    }

private:
    class Transaction : public TransactionRef
    {
    public:
        Transaction(std::unique_ptr<TransactionRef> inner, std::string& log)
            : m_inner(std::move(inner)), m_log(log)
        {
        }
        bool Close(bool commit) override
        {
            m_log += commit ? "commit " : "roll back ";
            return m_inner->Close(commit);
        }
        bool IsOpen() const override { return m_inner->IsOpen(); }

    private:
        std::unique_ptr<TransactionRef> m_inner;
        std::string& m_log;
    };

    using Key = std::tuple<const IObserver*, int, unsigned int>;
    bool isWatched(const FeatureIdWithContext& feature) const
    {
        return feature.GetFeatureId().GetFeatureEnum() == m_watched.GetFeatureEnum();
    }

    FeatureId m_watched;
    std::shared_ptr<WatchedNode> m_node;
    std::multiset<Key> m_observers;
};

} // namespace o7::test

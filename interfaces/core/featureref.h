#pragma once

#include "ifeaturenode.h"

#include <memory>
#include <utility>

/// Designates one feature in one list of features. A small value: copying shares a pointer. Stays
/// valid while the data model lives; afterwards, and when default-constructed or unsupported by
/// the product, every read answers false, every write is refused, and nothing fails.
/// Base of the typed references, which add reading and writing of their kind of value. All of them
/// are used on the data model's thread only.
class FeatureRef
{
public:
    /// What a getter makes of a feature that this product does not support.
    enum UnsupportedFeatureAssertEnum
    {
        kAssertIfUnsupported = 1,      ///< A programming error: record a diagnostic, answer false.
        kDoNotAssertIfUnsupported = 2, ///< Ordinary: just answer false.
    };

    FeatureRef() = default;
    explicit FeatureRef(IFeatureNode::Ptr node) : m_node(std::move(node)) {}
    FeatureRef(const FeatureRef&) = default;
    FeatureRef(FeatureRef&&) = default;
    FeatureRef& operator=(const FeatureRef&) = default;
    FeatureRef& operator=(FeatureRef&&) = default;
    virtual ~FeatureRef() = default;

    bool IsSupported() const { return GetKind() != o7::FeatureKind::Unsupported; }
    o7::FeatureKind GetKind() const
    {
        return m_node ? m_node->GetKind() : o7::FeatureKind::Unsupported;
    }

    bool IsSpecified() const { return m_node && m_node->IsSpecified(); }
    /// False when refused: unsupported, read-only, or required and to be left unspecified.
    bool SetIsSpecified(bool specified) { return m_node && m_node->SetIsSpecified(specified); }

    /// The no-feature id when the reference designates nothing.
    const FeatureIdWithContext& GetFeatureIdWithContextRef() const
    {
        static const FeatureIdWithContext kNone;
        return m_node ? m_node->GetId() : kNone;
    }

    /// A snapshot owned by the caller, of the class that fits the kind of the feature. Never null:
    /// an unsupported feature gives a plain node with nothing set.
    virtual std::unique_ptr<CapabilitiesNode> GetCapabilities() const
    {
        auto capabilities = m_node ? m_node->GetCapabilities() : nullptr;
        return capabilities ? std::move(capabilities) : std::make_unique<CapabilitiesNode>();
    }

    bool RestoreToDefaultValue() { return m_node && m_node->RestoreToDefaultValue(); }

    /// The feature behind the reference, for data models and for generic code; may be null.
    const IFeatureNode::Ptr& GetNode() const { return m_node; }

    friend bool operator==(const FeatureRef& a, const FeatureRef& b)
    {
        return a.m_node == b.m_node;
    }

protected:
    /// Reads the value (or the default) when it is of type T.
    template <typename T> bool Read(T& value, UnsupportedFeatureAssertEnum assertion) const
    {
        o7::FeatureValue any;
        return Supported(assertion) && m_node->GetValue(any) && Take(any, value);
    }
    template <typename T> bool ReadDefault(T& value, UnsupportedFeatureAssertEnum assertion) const
    {
        o7::FeatureValue any;
        return Supported(assertion) && m_node->GetDefaultValue(any) && Take(any, value);
    }
    bool Write(const o7::FeatureValue& value) { return m_node && m_node->SetValue(value); }

    /// The snapshot as class T; an empty one where the feature is of another kind.
    template <typename T> std::unique_ptr<T> CapabilitiesAs() const
    {
        auto capabilities = m_node ? m_node->GetCapabilities() : nullptr;
        if (dynamic_cast<T*>(capabilities.get()) != nullptr)
            return std::unique_ptr<T>(static_cast<T*>(capabilities.release()));
        return std::make_unique<T>();
    }

private:
    bool Supported(UnsupportedFeatureAssertEnum assertion) const
    {
        if (IsSupported())
            return true;
        if (m_node && assertion == kAssertIfUnsupported)
            m_node->ReportUnsupported();
        return false;
    }

    template <typename T> static bool Take(o7::FeatureValue& any, T& value)
    {
        T* typed = std::get_if<T>(&any);
        if (typed != nullptr)
            value = std::move(*typed);
        return typed != nullptr;
    }

    IFeatureNode::Ptr m_node;
};

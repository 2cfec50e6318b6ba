#pragma once

#include "settingidwithcontext.h"

#include <utility>

/// A feature and the chain of enclosing features in which it lives (a feature of one special page,
/// one named paper, one fax recipient). The chain is shared and never changed, so copies are cheap;
/// an id without context allocates nothing.
class FeatureIdWithContext : public SettingIdWithContext
{
public:
    FeatureIdWithContext() = default;
    // Implicit on purpose: a feature at the top level is named by its id alone.
    FeatureIdWithContext(const FeatureId& feature) : m_feature(feature) {}
    FeatureIdWithContext(DataModelIds::tagFeatureEnum feature) : m_feature(feature) {}
    /// The feature inside the list that `context` designates.
    FeatureIdWithContext(const FeatureIdWithContext& context, const FeatureId& feature)
        : m_feature(feature), m_context(std::make_shared<const FeatureIdWithContext>(context))
    {
    }

    const FeatureId& GetFeatureId() const { return m_feature; }
    DataModelIds::tagFeatureEnum GetFeatureEnum() const { return m_feature.GetFeatureEnum(); }

    /// Replaces the feature, keeps the context.
    void SetFeatureId(const FeatureId& feature) { m_feature = feature; }

    /// Descends one level: what was the feature becomes the innermost context.
    void PushFeature(const FeatureId& feature)
    {
        m_context = std::make_shared<const FeatureIdWithContext>(*this);
        m_feature = feature;
    }

    /// The enclosing list, as a copy owned by the caller; null at the top level.
    std::unique_ptr<FeatureIdWithContext> GetContext() const
    {
        return m_context ? std::make_unique<FeatureIdWithContext>(*m_context) : nullptr;
    }

    /// The enclosing list without a copy, borrowed from this id; null at the top level.
    const FeatureIdWithContext* GetContextPtr() const { return m_context.get(); }

    /// Whether `list` is this id or one of the lists around it.
    bool StartsWith(const FeatureIdWithContext& list) const
    {
        for (const auto* level = this; level != nullptr; level = level->GetContextPtr()) {
            if (*level == list)
                return true;
        }
        return false;
    }

    std::unique_ptr<SettingIdWithContext> Clone() const override
    {
        return std::make_unique<FeatureIdWithContext>(*this);
    }
    std::unique_ptr<SettingIdWithContext> CreateDefaultObject() const override
    {
        return std::make_unique<FeatureIdWithContext>();
    }
    const AttributeId& GetSetting() const override { return m_feature; }
    bool Contains(const AttributeId& attribute) const override
    {
        for (const auto* level = this; level != nullptr; level = level->GetContextPtr()) {
            if (level->m_feature == attribute)
                return true;
        }
        return false;
    }

    /// The chain as one line, outermost first, e.g. "odrv-exception-pages[3]/odrv-sides"; with
    /// `withNumbers` each component is followed by its number in parentheses.
    CXString Dump(bool withNumbers) const
    {
        std::wstring text =
            m_context ? std::wstring(m_context->Dump(withNumbers).c_str()) + L"/" : std::wstring();
        text += m_feature.GetFeatureLeafName().c_str();
        if (withNumbers)
            text += L"(" + std::to_wstring(m_feature.GetFeatureEnum()) + L")";
        if (m_feature.GetItem() != FeatureId::kNoItem)
            text += L"[" + std::to_wstring(m_feature.GetItem()) + L"]";
        return CXString(text.c_str());
    }

    friend bool operator==(const FeatureIdWithContext& a, const FeatureIdWithContext& b)
    {
        const auto* left = &a;
        const auto* right = &b;
        while (left != nullptr && right != nullptr) {
            if (left == right)
                return true;
            if (left->m_feature != right->m_feature)
                return false;
            left = left->GetContextPtr();
            right = right->GetContextPtr();
        }
        return left == right;
    }
    friend bool operator!=(const FeatureIdWithContext& a, const FeatureIdWithContext& b)
    {
        return !(a == b);
    }

private:
    FeatureId m_feature;
    std::shared_ptr<const FeatureIdWithContext> m_context;
};

#pragma once

#include "featureid.h"

#include <memory>

/// One setting and the chain of lists it lives in. Base of FeatureIdWithContext; what a set of
/// settings holds.
class SettingIdWithContext
{
public:
    virtual ~SettingIdWithContext() = default;

    /// A copy of the same dynamic type, owned by the caller.
    virtual std::unique_ptr<SettingIdWithContext> Clone() const = 0;

    /// A default-constructed object of the same dynamic type, owned by the caller.
    virtual std::unique_ptr<SettingIdWithContext> CreateDefaultObject() const = 0;

    /// The setting itself, without its context.
    virtual const AttributeId& GetSetting() const = 0;

    /// Whether the setting or one of the lists around it is this attribute.
    virtual bool Contains(const AttributeId& attribute) const = 0;

protected:
    SettingIdWithContext() = default;
    SettingIdWithContext(const SettingIdWithContext&) = default;
    SettingIdWithContext(SettingIdWithContext&&) = default;
    SettingIdWithContext& operator=(const SettingIdWithContext&) = default;
    SettingIdWithContext& operator=(SettingIdWithContext&&) = default;
};

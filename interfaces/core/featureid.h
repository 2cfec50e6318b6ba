#pragma once

#include "attributeid.h"

/// Identifies one feature of the data model, by number or by a lower-case hyphenated name such as
/// "odrv-priv-ui-select-restore-factory-defaults". Default-constructed it is the no-feature id.
class FeatureId : public AttributeId
{
public:
    using AttributeId::AttributeId;

    /// The last component of the name (the part behind the last '/'); for an id without a name
    /// the stand-in "odrv-feature-<number>".
    CXString GetFeatureLeafName() const
    {
        if (GetName().IsEmpty())
            return CXString((L"odrv-feature-" + std::to_wstring(GetFeatureEnum())).c_str());
        const std::wstring_view name(GetName().c_str());
        const auto slash = name.rfind(L'/');
        return slash == std::wstring_view::npos ? GetName() : CXString(name.substr(slash + 1));
    }
};

// What a product is made of: plain data, filled by the package reader and never changed afterwards.
#pragma once

#include "capabilitiesnode.h"
#include "dimension.h"
#include "effectkind.h"
#include "productinfo.h"
#include "valuetest.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <utility>
#include <vector>

namespace o7 {

using FeatureEnum = DataModelIds::tagFeatureEnum;
using ValueEnum = DataModelIds::tagValueEnum;
using Comparison = DataModelIds::tagComparisonEnum;

/// What a feature or a value was called up to a version of the package.
struct FormerId
{
    unsigned until = 0; ///< The last version in which it was so.
    int number = 0;     ///< 0: as afterwards.
    CXString name;      ///< Empty: as afterwards.
};

/// In rising order of their versions.
using FormerIds = std::vector<FormerId>;

struct OptionDescription
{
    ValueEnum number = DataModelIds::kNoValue;
    CXString name;
    std::optional<std::pair<Dimension, Dimension>> size; ///< Of a medium: width and height.
    FormerIds former = {};
};

struct ConditionDescription
{
    FeatureEnum feature = DataModelIds::kNoFeature;
    ValueTest test;
    bool holdsWithoutValue = false; ///< Also where the test itself does not.
};

/// Whether a constraint keeps what it affects from being chosen.
inline bool Blocks(EffectKind kind)
{
    return kind != EffectKind::Info && kind != EffectKind::Conflict && kind != EffectKind::Require;
}

/// What a governing setting makes of another one: a value, or a side of the medium that the last
/// condition of the constraint asks about.
struct ForcedValue
{
    enum class Side
    {
        None,
        Width,
        Height,
    };

    FeatureValue value;
    Side side = Side::None;

    friend bool operator==(const ForcedValue&, const ForcedValue&) = default;
};

struct ConstraintDescription
{
    std::string id;
    std::vector<ConditionDescription> when; ///< All must hold; the first is the cause.
    FeatureEnum target = DataModelIds::kNoFeature;
    ValueTest affected; ///< The values affected; no values in it: the whole feature.
    EffectKind kind = EffectKind::Disable;
    ForcedValue forced; ///< Of EffectKind::Force.
    unsigned reason = 0;
    unsigned line = 0;
};

/// A default that counts while its conditions hold.
struct AdaptingDefault
{
    std::vector<ConditionDescription> when;
    FeatureValue value;
    unsigned line = 0;
};

struct ListDescription;

struct FeatureDescription
{
    FeatureEnum number = DataModelIds::kNoFeature;
    CXString name;
    FeatureKind kind = FeatureKind::Unsupported;
    std::vector<OptionDescription> options;
    std::vector<RangeOfInteger> ranges; ///< Rising; none: no limits.
    std::optional<Dimension::UnitsEnum> units;
    std::optional<std::pair<Dimension, Dimension>> limits;
    std::size_t maxLength = 4096;          ///< In UTF-16 units.
    FeatureValue defaultValue;             ///< monostate: starts unspecified.
    std::vector<AdaptingDefault> defaults; ///< Before that one; the first that holds counts.
    CapabilityFlags flags;
    bool userDefinedValues = false;
    bool savedInTicket = true;
    bool loadedFromTicket = true;
    std::shared_ptr<const ListDescription> list;    ///< ListOfFeatures: its members.
    std::shared_ptr<const FeatureDescription> item; ///< ListOfValues: what its items are.
    std::size_t maxItems = 1000;
    FormerIds former;
    unsigned line = 0;

    bool IsPrivate() const;
    /// Whether the feature is a setting of the job that can be kept outside the process.
    bool IsKept() const { return !flags.readOnly && !flags.stateOnly; }
    FeatureId Id() const { return FeatureId(number, name); }

    /// The size of a medium among the options; null for one without, and for no value.
    const std::pair<Dimension, Dimension>* SizeOf(const FeatureValue* medium) const;

    /// Whether the value fits the feature, apart from constraints. A value of an option feature is
    /// completed: number and name are both filled in (the display string is not).
    bool Accepts(FeatureValue& value) const;

    /// The option that a package of this version knew by the number or the name of `value`; one
    /// that there is not (any more) comes back as a value that Accepts() refuses.
    ValueId PresentOption(const ValueId& value, unsigned version) const;

private:
    bool AcceptsOption(ValueId& value) const;
    bool AcceptsInteger(int value) const;
};

struct ListDescription
{
    static constexpr std::size_t kNotThere = ~std::size_t{0};

    std::vector<FeatureDescription> features; ///< Added with Add() alone.
    std::vector<ConstraintDescription> constraints;

    void Add(FeatureDescription feature);
    /// kNotThere when the list has no such member.
    std::size_t IndexOf(FeatureEnum number) const;
    /// Null when the list has no such member.
    const FeatureDescription* Find(FeatureEnum number) const;
    const FeatureDescription* Find(const CXString& name) const;

    /// The member that a package of this version knew by the number, or by the name; kNotThere
    /// without one.
    std::size_t IndexAt(unsigned version, std::uint64_t number) const;
    std::size_t IndexAt(unsigned version, const CXString& name) const;
    /// What a package of this version called the member; empty when that meant another then.
    CXString NameAt(unsigned version, std::size_t index) const;

private:
    std::unordered_map<int, std::size_t> m_index;
    bool m_hasFormer = false;
};

inline constexpr unsigned kHighestPackageVersion = 0xFFFF;

struct ProductDescription
{
    ProductInfo info;
    unsigned version = 1; ///< Of the package; settings say which one wrote them, 0 for none.
    std::filesystem::path folder;
    ListDescription root;
};

} // namespace o7

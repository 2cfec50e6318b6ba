#include "testproduct.h"

#include "eventnotification.h"
#include "featurechangenotification.h"
#include "notificationbundle.h"

#include <stdexcept>

namespace test {
namespace {

constexpr std::string_view kHead = R"({
 "formatVersion": 1,
 "product": { "id": "test", "modelName": "Test 1", "uniqueId": "TST1",
              "controllerFamily": 8430, "languages": ["en", "de"], "helpFile": "help.chm" },
 "features": [
  { "enum": 100, "name": "odrv-media", "kind": "option", "default": "plain",
    "flags": ["userDefinedValues"],
    "options": [ { "enum": 6001, "name": "plain" }, { "enum": 6002, "name": "film" } ] },
  { "enum": 101, "name": "odrv-sides", "kind": "option", "default": 6011, "flags": ["required"],
    "options": [ { "enum": 6011, "name": "one" }, { "enum": 6012, "name": "two" } ] },
  { "enum": 102, "name": "odrv-staple", "kind": "option",
    "options": [ { "enum": 5001, "name": "unspecified" }, { "enum": 6021, "name": "none" },
                 { "enum": 6022, "name": "one" } ] },
  { "enum": 103, "name": "odrv-copies", "kind": "integer", "default": 1,
    "ranges": [ { "min": 1, "max": 99 }, { "min": 200, "max": 999 } ] },
  { "enum": 104, "name": "odrv-collate", "kind": "boolean", "default": true },
  { "enum": 105, "name": "odrv-name", "kind": "string", "default": "", "maxLength": 8 },
  { "enum": 106, "name": "odrv-pages", "kind": "range", "default": [2, 5],
    "range": { "min": 1, "max": 500 } },
  { "enum": 107, "name": "odrv-width", "kind": "dimension", "unit": "mm", "default": 210,
    "range": { "min": 98.4, "max": 330.2 } },
  { "enum": 108, "name": "odrv-resolution", "kind": "resolution", "default": [600, 1200, 2] },
  { "enum": 110, "name": "odrv-colour", "kind": "list",
    "features": [
     { "enum": 111, "name": "odrv-saturation", "kind": "integer", "default": 0,
       "range": { "min": -5, "max": 5 } },
     { "enum": 100, "name": "odrv-media", "kind": "boolean", "default": false } ] },
  { "enum": 120, "name": "odrv-special-pages", "kind": "values", "maxItems": 3,
    "item": { "kind": "list",
      "features": [
       { "enum": 101, "name": "odrv-sides", "kind": "option", "default": 6011,
         "options": [ { "enum": 6011, "name": "one" }, { "enum": 6012, "name": "two" } ] },
       { "enum": 103, "name": "odrv-copies", "kind": "integer", "default": 1,
         "range": { "min": 1, "max": 99 } } ],
      "constraints": [
       { "id": "film-page", "when": [ { "feature": "odrv-media", "is": ["film"] } ],
         "effect": { "feature": "odrv-sides", "options": ["two"], "kind": "disable" },
         "reason": 60001 } ] } },
  { "enum": 121, "name": "odrv-texts", "kind": "values",
    "item": { "kind": "option", "default": 6001,
              "options": [ { "enum": 6001, "name": "plain" }, { "enum": 6002, "name": "film" } ] } },
  { "enum": 130, "name": "odrv-booklet", "kind": "boolean", "default": false },
  { "enum": 131, "name": "odrv-model", "kind": "string", "default": "T1", "flags": ["readOnly"] },
  { "enum": 132, "name": "odrv-priv-ui-tab", "kind": "integer", "default": 0, "flags": ["notSaved"] }
 ],
 "constraints": [)";

constexpr std::string_view kConstraints = R"(
  { "id": "film-sides", "when": [ { "feature": "odrv-media", "is": ["film"] } ],
    "effect": { "feature": "odrv-sides", "options": ["two"], "kind": "disable" }, "reason": 60001 }
)";

std::string Describe(const INotification& notification)
{
    if (const auto* change = dynamic_cast<const FeatureChangeNotification*>(&notification)) {
        const bool value =
            change->GetSettingsInstanceId().GetSettingsEnum() == DataModelIds::kSettingsValue;
        const bool consistent = change->GetFeatureChangeId().GetFeatureChangeEnum() ==
                                (value ? DataModelIds::kFeatureValueChanged
                                       : DataModelIds::kFeatureConstraintStateChanged);
        return Narrow(change->GetSettingIdWithContext().Dump(false)) +
               (value ? " value" : " state") + (consistent ? "" : " WRONG");
    }
    if (const auto* event = dynamic_cast<const EventNotification*>(&notification))
        return "event " + std::to_string(event->GetEventId().GetEventEnum());
    return "?";
}

} // namespace

std::string Narrow(const CXString& text)
{
    return text.ToUtf8();
}

Strings::Strings()
    : texts{{20100, L"Media"},
            {20101, L"Sides"},
            {20102, L"Stapling"},
            {20103, L"Copies"},
            {20104, L"Collate"},
            {20130, L"Booklet"},
            {46001, L"Plain"},
            {46002, L"Film"},
            {46011, L"1-sided"},
            {46012, L"2-sided"},
            {46021, L"No staple"},
            {46022, L"1 staple"},
            {60000, L"{1} not with {0}"},
            {60298, L"{1} not with {0}"},
            {60001, L"{3} ({1}) not with {0}: {2}"}}
{
}

CXString Strings::LoadStringW(unsigned id) const
{
    const auto found = texts.find(id);
    return found != texts.end() ? CXString(found->second) : CXString::Formatted(L"#%u", id);
}

std::string PackageText(std::string_view constraints)
{
    std::string text(kHead);
    text += constraints.empty() ? kConstraints : constraints;
    return text + "]\n}\n";
}

int Number(const ListOfFeaturesRef& list, DataModelIds::tagFeatureEnum feature)
{
    int value = -1;
    list.GetIntegerFeature(feature).GetValue(value, FeatureRef::kAssertIfUnsupported);
    return value;
}

Product::Product(std::string_view constraints) : Product(Whole{PackageText(constraints)})
{
}

Product::Product(const Whole& whole)
{
    std::vector<o7::PackageError> errors;
    package = o7::ParseProductPackage(whole.text, "test/package.json", errors);
    if (!package)
        throw std::runtime_error(errors.front().ToString());
    model = o7::CreateDataModel(*package, strings);
}

void Recorder::ProcessNotification(const INotification& notification, unsigned int kind)
{
    lastKind = kind;
    std::string text;
    const auto& bundle = dynamic_cast<const NotificationBundle&>(notification);
    for (auto each = bundle.GetIterator(); each.MoreNotifications();)
        text += (text.empty() ? "" : ", ") + Describe(each.GetNext());
    bundles.push_back(text);
    // A copy: the reaction may destroy this observer.
    if (const auto react = reaction)
        react();
}

std::string Letters(const InterpretedState& state)
{
    return std::string(state.IsDisabled() ? "d" : "") + (state.IsCleared() ? "c" : "") +
           (state.IsHidden() ? "h" : "") + (state.HasInfoBtnMsg() ? "i" : "") +
           (state.HasCbrBtnMsg() ? "x" : "");
}

} // namespace test

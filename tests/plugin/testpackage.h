#pragma once

namespace o7::test {

/// A small printer: the features that the public fields of a DEVMODE stand for, one that only the
/// private part carries (skipping blank pages), one of the device (the duplex unit, without which
/// there is no two-sided printing). Sides are greyed for pages that lie, and A3 is not to be had
/// from tray 1.
inline constexpr char kTestPackage[] = R"({
  "formatVersion": 1,
  "product": {"id": "test", "modelName": "Test", "uniqueId": "TEST",
              "controllerFamily": 8430, "languages": ["en"]},
  "features": [
    {"enum": 3002, "name": "odrv-paper-size", "kind": "option", "default": 5111, "options": [
      {"enum": 5110, "name": "a3", "size": [297, 420]}, {"enum": 5111, "name": "a4", "size": [210, 297]},
      {"enum": 5113, "name": "letter", "size": [215.9, 279.4]}, {"enum": 5250, "name": "custom"}]},
    {"enum": 3103, "name": "odrv-custom-width", "kind": "dimension", "unit": "mm",
      "default": 100, "range": {"min": 90, "max": 330}},
    {"enum": 3104, "name": "odrv-custom-length", "kind": "dimension", "unit": "mm",
      "default": 200, "range": {"min": 140, "max": 1200}},
    {"enum": 3003, "name": "odrv-paper-tray", "kind": "option", "default": 5120, "options": [
      {"enum": 5120, "name": "automatic"}, {"enum": 5121, "name": "tray-1"},
      {"enum": 5122, "name": "tray-2"}, {"enum": 5313, "name": "cassette"}]},
    {"enum": 3004, "name": "odrv-paper-type", "kind": "option", "default": 5130, "options": [
      {"enum": 5130, "name": "plain"}, {"enum": 5133, "name": "glossy"}]},
    {"enum": 3005, "name": "odrv-sides", "kind": "option", "default": 5140, "options": [
      {"enum": 5140, "name": "one-sided"}, {"enum": 5141, "name": "two-sided-long-edge"},
      {"enum": 5142, "name": "two-sided-short-edge"}]},
    {"enum": 3006, "name": "odrv-orientation", "kind": "option", "default": 5145, "options": [
      {"enum": 5145, "name": "portrait"}, {"enum": 5146, "name": "landscape"}]},
    {"enum": 3007, "name": "odrv-copies", "kind": "integer", "default": 1,
      "range": {"min": 1, "max": 999}},
    {"enum": 3008, "name": "odrv-collate", "kind": "boolean", "default": true},
    {"enum": 3009, "name": "odrv-colour-mode", "kind": "option", "default": 5150, "options": [
      {"enum": 5150, "name": "automatic"}, {"enum": 5151, "name": "colour"},
      {"enum": 5152, "name": "black-and-white"}]},
    {"enum": 3019, "name": "odrv-resolution", "kind": "option", "default": 5190, "options": [
      {"enum": 5190, "name": "600-dpi"}, {"enum": 5191, "name": "1200-dpi"}]},
    {"enum": 3028, "name": "odrv-scaling", "kind": "option", "default": 5210, "options": [
      {"enum": 5210, "name": "none"}, {"enum": 5400, "name": "percentage"}]},
    {"enum": 3107, "name": "odrv-scale-percent", "kind": "integer", "default": 100,
      "range": {"min": 25, "max": 400}},
    {"enum": 3021, "name": "odrv-skip-blank-pages", "kind": "boolean", "default": false},
    {"enum": 3046, "name": "odrv-installed-duplex-unit", "kind": "boolean", "default": true}
  ],
  "constraints": [
    {"id": "no-duplex-unit", "when": [{"feature": 3046, "is": [false]}],
     "effect": {"feature": 3005, "options": [5141, 5142], "kind": "disable"},
     "reason": 60001},
    {"id": "lying-one-sided", "when": [{"feature": 3006, "is": ["landscape"]}],
     "effect": {"feature": 3005, "kind": "disable"}, "reason": 60003},
    {"id": "a3-not-from-tray-1", "when": [{"feature": 3003, "is": [5121]}],
     "effect": {"feature": 3002, "options": [5110], "kind": "disable"}, "reason": 60002}
  ]
})";

} // namespace o7::test

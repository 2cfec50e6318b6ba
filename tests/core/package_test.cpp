#include "testproduct.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

std::vector<o7::PackageError> Errors(std::string_view text)
{
    std::vector<o7::PackageError> errors;
    const auto package = o7::ParseProductPackage(text, "p/package.json", errors);
    EXPECT_EQ(package == nullptr, !errors.empty()) << "a package or errors, never both";
    return errors;
}

TEST(Package, NeedsNoTextOfPrivateFeatures)
{
    const test::Product product;
    const auto strings = product.package->GetStringNumbers();
    for (const unsigned number : {20100U, 20111U, 46002U, 60001U})
        EXPECT_TRUE(std::binary_search(strings.begin(), strings.end(), number)) << number;
    EXPECT_FALSE(std::binary_search(strings.begin(), strings.end(), 20132U)) << "private";
}

/// One fault put into a sound package: a text, what replaces it, and what the error must say.
struct Fault
{
    const char* name;
    std::string_view from;
    std::string_view to;
    int line; ///< Where it is told, counted from the line of the text replaced.
    const char* says;
};

void ExpectTold(const Fault& fault)
{
    SCOPED_TRACE(fault.name);
    std::string text = test::PackageText();
    const auto at = text.find(fault.from);
    ASSERT_NE(at, std::string::npos);
    const auto line =
        1 + std::count(text.begin(), text.begin() + static_cast<std::ptrdiff_t>(at), '\n');
    text.replace(at, fault.from.size(), fault.to);
    const auto errors = Errors(text);
    ASSERT_FALSE(errors.empty());
    EXPECT_EQ(errors.front().line, line + fault.line) << errors.front().message;
    EXPECT_NE(errors.front().message.find(fault.says), std::string::npos) << errors.front().message;
    EXPECT_EQ(errors.front().ToString().find("p/package.json:"), 0U);
}

const Fault kFaults[] = {
    {"syntax", R"("formatVersion": 1,)", R"("formatVersion": 1)", 1, "syntax error"},
    {"twice", R"("id": "test")", R"("id": "test", "id": "again")", 0, "stands twice"},
    {"version", R"("formatVersion": 1)", R"("formatVersion": 2)", 0, "expected one of 1"},
    {"family", "8430", "8435", 0, "expected one of 8430"},
    {"missing", R"("modelName": "Test 1", )", "", 0, "\"modelName\" is missing"},
    {"unknownKey", R"("helpFile")", R"("helpfile")", 0, "unknown key \"helpfile\""},
    {"type", R"("default": true)", R"("default": "yes")", 0, "has no value \"yes\""},
    {"kind", R"("kind": "boolean", "default": true)", R"("kind": "bool")", 0, "expected one of"},
    {"duplicateNumber", R"("enum": 101)", R"("enum": 100)", 0, "number of feature 100"},
    {"duplicateName", "odrv-sides", "odrv-media", 0, "name of feature 101"},
    {"duplicateOption", R"({ "enum": 6002)", R"({ "enum": 6001)", 0, "value 6001 is used twice"},
    {"name", "odrv-sides", "sides", 0, "beginning with odrv-"},
    {"defaultOption", R"("default": 6011)", R"("default": 6013)", 0, "has no value 6013"},
    {"defaultRange", R"("default": 1,)", R"("default": 150,)", 0, "the default 150"},
    {"requiredDefault", R"("default": 6011, )", "", 0, "required, so a default"},
    {"rangeOrder", R"("min": 1, "max": 99)", R"("min": 99, "max": 1)", 0, "begins above its end"},
    {"rangesOrder", R"("min": 200)", R"("min": 50)", 0, "rising order"},
    {"unit", R"("unit": "mm", )", "", 0, "expected a unit"},
    {"formerVersion", R"("name": "odrv-width", )",
     R"("name": "odrv-width", "former": [ { "until": 1, "name": "odrv-w" } ], )", 0,
     "expected a version before that of the package, 1"},
    {"formerNothing", R"("name": "odrv-width", )",
     R"("name": "odrv-width", "former": [ { "until": 1 } ], )", 0, "what it was called until then"},
    {"deviceItems", R"("item": { "kind": "option", )",
     R"("item": { "kind": "option", "flags": ["device"], )", 0, "cannot belong to the device"},
    {"keyWithoutMeaning", R"("maxLength": 8)", R"("item": { "kind": "list" })", 0, "no meaning"},
    {"unknownFeature", R"("feature": "odrv-media", "is": ["film"] } ],
    "effect")",
     R"("feature": "odrv-medium", "is": ["film"] } ],
    "effect")",
     0, "unknown feature \"odrv-medium\""},
    {"unknownOption", R"("options": ["two"], "kind": "disable" }, "reason")",
     R"("options": ["three"], "kind": "disable" }, "reason")", 0, "has no value \"three\""},
    {"reason", R"("reason": 60001 }
])",
     R"("reason": 59999 }
])",
     0, "expected at least 60000"},
};

TEST(Package, TellsEveryFaultWithItsLine)
{
    for (const Fault& fault : kFaults)
        ExpectTold(fault);
}

TEST(Package, StopsAtCirclesOfClearingConstraintsAndDeepNesting)
{
    const auto errors = Errors(test::PackageText(R"(
  { "id": "a", "when": [ { "feature": 130, "is": [true] } ],
    "effect": { "feature": 104, "kind": "clear" }, "reason": 60000 },
  { "id": "b", "when": [ { "feature": 104, "is": [true] } ],
    "effect": { "feature": 102, "kind": "clear" }, "reason": 60000 },
  { "id": "c", "when": [ { "feature": 102, "isNot": [6021] } ],
    "effect": { "feature": 130, "kind": "clear" }, "reason": 60000 })"));
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_NE(errors[0].message.find("a -> b -> c -> a"), std::string::npos) << errors[0].message;

    const auto deep = Errors(std::string(100000, '['));
    ASSERT_FALSE(deep.empty());
    EXPECT_NE(deep[0].message.find("too deeply"), std::string::npos);
}

TEST(Package, RefusesOddConditions)
{
    for (const char* condition :
         {R"({ "feature": 103 })", R"({ "feature": 103, "is": [1], "isNot": [2] })",
          R"({ "feature": 103, "compare": "less" })", R"({ "feature": 103, "value": 1 })",
          R"({ "feature": 104, "compare": "less", "value": true })"}) {
        const std::string constraint = std::string(R"({ "id": "x", "when": [)") + condition +
                                       R"(], "effect": { "feature": 104, "kind": "hide" },
                                          "reason": 60000 })";
        EXPECT_EQ(Errors(test::PackageText(constraint)).size(), 1U) << condition;
    }
}

TEST(Package, TellsAboutFilesThatCannotBeRead)
{
    std::vector<o7::PackageError> errors;
    EXPECT_EQ(o7::LoadProductPackage("no/such/folder", errors), nullptr);
    ASSERT_EQ(errors.size(), 1U);
    EXPECT_EQ(errors[0].line, 0U);
}

} // namespace

#include <gtest/gtest.h>

#include "documentfields.h"
#include "systemnumbers.h"

namespace o7::story {
namespace {

TEST(DocumentFields, WordsAndNumbersGoBothWays)
{
    struct Row
    {
        const char* field;
        const char* written;
        const char* read;
    };
    const Row rows[] = {
        {"paper", "A4", "A4"},
        {"paper", "letter", "Letter"},
        {"paper", "9", "A4"},
        {"paper", "300", "300"},
        {"paper", "custom", "custom"},
        {"width", "215.9", "215.9"},
        {"width", "210", "210"},
        {"length", "210.0", "210"},
        {"orientation", "landscape", "landscape"},
        {"duplex", "none", "none"},
        {"duplex", "short", "short"},
        {"copies", "999", "999"},
        {"collate", "off", "off"},
        {"colour", "mono", "mono"},
        {"resolution", "600", "600"},
        {"resolution", "1200x600", "1200x600"},
        {"resolution", "draft", "draft"},
        {"scale", "71", "71"},
    };
    for (const Row& row : rows) {
        PublicFields fields;
        EXPECT_EQ(documentFieldText(fields, row.field), kNotSet) << row.field;
        EXPECT_EQ(setDocumentField(fields, row.field, row.written), "") << row.written;
        EXPECT_EQ(documentFieldText(fields, row.field), row.read) << row.field;
    }
}

TEST(DocumentFields, WhatIsRefusedChangesNothing)
{
    const std::pair<const char*, const char*> rows[] = {
        {"paper", "A12"},    {"paper", "-1"},     {"paper", "99999"},  {"width", "21,5"},
        {"width", "21.55"},  {"width", "4000"},   {"width", ""},       {"width", "."},
        {"duplex", "2"},     {"copies", "two"},   {"copies", "1 "},    {"resolution", "600x"},
        {"resolution", "0"}, {"resolution", "x"}, {"collate", "true"}, {"nothing", "1"},
    };
    for (const auto& [field, text] : rows) {
        PublicFields fields;
        EXPECT_NE(setDocumentField(fields, field, text), "") << field << " " << text;
        EXPECT_EQ(fields.fields, 0U) << field << " " << text;
    }
}

TEST(DocumentFields, AGradeTakesTheSecondResolutionAway)
{
    PublicFields fields;
    setDocumentField(fields, "resolution", "1200x600");
    setDocumentField(fields, "resolution", "high");
    EXPECT_FALSE(fields.has(kYResolutionField));
    EXPECT_EQ(documentFieldText(fields, "resolution"), "high");
}

} // namespace
} // namespace o7::story

#include "documentsettings.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "testmodel.h"

namespace o7 {
namespace {

using test::TestModel;

/// A DEVMODE of the plug-in in memory of its own.
class Buffer
{
public:
    explicit Buffer(std::uint8_t fill = 0xCD) : m_bytes(kDevModeSize, fill) {}
    explicit Buffer(const TestModel& model) : Buffer() { write(model); }

    void write(const TestModel& model) { EXPECT_TRUE(writeDevMode(*model, L"Printer", **this)); }
    DEVMODEW& operator*() { return *reinterpret_cast<DEVMODEW*>(m_bytes.data()); }
    DEVMODEW* operator->() { return &**this; }
    std::vector<std::uint8_t>& bytes() { return m_bytes; }

private:
    std::vector<std::uint8_t> m_bytes;
};

TEST(DocumentSettings, WritesEveryByteWhateverLayThere)
{
    const TestModel model;
    Buffer one(std::uint8_t{0xCD});
    Buffer other(std::uint8_t{0x11});
    one.write(model);
    other.write(model);
    EXPECT_EQ(one.bytes(), other.bytes());
    EXPECT_STREQ(one->dmDeviceName, L"Printer");
    EXPECT_EQ(one->dmSize + one->dmDriverExtra, kDevModeSize);

    const std::wstring name(100, L'n');
    EXPECT_TRUE(writeDevMode(*model, name.c_str(), *one));
    EXPECT_EQ(std::wcslen(one->dmDeviceName), CCHDEVICENAME - 1U) << "a long name is cut";
}

/// The public fields that stand for option features: one number of the field and its value.
struct FieldCase
{
    const char* name;
    short DEVMODEW::*field;
    DWORD bit;
    DataModelIds::tagFeatureEnum feature;
    int value;
    short number;
};

// clang-format off
const FieldCase kFieldCases[] = {
    {"landscape",  &DEVMODEW::dmOrientation,   DM_ORIENTATION,   kOrientation, 5146, DMORIENT_LANDSCAPE},
    {"A3",         &DEVMODEW::dmPaperSize,     DM_PAPERSIZE,     kPaperSize,   5110, DMPAPER_A3},
    {"letter",     &DEVMODEW::dmPaperSize,     DM_PAPERSIZE,     kPaperSize,   5113, DMPAPER_LETTER},
    {"tray 2",     &DEVMODEW::dmDefaultSource, DM_DEFAULTSOURCE, kPaperTray,   5122, DMBIN_USER + 2},
    {"long edge",  &DEVMODEW::dmDuplex,        DM_DUPLEX,        kSides,       5141, DMDUP_VERTICAL},
    {"short edge", &DEVMODEW::dmDuplex,        DM_DUPLEX,        kSides,       5142, DMDUP_HORIZONTAL},
    {"mono",       &DEVMODEW::dmColor,         DM_COLOR,         kColourMode,  5152, DMCOLOR_MONOCHROME},
    {"1200 dpi",   &DEVMODEW::dmPrintQuality,  DM_PRINTQUALITY,  kResolution,  5191, 1200},
};
// clang-format on

TEST(DocumentSettings, KeepsFeaturesAndPublicFieldsInStep)
{
    for (const FieldCase& row : kFieldCases) {
        // From the feature to the field, and to another model by the private part.
        const TestModel source;
        ASSERT_TRUE(source.choose(row.feature, row.value)) << row.name;
        source->CommitAccepted();
        Buffer written(source);
        EXPECT_NE(written->dmFields & row.bit, 0U) << row.name;
        EXPECT_EQ((*written).*row.field, row.number) << row.name;
        const TestModel copy;
        mergeDevMode(*copy, *written);
        EXPECT_EQ(copy.option(row.feature), row.value) << row.name;

        // From the field to the feature, which wins over the older private part.
        const TestModel target;
        Buffer changed(target);
        (*changed).*row.field = row.number;
        mergeDevMode(*target, *changed);
        EXPECT_EQ(target.option(row.feature), row.value) << row.name;
        EXPECT_FALSE(target->IsModified()) << row.name;

        // A field that is not marked as set says nothing.
        const TestModel unmoved;
        changed->dmFields &= ~row.bit;
        mergeDevMode(*unmoved, *changed);
        EXPECT_NE(unmoved.option(row.feature), row.value) << row.name;
    }
}

TEST(DocumentSettings, CarriesCopiesAndCollation)
{
    const TestModel source;
    Buffer buffer(source);
    EXPECT_EQ(buffer->dmCopies, 1);
    EXPECT_EQ(buffer->dmCollate, DMCOLLATE_TRUE);
    buffer->dmCopies = 12;
    buffer->dmCollate = DMCOLLATE_FALSE;
    mergeDevMode(*source, *buffer);
    EXPECT_EQ(source.number(kCopies), 12);
    EXPECT_FALSE(source.flag(kCollate));
    buffer->dmCopies = 1000; // more than the product makes
    mergeDevMode(*source, *buffer);
    EXPECT_EQ(source.number(kCopies), 1);
}

TEST(DocumentSettings, LeavesAFinerSettingThatTheFieldAlreadySays)
{
    const TestModel source;
    source.choose(kColourMode, 5151);
    source->CommitAccepted();
    Buffer buffer(source);
    EXPECT_EQ(buffer->dmColor, DMCOLOR_COLOR);
    const TestModel target;
    mergeDevMode(*target, *buffer);
    EXPECT_EQ(target.option(kColourMode), 5151);
}

TEST(DocumentSettings, FollowsFieldsThatDependOnEachOther)
{
    const TestModel source;
    source.choose(kPaperTray, 5121);
    source->CommitAccepted();
    Buffer buffer(source);
    // A3 becomes possible only with the tray that stands behind it in the record.
    buffer->dmPaperSize = DMPAPER_A3;
    buffer->dmDefaultSource = DMBIN_USER + 2;
    mergeDevMode(*source, *buffer);
    EXPECT_EQ(source.option(kPaperSize), 5110);
    EXPECT_EQ(source.option(kPaperTray), 5122);
}

void growPublicPart(Buffer& buffer)
{
    constexpr std::size_t kMore = 16;
    buffer.bytes().insert(buffer.bytes().begin() + sizeof(DEVMODEW), kMore, std::uint8_t{0xEE});
    buffer->dmSize = sizeof(DEVMODEW) + kMore;
}

TEST(DocumentSettings, TakesPublicFieldsOfDamagedAndForeignDevModes)
{
    const TestModel source;
    source.setFlag(test::kSkipBlankPages, true);
    source->CommitAccepted();
    Buffer whole(source);
    whole->dmOrientation = DMORIENT_LANDSCAPE;

    struct Row
    {
        const char* name;
        void (*change)(Buffer&);
        bool keepsPrivate;
        bool keepsPublic;
    };
    // clang-format off
    const Row rows[] = {
        {"untouched",         [](Buffer&) {}, true, true},
        {"no private part",   [](Buffer& b) { b->dmDriverExtra = 0; }, false, true},
        {"cut private part",  [](Buffer& b) { b->dmDriverExtra = 20; }, false, true},
        {"another driver's",  [](Buffer& b) { b.bytes()[sizeof(DEVMODEW)] ^= 1; }, false, true},
        {"a damaged block",   [](Buffer& b) { b.bytes()[sizeof(DEVMODEW) + 20] ^= 1; }, false, true},
        {"no size at all",    [](Buffer& b) { b->dmSize = 0; }, false, false},
        {"of a later system", growPublicPart, true, true},
        {"a tiny public part", [](Buffer& b) { b->dmSize = 40; }, false, false},
    };
    // clang-format on
    for (const Row& row : rows) {
        Buffer buffer = whole;
        row.change(buffer);
        const TestModel target;
        mergeDevMode(*target, *buffer);
        EXPECT_EQ(target.flag(test::kSkipBlankPages), row.keepsPrivate) << row.name;
        EXPECT_EQ(target.option(kOrientation) == 5146, row.keepsPublic) << row.name;
    }
}

TEST(DocumentSettings, LeavesTheDeviceAsThePrinterHasIt)
{
    const TestModel withUnit;
    withUnit.choose(kSides, 5141);
    withUnit->CommitAccepted();
    Buffer buffer(withUnit);

    const TestModel without;
    without.setFlag(test::kDuplexUnit, false);
    without->CommitAccepted();
    mergeDevMode(*without, *buffer);
    EXPECT_FALSE(without.flag(test::kDuplexUnit));
}

} // namespace
} // namespace o7

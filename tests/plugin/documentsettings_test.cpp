#include "documentsettings.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "lockedsettings.h"
#include "publicfields.h"
#include "systemnumbers.h"
#include "testmodel.h"

namespace o7 {
namespace {

using test::TestModel;

/// A DEVMODE as an application holds it.
class Document
{
public:
    explicit Document(const TestModel& model, std::uint8_t fill = 0xCD)
        : m_bytes(kDevModeSize, fill)
    {
        EXPECT_TRUE(
            writeDevMode(*model, L"Printer", std::span<std::uint8_t, kDevModeSize>(m_bytes)));
    }

    std::vector<std::uint8_t>& bytes() { return m_bytes; }
    PublicFields fields() const { return readDevMode(m_bytes)->fields; }
    void set(const PublicFields& fields)
    {
        writePublicPart(std::span(m_bytes).first<kPublicPartSize>(), L"Printer", fields,
                        kPrivatePartSize);
    }
    /// As an application does it: one field after the other, knowing nothing of the rest.
    void change(const std::function<void(PublicFields&)>& edit)
    {
        PublicFields changed = fields();
        edit(changed);
        set(changed);
    }
    void putWord(std::size_t at, std::size_t number)
    {
        m_bytes[at] = static_cast<std::uint8_t>(number);
        m_bytes[at + 1] = static_cast<std::uint8_t>(number >> 8);
    }
    void mergeInto(const TestModel& model) const { mergeDevMode(*model, m_bytes); }

private:
    std::vector<std::uint8_t> m_bytes;
};

TEST(DocumentSettings, WritesEveryByteWhateverLayThere)
{
    const TestModel model;
    Document one(model, 0xCD);
    Document other(model, 0x11);
    EXPECT_EQ(one.bytes(), other.bytes());
    EXPECT_EQ(one.bytes()[0], 'P');

    const std::wstring name(100, L'n');
    EXPECT_TRUE(
        writeDevMode(*model, name.c_str(), std::span<std::uint8_t, kDevModeSize>(one.bytes())));
    EXPECT_EQ(one.bytes()[2 * (kNameLength - 1) - 2], 'n');
    EXPECT_EQ(one.bytes()[2 * (kNameLength - 1)], 0) << "a long name is cut";
}

/// The public fields that stand for option features: one number of the field and its value.
struct FieldCase
{
    const char* name;
    int PublicFields::*field;
    std::uint32_t bit;
    DataModelIds::tagFeatureEnum feature;
    int value;
    int number;
};

// clang-format off
const FieldCase kFieldCases[] = {
    {"landscape",  &PublicFields::orientation, kOrientationField, kOrientation, 5146, 2},
    {"A3",         &PublicFields::paperSize,   kPaperSizeField,   kPaperSize,   5110, 8},
    {"letter",     &PublicFields::paperSize,   kPaperSizeField,   kPaperSize,   5113, 1},
    {"tray 2",     &PublicFields::source,      kSourceField,      kPaperTray,   5122, 258},
    {"large tray", &PublicFields::source,      kSourceField,      kPaperTray,   5313, 14},
    {"long edge",  &PublicFields::duplex,      kDuplexField,      kSides,       5141, 2},
    {"short edge", &PublicFields::duplex,      kDuplexField,      kSides,       5142, 3},
    {"mono",       &PublicFields::colour,      kColourField,      kColourMode,  5152, 1},
    {"1200 dpi",   &PublicFields::quality,     kQualityField,     kResolution,  5191, 1200},
    {"glossy",     &PublicFields::mediaType,   kMediaTypeField,   kPaperType,   5133, 3},
};
// clang-format on

TEST(DocumentSettings, KeepsFeaturesAndPublicFieldsInStep)
{
    for (const FieldCase& row : kFieldCases) {
        // From the feature to the field, and to another model by the private part.
        const TestModel source;
        ASSERT_TRUE(source.choose(row.feature, row.value)) << row.name;
        source->CommitAccepted();
        const Document written(source);
        EXPECT_TRUE(written.fields().has(row.bit)) << row.name;
        EXPECT_EQ(written.fields().*row.field, row.number) << row.name;
        const TestModel copy;
        written.mergeInto(copy);
        EXPECT_EQ(copy.option(row.feature), row.value) << row.name;

        // From the field to the feature, which wins over the older private part.
        const TestModel target;
        Document changed(target);
        changed.change([&](PublicFields& fields) { fields.*row.field = row.number; });
        changed.mergeInto(target);
        EXPECT_EQ(target.option(row.feature), row.value) << row.name;
        EXPECT_FALSE(target->IsModified()) << row.name;

        // A field that is not marked as set says nothing.
        const TestModel unmoved;
        changed.change([&](PublicFields& fields) { fields.fields &= ~row.bit; });
        changed.mergeInto(unmoved);
        EXPECT_NE(unmoved.option(row.feature), row.value) << row.name;
    }
}

/// What an application does to the fields of a document on plain A4, and what must come of it.
struct PaperCase
{
    const char* name;
    std::function<void(PublicFields&)> edit;
    int paper;
    PaperSize size = {};
};

TEST(DocumentSettings, KnowsWhichOfThePaperFieldsIsMeant)
{
    constexpr auto kLengths = kPaperLengthField | kPaperWidthField;
    const auto lengths = [](int width, int length) {
        return [=](PublicFields& f) {
            f.fields |= kLengths;
            f.paperWidth = width;
            f.paperLength = length;
        };
    };
    const PaperCase cases[] = {
        {"nothing", [](PublicFields&) {}, 5111, {2100, 2970}},
        {"small A4", [](PublicFields& f) { f.paperSize = 10; }, 5111},
        {"number, old name beside it", [](PublicFields& f) { f.paperSize = 1; }, 5113},
        {"name, old number beside it", [](PublicFields& f) { f.formName = L"#45113"; }, 5113},
        {"unknown number", [](PublicFields& f) { f.paperSize = 99; }, 5111},
        {"unknown name", [](PublicFields& f) { f.formName = L"Papyrus"; }, 5111},
        {"lengths of a paper", lengths(2159, 2794), 5113},
        {"lengths in whole inches of 25 mm", lengths(2150, 2790), 5113},
        {"lengths lying", lengths(2970, 2100), 5111},
        {"lengths of no paper", lengths(1500, 3000), 5250, {1500, 3000}},
        {"lengths that cannot be", lengths(10, 10), 5111, {2100, 2970}},
        {"no lengths", lengths(0, -5), 5111},
        {"one length alone",
         [](PublicFields& f) {
             f.fields |= kPaperLengthField;
             f.paperLength = 99;
         },
         5111},
    };
    for (const PaperCase& row : cases) {
        const TestModel model;
        Document document(model);
        document.change(row.edit);
        document.mergeInto(model);
        EXPECT_EQ(model.option(kPaperSize), row.paper) << row.name;
        if (row.size.width != 0) {
            const PublicFields after = Document(model).fields();
            EXPECT_EQ(after.paperWidth, row.size.width) << row.name;
            EXPECT_EQ(after.paperLength, row.size.height) << row.name;
            EXPECT_EQ(after.has(kLengths), row.paper == 5250) << row.name;
        }
    }
}

TEST(DocumentSettings, TakesThePaperOfAForeignDocumentByLengthsFirst)
{
    const TestModel model;
    Document document(model);
    document.change([](PublicFields& f) {
        f.fields |= kPaperLengthField | kPaperWidthField;
        f.paperWidth = 2159;
        f.paperLength = 2794;
        f.formName = L"#45110";
    });
    document.putWord(kExtraAt, 0); // no private part: the A4 in the number may be older
    document.mergeInto(model);
    EXPECT_EQ(model.option(kPaperSize), 5113);
}

TEST(DocumentSettings, CarriesNumbers)
{
    const TestModel model;
    Document document(model);
    EXPECT_EQ(document.fields().copies, 1);
    EXPECT_EQ(document.fields().collate, 1);
    EXPECT_EQ(document.fields().scale, 100);
    document.change([](PublicFields& f) {
        f.copies = 12;
        f.collate = 0;
        f.scale = 71;
    });
    document.mergeInto(model);
    EXPECT_EQ(model.number(kCopies), 12);
    EXPECT_FALSE(model.flag(kCollate));
    EXPECT_EQ(model.option(kScaling), 5400);
    EXPECT_EQ(model.number(kScalePercent), 71);
    EXPECT_EQ(Document(model).fields().scale, 71);

    // Back to 100, and numbers that the product does not have.
    document.change([](PublicFields& f) {
        f.copies = 1000;
        f.collate = 7;
        f.scale = 100;
    });
    document.mergeInto(model);
    EXPECT_EQ(model.number(kCopies), 1);
    EXPECT_TRUE(model.flag(kCollate));
    EXPECT_EQ(model.option(kScaling), 5210);
}

TEST(DocumentSettings, LeavesAFinerSettingThatTheFieldAlreadySays)
{
    const TestModel source;
    source.choose(kColourMode, 5151);
    source->CommitAccepted();
    const Document document(source);
    EXPECT_EQ(document.fields().colour, kColourPrinting);
    const TestModel target;
    document.mergeInto(target);
    EXPECT_EQ(target.option(kColourMode), 5151);
}

TEST(DocumentSettings, FollowsFieldsThatDependOnEachOther)
{
    const TestModel source;
    source.choose(kPaperTray, 5121);
    source->CommitAccepted();
    Document document(source);
    // A3 becomes possible only with the tray that is read after it.
    document.change([](PublicFields& fields) {
        fields.paperSize = 8;
        fields.source = 258;
    });
    document.mergeInto(source);
    EXPECT_EQ(source.option(kPaperSize), 5110);
    EXPECT_EQ(source.option(kPaperTray), 5122);
}

void growPublicPart(Document& document)
{
    constexpr std::size_t kMore = 16;
    auto& bytes = document.bytes();
    bytes.insert(bytes.begin() + kPublicPartSize, kMore, std::uint8_t{0xEE});
    document.putWord(kSizeAt, kPublicPartSize + kMore);
}

/// A later version of the private part's header, with four bytes that this one does not know.
void growPrivateHeader(Document& document)
{
    auto& bytes = document.bytes();
    bytes.insert(bytes.begin() + kPublicPartSize + kPrivateHeaderSize, 4, std::uint8_t{0xEE});
    document.putWord(kPublicPartSize + 6, kPrivateHeaderSize + 4);
    document.putWord(kExtraAt, kPrivatePartSize + 4);
}

TEST(DocumentSettings, TakesPublicFieldsOfDamagedAndForeignDevModes)
{
    const TestModel source;
    source.setFlag(test::kSkipBlankPages, true);
    source->CommitAccepted();
    Document whole(source);
    whole.change([](PublicFields& fields) { fields.orientation = kLandscape; });

    struct Row
    {
        const char* name;
        void (*change)(Document&);
        bool keepsPrivate;
        bool keepsPublic;
    };
    // clang-format off
    const Row rows[] = {
        {"untouched",         [](Document&) {}, true, true},
        {"no private part",   [](Document& d) { d.putWord(kExtraAt, 0); }, false, true},
        {"a shorter private part", [](Document& d) { d.putWord(kExtraAt, 200); }, true, true},
        {"a longer private part",
         [](Document& d) { d.putWord(kExtraAt, kPrivatePartSize + 800); d.bytes().resize(kDevModeSize + 800, 0xEE); }, true, true},
        {"a private part of the size of earlier versions",
         [](Document& d) { d.putWord(kExtraAt, 8192); d.bytes().resize(kPublicPartSize + 8192); }, true, true},
        {"a longer private header", growPrivateHeader, true, true},
        {"a private part that is not there",
         [](Document& d) { d.bytes().resize(kPublicPartSize); }, false, true},
        {"cut private part",  [](Document& d) { d.putWord(kExtraAt, 20); }, false, true},
        {"another driver's",  [](Document& d) { d.bytes()[kPublicPartSize] ^= 1; }, false, true},
        {"a damaged block",   [](Document& d) { d.bytes()[kPublicPartSize + 20] ^= 1; }, false, true},
        {"no size at all",    [](Document& d) { d.putWord(kSizeAt, 0); }, false, false},
        {"of a later system", growPublicPart, true, true},
        {"a tiny public part", [](Document& d) { d.putWord(kSizeAt, 40); }, false, false},
        {"a size beyond the end", [](Document& d) { d.putWord(kSizeAt, 0xFFFF); }, false, false},
    };
    // clang-format on
    for (const Row& row : rows) {
        Document document = whole;
        row.change(document);
        const TestModel target;
        document.mergeInto(target);
        EXPECT_EQ(target.flag(test::kSkipBlankPages), row.keepsPrivate) << row.name;
        EXPECT_EQ(target.option(kOrientation) == 5146, row.keepsPublic) << row.name;
    }
}

/// Everything that a model holds, as bytes that can be compared.
std::vector<std::uint8_t> settingsOf(const TestModel& model)
{
    std::vector<std::uint8_t> block;
    EXPECT_TRUE(model->ExportSettings(block));
    return block;
}

TEST(DocumentSettings, NeverTakesHalfOfADamagedPrivatePart)
{
    const TestModel source;
    source.setFlag(test::kSkipBlankPages, true);
    source.choose(kPaperType, 5133);
    source->CommitAccepted();
    const auto all = settingsOf(source);
    Document whole(source);
    // What the public fields give alone.
    const TestModel withoutPrivate;
    Document bare = whole;
    bare.putWord(kExtraAt, 0);
    bare.mergeInto(withoutPrivate);
    const auto fromPublic = settingsOf(withoutPrivate);
    ASSERT_NE(all, fromPublic);

    std::size_t end = kDevModeSize;
    while (whole.bytes()[end - 1] == 0) {
        --end; // behind it there are only zeros
    }
    std::size_t survived = 0;
    const TestModel model;
    const auto check = [&](const Document& document, std::size_t at) {
        model->GetFullListOfFeatures().RestoreToDefaultValue();
        model->CommitAccepted();
        document.mergeInto(model);
        const auto found = settingsOf(model);
        survived += found == all;
        EXPECT_TRUE(found == all || found == fromPublic) << "at byte " << at;
    };
    for (std::size_t at = kPublicPartSize; at < end; ++at) {
        for (const int damage : {0x01, 0x80, 0xFF}) {
            Document document = whole;
            document.bytes()[at] ^= static_cast<std::uint8_t>(damage);
            check(document, at);
        }
    }
    EXPECT_LE(survived, 3U * 6) << "only lengths and spare bytes of the header may not matter";
    for (std::size_t size = 0; size <= end; ++size) {
        Document document = whole;
        document.bytes().resize(size);
        if (size < kPublicPartSize) {
            const auto before = settingsOf(model);
            document.mergeInto(model);
            EXPECT_EQ(settingsOf(model), before) << "cut at " << size;
        } else {
            check(document, size);
        }
    }
}

TEST(DocumentSettings, CannotSetWhatAPersonCannot)
{
    const TestModel model;
    model.choose(kOrientation, 5146);
    model->CommitAccepted();
    EXPECT_EQ(model.option(kSides), 5140);
    Document document(model);
    document.change([](PublicFields& fields) { fields.duplex = 2; });
    document.mergeInto(model);
    EXPECT_EQ(model.option(kSides), 5140);
    EXPECT_EQ(Document(model).fields().duplex, 1) << "what is published back is what holds";
}

/// A copy of the small printer's package with another device setting of each kind that a block
/// could bring along: unspecified, inside a list of features, a list of values.
std::string deviceFeatures()
{
    return R"(,
    {"enum": 3051, "name": "odrv-installed-memory", "kind": "integer", "range": {"min": 1, "max": 9}},
    {"enum": 3090, "name": "odrv-device-box", "kind": "list", "flags": ["device"], "features": [
      {"enum": 3091, "name": "odrv-box-number", "kind": "integer", "default": 1}]},
    {"enum": 3092, "name": "odrv-mixed", "kind": "list", "features": [
      {"enum": 3093, "name": "odrv-installed-part", "kind": "boolean", "default": false},
      {"enum": 3094, "name": "odrv-job-part", "kind": "boolean", "default": false}]},
    {"enum": 3095, "name": "odrv-installed-drawers", "kind": "values", "item": {"kind": "list",
      "features": [{"enum": 3096, "name": "odrv-drawer-number", "kind": "integer", "default": 1}]}})";
}

/// What a model holds of the device, as a text.
std::string deviceState(const IFeatureNode& list, bool isDevice)
{
    std::string text;
    for (std::size_t i = 0; i < list.GetNumChildren(); ++i) {
        const auto feature = list.GetChild(i);
        const bool own = isDevice || feature->GetCapabilities()->IsDeviceFeature();
        if (own) {
            FeatureValue value;
            feature->GetValue(value);
            const auto* number = std::get_if<int>(&value);
            const auto* flag = std::get_if<bool>(&value);
            text += feature->GetId().Dump(true).ToUtf8() +
                    (feature->IsSpecified() ? "" : " unspecified") +
                    (number != nullptr ? std::string(" ").append(std::to_string(*number)) : "") +
                    (flag != nullptr ? *flag ? " on" : " off" : "") + "\n";
        }
        text += deviceState(*feature, own);
    }
    return text;
}

TEST(DocumentSettings, NeverTakesTheDeviceFromADocument)
{
    std::string package = test::kTestPackage;
    package.insert(package.find("\n  ],\n  \"constraints\""), deviceFeatures());
    const auto feature = [](int number) {
        return FeatureId(static_cast<DataModelIds::tagFeatureEnum>(number));
    };
    const auto change = [&](const TestModel& model, int number) {
        auto all = model->GetFullListOfFeatures();
        const auto set = [&](const ListOfFeaturesRef& list, int id) {
            EXPECT_TRUE(list.GetIntegerFeature(feature(id)).SetValue(number));
        };
        set(all, 3051);
        set(all.GetListOfFeatures(feature(3090)), 3091);
        auto mixed = all.GetListOfFeatures(feature(3092));
        EXPECT_TRUE(mixed.GetBooleanFeature(feature(3093)).SetValue(number == 2));
        EXPECT_TRUE(mixed.GetBooleanFeature(feature(3094)).SetValue(number == 2));
        auto drawers = all.GetListOfValues(feature(3095));
        for (int i = 0; i < number; ++i) {
            set(drawers.CreateListOfFeatures(), 3096);
        }
        model->CommitAccepted();
    };
    const auto device = [](const TestModel& model) {
        return deviceState(*model->GetFullListOfFeatures().GetNode(), false);
    };
    const TestModel source(package);
    change(source, 2);
    source.choose(kSides, 5141);
    source->CommitAccepted();
    const Document document(source);

    const TestModel target(package);
    change(target, 3);
    // The document's own two sides rule out that there is no unit for them.
    target.setFlag(test::kDuplexUnit, false);
    target->CommitAccepted();
    const auto before = device(target);
    document.mergeInto(target);
    EXPECT_EQ(device(target), before);
    EXPECT_FALSE(target.flag(test::kDuplexUnit));
    bool ofTheJob = false;
    target->GetFullListOfFeatures()
        .GetListOfFeatures(feature(3092))
        .GetBooleanFeature(feature(3094))
        .GetValue(ofTheJob, FeatureRef::kAssertIfUnsupported);
    EXPECT_TRUE(ofTheJob) << "what stands beside them is the document's";

    // A printer without any: what the document says of the device is not even unspecified.
    const TestModel fresh(package);
    const auto none = device(fresh);
    document.mergeInto(fresh);
    EXPECT_EQ(device(fresh), none);

    // A block of everything brings no more than its scope, either.
    std::vector<std::uint8_t> all;
    EXPECT_TRUE(source->ExportSettings(all));
    EXPECT_TRUE(fresh->ImportSettings(all.data(), all.size(), SettingsScope::Document));
    EXPECT_EQ(device(fresh), none);
    EXPECT_TRUE(fresh->ImportSettings(all.data(), all.size()));
    EXPECT_EQ(device(fresh), device(source)) << "the printer's own store";
}

TEST(LockedSettings, RefuseEveryKindOfWriteAndSayWhy)
{
    std::string package = test::kTestPackage;
    package.insert(package.find("\n  ],\n  \"constraints\""), R"(,
    {"enum": 3201, "name": "odrv-pages", "kind": "range", "default": [1, 3], "range": {"min": 1, "max": 9}},
    {"enum": 3202, "name": "odrv-number", "kind": "integer", "range": {"min": 1, "max": 9}},
    {"enum": 3203, "name": "odrv-text", "kind": "string"},
    {"enum": 3204, "name": "odrv-items", "kind": "values", "item": {"kind": "option", "default": 5140,
      "options": [{"enum": 5140, "name": "one"}, {"enum": 5141, "name": "two"}]}},
    {"enum": 3205, "name": "odrv-group", "kind": "list", "features": [
      {"enum": 3206, "name": "odrv-inner", "kind": "boolean", "default": true}]},
    {"enum": 1781, "name": "odrv-priv-ui-note", "kind": "boolean", "default": false},
    {"enum": 1782, "name": "odrv-state", "kind": "boolean", "default": false, "flags": ["stateOnly"]})");
    const TestModel model(package);
    auto all = model->GetFullListOfFeatures();
    const auto id = [](int number) {
        return FeatureId(static_cast<DataModelIds::tagFeatureEnum>(number));
    };
    auto items = all.GetListOfValues(id(3204));
    items.CreateOptionFeature();
    model->CommitAccepted();
    lockSettings(*model);

    auto collate = all.GetBooleanFeature(id(3008));
    auto item = items.GetOptionFeature(0);
    const struct
    {
        const char* name;
        bool written;
    } writes[] = {
        {"boolean", collate.SetValue(false)},
        {"unspecified", collate.SetIsSpecified(false)},
        {"option", model.choose(kOrientation, 5146)},
        {"range", all.GetRangeFeature(id(3201)).SetValue(2, 4)},
        {"integer without a value", all.GetIntegerFeature(id(3202)).SetValue(5)},
        {"its last value", all.GetIntegerFeature(id(3202)).SetIsSpecified(true)},
        {"text without a value", all.GetStringFeature(id(3203)).SetValue(L"q")},
        {"new item", items.CreateOptionFeature().IsSupported()},
        {"item", item.SetValue(ValueId(static_cast<DataModelIds::tagValueEnum>(5141)))},
        {"no item", items.DeleteAllItems()},
        {"inside a list",
         all.GetListOfFeatures(id(3205)).GetBooleanFeature(id(3206)).SetValue(false)},
        {"defaults", all.RestoreToDefaultValue()},
        {"a copy", all.CopyFrom(all)},
    };
    for (const auto& row : writes) {
        EXPECT_FALSE(row.written) << row.name;
    }
    EXPECT_FALSE(model->IsModified());
    EXPECT_EQ(items.GetNumItems(), 1U);
    for (const int number : {3008, 3006, 3201, 3202, 3203, 3204, 3205}) {
        const auto state = all.GetFeature(id(number))->GetCapabilities()->GetInterpretedState();
        EXPECT_TRUE(state.IsDisabled()) << number;
        EXPECT_EQ(state.GetReason(), L"#60299") << number;
    }
    EXPECT_EQ(items.GetListOfValuesCapabilities()->GetNewItemState().GetReason(), L"#60299");
    EXPECT_EQ(model->GetStateReasons(FeatureIdWithContext(kSides), ValueId()).size(), 1U);
    // What is no setting goes on.
    EXPECT_TRUE(all.GetBooleanFeature(id(1781)).SetValue(true));
    EXPECT_TRUE(all.GetBooleanFeature(id(1782)).SetValue(true));
}

TEST(DocumentSettings, LeavesTheDeviceAsThePrinterHasIt)
{
    const TestModel withUnit;
    withUnit.choose(kSides, 5141);
    withUnit->CommitAccepted();
    const Document document(withUnit);

    const TestModel without;
    without.setFlag(test::kDuplexUnit, false);
    without->CommitAccepted();
    document.mergeInto(without);
    EXPECT_FALSE(without.flag(test::kDuplexUnit));
}

} // namespace
} // namespace o7

#include "devicecapabilities.h"

#include <algorithm>
#include <cstring>
#include <span>
#include <string>
#include <vector>

#include "documentsettings.h"
#include "productfeatures.h"
#include "publicfields.h"
#include "systemnumbers.h"

namespace o7 {
namespace {

constexpr std::size_t kLongName = 64;
constexpr std::size_t kBinName = 24;
constexpr auto kQuietly = FeatureRef::kDoNotAssertIfUnsupported;

using Features = ListOfFeaturesRef;
using Names = std::vector<CXString>;

/// What a field can say for the device as it is.
struct Choice
{
    int number;
    ValueId value;
};
using Choices = std::vector<Choice>;

/// The answer to one question while it is written. The buffer is the caller's, and may be absent.
class Output
{
public:
    explicit Output(void* buffer) : m_at(static_cast<std::uint8_t*>(buffer)) {}

    template <class Number> void put(Number number)
    {
        if (m_at != nullptr) {
            std::memcpy(m_at, &number, sizeof number);
            m_at += sizeof number;
        }
    }

    void put(const CXString& name, std::size_t length)
    {
        if (m_at == nullptr) {
            return;
        }
        const auto text = name.ToUtf16Le();
        std::fill_n(m_at, 2 * length, std::uint8_t{0});
        std::copy_n(text.begin(), std::min(text.size(), 2 * (length - 1)), m_at);
        m_at += 2 * length;
    }

private:
    std::uint8_t* m_at;
};

bool isDeviceFeature(IDataModel& model, const FeatureIdWithContext& feature)
{
    const auto capabilities = model.GetFeatureRef(feature)->GetCapabilities();
    return capabilities && capabilities->IsDeviceFeature();
}

/// Whether a feature or one of its options is not to be had because of what is installed, whatever
/// else a document chooses.
bool isRuledOut(IDataModel& model, const FeatureIdWithContext& feature, const ValueId& option)
{
    return std::ranges::any_of(model.GetStateReasons(feature, option), [&](const StateReason& r) {
        const bool limits = r.effect == EffectKind::Disable || r.effect == EffectKind::Clear ||
                            r.effect == EffectKind::Hide || r.effect == EffectKind::Force;
        return limits && !r.causes.empty() &&
               std::ranges::all_of(r.causes, [&](const FeatureIdWithContext& cause) {
                   return isDeviceFeature(model, cause);
               });
    });
}

/// The options of a feature that can be had, in the product's order. Of a feature that as a whole
/// cannot be changed only its present value is left.
std::vector<ValueId> offeredOptions(IDataModel& model, const OptionFeatureRef& feature)
{
    std::vector<ValueId> values;
    const FeatureIdWithContext& id = feature.GetFeatureIdWithContextRef();
    const bool fixed = isRuledOut(model, id, ValueId());
    const auto options = feature.GetOptionCapabilities();
    for (std::size_t i = 0; i < options->GetNumberOfValues(); ++i) {
        const OptionWithState& option = options->GetOptionWithState(i);
        const ValueId& value = option.GetValueId();
        const bool isOffered = fixed ? value == feature.GetValue()
                                     : !option.GetInterpretedState().IsHidden() &&
                                           (!option.GetInterpretedState().IsDisabled() ||
                                            !isRuledOut(model, id, value));
        if (isOffered) {
            values.push_back(value);
        }
    }
    return values;
}

/// Without repeating a number.
Choices choicesOf(IDataModel& model, DocumentField field)
{
    Choices choices;
    for (const ValueId& value :
         offeredOptions(model, featureOf(model.GetFullListOfFeatures(), field))) {
        const auto number = systemNumber(field, value);
        if (number && std::ranges::find(choices, *number, &Choice::number) == choices.end()) {
            choices.push_back({*number, value});
        }
    }
    return choices;
}

template <class Number> std::uint32_t numbers(IDataModel& model, DocumentField field, Output output)
{
    const auto choices = choicesOf(model, field);
    for (const Choice& choice : choices) {
        output.put(static_cast<Number>(choice.number));
    }
    return static_cast<std::uint32_t>(choices.size());
}

std::uint32_t names(const Names& texts, std::size_t length, Output output)
{
    for (const CXString& text : texts) {
        output.put(text, length);
    }
    return static_cast<std::uint32_t>(texts.size());
}

Names namesOf(IDataModel& model, DocumentField field)
{
    Names texts;
    for (const Choice& choice : choicesOf(model, field)) {
        texts.push_back(choice.value.GetDisplayString());
    }
    return texts;
}

std::uint32_t paperSizes(IDataModel& model, Output output)
{
    const Features features = model.GetFullListOfFeatures();
    const auto papers = choicesOf(model, DocumentField::PaperSize);
    for (const Choice& paper : papers) {
        const PaperSize size = sizeOfPaper(features, paper.value);
        output.put(static_cast<std::int32_t>(size.width));
        output.put(static_cast<std::int32_t>(size.height));
    }
    return static_cast<std::uint32_t>(papers.size());
}

std::uint32_t resolutions(IDataModel& model, Output output)
{
    const auto choices = choicesOf(model, DocumentField::Quality);
    for (const Choice& choice : choices) {
        const auto dots = resolutionOf(choice.value.GetValueName()).value_or(DotsPerInch{});
        output.put(static_cast<std::int32_t>(dots.across));
        output.put(static_cast<std::int32_t>(dots.down));
    }
    return static_cast<std::uint32_t>(choices.size());
}

bool offers(IDataModel& model, DocumentField field, int number)
{
    const auto choices = choicesOf(model, field);
    return std::ranges::find(choices, number, &Choice::number) != choices.end();
}

/// Width and length of the smallest or the largest paper that can be had, custom sizes included,
/// as two 16-bit numbers in one.
std::uint32_t extent(IDataModel& model, bool largest)
{
    const Features features = model.GetFullListOfFeatures();
    PaperSize found;
    const auto consider = [&](int width, int height) {
        const auto better = [largest](int a, int b) { return largest ? a > b : a < b; };
        if (width > 0 && (found.width == 0 || better(width, found.width))) {
            found.width = width;
        }
        if (height > 0 && (found.height == 0 || better(height, found.height))) {
            found.height = height;
        }
    };
    for (const Choice& paper : choicesOf(model, DocumentField::PaperSize)) {
        if (paper.value == kCustomPaper) {
            const PaperSize custom = customLimit(features, largest);
            consider(custom.width, custom.height);
        } else {
            const PaperSize size = sizeOfPaper(features, paper.value);
            consider(size.width, size.height);
        }
    }
    const auto word = [](int length) {
        return static_cast<std::uint32_t>(std::min(length, 32767));
    };
    return found.width == 0 ? kNotAnswered : word(found.width) | word(found.height) << 16;
}

std::uint32_t mostCopies(const Features& features)
{
    const IntegerFeatureRef copies = features.GetIntegerFeature(FeatureId(kCopies));
    const int most =
        copies.IsSupported()
            ? copies.GetRangeCapabilities()->GetLargestAndSmallestRangeValues().GetUpperBound()
            : 1;
    return static_cast<std::uint32_t>(std::clamp(most, 1, 32767));
}

/// Whether an option feature can be anything but this value.
bool offersMoreThan(IDataModel& model, DataModelIds::tagFeatureEnum id, const ValueId& none)
{
    const auto feature = model.GetOptionFeatureRef(id);
    return std::ranges::any_of(offeredOptions(model, feature),
                               [&](const ValueId& value) { return value != none; });
}

/// The numbers of pages that one side can hold.
std::uint32_t pagesPerSheet(IDataModel& model, Output output)
{
    std::uint32_t count = 0;
    for (const ValueId& value : offeredOptions(model, model.GetOptionFeatureRef(kPagesPerSheet))) {
        const std::wstring name(value.GetValueName().View());
        const auto pages = static_cast<std::uint32_t>(std::wcstoul(name.c_str(), nullptr, 10));
        if (pages > 0) {
            output.put(pages);
            ++count;
        }
    }
    return count == 0 ? kNotAnswered : count;
}

/// The papers that lie in the trays, each once.
Names loadedPapers(const Features& features)
{
    Names papers;
    for (const auto id : kLoadedPapers) {
        const CXString name =
            features.GetOptionFeature(FeatureId(id)).GetValue().GetDisplayString();
        if (!name.IsEmpty() && std::ranges::find(papers, name) == papers.end()) {
            papers.push_back(name);
        }
    }
    return papers;
}

std::uint32_t stated(const Features& features, const wchar_t* name, std::uint32_t times)
{
    int number = 0;
    return features.GetIntegerFeature(FeatureId(CXString(name))).GetValue(number, kQuietly) &&
                   number > 0
               ? static_cast<std::uint32_t>(number) * times
               : kNotAnswered;
}

} // namespace

std::uint32_t deviceCapability(IDataModel& model, std::uint16_t capability, void* buffer)
{
    constexpr std::uint32_t kQuarterTurn = 90;
    constexpr std::uint32_t kKilobytes = 1024;
    const Features features = model.GetFullListOfFeatures();
    const Output output(buffer);
    switch (capability) {
    case kCapFields:
        return publicFields(features).fields;
    case kCapPapers:
        return numbers<std::uint16_t>(model, DocumentField::PaperSize, output);
    case kCapPaperSize:
        return paperSizes(model, output);
    case kCapPaperNames:
        return names(namesOf(model, DocumentField::PaperSize), kLongName, output);
    case kCapMinExtent:
        return extent(model, false);
    case kCapMaxExtent:
        return extent(model, true);
    case kCapBins:
        return numbers<std::uint16_t>(model, DocumentField::Source, output);
    case kCapBinNames:
        return names(namesOf(model, DocumentField::Source), kBinName, output);
    case kCapMediaTypes:
        return numbers<std::uint32_t>(model, DocumentField::MediaType, output);
    case kCapMediaTypeNames:
        return names(namesOf(model, DocumentField::MediaType), kLongName, output);
    case kCapMediaReady:
        return names(loadedPapers(features), kLongName, output);
    case kCapResolutions:
        return resolutions(model, output);
    case kCapPagesPerSheet:
        return pagesPerSheet(model, output);
    case kCapDuplex:
        return offers(model, DocumentField::Duplex, kDuplexLongEdge);
    case kCapColourDevice:
        return offers(model, DocumentField::Colour, kColourPrinting);
    case kCapCollate:
        return publicFields(features).has(kCollateField);
    case kCapCopies:
        return mostCopies(features);
    case kCapStaple:
        return offersMoreThan(model, kStaple, kNoStaples);
    case kCapOrientation:
        return offers(model, DocumentField::Orientation, kLandscape) ? kQuarterTurn : 0;
    case kCapPrintRate:
    case kCapPrintRatePpm:
        return stated(features, kPagesPerMinute, 1);
    case kCapPrintRateUnit:
        return kPagesPerMinuteUnit;
    case kCapPrinterMemory:
        return stated(features, kMemoryMegabytes, kKilobytes);
    case kCapSize:
        return kPublicPartSize;
    case kCapExtra:
        return kPrivatePartSize;
    case kCapVersion:
        return kDevModeVersion;
    case kCapDriver:
        return kDriverVersion;
    default:
        return kNotAnswered;
    }
}

} // namespace o7

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

template <class Number>
std::uint32_t numbers(const Features& features, DocumentField field, Output output)
{
    const auto choices = fieldChoices(features, field);
    for (const FieldChoice& choice : choices) {
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

Names namesOf(const Features& features, DocumentField field)
{
    Names texts;
    for (const FieldChoice& choice : fieldChoices(features, field)) {
        texts.push_back(choice.value.GetDisplayString());
    }
    return texts;
}

std::uint32_t paperSizes(const Features& features, Output output)
{
    const auto papers = fieldChoices(features, DocumentField::PaperSize);
    for (const FieldChoice& paper : papers) {
        const PaperSize size = sizeOfPaper(features, paper.value);
        output.put(static_cast<std::int32_t>(size.width));
        output.put(static_cast<std::int32_t>(size.height));
    }
    return static_cast<std::uint32_t>(papers.size());
}

std::uint32_t resolutions(const Features& features, Output output)
{
    const auto choices = fieldChoices(features, DocumentField::Quality);
    for (const FieldChoice& choice : choices) {
        const auto dots = resolutionOf(choice.value.GetValueName()).value_or(DotsPerInch{});
        output.put(static_cast<std::int32_t>(dots.across));
        output.put(static_cast<std::int32_t>(dots.down));
    }
    return static_cast<std::uint32_t>(choices.size());
}

bool offers(const Features& features, DocumentField field, int number)
{
    const auto choices = fieldChoices(features, field);
    return std::ranges::find(choices, number, &FieldChoice::number) != choices.end();
}

/// Width and length of the smallest or the largest paper that can be had, custom sizes included,
/// as two 16-bit numbers in one.
std::uint32_t extent(const Features& features, bool largest)
{
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
    for (const FieldChoice& paper : fieldChoices(features, DocumentField::PaperSize)) {
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
bool offersMoreThan(const Features& features, DataModelIds::tagFeatureEnum id, ValueId none)
{
    const auto options = features.GetOptionFeature(FeatureId(id)).GetOptionCapabilities();
    if (options->GetInterpretedState().IsHidden()) {
        return false;
    }
    for (std::size_t i = 0; i < options->GetNumberOfValues(); ++i) {
        const OptionWithState& option = options->GetOptionWithState(i);
        if (option.GetValueId() != none && !option.GetInterpretedState().IsHidden()) {
            return true;
        }
    }
    return false;
}

/// The numbers of pages that one side can hold.
std::uint32_t pagesPerSheet(const Features& features, Output output)
{
    const auto options =
        features.GetOptionFeature(FeatureId(kPagesPerSheet)).GetOptionCapabilities();
    std::uint32_t count = 0;
    for (std::size_t i = 0; i < options->GetNumberOfValues(); ++i) {
        const std::wstring name(options->GetOptionWithState(i).GetValueId().GetValueName().View());
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
        return numbers<std::uint16_t>(features, DocumentField::PaperSize, output);
    case kCapPaperSize:
        return paperSizes(features, output);
    case kCapPaperNames:
        return names(namesOf(features, DocumentField::PaperSize), kLongName, output);
    case kCapMinExtent:
        return extent(features, false);
    case kCapMaxExtent:
        return extent(features, true);
    case kCapBins:
        return numbers<std::uint16_t>(features, DocumentField::Source, output);
    case kCapBinNames:
        return names(namesOf(features, DocumentField::Source), kBinName, output);
    case kCapMediaTypes:
        return numbers<std::uint32_t>(features, DocumentField::MediaType, output);
    case kCapMediaTypeNames:
        return names(namesOf(features, DocumentField::MediaType), kLongName, output);
    case kCapMediaReady:
        return names(loadedPapers(features), kLongName, output);
    case kCapResolutions:
        return resolutions(features, output);
    case kCapPagesPerSheet:
        return pagesPerSheet(features, output);
    case kCapDuplex:
        return offers(features, DocumentField::Duplex, kDuplexLongEdge);
    case kCapColourDevice:
        return offers(features, DocumentField::Colour, kColourPrinting);
    case kCapCollate:
        return publicFields(features).has(kCollateField);
    case kCapCopies:
        return mostCopies(features);
    case kCapStaple:
        return offersMoreThan(features, kStaple, kNoStaples);
    case kCapOrientation:
        return offers(features, DocumentField::Orientation, kLandscape) ? kQuarterTurn : 0;
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

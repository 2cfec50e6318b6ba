#include "packagecheck.h"

#include <algorithm>
#include <set>
#include <utility>

#include "devicecheck.h"
#include "packageanalysis.h"
#include "pagecheck.h"

namespace o7 {
namespace {

namespace fs = std::filesystem;

/// Features below are the driver's own; the private ones of them have no names.
constexpr int kFirstNamedFeature = 3000;
constexpr unsigned kFirstReason = 60000;
constexpr unsigned kPastReasons = 60632; // texts of the values from 20632 on
constexpr UIMode kModes[] = {UIMode::PrintingPreferences, UIMode::DeviceSettings,
                             UIMode::CompactDialog, UIMode::PrintingDefaults};

/// Every text is its number: the check looks texts up by itself.
struct NoTexts : IStringSource
{
    CXString LoadStringW(unsigned id) const override { return CXString::Formatted(L"#%u", id); }
};

std::string whatIs(unsigned number)
{
    if (number >= kFirstReason && number < kPastReasons) {
        return "reason " + std::to_string(number);
    }
    if (number >= kValueStringBase) {
        return "text " + std::to_string(number) + ", the name of value " +
               std::to_string(number - kValueStringBase);
    }
    if (number >= kFeatureStringBase && number < 30000) {
        return "text " + std::to_string(number) + ", the name of feature " +
               std::to_string(number - kFeatureStringBase);
    }
    return "text " + std::to_string(number) + " of the pages";
}

/// "{0}" to "{9}" as they occur, each once.
std::set<char> placeholders(const std::string& text)
{
    std::set<char> found;
    for (std::size_t at = text.find('{'); at != std::string::npos; at = text.find('{', at + 1)) {
        if (at + 2 < text.size() && text[at + 2] == '}') {
            found.insert(text[at + 1]);
        }
    }
    return found;
}

/// The feature numbers of a model, those inside lists included.
struct FeatureNumbers
{
    std::set<int> all;
    std::set<int> device; ///< At the top.
};

void collectFeatures(const IFeatureNode& list, FeatureNumbers& numbers, bool atTop)
{
    for (std::size_t i = 0; i < list.GetNumChildren(); ++i) {
        const auto child = list.GetChild(i);
        const int number = child->GetId().GetFeatureId().GetFeatureEnum();
        numbers.all.insert(number);
        if (atTop && child->GetCapabilities()->IsDeviceFeature()) {
            numbers.device.insert(number);
        }
        // An item of a list of values shows what its items are made of.
        const auto item = child->CreateItem();
        collectFeatures(*child, numbers, false);
    }
}

class PackageChecker
{
public:
    PackageChecker(PackageReport& report, const BuiltTexts& built)
        : m_report(report), m_built(built)
    {
    }

    void run()
    {
        m_package = InspectProductPackage(m_report.file, m_report.mistakes);
        readAllTexts();
        if (m_package) {
            collectFeatures();
            checkPages();
        }
        if (isSound()) {
            checkRules();
        }
        for (const auto& [language, texts] : m_texts) {
            checkTexts(language, texts);
        }
        sort(m_report.mistakes);
        sort(m_report.hints);
    }

private:
    fs::path folder() const { return m_report.file.parent_path(); }
    fs::path script(const std::string& language) const
    {
        return folder() / "strings" / (language + ".rc");
    }

    static void sort(std::vector<PackageError>& errors)
    {
        const auto key = [](const PackageError& e) { return std::tie(e.file, e.line, e.message); };
        std::ranges::sort(errors, {}, key);
        const auto same =
            std::unique(errors.begin(), errors.end(),
                        [&](const auto& a, const auto& b) { return key(a) == key(b); });
        errors.erase(same, errors.end());
    }

    /// Whether the package can be more than listed.
    bool isSound() const { return m_package && m_package->GetProductInfo().validated; }

    DataModelIds::tagValueEnum family() const
    {
        return static_cast<DataModelIds::tagValueEnum>(
            m_package->GetProductInfo().controllerFamily);
    }

    void collectFeatures()
    {
        // Each feature has a name, but for those that only the pages themselves know.
        for (const unsigned number : m_package->GetStringNumbers()) {
            if (number >= kFeatureStringBase && number < kValueStringBase) {
                m_features.all.insert(static_cast<int>(number - kFeatureStringBase));
            }
        }
        if (isSound()) {
            NoTexts texts;
            const auto model = CreateDataModel(*m_package, texts);
            o7::collectFeatures(*model->GetFullListOfFeatures().GetNode(), m_features, true);
        }
    }

    void checkRules()
    {
        for (const PackageFinding& finding : AnalyseProductPackage(*m_package)) {
            m_report.mistakes.push_back(
                {m_report.file, finding.line,
                 std::string(NameOf(finding.kind)) + ": " + finding.message});
        }
        NoTexts texts;
        for (const std::string& left : findValuesLeftInForce(*m_package, texts)) {
            m_report.mistakes.push_back({m_report.file, 0, left});
        }
    }

    void checkPages()
    {
        for (const UIMode mode : kModes) {
            const UIData data(mode, family(), Workflow::Standard);
            const PageCheck pages(data);
            std::ranges::copy(pages.textNumbers(), std::inserter(m_pageTexts, m_pageTexts.end()));
            pages.forEachFeature([&](DataModelIds::tagFeatureEnum feature, unsigned page) {
                checkPlace(mode, feature, page);
            });
        }
    }

    void checkPlace(UIMode mode, DataModelIds::tagFeatureEnum feature, unsigned page)
    {
        const std::string place = "the page " + quoted(page) + " of family " +
                                  std::to_string(family()) + " shows feature " +
                                  std::to_string(feature) + " (" +
                                  quoted(kFeatureStringBase + static_cast<unsigned>(feature)) + ")";
        if (!m_features.all.contains(feature) && (isSound() || feature >= kFirstNamedFeature)) {
            m_report.mistakes.push_back(
                {m_report.file, 0, place + ", which the package does not have"});
        }
        if (mode != UIMode::DeviceSettings && m_features.device.contains(feature)) {
            m_report.mistakes.push_back(
                {m_report.file, 0,
                 place + " in mode " + std::to_string(static_cast<int>(mode)) +
                     ", but it belongs to the device: what is chosen there would be lost"});
        }
    }

    /// A text in the package's first language.
    std::string quoted(unsigned number) const
    {
        const auto found =
            m_texts.empty() ? PackageTexts::const_iterator() : m_texts.front().second.find(number);
        std::string text = "\"";
        if (m_texts.empty() || found == m_texts.front().second.end()) {
            text.append("#").append(std::to_string(number));
        } else {
            text.append(found->second.text);
        }
        return text.append("\"");
    }

    /// The languages that the package names or, when it did not load, those that have a script.
    std::vector<std::string> languages() const
    {
        std::vector<std::string> names;
        if (m_package) {
            for (const CXString& language : m_package->GetProductInfo().languages) {
                names.push_back(language.ToUtf8());
            }
            return names;
        }
        std::error_code none;
        for (const auto& entry : fs::directory_iterator(folder() / "strings", none)) {
            if (entry.path().extension() == ".rc") {
                names.push_back(entry.path().stem().string());
            }
        }
        std::ranges::sort(names);
        return names;
    }

    void readAllTexts()
    {
        for (const std::string& language : languages()) {
            std::error_code none;
            if (fs::is_directory(folder() / "strings", none)) {
                m_texts.emplace_back(language, readTextScript(script(language), m_report.mistakes));
            } else if (auto texts = m_built ? m_built(folder(), language) : std::nullopt) {
                m_texts.emplace_back(language, std::move(*texts));
            } else {
                m_report.mistakes.push_back(
                    {m_report.file, 0, "there are no texts in the language \"" + language + "\""});
            }
        }
    }

    void checkTexts(const std::string& language, const PackageTexts& texts)
    {
        const auto& [firstLanguage, first] = m_texts.front();
        if (m_package) {
            std::set<unsigned> needed = m_pageTexts;
            std::ranges::copy(m_package->GetStringNumbers(), std::inserter(needed, needed.end()));
            checkThere(language, texts, needed);
            hintUnused(language, texts, needed);
            checkKeys(texts);
        }
        if (&texts == &first) {
            return;
        }
        for (const auto& [number, text] : texts) {
            const auto original = first.find(number);
            if (original != first.end()) {
                compare(text, original->second, firstLanguage);
            }
        }
    }

    void checkThere(const std::string& language, const PackageTexts& texts,
                    const std::set<unsigned>& needed)
    {
        for (const unsigned number : needed) {
            const auto found = texts.find(number);
            if (found == texts.end()) {
                m_report.mistakes.push_back(
                    {script(language), 0, whatIs(number) + ", is missing in \"" + language + "\""});
            } else if (found->second.text.find_first_not_of(' ') == std::string::npos) {
                m_report.mistakes.push_back(
                    {found->second.file, found->second.line, whatIs(number) + ", is empty"});
            }
        }
    }

    /// Of the product's own script alone: those that it includes are shared with other products.
    void hintUnused(const std::string& language, const PackageTexts& texts,
                    const std::set<unsigned>& needed)
    {
        for (const auto& [number, text] : texts) {
            if (text.file == script(language) && text.line != 0 && !needed.contains(number)) {
                m_report.hints.push_back({text.file, text.line, "nothing shows " + whatIs(number)});
            }
        }
    }

    void checkKeys(const PackageTexts& texts)
    {
        for (const UIMode mode : kModes) {
            const UIData data(mode, family(), Workflow::Standard);
            PageCheck(data).checkMnemonics(texts, m_report.mistakes);
        }
    }

    void compare(const PackageText& text, const PackageText& original, const std::string& language)
    {
        const auto fail = [&](const std::string& what) {
            m_report.mistakes.push_back({text.file, text.line, "\"" + text.text + "\" " + what});
        };
        for (const char placeholder : placeholders(text.text)) {
            if (!placeholders(original.text).contains(placeholder)) {
                fail(std::string("has the placeholder {") + placeholder +
                     "}, which the text in \"" + language + "\" has not");
            }
        }
        if (mnemonicOf(text.text).empty() != mnemonicOf(original.text).empty()) {
            fail(mnemonicOf(text.text).empty()
                     ? "has no key, unlike the text in \"" + language + "\""
                     : "has a key, unlike the text in \"" + language + "\"");
        }
    }

    PackageReport& m_report;
    const BuiltTexts& m_built;
    std::unique_ptr<ProductPackage> m_package;
    FeatureNumbers m_features;
    std::set<unsigned> m_pageTexts;
    std::vector<std::pair<std::string, PackageTexts>>
        m_texts; ///< by language, the first is the model
};

} // namespace

PackageReport checkPackage(const fs::path& package, const BuiltTexts& built)
{
    PackageReport report;
    std::error_code none;
    report.file = fs::is_directory(package, none) ? package / "package.json" : package;
    report.found = fs::is_regular_file(report.file, none);
    if (report.found) {
        PackageChecker(report, built).run();
    }
    return report;
}

} // namespace o7

#include "storyparser.h"

#include <algorithm>
#include <charconv>
#include <map>
#include <optional>
#include <utility>

#include "cxstring.h"
#include "documentfields.h"
#include "entryabilities.h"
#include "nearestword.h"
#include "storygrammar.h"
#include "words.h"

namespace o7::story {
namespace {

constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
constexpr int kUsualMode = 1;
constexpr int kDialogMode = 3;

int numberOf(std::string_view digits)
{
    int number = 0;
    std::from_chars(digits.data(), digits.data() + digits.size(), number);
    return number;
}

bool isLanguage(std::string_view text)
{
    return text.size() >= 2 && std::ranges::all_of(text, [](char c) {
               return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-';
           });
}

bool isUtf8(std::string_view text)
{
    return CXString::FromUtf8(text).ToUtf8() == text;
}

/// What a session shall be, as far as it was said, with the lines that say it.
struct Draft
{
    std::string product;
    std::optional<Entry> entry;
    bool entryIsUnclear = false; ///< it was misspelt: what it could do is not known
    std::optional<int> mode;
    std::string language = "en";
    std::map<Setting, int> lines; ///< of this session; not of those before it

    Session session() const
    {
        const Entry chosen = entry.value_or(Entry::Sheet);
        return {product, chosen, mode.value_or(chosen == Entry::Dialog ? kDialogMode : kUsualMode),
                language};
    }
};

/// Reads one story from its first line to its last.
class Parser
{
public:
    Parser(const std::string& file, std::span<const std::string> products) : m_products(products)
    {
        m_result.story.file = file;
    }

    ParsedStory parse(std::string_view text)
    {
        if (text.starts_with(kByteOrderMark)) {
            text.remove_prefix(kByteOrderMark.size());
        }
        while (!text.empty()) {
            const std::size_t end = std::min(text.find('\n'), text.size());
            ++m_line;
            readLine(text.substr(0, end));
            text.remove_prefix(std::min(end + 1, text.size()));
        }
        if (!m_looked) {
            fail("the story expects nothing, so it cannot fail: it needs a line with \"expect\"");
        }
        return std::move(m_result);
    }

private:
    void fail(std::string message, int line = 0)
    {
        m_result.mistakes.push_back(
            {m_result.story.file, std::max(line != 0 ? line : m_line, 1), std::move(message)});
    }

    void readLine(std::string_view line)
    {
        if (line.ends_with('\r')) {
            line.remove_suffix(1);
        }
        if (!isUtf8(line)) {
            return fail("the line is no UTF-8 text");
        }
        Words words = splitWords(line);
        if (!words.fault.empty()) {
            return fail(words.fault);
        }
        if (words.words.empty()) {
            return;
        }
        if (!words.words.front().quoted && words.words.front().text == "restart") {
            return restart(words);
        }
        const bool bareNames = entry() == Entry::Model || m_draft.entryIsUnclear;
        Recognition found = recognise(words.words, bareNames);
        m_looked = m_looked || words.words.front().text == "expect";
        if (found.form == nullptr) {
            return fail(found.fault);
        }
        if (const auto* setting = std::get_if<Setting>(&found.form->meaning)) {
            return set(*setting, found.places.front().text);
        }
        addStep(makeStep(found, std::move(words.source)));
    }

    Entry entry() const { return m_draft.entry.value_or(Entry::Sheet); }

    // Sessions.

    void set(Setting setting, const std::string& value)
    {
        if (m_begun) {
            return fail("what a session is stands before its first step; \"restart\" begins "
                        "another one");
        }
        const auto [earlier, isNew] = m_draft.lines.emplace(setting, m_line);
        if (!isNew) {
            return fail("this was said before, in line " + std::to_string(earlier->second));
        }
        switch (setting) {
        case Setting::Product:
            return setProduct(value);
        case Setting::Entry:
            return setEntry(value);
        case Setting::Mode:
            return setMode(value);
        case Setting::Language:
            m_draft.language = value;
            if (!isLanguage(value)) {
                fail(inQuotes(value) + " is no language such as en or de");
            }
        }
    }

    void setProduct(const std::string& name)
    {
        m_draft.product = name;
        if (name.empty() ||
            (!m_products.empty() && std::ranges::find(m_products, name) == m_products.end())) {
            const std::vector<std::string_view> known(m_products.begin(), m_products.end());
            fail("there is no product " + inQuotes(name) + hint(name, known));
        }
    }

    void setEntry(const std::string& name)
    {
        m_draft.entry = entryNamed(name);
        m_draft.entryIsUnclear = !m_draft.entry;
        if (!m_draft.entry) {
            constexpr std::string_view kNames[] = {"sheet",  "cpsui",  "child",
                                                   "dialog", "in-app", "model"};
            fail("there is no entry " + inQuotes(name) + hint(name, kNames));
        }
    }

    void setMode(const std::string& digits)
    {
        m_draft.mode = numberOf(digits);
        if (m_draft.mode < 1 || m_draft.mode > 4) {
            m_draft.mode.reset();
            fail("there is no mode " + digits + "; there are modes 1 to 4");
        }
    }

    /// What is near, or everything that there is.
    static std::string hint(std::string_view word, std::span<const std::string_view> known)
    {
        std::string text = suggestion(word, known);
        if (!text.empty()) {
            return text;
        }
        for (const std::string_view name : known) {
            text.append(text.empty() ? "; there are " : ", ").append(name);
        }
        return text;
    }

    void restart(Words& words)
    {
        if (!m_begun) {
            fail("nothing has begun yet that could be started again");
        }
        Step step;
        step.verb = Verb::Restart;
        step.source = std::move(words.source);
        addStep(std::move(step));
        m_begun = false;
        m_open = false;
        m_draft.lines.clear();
        for (std::size_t i = 1; i < words.words.size(); i += 2) {
            const std::size_t count = std::min<std::size_t>(2, words.words.size() - i);
            const Recognition found = recognise(std::span(words.words).subspan(i, count), false);
            const auto* const setting =
                found.form != nullptr ? std::get_if<Setting>(&found.form->meaning) : nullptr;
            if (setting == nullptr) {
                return fail("restart goes on with product, entry, mode or language and what it "
                            "shall be, not with " +
                            words.words[i].text);
            }
            set(*setting, found.places.front().text);
        }
    }

    void beginSession()
    {
        m_begun = true;
        const Session session = m_draft.session();
        if (session.product.empty() && !m_draft.lines.contains(Setting::Product)) {
            fail("no line before this one says which product is meant, such as: product "
                 "office-c430");
        }
        if (const std::string fault = objectionTo(session.entry, session.mode);
            !fault.empty() && !m_draft.entryIsUnclear) {
            const auto mode = m_draft.lines.find(Setting::Mode);
            const auto chosen = m_draft.lines.find(Setting::Entry);
            fail(fault, mode != m_draft.lines.end()     ? mode->second
                        : chosen != m_draft.lines.end() ? chosen->second
                                                        : m_line);
        }
        m_result.story.sessions.push_back(session);
    }

    // Steps.

    void addStep(std::optional<Step> step)
    {
        if (!step) {
            return;
        }
        step->line = m_line;
        if (!m_begun) {
            beginSession();
        }
        if (const std::string fault = misplaced(*step); !fault.empty()) {
            return fail(fault);
        }
        step->session = m_result.story.sessions.size() - 1;
        if (const std::string fault = objectionTo(entry(), *step);
            !fault.empty() && !m_draft.entryIsUnclear) {
            return fail(fault);
        }
        m_result.story.steps.push_back(std::move(*step));
    }

    /// Before `open` there is only the document; everything else that can be known in advance about
    /// what is open is known while the story is played.
    std::string misplaced(const Step& step)
    {
        const bool ofDocument = step.verb == Verb::Document ||
                                (step.expectation && step.expectation->aspect == Aspect::Document);
        if (step.verb == Verb::Open) {
            return std::exchange(m_open, true)
                       ? "this session was opened before; \"reopen\" opens it once more"
                       : "";
        }
        if (m_open || ofDocument || step.verb == Verb::Restart) {
            return {};
        }
        m_open = true; // said once
        return "nothing is open here: \"open\" comes first";
    }

    std::optional<Step> makeStep(const Recognition& found, std::string source)
    {
        Step step;
        step.source = std::move(source);
        Expectation expected;
        if (const auto* verb = std::get_if<Verb>(&found.form->meaning)) {
            step.verb = *verb;
        } else {
            step.verb = Verb::Expect;
            expected.aspect = std::get<Aspect>(found.form->meaning);
        }
        for (const Filled& filled : found.places) {
            if (!fill(step, expected, filled)) {
                return std::nullopt;
            }
        }
        if (step.verb == Verb::Expect) {
            expected.control = step.control;
            step.expectation = std::move(expected);
        }
        return checkedDocument(std::move(step));
    }

    /// False, after a mistake, when the text cannot stand in its place.
    bool fill(Step& step, Expectation& expected, const Filled& filled)
    {
        const std::string_view place = filled.place;
        if (place == "NAME" || place == "CONTROL" || place == "LABEL" || place == "FIELD") {
            step.control = filled.text;
            if (filled.text.empty()) {
                fail("there is no name between the quotation marks");
            }
            return !filled.text.empty();
        }
        if (place == "CHORD") {
            const auto chord = parseChord(filled.text);
            step.chord = chord.value_or(Chord());
            if (!chord) {
                fail(inQuotes(filled.text) + " is no key such as F8, Alt+Down or Ctrl+A" +
                     suggestion(filled.text.substr(filled.text.rfind('+') + 1), keyNames()));
            }
            return chord.has_value();
        }
        if (place == "ENTRY") {
            expected.entry = filled.text;
        } else if (place == "REASON") {
            expected.reason = filled.text;
        } else if (place == "NUMBER") {
            expected.count = numberOf(filled.text);
        } else {
            step.value = filled.text;
            expected.text = filled.text;
        }
        return true;
    }

    /// Fields of the document have names and words of their own; what is expected of one is put
    /// into the words in which it is read.
    std::optional<Step> checkedDocument(Step step)
    {
        const bool expects = step.expectation && step.expectation->aspect == Aspect::Document;
        if (!expects && step.verb != Verb::Document) {
            return step;
        }
        const std::string& field = step.control.text();
        if (std::ranges::find(documentFieldNames(), field) == documentFieldNames().end()) {
            fail("a document has no field " + inQuotes(field) + hint(field, documentFieldNames()));
            return std::nullopt;
        }
        if (expects && step.expectation->text == kNotSet) {
            return step;
        }
        PublicFields fields;
        if (const std::string wanted = setDocumentField(fields, field, step.value);
            !wanted.empty()) {
            fail("the field " + field + " of a document is " + wanted + ", not " +
                 inQuotes(step.value));
            return std::nullopt;
        }
        if (expects) {
            step.expectation->text = documentFieldText(fields, field);
        }
        return step;
    }

    std::span<const std::string> m_products;
    ParsedStory m_result;
    Draft m_draft;
    int m_line = 0;
    bool m_begun = false;  ///< the session has had a step
    bool m_open = false;   ///< the session has had its `open`
    bool m_looked = false; ///< there was an `expect`, right or wrong
};

} // namespace

std::string Mistake::toString() const
{
    return file + ":" + std::to_string(line) + ": " + message;
}

ParsedStory parseStory(std::string_view text, const std::string& file,
                       std::span<const std::string> products)
{
    return Parser(file, products).parse(text);
}

} // namespace o7::story

#include "locatedjson.h"

#include <nlohmann/json.hpp>

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace o7 {
namespace {

constexpr std::size_t kMaximumDepth = 64;

/// Feeds the parser and counts what it has consumed: the only way to know where it stands.
class CountingIterator
{
public:
    using iterator_category = std::input_iterator_tag;
    using value_type = char;
    using difference_type = std::ptrdiff_t;
    using pointer = const char*;
    using reference = const char&;

    CountingIterator(const char* at, std::size_t* consumed) : m_at(at), m_consumed(consumed) {}

    reference operator*() const { return *m_at; }
    CountingIterator& operator++()
    {
        ++m_at;
        ++*m_consumed;
        return *this;
    }
    CountingIterator operator++(int)
    {
        CountingIterator before = *this;
        ++*this;
        return before;
    }
    friend bool operator==(const CountingIterator& a, const CountingIterator& b)
    {
        return a.m_at == b.m_at;
    }
    friend bool operator!=(const CountingIterator& a, const CountingIterator& b)
    {
        return !(a == b);
    }

private:
    const char* m_at;
    std::size_t* m_consumed;
};

class Builder : public nlohmann::json_sax<nlohmann::json>
{
public:
    Builder(std::string_view text, const std::size_t& consumed) : m_text(text), m_consumed(consumed)
    {
    }

    std::variant<LocatedJson, JsonFault> Take()
    {
        if (m_fault)
            return std::move(*m_fault);
        return std::move(m_root);
    }

    bool null() override { return Add(nullptr, Line()); }
    bool boolean(bool value) override { return Add(value, Line()); }
    bool number_integer(number_integer_t value) override { return Add(value, NumberLine()); }
    bool number_unsigned(number_unsigned_t value) override
    {
        if (value > static_cast<number_unsigned_t>(INT64_MAX))
            return Fail(NumberLine(), "the number is too large");
        return Add(static_cast<std::int64_t>(value), NumberLine());
    }
    bool number_float(number_float_t value, const string_t&) override
    {
        return Add(value, NumberLine());
    }
    bool string(string_t& value) override { return Add(std::move(value), Line()); }
    bool binary(binary_t&) override { return Fail(Line(), "binary data"); }
    bool start_object(std::size_t) override { return Open(LocatedJson::Object()); }
    bool start_array(std::size_t) override { return Open(LocatedJson::Array()); }
    bool end_object() override { return Close(); }
    bool end_array() override { return Close(); }

    bool key(string_t& value) override
    {
        auto& members = std::get<LocatedJson::Object>(m_open.back().data);
        const bool twice = std::any_of(members.begin(), members.end(),
                                       [&](const auto& member) { return member.first == value; });
        if (twice)
            return Fail(Line(), "the key \"" + value + "\" stands twice in one object");
        members.emplace_back(std::move(value), LocatedJson());
        return true;
    }

    bool parse_error(std::size_t, const std::string& token,
                     const nlohmann::json::exception& error) override
    {
        std::string what = error.what();
        if (const auto start = what.find("syntax error"); start != std::string::npos)
            what.erase(0, start);
        if (what.empty())
            what = "syntax error at " + token;
        return Fail(Line(), what);
    }

private:
    /// The line of the last character consumed.
    unsigned Line() { return LineOf(m_consumed == 0 ? 0 : m_consumed - 1); }

    /// The parser has read one character past a number to see its end.
    unsigned NumberLine() { return LineOf(m_consumed < 2 ? 0 : m_consumed - 2); }

    unsigned LineOf(std::size_t offset)
    {
        offset = std::min(offset, m_text.size());
        if (offset < m_countedTo) {
            m_countedTo = 0;
            m_lines = 1;
        }
        const auto from = m_text.begin() + static_cast<std::ptrdiff_t>(m_countedTo);
        const auto to = m_text.begin() + static_cast<std::ptrdiff_t>(offset);
        m_lines += static_cast<unsigned>(std::count(from, to, '\n'));
        m_countedTo = offset;
        return m_lines;
    }

    bool Fail(unsigned line, std::string message)
    {
        if (!m_fault)
            m_fault = JsonFault{line, std::move(message)};
        return false;
    }

    bool Add(LocatedJson::Data value, unsigned line)
    {
        Place(LocatedJson(std::move(value), line));
        return true;
    }

    bool Open(LocatedJson::Data container)
    {
        if (m_open.size() >= kMaximumDepth)
            return Fail(Line(), "nested too deeply");
        m_open.emplace_back(std::move(container), Line());
        return true;
    }

    bool Close()
    {
        LocatedJson value = std::move(m_open.back());
        m_open.pop_back();
        Place(std::move(value));
        return true;
    }

    void Place(LocatedJson value)
    {
        if (m_open.empty())
            m_root = std::move(value);
        else if (auto* items = std::get_if<LocatedJson::Array>(&m_open.back().data))
            items->push_back(std::move(value));
        else
            std::get<LocatedJson::Object>(m_open.back().data).back().second = std::move(value);
    }

    std::string_view m_text;
    const std::size_t& m_consumed;
    std::size_t m_countedTo = 0;
    unsigned m_lines = 1;
    std::vector<LocatedJson> m_open;
    LocatedJson m_root;
    std::optional<JsonFault> m_fault;
};

} // namespace

const char* LocatedJson::TypeName() const
{
    static constexpr const char* kNames[] = {"null",   "boolean", "integer", "number",
                                             "string", "array",   "object"};
    return kNames[data.index()];
}

double LocatedJson::Number() const
{
    if (const auto* integer = As<std::int64_t>())
        return static_cast<double>(*integer);
    const auto* real = As<double>();
    return real != nullptr ? *real : 0.0;
}

const LocatedJson* LocatedJson::Find(std::string_view key) const
{
    const auto* members = As<Object>();
    if (members == nullptr)
        return nullptr;
    for (const auto& [name, value] : *members) {
        if (name == key)
            return &value;
    }
    return nullptr;
}

std::string LocatedJson::ToText() const
{
    if (const auto* integer = As<std::int64_t>())
        return std::to_string(*integer);
    if (const auto* text = As<std::string>())
        return "\"" + *text + "\"";
    if (const auto* flag = As<bool>())
        return *flag ? "true" : "false";
    if (const auto* real = As<double>())
        return nlohmann::json(*real).dump();
    return TypeName();
}

std::variant<LocatedJson, JsonFault> ParseLocatedJson(std::string_view text)
{
    std::size_t consumed = 0;
    Builder builder(text, consumed);
    nlohmann::json::sax_parse(CountingIterator(text.data(), &consumed),
                              CountingIterator(text.data() + text.size(), &consumed), &builder);
    return builder.Take();
}

} // namespace o7

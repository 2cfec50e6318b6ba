#include "cxstring.h"

#include "casing.h"
#include "stringbuffer.h"

#include <algorithm>
#include <climits>
#include <stdexcept>
#include <utility>

#if defined(_WIN32)
#include <windows.h>
#endif

using o7::StringBuffer;

namespace {

constexpr int kLongest = INT_MAX / 8;
constexpr const wchar_t* kEmpty = L"";

std::wstring_view viewOf(const wchar_t* text) noexcept
{
    return text == nullptr ? std::wstring_view() : std::wstring_view(text);
}

int checkedLength(std::size_t length)
{
    if (length > static_cast<std::size_t>(kLongest)) {
        throw std::length_error("CXString: text too long");
    }
    return static_cast<int>(length);
}

int toPosition(std::size_t found) noexcept
{
    return found == std::wstring_view::npos ? -1 : static_cast<int>(found);
}

std::size_t toStart(int start) noexcept
{
    return static_cast<std::size_t>(std::max(start, 0));
}

int findIn(std::wstring_view text, std::wstring_view wanted, int start) noexcept
{
    return wanted.empty() ? -1 : toPosition(text.find(wanted, toStart(start)));
}

int order(std::wstring_view a, std::wstring_view b) noexcept
{
    const std::size_t common = std::min(a.size(), b.size());
    for (std::size_t i = 0; i < common; ++i) {
        if (a[i] != b[i]) {
            return a[i] < b[i] ? -1 : 1;
        }
    }
    return a.size() == b.size() ? 0 : (a.size() < b.size() ? -1 : 1);
}

} // namespace

void CXString::release() noexcept
{
    if (m_text == nullptr) {
        return;
    }
    StringBuffer* const owned = StringBuffer::of(std::exchange(m_text, nullptr));
    if (owned->references.fetch_sub(1, std::memory_order_acq_rel) == 1) {
        StringBuffer::destroy(owned);
    }
}

bool CXString::isUniqueWithRoom(int capacity) const noexcept
{
    return m_text != nullptr &&
           StringBuffer::of(m_text)->references.load(std::memory_order_acquire) == 1 &&
           StringBuffer::of(m_text)->capacity >= capacity;
}

// Afterwards the buffer is this object's alone, holds the present text and has room for `capacity`
// characters.
void CXString::reserveUnique(int capacity)
{
    if (isUniqueWithRoom(capacity)) {
        return;
    }
    const std::wstring_view present = View();
    const int length = GetLength();
    checkedLength(toStart(capacity));
    StringBuffer* const fresh = StringBuffer::create(std::max(capacity, length));
    std::copy(present.begin(), present.end(), fresh->text());
    release();
    m_text = fresh->text();
    setLength(length);
}

void CXString::setLength(int length) noexcept
{
    StringBuffer::of(m_text)->length = length;
    m_text[length] = L'\0';
}

CXString::CXString(const CXString& other) noexcept : m_text(other.m_text)
{
    if (m_text != nullptr) {
        StringBuffer::of(m_text)->references.fetch_add(1, std::memory_order_relaxed);
    }
}

CXString::CXString(CXString&& other) noexcept : m_text(std::exchange(other.m_text, nullptr))
{
}

CXString::CXString(const wchar_t* text) : CXString(viewOf(text))
{
}

CXString::CXString(const wchar_t* text, int length)
    : CXString(text == nullptr || length <= 0
                   ? std::wstring_view()
                   : std::wstring_view(text, static_cast<std::size_t>(length)))
{
}

CXString::CXString(const char* utf8)
    : CXString(utf8 == nullptr ? CXString() : FromUtf8(std::string_view(utf8)))
{
}

CXString::CXString(std::wstring_view text)
{
    *this += text;
}

CXString::~CXString()
{
    release();
}

CXString& CXString::operator=(const CXString& other) noexcept
{
    CXString copy(other);
    std::swap(m_text, copy.m_text);
    return *this;
}

CXString& CXString::operator=(CXString&& other) noexcept
{
    if (this != &other) {
        release();
        m_text = std::exchange(other.m_text, nullptr);
    }
    return *this;
}

CXString& CXString::operator=(const wchar_t* text)
{
    return *this = CXString(text);
}

const wchar_t* CXString::c_str() const noexcept
{
    return m_text == nullptr ? kEmpty : m_text;
}

std::wstring_view CXString::View() const noexcept
{
    return m_text == nullptr
               ? std::wstring_view()
               : std::wstring_view(m_text,
                                   static_cast<std::size_t>(StringBuffer::of(m_text)->length));
}

int CXString::GetLength() const noexcept
{
    return m_text == nullptr ? 0 : StringBuffer::of(m_text)->length;
}

bool CXString::IsEmpty() const noexcept
{
    return GetLength() == 0;
}

bool CXString::IsBlank() const noexcept
{
    const std::wstring_view text = View();
    return std::all_of(text.begin(), text.end(), o7::isWhiteSpace);
}

wchar_t CXString::GetAt(int index) const noexcept
{
    return index < 0 || index >= GetLength() ? L'\0' : m_text[index];
}

void CXString::Empty() noexcept
{
    release();
}

CXString& CXString::operator+=(const CXString& text)
{
    if (IsEmpty()) {
        return *this = text; // shares instead of copying
    }
    return *this += text.View();
}

CXString& CXString::operator+=(const wchar_t* text)
{
    return *this += viewOf(text);
}

CXString& CXString::operator+=(wchar_t character)
{
    return *this += std::wstring_view(&character, 1);
}

CXString& CXString::operator+=(std::wstring_view text)
{
    if (text.empty()) {
        return *this;
    }
    const int length = GetLength();
    const int total = checkedLength(static_cast<std::size_t>(length) + text.size());
    CXString former; // keeps the present buffer alive, since `text` may lie in it
    if (!isUniqueWithRoom(total)) {
        former = *this;
        // A string that grows a second time will probably grow again.
        reserveUnique(length == 0 ? total : std::min(total + length / 2, kLongest));
    }
    std::copy(text.begin(), text.end(), m_text + length);
    setLength(total);
    return *this;
}

int CXString::Compare(const CXString& other) const noexcept
{
    return order(View(), other.View());
}

int CXString::Compare(const wchar_t* other) const noexcept
{
    return order(View(), viewOf(other));
}

int CXString::CompareNoCase(const CXString& other) const noexcept
{
    return o7::compareNoCase(View(), other.View());
}

int CXString::CompareNoCase(const wchar_t* other) const noexcept
{
    return o7::compareNoCase(View(), viewOf(other));
}

int CXString::Find(const CXString& text, int start) const noexcept
{
    return findIn(View(), text.View(), start);
}

int CXString::Find(const wchar_t* text, int start) const noexcept
{
    return findIn(View(), viewOf(text), start);
}

int CXString::Find(wchar_t character, int start) const noexcept
{
    return toPosition(View().find(character, toStart(start)));
}

int CXString::ReverseFind(wchar_t character) const noexcept
{
    return toPosition(View().rfind(character));
}

CXString CXString::Left(int count) const
{
    return Mid(0, std::max(count, 0));
}

CXString CXString::Right(int count) const
{
    return Mid(GetLength() - std::clamp(count, 0, GetLength()));
}

CXString CXString::Mid(int start, int count) const
{
    const int from = std::clamp(start, 0, GetLength());
    const int rest = GetLength() - from;
    const int taken = count < 0 ? rest : std::min(count, rest);
    return taken == GetLength() ? *this : CXString(c_str() + from, taken);
}

int CXString::Remove(wchar_t character)
{
    return Remove(CXString(&character, 1));
}

int CXString::Remove(const CXString& text)
{
    return Replace(text, CXString());
}

int CXString::Replace(const CXString& from, const CXString& to)
{
    int count = 0;
    int copied = 0;
    CXString result;
    for (int at = Find(from); at >= 0; at = Find(from, copied)) {
        result += View().substr(toStart(copied), toStart(at - copied));
        result += to.View();
        copied = at + from.GetLength();
        ++count;
    }
    if (count > 0) {
        result += View().substr(toStart(copied));
        *this = std::move(result);
    }
    return count;
}

CXString& CXString::MakeUpper()
{
    if (!IsEmpty()) {
        reserveUnique(GetLength());
        o7::toUpper(m_text, toStart(GetLength()));
    }
    return *this;
}

CXString& CXString::MakeLower()
{
    if (!IsEmpty()) {
        reserveUnique(GetLength());
        o7::toLower(m_text, toStart(GetLength()));
    }
    return *this;
}

CXString& CXString::Trim()
{
    const std::wstring_view text = View();
    const auto first = std::find_if_not(text.begin(), text.end(), o7::isWhiteSpace);
    const auto last = std::find_if_not(text.rbegin(), text.rend(), o7::isWhiteSpace).base();
    if (first < last) {
        *this = Mid(static_cast<int>(first - text.begin()), static_cast<int>(last - first));
    } else {
        Empty();
    }
    return *this;
}

std::vector<CXString> CXString::Tokenize(const CXString& separator) const
{
    std::vector<CXString> parts;
    if (IsEmpty()) {
        return parts;
    }
    int start = 0;
    for (int at = Find(separator); at >= 0; at = Find(separator, start)) {
        parts.push_back(Mid(start, at - start));
        start = at + separator.GetLength();
    }
    parts.push_back(Mid(start));
    return parts;
}

wchar_t* CXString::GetBuffer(int minimumLength)
{
    reserveUnique(std::max(minimumLength, GetLength()));
    return m_text;
}

wchar_t* CXString::GetBufferSetLength(int length)
{
    const int wanted = std::max(length, 0);
    const int former = GetLength();
    reserveUnique(std::max(wanted, former));
    if (wanted > former) {
        std::fill(m_text + former, m_text + wanted, L'\0');
    }
    setLength(wanted);
    return m_text;
}

void CXString::ReleaseBuffer(int newLength)
{
    if (m_text == nullptr) {
        return;
    }
    const int capacity = StringBuffer::of(m_text)->capacity;
    if (newLength < 0) {
        const wchar_t* const end = std::find(m_text, m_text + capacity, L'\0');
        setLength(static_cast<int>(end - m_text));
    } else {
        setLength(std::min(newLength, capacity));
    }
}

#if defined(_WIN32)
bool CXString::SetWindowTextW(HWND__* window) const
{
    return ::SetWindowTextW(window, c_str()) != FALSE;
}
#endif

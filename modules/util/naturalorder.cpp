#include "naturalorder.h"

#include "casing.h"
#include "number.h"

#include <algorithm>

namespace o7 {

namespace {

bool isDigit(wchar_t character) noexcept
{
    return character >= L'0' && character <= L'9';
}

bool readNumber(const CXString& text, Number& number) noexcept
{
    return Number::TryParse(text, number) || Number::TryParse(text, number, L',');
}

/// Cuts the run of digits, or of other characters, off the front.
std::wstring_view takeRun(std::wstring_view& text) noexcept
{
    const bool digits = isDigit(text.front());
    const auto end = std::find_if(text.begin(), text.end(), [digits](wchar_t character) {
        return isDigit(character) != digits;
    });
    const std::wstring_view run = text.substr(0, static_cast<std::size_t>(end - text.begin()));
    text.remove_prefix(run.size());
    return run;
}

int compareDigits(std::wstring_view a, std::wstring_view b) noexcept
{
    a.remove_prefix(std::min(a.find_first_not_of(L'0'), a.size()));
    b.remove_prefix(std::min(b.find_first_not_of(L'0'), b.size()));
    // Without zeros in front the longer one is the greater one, however long they are.
    if (a.size() != b.size()) {
        return a.size() < b.size() ? -1 : 1;
    }
    return a.compare(b);
}

int compareRuns(std::wstring_view a, std::wstring_view b) noexcept
{
    while (!a.empty() && !b.empty()) {
        const bool bothDigits = isDigit(a.front()) && isDigit(b.front());
        const std::wstring_view runA = takeRun(a);
        const std::wstring_view runB = takeRun(b);
        const int difference = bothDigits ? compareDigits(runA, runB) : compareNoCase(runA, runB);
        if (difference != 0) {
            return difference;
        }
    }
    return static_cast<int>(!a.empty()) - static_cast<int>(!b.empty());
}

} // namespace

int compareNatural(const CXString& a, const CXString& b) noexcept
{
    Number numberA;
    Number numberB;
    const bool isNumberA = readNumber(a, numberA);
    const bool isNumberB = readNumber(b, numberB);
    if (isNumberA && isNumberB) {
        return numberA < numberB ? -1 : static_cast<int>(numberA > numberB);
    }
    if (isNumberA || isNumberB) {
        return isNumberA ? -1 : 1;
    }
    return compareRuns(a.View(), b.View());
}

} // namespace o7

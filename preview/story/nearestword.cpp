#include "nearestword.h"

#include <algorithm>
#include <vector>

namespace o7::story {
namespace {

/// Longer ones are no misspelt names, and comparing them takes time.
constexpr std::size_t kLongestWord = 200;

char lower(char c)
{
    return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

/// Letters to change on the way from one word to the other; two that changed places count once.
std::size_t distance(std::string_view a, std::string_view b)
{
    std::vector<std::size_t> beforeLast(b.size() + 1);
    std::vector<std::size_t> last(b.size() + 1);
    std::vector<std::size_t> row(b.size() + 1);
    for (std::size_t j = 0; j <= b.size(); ++j) {
        row[j] = j;
    }
    for (std::size_t i = 1; i <= a.size(); ++i) {
        beforeLast.swap(last);
        last.swap(row);
        row[0] = i;
        for (std::size_t j = 1; j <= b.size(); ++j) {
            const bool same = lower(a[i - 1]) == lower(b[j - 1]);
            row[j] = std::min({last[j] + 1, row[j - 1] + 1, last[j - 1] + (same ? 0 : 1)});
            if (i > 1 && j > 1 && lower(a[i - 1]) == lower(b[j - 2]) &&
                lower(a[i - 2]) == lower(b[j - 1])) {
                row[j] = std::min(row[j], beforeLast[j - 2] + 1);
            }
        }
    }
    return row[b.size()];
}

} // namespace

std::string_view nearestWord(std::string_view word, std::span<const std::string_view> candidates)
{
    std::string_view nearest;
    if (word.size() > kLongestWord) {
        return nearest;
    }
    std::size_t fewest = std::max<std::size_t>(1, word.size() / 3) + 1;
    for (const std::string_view candidate : candidates) {
        // The lengths alone tell how far away it is at least.
        if (std::max(word.size(), candidate.size()) >=
            std::min(word.size(), candidate.size()) + fewest) {
            continue;
        }
        if (const std::size_t letters = distance(word, candidate); letters < fewest) {
            fewest = letters;
            nearest = candidate;
        }
    }
    return nearest;
}

std::string suggestion(std::string_view word, std::span<const std::string_view> candidates)
{
    const std::string nearest(nearestWord(word, candidates));
    return nearest.empty() ? std::string() : "; did you mean \"" + nearest + "\"?";
}

} // namespace o7::story

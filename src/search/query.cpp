#include "search/query.h"

#include "text/letters.h"

#include <algorithm>

namespace search {

namespace {

/// Shorter texts are no query.
constexpr std::size_t kShortest = 2;
/// Characters that part words as a space does.
constexpr std::u16string_view kSigns = u"+-*/,;:.?#";

/// Without spaces at either end; other blanks are characters like any other.
std::u16string_view trimmed(std::u16string_view text) {
    const std::size_t first = text.find_first_not_of(u' ');
    if (first == text.npos)
        return {};
    return text.substr(first, text.find_last_not_of(u' ') + 1 - first);
}

} // namespace

std::vector<std::u16string> queryWords(std::u16string_view typed) {
    std::u16string query(trimmed(typed));
    if (query.size() < kShortest)
        return {};
    for (char16_t& c : query)
        c = kSigns.find(c) == kSigns.npos ? text::lowerCase(c) : u' ';
    std::u16string_view rest = trimmed(query);
    if (rest.size() < kShortest)
        return {};
    // Runs of spaces count as one: between two words there is at least one, so what is left of
    // them leaves no text of one character.
    std::vector<std::u16string> words;
    while (!rest.empty()) {
        const std::size_t end = std::min(rest.find(u' '), rest.size());
        words.emplace_back(rest.substr(0, end));
        rest = trimmed(rest.substr(end));
    }
    return words;
}

} // namespace search

#include "search/visible_words.h"

#include <algorithm>
#include <vector>

namespace search {

namespace {

/// The directives that print what follows their keyword, in folded text; what stands behind the
/// last "#" of a link is its target.
struct Printing {
    std::string_view keyword;
    bool hasTarget = false;
};
constexpr Printing kPrinting[] = {
    {"##va1"},         {"##va2"},         {"##ve1"},    {"##ve2"},         {"##ind"},
    {"##exp"},         {"##poly"},        {"##frac"},   {"##lier1"},       {"##liert", true},
    {"##lierx", true}, {"##admen", true}, {"##titbar"}, {"##exoli", true}, {"##exovi", true},
};

/// What a line prints.
std::string_view printed(std::string_view line) {
    if (!line.starts_with("##"))
        return line;
    const auto* const found =
        std::find_if(std::begin(kPrinting), std::end(kPrinting),
                     [line](const Printing& row) { return line.starts_with(row.keyword); });
    if (found == std::end(kPrinting))
        return {};
    const std::string_view rest = line.substr(found->keyword.size());
    return found->hasTarget ? rest.substr(0, rest.rfind('#')) : rest;
}

} // namespace

bool areVisible(std::span<const std::string> words, bool allWords, std::string_view source) {
    std::vector<std::string_view> missing(words.begin(), words.end());
    while (!source.empty()) {
        const std::size_t end = std::min(source.find('\n'), source.size());
        const std::string_view line = printed(source.substr(0, end));
        const auto isHere = [line](std::string_view word) { return line.find(word) != line.npos; };
        const auto isMissing = std::erase_if(missing, isHere);
        if (missing.empty() || (isMissing > 0 && !allWords))
            return true;
        source.remove_prefix(std::min(end + 1, source.size()));
    }
    return false;
}

} // namespace search

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace search {

/// What is looked for in the pages.
struct Query {
    std::vector<std::u16string> words; ///< as queryWords gives them; none finds nothing
    bool allWords = false;             ///< a page must hold every word, and not one at least
    /// "é" and "e" are the same, in the words and in the pages, and so are the apostrophes of
    /// keyboards and of print.
    bool ignoreAccents = false;
};

/// The words that somebody typed, in lower case, in their order, doubled ones included. Empty when
/// there is nothing to search: the text, then the text without signs, has fewer than 2 characters
/// (UTF-16 units) between its outer spaces.
std::vector<std::u16string> queryWords(std::u16string_view typed);

} // namespace search

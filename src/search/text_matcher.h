#pragma once

#include "search/folded_text.h"
#include "search/word_finder.h"

#include <cstddef>
#include <span>
#include <string>
#include <vector>

namespace search {

/// Tells which texts hold some words.
class TextMatcher {
public:
    /// The words are folded and not empty, and there is at least one. `sample` is a piece of the
    /// texts to come.
    TextMatcher(std::span<const std::string> words, bool allWords, std::string_view sample);

    /// Indices of the texts that hold all words, or one at least, ascending.
    std::vector<std::size_t> matches(const FoldedText& texts) const;

private:
    std::vector<WordFinder> words_;
    bool allWords_;
};

} // namespace search

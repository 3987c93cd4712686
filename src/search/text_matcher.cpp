#include "search/text_matcher.h"

#include <algorithm>
#include <cstdint>

namespace search {

namespace {

/// One for each text.
using Flags = std::vector<std::uint8_t>;

/// Sets the flag of each text from index `first` to before `last` that holds the word. They are
/// searched as one text; behind a hit the search goes on in the next one.
void findIn(const FoldedText& texts, std::size_t first, std::size_t last, const WordFinder& word,
            Flags& holds) {
    const std::vector<std::size_t>& ends = texts.ends();
    const std::string_view bytes = texts.bytes().substr(0, ends[last - 1]);
    std::size_t from = first == 0 ? 0 : ends[first - 1];
    std::size_t text = first;
    for (std::size_t at; (at = word.find(bytes, from)) != WordFinder::npos; from = ends[text]) {
        while (ends[text] <= at)
            ++text;
        holds[text] = 1;
    }
}

/// Which of the open texts hold the word.
Flags holding(const FoldedText& texts, const WordFinder& word, const Flags& open) {
    Flags holds(open.size());
    for (auto first = open.begin(); first != open.end();) {
        first = std::find(first, open.end(), 1);
        const auto last = std::find(first, open.end(), 0);
        if (first != last)
            findIn(texts, static_cast<std::size_t>(first - open.begin()),
                   static_cast<std::size_t>(last - open.begin()), word, holds);
        first = last;
    }
    return holds;
}

} // namespace

TextMatcher::TextMatcher(std::span<const std::string> words, bool allWords, std::string_view sample)
    : allWords_(allWords) {
    for (const std::string& word : words)
        words_.emplace_back(word, sample);
}

std::vector<std::size_t> TextMatcher::matches(const FoldedText& texts) const {
    // Open are the texts for which the next word makes a difference: when all are wanted, those
    // that held all words so far; else those that held none.
    Flags open(texts.ends().size(), 1);
    for (const WordFinder& word : words_) {
        const Flags holds = holding(texts, word, open);
        for (std::size_t i = 0; i < open.size(); ++i)
            open[i] = allWords_ ? holds[i] : open[i] & ~holds[i] & 1;
    }
    std::vector<std::size_t> found;
    for (std::size_t i = 0; i < open.size(); ++i)
        if ((open[i] != 0) == allWords_)
            found.push_back(i);
    return found;
}

} // namespace search

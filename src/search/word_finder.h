#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace search {

/// Finds one word in folded text, by the two of its bytes that are rarest there.
class WordFinder {
public:
    /// `word` is not empty; `sample` is a piece of the text that will be searched. Another text is
    /// searched as rightly, if not as fast.
    WordFinder(std::string word, std::string_view sample);

    /// Where the word first is in `text`, looked for from `from` on; npos when it is nowhere.
    std::size_t find(std::string_view text, std::size_t from) const;

    static constexpr std::size_t npos = std::string_view::npos;

private:
    std::string word_;
    std::size_t rarest_ = 0;  ///< places in the word, the same in a word of one byte
    std::size_t partner_ = 0; ///< second rarest
};

} // namespace search

#pragma once

#include <span>
#include <string>
#include <string_view>

namespace search {

/// Whether a page source is found by what is printed of it: of its lines that begin with "##" only
/// the words that such a directive prints count (a link's caption, an index, a fraction), not its
/// keyword, nor names of files, keys and targets. Words and source are folded; all words must be
/// there, or one at least.
bool areVisible(std::span<const std::string> words, bool allWords, std::string_view source);

} // namespace search

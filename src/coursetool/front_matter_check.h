#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

namespace coursetool {

/// Offset of the first place in front matter that is no "key = value" with a plain key and a
/// string, number, flag or date: a dotted key, a table, an array, a letter outside quotation marks
/// that is none of ASCII's. All of them could only be faults later on, and toml++ 3.3 does not
/// stand all of them: keys of many parts exhaust its stack, accented bare keys make it read where
/// nothing is, some beginnings of values and tables of arrays fail its own assertions. What is
/// wrong inside a key or value of the right kind is left to it.
std::optional<std::size_t> firstUnreadable(std::string_view toml);

} // namespace coursetool

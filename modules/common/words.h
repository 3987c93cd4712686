#pragma once

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace common {

/// Whether a character is one of Unicode's blanks, line ends included.
bool isBlank(char16_t c);

/// `text` without the blanks at both ends.
std::u16string_view trimmed(std::u16string_view text);

/// The parts between blanks; there may be none.
std::vector<std::u16string_view> splitAtBlanks(std::u16string_view text);

/// `pattern` with each "%1" to "%9" in it replaced by the argument of that place; a place without
/// an argument stands as it was written.
std::u16string filled(std::u16string_view pattern,
                      std::initializer_list<std::u16string_view> arguments);

/// The parts with `between` between them.
std::u16string joined(const std::vector<std::u16string>& parts, std::u16string_view between);

/// A whole number, 0 and more, as it stands in a formula.
std::u16string decimal(int number);

} // namespace common

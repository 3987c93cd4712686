#pragma once

#include <string_view>

namespace text {

/// The one lenient reading of a number: the longest numeric prefix of `input`, 0 when there is
/// none. Blanks (space, tab, no-break space, line ends) are passed over anywhere before the number
/// ends, so "1 234" reads as 1234 and "- 5" as -5. An optional sign, digits with at most one point,
/// and an exponent introduced by "E" or "D" (either case) are read; whatever follows is ignored.
/// A value beyond the range of a double reads as infinity, which no integer conversion accepts.
double leadingNumber(std::u16string_view input);

} // namespace text

#pragma once

#include <string>
#include <string_view>

namespace exercises::test {

// The check of a typed answer once more, in the plainest way: each character selected in a buffer
// and replaced there, each ending sought on its own at every place. Far too slow for long texts.

std::u16string foldLiterally(std::u16string_view typed);
bool checkLiterally(std::u16string_view solution, std::u16string_view typed);

} // namespace exercises::test

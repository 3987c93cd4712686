#pragma once

#include <algorithm>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace common {

/// One line "key = value" of a file.
struct Entry {
    std::u16string key;
    std::u16string value;
    int line = 0; ///< counted from 1
};

/// The plain text format of the modules' data: one "key = value" a line, blanks around both left
/// aside; empty lines and lines that start with "#" say nothing. A key may come several times.
/// Absent when a line has no "=" or no key: half a file is worse than none.
std::optional<std::vector<Entry>> parseEntries(std::u16string_view text);

/// The one of `all` that files know under that key; null when there is none.
template <class All>
const auto* ofKey(const All& all, std::u16string_view key) {
    const auto one =
        std::find_if(all.begin(), all.end(), [key](const auto& each) { return key == each.key; });
    return one == all.end() ? nullptr : &*one;
}

} // namespace common

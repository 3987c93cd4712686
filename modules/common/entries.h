#pragma once

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
const typename All::value_type* ofKey(const All& all, std::u16string_view key) {
    for (const auto& one : all)
        if (key == one.key)
            return &one;
    return nullptr;
}

} // namespace common

#pragma once

#include "search/folded_text.h"

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace search {

/// A stretch of records. Of those that are searched at all it has what the list shows, and the
/// folded page source, in the same order.
struct PageSlice {
    struct Page {
        int position;
        std::int32_t number;
        std::size_t titleEnd; ///< in `titles`
    };

    int next = 0; ///< position of the first record behind the slice
    std::vector<Page> pages;
    std::u16string titles;
    FoldedText sources;

    std::u16string_view title(std::size_t page) const;

    /// The same in as little memory as it takes, and how much that is.
    PageSlice copy() const;
    std::size_t copySize() const;
};

} // namespace search

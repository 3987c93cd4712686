#include "search/page_slice.h"

namespace search {

std::u16string_view PageSlice::title(std::size_t page) const {
    const std::size_t start = page == 0 ? 0 : pages[page - 1].titleEnd;
    return std::u16string_view(titles).substr(start, pages[page].titleEnd - start);
}

PageSlice PageSlice::copy() const {
    return {next, pages, titles, sources.copy()};
}

std::size_t PageSlice::copySize() const {
    return sizeof *this + pages.size() * sizeof(Page) + titles.size() * sizeof(char16_t) +
           sources.copySize();
}

} // namespace search

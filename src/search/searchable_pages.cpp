#include "search/searchable_pages.h"

#include "search/folded_copy.h"

#include <utility>

namespace search {

jet::Result<SearchablePages> SearchablePages::open(const jet::Database& database,
                                                   std::size_t mostBytes) {
    auto reader = SliceReader::open(database);
    if (!reader)
        return reader.error();
    return SearchablePages(std::make_unique<Copy>(*std::move(reader), mostBytes));
}

SearchablePages::SearchablePages(std::unique_ptr<Copy> copy) : copy_(std::move(copy)) {}
SearchablePages::SearchablePages(SearchablePages&&) noexcept = default;
SearchablePages& SearchablePages::operator=(SearchablePages&&) noexcept = default;
SearchablePages::~SearchablePages() = default;

int SearchablePages::lastPosition() {
    return static_cast<int>(copy_->reader().recordCount()) - 1;
}

jet::Problems SearchablePages::problems() const {
    return copy_->reader().problems();
}

std::size_t SearchablePages::copyBytes() const {
    return copy_->bytes();
}

} // namespace search

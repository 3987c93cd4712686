#include "search/course_pages.h"

#include "search/folded_copy.h"

#include <utility>

namespace search {

jet::Result<CoursePages> CoursePages::open(const jet::Database& database, std::size_t mostBytes) {
    auto reader = SliceReader::open(database);
    if (!reader)
        return reader.error();
    return CoursePages(std::make_unique<Copy>(*std::move(reader), mostBytes));
}

CoursePages::CoursePages(std::unique_ptr<Copy> copy) : copy_(std::move(copy)) {}
CoursePages::CoursePages(CoursePages&&) noexcept = default;
CoursePages& CoursePages::operator=(CoursePages&&) noexcept = default;
CoursePages::~CoursePages() = default;

int CoursePages::lastPosition() {
    return static_cast<int>(copy_->reader().recordCount()) - 1;
}

jet::Problems CoursePages::problems() const {
    return copy_->reader().problems();
}

std::size_t CoursePages::copyBytes() const {
    return copy_->bytes();
}

} // namespace search

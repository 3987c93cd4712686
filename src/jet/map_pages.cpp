#include "jet/map_pages.h"

#include "jet/data_page_builder.h"

namespace jet {

namespace {

constexpr std::size_t kMapsOfPage = (kJet4.pageSize - kJet4.slotsAt) / (kMapRowBytes + 2);

} // namespace

RowPointer MapPages::add(const PageSet& pages) {
    const std::size_t page = maps_.size() / kMapsOfPage;
    if (page == pages_.size())
        pages_.push_back(file_->allocate());
    maps_.push_back(&pages);
    return RowPointer(pages_[page], static_cast<std::uint8_t>((maps_.size() - 1) % kMapsOfPage));
}

void MapPages::write() {
    std::size_t next = 0;
    for (const std::uint32_t number : pages_) {
        DataPageBuilder page(number, kMapOwner);
        for (std::size_t i = 0; i < kMapsOfPage && next < maps_.size(); ++i, ++next)
            page.add(usageMapRow(*maps_[next], *file_));
        file_->write(number, page.image());
    }
}

} // namespace jet

#include "jet/page_changes.h"

#include "jet/cipher.h"

#include <algorithm>
#include <utility>

namespace jet {

Bytes PageChanges::page(std::uint32_t number) {
    if (const auto found = changes_.find(number); found != changes_.end())
        return found->second.image;
    const auto page = source_->page(number);
    if (!page)
        return {};
    kept_ = *page;
    return kept_.bytes;
}

PageImage* PageChanges::edit(std::uint32_t number, int rank) {
    auto found = changes_.find(number);
    if (found == changes_.end()) {
        PageImage image = copyOf(number);
        if (image.empty())
            return nullptr;
        found = changes_.emplace(number, Change{rank, image, image}).first;
    }
    found->second.rank = std::min(found->second.rank, rank);
    return &found->second.image;
}

void PageChanges::put(std::uint32_t number, PageImage image, int rank) {
    changes_.insert_or_assign(number, Change{rank, copyOf(number), std::move(image)});
}

std::optional<std::uint32_t> PageChanges::add() {
    if (pageCount_ >= format().maxPages)
        return std::nullopt;
    return pageCount_++;
}

Result<void> PageChanges::commit(PageSink& sink) {
    std::vector<std::uint32_t> written;
    auto done = writeAll(sink, written);
    if (!done)
        takeBack(written, sink);
    return done;
}

Result<void> PageChanges::writeAll(PageSink& sink, std::vector<std::uint32_t>& written) {
    // In the order of their numbers within a rank, so that the file grows page by page.
    std::multimap<int, std::uint32_t> byRank;
    for (const auto& [number, change] : changes_)
        if (change.image != change.before)
            byRank.emplace(change.rank, number);
    if (byRank.empty())
        return {};
    int rank = byRank.begin()->first;
    for (const auto& [nextRank, number] : byRank) {
        if (std::exchange(rank, nextRank) != nextRank)
            if (auto flushed = sink.sync(); !flushed)
                return flushed;
        written.push_back(number); // even when it fails: half of it may be there
        if (auto done = write(number, changes_.at(number).image, sink); !done)
            return done;
    }
    return sink.sync();
}

void PageChanges::takeBack(const std::vector<std::uint32_t>& written, PageSink& sink) {
    for (auto number = written.rbegin(); number != written.rend(); ++number) {
        const PageImage& before = changes_.at(*number).before;
        if (!before.empty() && !write(*number, before, sink))
            return;
    }
    // Pages are only cut off once nothing on the disk names them any more.
    if (sink.sync())
        sink.cutBack();
}

Result<void> PageChanges::write(std::uint32_t number, PageImage image, PageSink& sink) const {
    if (const std::uint32_t key = source_->header().pageKey; key != 0)
        applyPageKey(key, number, image);
    return sink.write(number, image);
}

PageImage PageChanges::copyOf(std::uint32_t number) {
    const auto page = source_->page(number);
    return page ? PageImage(page->bytes.data(), page->bytes.data() + page->bytes.size())
                : PageImage();
}

} // namespace jet

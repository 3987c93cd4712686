#include "jet/usage_map.h"

#include "jet/data_page.h"

#include <bit>
#include <cstddef>

namespace jet {

namespace {

void addPages(Bytes bits, std::uint64_t firstPage, std::uint32_t pageCount,
              std::vector<std::uint32_t>& pages) {
    for (std::size_t i = 0; i < bits.size(); ++i) {
        for (unsigned left = bits.u8(i); left != 0; left &= left - 1) {
            const std::uint64_t page =
                firstPage + 8 * i + static_cast<unsigned>(std::countr_zero(left));
            if (page >= pageCount)
                return;
            pages.push_back(static_cast<std::uint32_t>(page));
        }
    }
}

std::optional<std::vector<std::uint32_t>> pagesByReference(PageSource& source, Bytes references) {
    const std::uint64_t pagesPerBitmap = (source.format().pageSize - kBitmapAt) * 8;
    std::vector<std::uint32_t> pages;
    std::uint64_t firstPage = 0;
    for (std::size_t at = 0; references.has(at, 4) && firstPage < source.pageCount();
         at += 4, firstPage += pagesPerBitmap) {
        const std::uint32_t number = references.u32(at);
        if (number == 0)
            continue;
        const auto page = source.page(number);
        if (!page || page->type() != PageType::UsageBitmap)
            return std::nullopt;
        addPages(page->bytes.from(kBitmapAt), firstPage, source.pageCount(), pages);
    }
    return pages;
}

} // namespace

std::optional<std::vector<std::uint32_t>> pagesInMap(PageSource& source, RowPointer map,
                                                     std::uint32_t owner) {
    const auto found = followPointer(source, map, owner, Slot::Kind::InPlace);
    if (!found || found->row.empty())
        return std::nullopt;
    const Bytes row = found->row;
    if (row.u8(0) == kMapByReference)
        return pagesByReference(source, row.from(kMapReferencesAt));
    if (row.u8(0) != kInlineMap || !row.has(0, kMapBitsAt))
        return std::nullopt;
    std::vector<std::uint32_t> pages;
    addPages(row.from(kMapBitsAt), row.u32(kMapFirstPageAt), source.pageCount(), pages);
    return pages;
}

} // namespace jet

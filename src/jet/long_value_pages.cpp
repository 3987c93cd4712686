#include "jet/long_value_pages.h"

#include "jet/byte_writer.h"
#include "jet/data_page_builder.h"
#include "jet/long_value_writer.h"

namespace jet {

Result<std::vector<std::uint8_t>> storeOnNewPages(Bytes value, PageChanges& changes,
                                                  PageTaker& taker, int rank,
                                                  std::vector<std::uint32_t>& pages) {
    const Format& format = changes.format();
    const bool isSingle = value.size() <= format.longestSingle;
    const std::size_t perPage = isSingle ? format.longestSingle : format.longestPiece;
    const std::size_t first = pages.size();
    for (std::size_t stored = 0; stored < value.size(); stored += perPage) {
        const auto page = taker.take();
        if (!page)
            return page.error();
        pages.push_back(*page);
    }
    for (std::size_t i = first; i < pages.size(); ++i) {
        ByteWriter record;
        if (!isSingle)
            record.u32(i + 1 < pages.size() ? RowPointer(pages[i + 1], 0).stored() : 0);
        record.bytes(value.from((i - first) * perPage).first(perPage));
        DataPageBuilder page(pages[i], kLongValueOwner, format);
        page.add(record.written());
        changes.put(pages[i], page.image(), rank);
    }
    return longValueCell(isSingle ? LongValueKind::Single : LongValueKind::Chain, value.size(),
                         RowPointer(pages[first], 0));
}

} // namespace jet

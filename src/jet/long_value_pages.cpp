#include "jet/long_value_pages.h"

#include "jet/byte_writer.h"
#include "jet/data_page.h"
#include "jet/data_page_builder.h"
#include "jet/long_value_writer.h"

#include <optional>
#include <unordered_set>

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

bool RecordFollower::follow(Bytes cell, const std::function<void(RowPointer)>& callback) {
    const std::uint32_t stored = cell.u32(0);
    const auto kind = static_cast<LongValueKind>(stored >> kLongValueKindShift);
    if ((stored & kLongValueLengthMask) == 0 ||
        (kind != LongValueKind::Single && kind != LongValueKind::Chain))
        return true;
    std::unordered_set<std::uint32_t> visited;
    RowPointer next(cell.u32(kLongValuePointerAt));
    while (next.page != 0 && visited.insert(next.stored()).second) {
        if (left_ == 0)
            return false;
        --left_;
        const auto record = followPointer(*source_, next, kLongValueOwner, Slot::Kind::InPlace);
        if (!record)
            return true;
        callback(record->place);
        if (kind == LongValueKind::Single)
            return true;
        next = RowPointer(record->row.u32(0));
    }
    return true;
}

} // namespace jet

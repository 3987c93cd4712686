#include "jet/record_follower.h"

#include "jet/data_page.h"

#include <unordered_set>

namespace jet {

bool RecordFollower::follow(Bytes cell, const std::function<void(RowPointer)>& callback,
                            const std::function<void(std::uint32_t)>& named) {
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
        if (named)
            named(next.page);
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

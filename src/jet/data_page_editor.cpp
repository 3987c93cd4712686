#include "jet/data_page_editor.h"

#include "jet/data_page.h"

#include <algorithm>
#include <utility>

namespace jet {

namespace {

/// The part of a slot's bytes that means something.
Bytes neededPart(const Slot& slot) {
    switch (slot.kind) {
    case Slot::Kind::Deleted:
        return {};
    case Slot::Kind::Pointer:
        return slot.row.first(kPointerBytes);
    default:
        return slot.row;
    }
}

} // namespace

RowReplaced replaceRow(PageImage& page, const Format& format, std::size_t slot, Bytes row,
                       std::uint16_t flags) {
    const auto data = DataPage::of(Page{{}, Bytes(page), 0}, Bytes(page).u32(kPageOwnerAt), format);
    if (!data || !data->isSound() || slot >= data->slotCount())
        return RowReplaced::Damaged;
    const std::size_t slotsEnd = format.slotsAt + 2 * data->slotCount();

    PageImage packed(page.size());
    std::copy_n(page.begin(), slotsEnd, packed.begin());
    std::size_t lowest = page.size();
    for (std::size_t i = 0; i < data->slotCount(); ++i) {
        const auto there = data->slot(i);
        if (!there)
            return RowReplaced::Damaged;
        const Bytes bytes = i == slot ? row : neededPart(*there);
        if (bytes.size() > lowest - slotsEnd)
            return RowReplaced::NoRoom;
        lowest -= bytes.size();
        putBytes(packed, lowest, bytes);
        const std::size_t slotAt = format.slotsAt + 2 * i;
        const std::size_t kept = Bytes(page).u16(slotAt) & ~std::size_t{kSlotOffsetMask};
        put16(packed, slotAt, lowest | (i == slot ? flags : kept));
    }
    put16(packed, kFreeBytesAt, lowest - slotsEnd);
    page = std::move(packed);
    return RowReplaced::Done;
}

} // namespace jet

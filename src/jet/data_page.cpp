#include "jet/data_page.h"

#include <utility>

namespace jet {

namespace {

/// A moved row has one pointer; more come only from rows moved again, or from damage in a circle.
constexpr int kMaxHops = 8;

Slot::Kind kindOf(std::uint16_t stored) {
    switch (stored & kSlotDeleted) {
    case kSlotPointer:
        return Slot::Kind::Pointer;
    case kSlotBody:
        return Slot::Kind::Body;
    case kSlotDeleted:
        return Slot::Kind::Deleted;
    default:
        return Slot::Kind::InPlace;
    }
}

} // namespace

std::optional<DataPage> DataPage::of(Page page, std::uint32_t owner, const Format& format) {
    if (page.type() != PageType::Data || page.owner() != owner)
        return std::nullopt;
    return DataPage(std::move(page), format);
}

DataPage::DataPage(Page page, const Format& format) : page_(std::move(page)), format_(&format) {
    slotCount_ = page_.bytes.u16(format.slotCountAt);
    isSound_ = slotCount_ <= kMaxSlots && page_.bytes.has(format.slotsAt, 2 * slotCount_);
    if (!isSound_)
        slotCount_ = 0;
}

std::optional<Slot> DataPage::slot(std::size_t index) const {
    if (index >= slotCount_)
        return std::nullopt;
    const std::size_t slotsAt = format_->slotsAt;
    const auto stored = [&](std::size_t i) { return page_.bytes.u16(slotsAt + 2 * i); };
    const std::size_t start = stored(index) & kSlotOffsetMask;
    const std::size_t end =
        index == 0 ? page_.bytes.size() : std::size_t{stored(index - 1)} & kSlotOffsetMask;
    if (start < slotsAt + 2 * slotCount_ || start > end || end > page_.bytes.size())
        return std::nullopt;
    return Slot{kindOf(stored(index)), page_.bytes.part(start, end - start)};
}

std::optional<PointedRow> followPointer(PageSource& source, RowPointer start, std::uint32_t owner,
                                        Slot::Kind wanted) {
    RowPointer pointer = start;
    RowPointer before = start;
    for (int hop = 0; hop < kMaxHops; ++hop) {
        const std::optional<Page> page = source.page(pointer.page);
        if (!page)
            return std::nullopt;
        const auto data = DataPage::of(*page, owner, source.format());
        const auto slot = data ? data->slot(pointer.row) : std::nullopt;
        if (!slot)
            return std::nullopt;
        if (slot->kind == wanted)
            return PointedRow{*page, slot->row, pointer, before};
        if (slot->kind != Slot::Kind::Pointer || slot->row.size() < kPointerBytes)
            return std::nullopt;
        before = pointer;
        pointer = RowPointer(slot->row.u32(0));
    }
    return std::nullopt;
}

} // namespace jet

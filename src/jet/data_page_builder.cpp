#include "jet/data_page_builder.h"

namespace jet {

DataPageBuilder::DataPageBuilder(std::uint32_t number, std::uint32_t owner, const Format& format)
    : format_(&format), number_(number), image_(format.pageSize), lowest_(format.pageSize) {
    image_[0] = static_cast<std::uint8_t>(PageType::Data);
    image_[1] = 1;
    put16(image_, kFreeBytesAt, format.pageSize - format.slotsAt);
    put32(image_, kPageOwnerAt, owner);
}

bool DataPageBuilder::hasRoom(std::size_t size, std::size_t reserve) const {
    const std::size_t kept = slots_ == 0 ? 0 : reserved_ + reserve;
    return slots_ < kMaxSlots && format_->slotsAt + 2 * (slots_ + 1) + size + kept <= lowest_;
}

std::optional<RowPointer> DataPageBuilder::add(Bytes row, std::size_t reserve,
                                               std::uint16_t flags) {
    if (!hasRoom(row.size(), reserve))
        return std::nullopt;
    lowest_ -= row.size();
    reserved_ += reserve;
    const std::size_t slotAt = format_->slotsAt + 2 * slots_;
    putBytes(image_, lowest_, row);
    put16(image_, slotAt, lowest_ | flags);
    put16(image_, format_->slotCountAt, slots_ + 1);
    put16(image_, kFreeBytesAt, lowest_ - (slotAt + 2));
    return RowPointer(number_, static_cast<std::uint8_t>(slots_++));
}

} // namespace jet

#include "jet/long_value_writer.h"

#include "jet/byte_writer.h"

#include <utility>

namespace jet {

std::vector<std::uint8_t> longValueCell(LongValueKind kind, std::size_t length,
                                        RowPointer pointer) {
    ByteWriter out;
    out.u32(static_cast<std::uint32_t>(kind) << kLongValueKindShift | length);
    out.u32(pointer.stored());
    out.u32(0);
    return out.written();
}

std::vector<std::uint8_t> inlineCell(Bytes value) {
    std::vector<std::uint8_t> bytes = longValueCell(LongValueKind::Inline, value.size(), {});
    bytes.insert(bytes.end(), value.data(), value.data() + value.size());
    return bytes;
}

std::vector<std::uint8_t> LongValueWriter::store(Bytes value) {
    if (value.size() <= kJet4.longestSingle)
        return longValueCell(LongValueKind::Single, value.size(), storeSingle(value));
    return longValueCell(LongValueKind::Chain, value.size(), storeChain(value));
}

void LongValueWriter::flush() {
    if (!shared_)
        return;
    file_->write(shared_->number(), shared_->image());
    withRoom_.insert(shared_->number());
    shared_.reset();
}

RowPointer LongValueWriter::storeSingle(Bytes value) {
    if (!shared_)
        shared_ = newPage();
    if (const auto place = shared_->add(value))
        return *place;
    file_->write(shared_->number(), shared_->image());
    shared_ = newPage();
    return *shared_->add(value); // an empty page has room for any record
}

RowPointer LongValueWriter::storeChain(Bytes value) {
    DataPageBuilder page = newPage();
    const RowPointer first(page.number(), 0);
    while (!value.empty()) {
        const Bytes piece = value.first(kJet4.longestPiece);
        value = value.from(piece.size());
        std::optional<DataPageBuilder> next;
        if (!value.empty())
            next = newPage();
        ByteWriter record;
        record.u32(next ? RowPointer(next->number(), 0).stored() : 0);
        record.bytes(piece);
        page.add(record.written());
        file_->write(page.number(), page.image());
        if (next)
            page = std::move(*next);
    }
    return first;
}

DataPageBuilder LongValueWriter::newPage() {
    DataPageBuilder page(file_->allocate(), kLongValueOwner);
    owned_.insert(page.number());
    return page;
}

} // namespace jet

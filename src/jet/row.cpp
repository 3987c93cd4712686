#include "jet/row.h"

namespace jet {

namespace {

/// Reads the numbers inside a row, which are as wide as the format says.
std::size_t rowNumber(Bytes bytes, std::size_t offset, const Format& format) {
    return format.rowNumber == 1 ? std::size_t{bytes.u8(offset)} : bytes.u16(offset);
}

} // namespace

Row::Parsed Row::parse(Bytes bytes, const RowShape& shape) {
    Row row;
    row.bytes_ = bytes;
    row.format_ = shape.format;
    row.columnCount_ = rowNumber(bytes, 0, *shape.format);
    if (row.columnCount_ > shape.maxColumns || row.columnCount_ > kMaxColumns)
        return {{}, "elle a plus de colonnes que la table"};
    const std::size_t maskSize = (row.columnCount_ + 7) / 8;
    if (!bytes.has(shape.format->rowNumber, maskSize))
        return {{}, "elle est plus courte que son masque de valeurs absentes"};
    row.maskAt_ = bytes.size() - maskSize;
    row.fixedEnd_ = row.maskAt_;
    if (shape.hasVariableColumns && !row.parseVariableTable(row.maskAt_))
        return {{}, "sa table des valeurs de longueur variable ne tient pas dans la ligne"};
    return {row, nullptr};
}

/// From the mask, at `end`, backwards: the count n, jump bytes (Jet 3), n offsets, and the end of
/// the values as one more offset.
bool Row::parseVariableTable(std::size_t end) {
    const std::size_t size = format_->rowNumber;
    const std::size_t fixedAt = size; // behind the column count
    if (end < fixedAt + size)
        return false;
    const std::size_t countAt = end - size;
    variableCount_ = rowNumber(bytes_, countAt, *format_);
    // The longest row has one byte of jump for each 256 bytes; none of Jet 4 has any.
    jumpCount_ = size == 1 ? (bytes_.size() - 1) / 256 : 0;
    const std::size_t tableSize = jumpCount_ + (variableCount_ + 1) * size;
    if (countAt - fixedAt < tableSize)
        return false;
    jumpsAt_ = countAt - 1;
    firstOffsetAt_ = countAt - jumpCount_ - size;
    dropDummyJump(firstOffsetAt_);

    const std::size_t tableAt = countAt - tableSize;
    variableEnd_ = variableOffset(variableCount_);
    if (variableEnd_ > tableAt || variableEnd_ < fixedAt)
        return false;
    fixedEnd_ = variableOffset(0);
    return fixedEnd_ >= fixedAt && fixedEnd_ <= variableEnd_;
}

/// The jump bytes are reckoned from the row's whole length, so the last one may be too many.
void Row::dropDummyJump(std::size_t firstOffsetAt) {
    if (jumpCount_ > 0 && firstOffsetAt >= variableCount_ &&
        (firstOffsetAt - variableCount_) / 256 < jumpCount_)
        --jumpCount_;
}

/// How many jump bytes apply to the offset of value `index`: each says from which value on 256
/// bytes more count.
std::size_t Row::jumpsUpTo(std::size_t index) const {
    std::size_t count = 0;
    std::size_t previous = 0;
    while (count < jumpCount_) {
        const std::size_t from = bytes_.u8(jumpsAt_ - count);
        if (from > index || from < previous)
            break;
        previous = from;
        ++count;
    }
    return count;
}

std::size_t Row::variableOffset(std::size_t index) const {
    const std::size_t stored =
        rowNumber(bytes_, firstOffsetAt_ - index * format_->rowNumber, *format_);
    return stored + 256 * jumpsUpTo(index);
}

std::optional<Bytes> Row::variableValue(std::size_t index) const {
    if (index >= variableCount_)
        return Bytes();
    const std::size_t start = variableOffset(index);
    const std::size_t end = variableOffset(index + 1);
    if (start < fixedEnd_ || start > end || end > variableEnd_)
        return std::nullopt;
    return bytes_.part(start, end - start);
}

} // namespace jet
